#!/usr/bin/python3
"""Writes the seeds of fuzz_record_decoding: one payload of each form that the writers know.

usage: make_record_decoding_corpus.py USERNOTED_WRITER LEGACY_WRITER FOLDER
"""

import pathlib
import sqlite3
import subprocess
import sys
import tempfile

FORMS = """request-title request-body request-title-body request-all request-subtitle
request-title-subtitle request-body-subtitle request-empty archive other-type not-a-dictionary
broken""".split()


def payload(writer, query, *options):
    with tempfile.TemporaryDirectory() as folder:
        path = f"{folder}/db"
        subprocess.run([writer, path, "--create", "--records", "1", "--quiet", *options], check=True,
                       stdout=subprocess.DEVNULL)
        with sqlite3.connect(path) as database:
            return database.execute(query).fetchone()[0]


def main(usernoted_writer, legacy_writer, folder):
    target = pathlib.Path(folder)
    target.mkdir(parents=True, exist_ok=True)
    for form in FORMS:
        texts = ["--title", "Grüße 😀", "--body", "A body of some words", "--subtitle", "Below"]
        seed = payload(usernoted_writer, "SELECT data FROM record", "--form", form, *texts)
        (target / f"{form}.plist").write_bytes(seed)
    for name, options in {"legacy": [], "legacy-short": ["--raw-objects", "1"]}.items():
        seed = payload(legacy_writer, "SELECT encoded_data FROM notifications", *options)
        (target / f"{name}.plist").write_bytes(seed)


if __name__ == "__main__":
    main(*sys.argv[1:])

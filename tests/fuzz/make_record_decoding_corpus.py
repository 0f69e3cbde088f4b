#!/usr/bin/env python3
"""Writes the seeds of fuzz_record_decoding: one payload of each form that the systems know.

usage: make_record_decoding_corpus.py FOLDER
"""

import pathlib
import sys

sys.path.append(str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
from system_databases import BAD_FORMS, FORMS, LegacyDatabase, usernoted_payload

DATE = 785000000.0


def main(folder):
    target = pathlib.Path(folder)
    target.mkdir(parents=True, exist_ok=True)
    texts = {"title": "Grüße 😀", "body": "A body of some words", "subtitle": "Below"}
    for form in set(FORMS + BAD_FORMS) - {"archive-long", "zero-bytes", "null"}:
        seed = usernoted_payload(form, 1, app="com.example.Mail", date=DATE, **texts)
        (target / f"{form}.plist").write_bytes(seed)
    for name, objects in {"legacy": None, "legacy-short": 1}.items():
        seed = LegacyDatabase.payload("Title 1", "Body 1", DATE, objects)
        (target / f"{name}.plist").write_bytes(seed)


if __name__ == "__main__":
    main(*sys.argv[1:])

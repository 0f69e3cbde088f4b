#!/usr/bin/env python3
"""Runs clang-tidy over sources that have changed since it last found nothing in them.

usage: check_tidy.py CLANG_TIDY ROOT BUILD_FOLDER FOLDER...

A source counts as unchanged while it, all it includes of this project, its compile command, the
settings and clang-tidy itself are the same.
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import subprocess
import sys

import sources


class Tidy:
    def __init__(self, program, root, build):
        self.program, self.root, self.build = program, root, build
        self.stamps = build / "tidy"
        self.stamps.mkdir(exist_ok=True)
        version = subprocess.run([program, "--version"], capture_output=True, check=True).stdout
        self.base = hashlib.sha256(version + (root / ".clang-tidy").read_bytes()).digest()

    def fingerprint(self, file, command):
        digest = hashlib.sha256(self.base + command.encode())
        for included in sources.with_everything_included(self.root, file):
            digest.update(hashlib.sha256((self.root / included).read_bytes()).digest())
        return digest.hexdigest()

    def check(self, file, command):
        """Nothing if the file is clean, else what clang-tidy says."""
        stamp = self.stamps / file.as_posix().replace("/", "_")
        fingerprint = self.fingerprint(file, command)
        if stamp.exists() and stamp.read_text() == fingerprint:
            return None
        done = subprocess.run([self.program, "-p", self.build, "--quiet", self.root / file],
                              capture_output=True, text=True, encoding="utf-8")
        if done.returncode == 0:
            stamp.write_text(fingerprint)
            return None
        return done.stdout or done.stderr


def commands_of(root, build, folders):
    """The compile command of each source under the folders, as the build has it."""
    commands = {}
    for entry in json.loads((build / "compile_commands.json").read_text()):
        path = pathlib.Path(entry["directory"], entry["file"]).resolve()
        if any((root / folder) in path.parents for folder in folders):
            commands[path.relative_to(root)] = entry["command"]
    return commands


def main():
    if len(sys.argv) < 5:
        sys.exit(__doc__)
    program, root, build = sys.argv[1], *(pathlib.Path(name).resolve() for name in sys.argv[2:4])
    commands = commands_of(root, build, sys.argv[4:])
    if not commands:
        sys.exit("no sources to check")
    tidy = Tidy(program, root, build)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as workers:
        complaints = list(workers.map(lambda item: tidy.check(*item), sorted(commands.items())))
    for complaint in filter(None, complaints):
        print(complaint)
    failed = sum(complaint is not None for complaint in complaints)
    print(f"{failed} of {len(complaints)} sources with complaints")
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()

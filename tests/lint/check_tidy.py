#!/usr/bin/env python3
"""Runs clang-tidy over sources that have changed since it last found nothing in them.

usage: check_tidy.py CLANG_TIDY ROOT BUILD_FOLDER FOLDER...

It reads what the compiler reads: where the build compiles several sources as one, so does
clang-tidy, which spends nearly all of its time on the headers that they share. Such a set counts as
unchanged while its sources, all they include of this project, the compile command, the settings and
clang-tidy itself are the same.
"""

import concurrent.futures
import dataclasses
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys

import sources

INCLUDE = re.compile(r'^#include "([^"]+)"', re.MULTILINE)


class Tidy:
    def __init__(self, program, root, build, folders):
        self.program, self.root, self.build = program, root, build
        self.stamps = build / "tidy"
        self.stamps.mkdir(exist_ok=True)
        version = subprocess.run([program, "--version"], capture_output=True, check=True).stdout
        self.base = hashlib.sha256(version + (root / ".clang-tidy").read_bytes()).digest()
        # Without what the build generates, which lies below the root too.
        self.ours = f"^{re.escape(str(root))}/({'|'.join(folders)})/.*\\.(h|cpp)$"

    def fingerprint(self, files, command):
        digest = hashlib.sha256(self.base + command.encode())
        included = {name for file in files
                    for name in sources.with_everything_included(self.root, file)}
        for name in sorted(included):
            digest.update(hashlib.sha256((self.root / name).read_bytes()).digest())
        return digest.hexdigest()

    def check(self, unit):
        """Nothing if the unit is clean, else what clang-tidy says."""
        stamp = self.stamps / unit.path.relative_to(self.build).as_posix().replace("/", "_")
        fingerprint = self.fingerprint(unit.files, unit.command)
        if stamp.exists() and stamp.read_text() == fingerprint:
            return None
        done = subprocess.run([self.program, "-p", self.build, "--quiet",
                               "--header-filter", self.ours, unit.path],
                              capture_output=True, text=True, encoding="utf-8")
        if done.returncode == 0:
            stamp.write_text(fingerprint)
            return None
        return done.stdout or done.stderr


@dataclasses.dataclass
class Unit:
    """What the compiler reads at once: a list of includes that the build wrote."""
    path: pathlib.Path
    command: str
    files: list  # of ours, from the root


def units_of(root, build, folders):
    """The units of sources under the folders, and the set of those sources."""
    units, covered = [], set()
    for entry in json.loads((build / "compile_commands.json").read_text()):
        path = pathlib.Path(entry["directory"], entry["file"])
        if path.parent.name != "Unity":
            continue
        included = [pathlib.Path(name) for name in INCLUDE.findall(path.read_text())]
        files = [name.relative_to(root) for name in included
                 if any((root / folder) in name.parents for folder in folders)]
        if files:
            units.append(Unit(path, entry["command"], files))
            covered.update(files)
    return units, covered


def main():
    if len(sys.argv) < 5:
        sys.exit(__doc__)
    program, root, build = sys.argv[1], *(pathlib.Path(name).resolve() for name in sys.argv[2:4])
    folders = sys.argv[4:]
    units, covered = units_of(root, build, folders)
    left_out = [file.as_posix() for file in sources.cpp_files(root, folders)
                if file.suffix == ".cpp" and file not in covered and "fuzz" not in file.parts]
    if left_out:
        sys.exit("not compiled by this build, so not checked: " + " ".join(left_out))
    tidy = Tidy(program, root, build, folders)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as workers:
        complaints = list(workers.map(tidy.check, units))
    for complaint in filter(None, complaints):
        print(complaint)
    failed = sum(complaint is not None for complaint in complaints)
    print(f"{len(covered)} sources in {len(units)} units, {failed} with complaints")
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()

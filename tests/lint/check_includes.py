#!/usr/bin/env python3
"""Checks that each source of the program compiles by itself, so that it includes those headers of the
project that it uses. The build compiles sources in sets, in which one sees what another includes.

usage: check_includes.py COMPILER ROOT BUILD_FOLDER

All headers of libraries are compiled once, beforehand, and seen by every source: what a source lacks
of them is not found. COMPILER is clang++. A source counts as unchanged while it, all it includes of the
project and the compiler are the same.
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import shlex
import subprocess
import sys

import sources
from check_tidy import Command


class Includes:
    def __init__(self, compiler, root, build):
        self.root, self.folder = root, build / "includes"
        self.folder.mkdir(parents=True, exist_ok=True)
        self.files, command = set(), Command()
        for entry in json.loads((build / "compile_commands.json").read_text()):
            ours = [path for path in sources.sources_of(entry) if root / "src" in path.parents]
            if ours:
                self.files.update(path.relative_to(root) for path in ours)
                command.add(shlex.split(entry["command"]))
        # Macros too have to be the same for what is compiled beforehand.
        self.command = [compiler, *command.words()[1:], "-w"]
        version = subprocess.run([compiler, "--version"], capture_output=True, check=True).stdout
        self.base = version + json.dumps(self.command).encode()
        self.libraries = self.folder / "libraries.h"

    def included(self, file):
        return sources.with_everything_included(self.root, file)

    def fingerprint(self, file):
        digest = hashlib.sha256(self.base)
        for name in self.included(file):
            digest.update(name.as_posix().encode() + (self.root / name).read_bytes())
        return digest.hexdigest()

    def compile_libraries(self):
        """What the compiler says if it can't."""
        names = {name for file in self.files for part in self.included(file)
                 for _, quoted, name in sources.include_lines(self.root, part) if not quoted}
        # Those of other systems are not here.
        self.libraries.write_text("".join(
            f"#if __has_include(<{name}>)\n#include <{name}>\n#endif\n" for name in sorted(names)))
        done = subprocess.run([*self.command, "-fpch-instantiate-templates", "-x", "c++-header",
                               self.libraries, "-o", self.libraries.with_suffix(".pch")],
                              capture_output=True, text=True, encoding="utf-8")
        return done.stderr if done.returncode != 0 else None

    def compile(self, file):
        """What the compiler says if the source doesn't compile."""
        done = subprocess.run([*self.command, "-include-pch", self.libraries.with_suffix(".pch"),
                               "-fsyntax-only", self.root / file],
                              capture_output=True, text=True, encoding="utf-8")
        return done.stderr if done.returncode != 0 else None

    def check(self):
        """(the sources looked at, what the compiler said of those that don't compile)."""
        note = self.folder / "clean.json"
        known = json.loads(note.read_text()) if note.exists() else {}
        fingerprints = {file.as_posix(): self.fingerprint(file) for file in sorted(self.files)}
        changed = [pathlib.Path(name) for name, value in fingerprints.items() if known.get(name) != value]
        if not changed:
            return [], []
        failure = self.compile_libraries()
        if failure:
            return changed, [failure]
        with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
            complaints = dict(zip(changed, pool.map(self.compile, changed)))
        note.write_text(json.dumps({name: value for name, value in fingerprints.items()
                                    if not complaints.get(pathlib.Path(name))}))
        return changed, [text for text in complaints.values() if text]


def main():
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    includes = Includes(sys.argv[1], *(pathlib.Path(name).resolve() for name in sys.argv[2:]))
    changed, complaints = includes.check()
    print("".join(complaints), end="")
    print(f"{len(includes.files)} sources, {len(changed)} changed, {len(complaints)} with complaints")
    sys.exit(1 if complaints else 0)


if __name__ == "__main__":
    main()

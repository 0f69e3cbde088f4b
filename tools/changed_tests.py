#!/usr/bin/env python3
"""Says which tests the changes since a moment concern, as labels for CTest.

usage: changed_tests.py ROOT STAMP

STAMP is a file that was last written at that moment. Prints one label a line: of the folders in which a
file has changed or gone since, "brief" among them if any file has, "all" alone if a change concerns everything;
nothing if nothing has changed. What builds leave behind doesn't count.
"""

import pathlib
import re
import sys

# Files that no test reads or runs.
WITHOUT_TESTS = re.compile(r"docs/.*|[^/]+\.md|LICENSE|\.git.*|bench/.*")
# Tests lie in the folder that is named after that of the sources.
FOLDER = re.compile(r"(?:src|tests)/(\w+)/.*")
# What tests of many folders share.
SHARED = re.compile(r"tests/support/.*|src/CMakeLists\.txt|tests/CMakeLists\.txt")
# Everything that is read or run elsewhere than where it lies.
ELSEWHERE = [
    (re.compile(r"resources/.*|src/theme/.*"), {"theme", "languages"}),
    (re.compile(r"src/(browser|controls|windows|shell)/.*"), {"ui"}),
    (re.compile(r"packaging/.*|scripts/package"), {"packaging"}),
    (re.compile(r"tools/.*"), {"tools"}),
    (re.compile(r"scripts/.*|\.ci/.*|\.clang.*|\.editorconfig"), set()),  # quick lints read them
]


def labels_of(file):
    """Of the tests that a change of a file concerns, without those that always run."""
    if WITHOUT_TESTS.fullmatch(file):
        return set()
    if SHARED.fullmatch(file):
        return {"all"}
    found = [labels for pattern, labels in ELSEWHERE if pattern.fullmatch(file)]
    folder = FOLDER.fullmatch(file)
    if folder:
        found.append({folder[1]})
    return set().union(*found) if found else {"all"}


def labels(files):
    found = set().union(*map(labels_of, files), {"brief"}) if files else set()
    return {"all"} if "all" in found else found


def is_source(path):
    return not any(part in ("build", "__pycache__", ".git") for part in path.parts)


def changed_since(root, stamp):
    moment = stamp.stat().st_mtime_ns
    # The time of a folder is that at which a file in it came or went.
    return sorted(path.relative_to(root).as_posix() + "/" * path.is_dir() for path in root.rglob("*")
                  if is_source(path.relative_to(root))
                  and path.lstat().st_mtime_ns >= moment)  # clocks of files tick slowly


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    files = changed_since(*map(pathlib.Path, sys.argv[1:]))
    print("\n".join(sorted(labels(files))))


if __name__ == "__main__":
    main()

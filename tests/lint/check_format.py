#!/usr/bin/env python3
"""Checks that every source is laid out as .clang-format wants it; scripts/format mends it.

usage: check_format.py CLANG_FORMAT ROOT
"""

import pathlib
import subprocess
import sys

import sources


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    program, root = sys.argv[1], pathlib.Path(sys.argv[2])
    files = sources.cpp_files(root, ["src", "tests", "bench"])
    done = subprocess.run([program, "--dry-run", "-Werror", *files], cwd=root)
    sys.exit(done.returncode)


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""Checks the macOS side of the program on Linux, as far as anything but a Mac can.

usage: check.py --file SOURCE...   compiles single sources
"""

import subprocess
import sys

import fetch
import target


def check_files(sources):
    """Compiles single sources and keeps nothing; the number of those that failed."""
    failed = 0
    for source in sources:
        done = subprocess.run(target.compile_command(source, "/dev/null"))
        failed += done.returncode != 0
    return failed


def main():
    if len(sys.argv) < 3 or sys.argv[1] != "--file":
        sys.exit(__doc__)
    try:
        failed = check_files(sys.argv[2:])
    except fetch.FetchError as error:
        sys.exit(f"check-macos: {error}")
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()

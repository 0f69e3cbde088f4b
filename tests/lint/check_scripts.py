#!/usr/bin/env python3
"""Checks that shell scripts use nothing that Bash 3.2 lacks, the one that a Mac brings. shellcheck knows
no versions.

usage: check_scripts.py SCRIPT...
"""

import pathlib
import re
import sys

NEWER = re.compile(
    r"\b(?:coproc|mapfile|readarray)\b"
    r"|\b(?:declare|local|typeset)\s+-[a-zA-Z]*[Angu][a-zA-Z]*\b"  # associative, by name, upper case
    r"|\$\{\w+(?:\^\^?|,,?|@[A-Za-z])"  # letters changed, transformations
    r"|&>>|\|&"
    r"|\bwait\s+-n\b|\bread\b[^|;]*\s-t\s*\d*\.\d|\bprintf\s+-v\s+\w+\["
    r"|%\([^)]*\)T|\bshopt\s+-s\s+(?:globstar|lastpipe)\b|\$(?:EPOCHSECONDS|EPOCHREALTIME|BASHPID)\b")


def check(paths):
    return [f"{path}:{number}: {match[0]} is newer than Bash 3.2"
            for path in paths
            for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1)
            if (match := NEWER.search(re.sub(r"(^|\s)#.*", "", line)))]


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    violations = check(map(pathlib.Path, sys.argv[1:]))
    print("\n".join(violations))
    sys.exit(1 if violations else 0)


if __name__ == "__main__":
    main()

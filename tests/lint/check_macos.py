#!/usr/bin/env python3
"""Checks what a compiler can't see of the sources for macOS, and nobody on Linux would notice: that what
is owned is given back in one place, that operations have pools, that names of properties are known to
the compiler.

usage: check_macos.py ROOT
"""

import pathlib
import re
import sys

import sources

FOLDER = "src/platform/macos"

# Whatever gives a reference back. One that is forgotten is a leak, one too many ends the process.
RELEASE = re.compile(r"\b(?:CF|CG[A-Z]\w*)(?:Release|Autorelease)\b")
RELEASE_FILE = pathlib.PurePosixPath(FOLDER) / "OwnedRef.h"

# The static analyser doesn't know that these give what they write through a pointer away.
COPY = re.compile(r"\bAXUIElementCopy\w+")
COPY_FILE = pathlib.PurePosixPath(FOLDER) / "AccessibilityReading.mm"

# Without Qt's plug-in for windows nobody turns it, and tasks of the program go by its scheduler.
MAIN_QUEUE = re.compile(r"\bdispatch_get_main_queue\b|\bNSOperationQueue\.mainQueue\b")

# The compiler looks at selectors and not at texts.
TEXT_AS_PROPERTY = re.compile(r'\b\w*[kK]eyPath:\s*@"')

MEMBER = re.compile(r"^(?!\s).*?\b(\w+::~?\w+)\(")
METHOD = re.compile(r"^[-+] \([^)]*\)\s*(\w+)")
POOL = "@autoreleasepool {"


def code_lines(root, file):
    """(number, line without its comment) of a file."""
    for number, line in enumerate(sources.lines_of(root / file), 1):
        yield number, line.split("//")[0]


def matches(root, files, pattern, allowed, why):
    return [f"{file}:{number}: {match[0]} {why}"
            for file in files if file.as_posix() != str(allowed)
            for number, line in code_lines(root, file) if (match := pattern.search(line))]


def bodies(lines):
    """(number, name, first line of the body) of each member function and each method that is defined in
    these lines; "" for a body that is empty."""
    for index, line in enumerate(lines):
        match = MEMBER.match(line) or METHOD.match(line)
        if not match:
            continue
        for end in range(index, len(lines)):
            text = lines[end].split("//")[0].rstrip()
            if text.endswith(("{}", ";")):
                break
            if text.endswith("{"):
                first = lines[end + 1].strip() if end + 1 < len(lines) else ""
                yield index + 1, match[1], "" if first == "}" else first
                break


def check_pools(root, files):
    """The pool of the main thread is drained with an event, and a program in the background gets none; a
    worker has no pool at all. Initialisers are called by what has one."""
    return [f"{file}:{number}: {name} must begin with {POOL[:-2]}"
            for file in files if file.suffix == ".mm"
            for number, name, first in bodies(sources.lines_of(root / file))
            if first and not first.startswith(POOL) and not name.startswith("init")]


def check(root):
    files = sources.cpp_files(root, [FOLDER])
    return [*matches(root, files, RELEASE, RELEASE_FILE, f"belongs to {RELEASE_FILE.name}"),
            *matches(root, files, COPY, COPY_FILE, f"belongs to {COPY_FILE.name}"),
            *matches(root, files, MAIN_QUEUE, None, "goes by the scheduler"),
            *matches(root, files, TEXT_AS_PROPERTY, None, "needs NSStringFromSelector"),
            *check_pools(root, files)]


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    violations = check(pathlib.Path(sys.argv[1]).resolve())
    print("\n".join(violations))
    sys.exit(1 if violations else 0)


if __name__ == "__main__":
    main()

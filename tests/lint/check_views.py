#!/usr/bin/env python3
"""Checks the views for what no other check can see: types of Qt that fail on some desktop.

usage: check_views.py ROOT
"""

import pathlib
import re
import sys

import sources

# A type, the file that may use it, and what to use instead.
AVOIDED = [
    (re.compile(r"\bTapHandler\b\s*\{"), None,
     "once a TapHandler has opened a menu, Qt hands it the left button too on Wayland; use a "
     "MouseArea"),
    (re.compile(r"\bFlickable\b\s*\{"), "src/controls/ScrollArea.qml",
     "the mouse drags a Flickable as a finger would; use a ScrollArea"),
    (re.compile(r"\bListView\b\s*\{"), "src/controls/ScrollList.qml",
     "the mouse drags a ListView as a finger would; use a ScrollList"),
]


def check(root):
    violations = []
    for path in sorted((root / "src").rglob("*.qml")):
        file = path.relative_to(root).as_posix()
        for number, line in enumerate(sources.lines_of(path), 1):
            for pattern, allowed, why in AVOIDED:
                if pattern.search(line.split("//")[0]) and file != allowed:
                    violations.append(f"{file}:{number}: {why}")
    return violations


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    violations = check(pathlib.Path(sys.argv[1]).resolve())
    print("\n".join(violations))
    sys.exit(1 if violations else 0)


if __name__ == "__main__":
    main()

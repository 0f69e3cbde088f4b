#!/usr/bin/env python3
"""Checks the views for what no other check can see: types of Qt that fail on some desktop, and values
without a type between C++ and QML.

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

# Nobody notices a misspelt member of an untyped value before it is read.
UNTYPED_IN_QML = re.compile(r"\bproperty\s+(?:var|variant)\b|\blist<(?:var|variant)>|:\s*var\b")
UNTYPED_FROM_CPP = re.compile(
    r"(?:Q_PROPERTY\(\s*|Q_INVOKABLE\s+)(QVariant(?:List|Map|Hash)?|QJSValue|QJsonObject|QJsonArray)\b")


def check_types_of_qt(file, line):
    return [why for pattern, allowed, why in AVOIDED if pattern.search(line) and file != allowed]


def check_untyped_in_qml(_, line):
    return ["a value without a type; name its type"] if UNTYPED_IN_QML.search(line) else []


def check_untyped_from_cpp(_, line):
    match = UNTYPED_FROM_CPP.search(line)
    return [f"{match[1]} for a view; hand it a value type, a list of them or a model"] if match else []


def check_lines(root, suffix, *checks):
    violations = []
    for path in sorted((root / "src").rglob(f"*{suffix}")):
        file = path.relative_to(root).as_posix()
        for number, line in enumerate(sources.lines_of(path), 1):
            for one in checks:
                violations += [f"{file}:{number}: {why}" for why in one(file, line.split("//")[0])]
    return violations


def check(root):
    return [*check_lines(root, ".qml", check_types_of_qt, check_untyped_in_qml),
            *check_lines(root, ".h", check_untyped_from_cpp)]


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    violations = check(pathlib.Path(sys.argv[1]).resolve())
    print("\n".join(violations))
    sys.exit(1 if violations else 0)


if __name__ == "__main__":
    main()

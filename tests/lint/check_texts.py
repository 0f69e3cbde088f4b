#!/usr/bin/env python3
"""Checks that every id that the sources ask a text for has one, in each language, and that no text is
there for nobody.

usage: check_texts.py ROOT
"""

import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree

ID = re.compile(r'"([a-z][A-Za-z0-9]*(?:\.[A-Za-z0-9]+)+)"')
ASKED = re.compile(r'\b(?:qsTrId|qtTrId|QT_TRID_NOOP)\(\s*"([^"]+)"')
SOURCES = {".cpp", ".h", ".qml"}


def texts_in(path):
    """{id: whether it has a text}"""
    return {message.get("id"): bool("".join(message.find("translation").itertext()).strip())
            for message in ElementTree.parse(path).getroot().iter("message")}


def ids_in(root):
    """The ids that are asked for by their very name, with their places; and all that could be one."""
    asked, possible = {}, set()
    for path in sorted((root / "src").rglob("*")):
        if path.suffix not in SOURCES:
            continue
        source = path.read_text(encoding="utf-8")
        possible.update(ID.findall(source))
        for match in ASKED.finditer(source):
            line = source.count("\n", 0, match.start()) + 1
            asked.setdefault(match[1], f"{path.relative_to(root)}:{line}")
    return asked, possible


def check(root):
    asked, possible = ids_in(root)
    violations = []
    for path in sorted((root / "resources/texts").glob("*.ts")):
        texts, name = texts_in(path), path.name
        violations += [f"{place}: {name} has no text for {text}"
                       for text, place in asked.items() if not texts.get(text)]
        violations += [f"{name}: nobody asks for {text}"
                       for text in texts if text not in asked and text not in possible]
        violations += [f"{name}: {text} is empty"
                       for text, has_text in texts.items() if text not in asked and not has_text]
    return violations


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    violations = check(pathlib.Path(sys.argv[1]).resolve())
    print("\n".join(violations))
    sys.exit(1 if violations else 0)


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""Checks that every id that the sources ask a text for has one, in each language, with the same places to
fill in; that no text is there for nobody; and that the texts in which a system differs are among them.

usage: check_texts.py ROOT
"""

import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree

ID = re.compile(r'"([a-z][A-Za-z0-9]*(?:\.[A-Za-z0-9]+)+)"')
ASKED = re.compile(r'\b(?:qsTrId|qtTrId|QT_TRID_NOOP)\(\s*"([^"]+)"')
PLACEHOLDER = re.compile(r"%(?:L?\d|L?n)")
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


def placeholders(path):
    """{id: the placeholders of each of its forms}"""
    return {message.get("id"): [sorted(set(PLACEHOLDER.findall("".join(form.itertext()))))
                                for form in message.findall(".//numerusform")
                                or [message.find("translation")]]
            for message in ElementTree.parse(path).getroot().iter("message")}


def check_language(path, asked, possible):
    """The texts of all systems must all be there."""
    texts, name = texts_in(path), path.name
    return ([f"{place}: {name} has no text for {text}"
             for text, place in asked.items() if not texts.get(text)] +
            [f"{name}: nobody asks for {text}"
             for text in texts if text not in asked and text not in possible] +
            [f"{name}: {text} is empty"
             for text, has_text in texts.items() if text not in asked and not has_text])


def check_against(english, path):
    """A language says what English says, with the same places to fill in."""
    expected, found, name = placeholders(english), placeholders(path), path.name
    violations = [f"{name}: no text for {text}" for text in expected if text not in found]
    violations += [f"{name}: {text} is not in {english.name}"
                   for text in found if text not in expected]
    # The form of one may leave its number out.
    violations += [f"{name}: {text} has other placeholders than in {english.name}"
                   for text in expected.keys() & found.keys()
                   if found[text][-1] != expected[text][-1]]
    return violations


def check(root):
    asked, possible = ids_in(root)
    folder, violations = root / "resources/texts", []
    for path in sorted(folder.glob("tessarine_*.ts")):
        violations += check_language(path, asked, possible)
    common = texts_in(folder / "tessarine_en.ts")
    for english in sorted(folder.glob("*_en.ts")):
        violations += [f"{english.name}: {text} is empty or not a text of all systems"
                       for text, has_text in texts_in(english).items()
                       if not has_text or text not in common]
        prefix = english.name.removesuffix("en.ts")
        for path in sorted(folder.glob(prefix + "*.ts")):
            violations += check_against(english, path)
    return violations


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    violations = check(pathlib.Path(sys.argv[1]).resolve())
    print("\n".join(violations))
    sys.exit(1 if violations else 0)


if __name__ == "__main__":
    main()

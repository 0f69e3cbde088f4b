"""That the names by which the program asks for accessibility are the system's: they are text, which no
compiler knows."""

import re

import build
import fetch
import target

NAME = re.compile(r"[\"'](AX[A-Z]\w+)[\"']")
UNITS = "usr/share/fpcsrc/3.2.2/packages/univint/src"


def recorded():
    """All attributes, roles, actions and notifications of the record of macOS 10.10."""
    folder = fetch.fetch("fpc-source-3.2.2") / UNITS
    return {name for file in folder.glob("AX*Constants.pas")
            for name in NAME.findall(file.read_text(encoding="latin-1"))}


def unknown(text, known):
    return sorted(set(NAME.findall(text)) - known)


def check():
    known = recorded()
    sources = [target.ROOT / "src/platform/Accessibility.h", *build.MACOS.rglob("*.mm"),
               *build.MACOS.rglob("*.h")]
    wrong = [f"{file.relative_to(target.ROOT)}: no attribute, role or notification is called {name}"
             for file in sorted(sources) for name in unknown(file.read_text(encoding="utf-8"), known)]
    if wrong:
        raise build.Failure("\n".join(wrong))

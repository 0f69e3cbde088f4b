"""The commands that the README tells a reader to type."""

import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parents[2]
COMMAND = re.compile(r"(?:scripts/|cmake |sudo apt )\S.*")
INLINE = re.compile(r"`([^`]+)`")


def section(title, text=None):
    """What stands under a heading."""
    text = (ROOT / "README.md").read_text() if text is None else text
    found = re.search(rf"^## {title}\n(.*?)(?=^## |\Z)", text, re.M | re.S)
    if not found:
        raise ValueError(f"the README has no section '{title}'")
    return found[1]


def commands(title, text=None):
    """In their order, without what is said of them, each once: lines that stand apart, and what is
    set as code among words."""
    found = []
    for line in section(title, text).splitlines():
        apart = [line.strip()] if line.startswith("    ") else INLINE.findall(line)
        for words in apart:
            command = words.split("#")[0].strip()
            if COMMAND.fullmatch(command) and command not in found:
                found.append(command)
    return found


def results(title, text=None):
    """The files that the section says are there then."""
    found = INLINE.findall(section(title, text))
    return [path for path in found if path.startswith("build/")]

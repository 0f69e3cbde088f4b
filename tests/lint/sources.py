"""What the checks share: the sources of the project and what they include of each other."""

import functools
import os
import pathlib
import re

CPP_SUFFIXES = {".cpp", ".h", ".mm"}
# Quoted includes are written from one of these folders, or from the including file's own.
INCLUDE_FOLDERS = ["src", ".", "tests"]
UNITY_INCLUDE = re.compile(r'^#include "([^"]+)"', re.MULTILINE)
INCLUDE = re.compile(r'^\s*#\s*(?:include|import)\s*([<"])([^>"]+)[>"]')


def cpp_files(root, folders):
    """Sources and headers under the given folders, as sorted paths from the root."""
    return sorted(path.relative_to(root) for folder in folders
                  for path in (root / folder).rglob("*") if path.suffix in CPP_SUFFIXES)


@functools.lru_cache(maxsize=None)
def lines_of(path):
    return path.read_text(encoding="utf-8").splitlines()


def include_lines(root, file):
    """(line number, whether quoted, name) of each include of a file."""
    found = []
    for number, line in enumerate(lines_of(root / file), 1):
        match = INCLUDE.match(line)
        if match:
            found.append((number, match[1] == '"', match[2]))
    return found


def resolve(root, file, name):
    """The project's file that a quoted include names, from the root; None for generated ones."""
    for folder in [*INCLUDE_FOLDERS, file.parent]:
        candidate = pathlib.Path(os.path.normpath(pathlib.Path(folder) / name))
        if (root / candidate).is_file():
            return candidate
    return None


def project_includes(root, file):
    """(line number, file) for each include of a file of the project."""
    resolved = ((number, resolve(root, file, name))
                for number, quoted, name in include_lines(root, file) if quoted)
    return [(number, target) for number, target in resolved if target is not None]


def with_everything_included(root, file):
    """The file and all files of the project that it includes, directly or not, sorted."""
    seen, waiting = set(), [file]
    while waiting:
        current = waiting.pop()
        if current not in seen:
            seen.add(current)
            waiting.extend(target for _, target in project_includes(root, current))
    return sorted(seen)


def sources_of(entry):
    """What an entry of a build's compile_commands.json compiles, itself perhaps a list of includes."""
    path = pathlib.Path(entry["directory"], entry["file"])
    if path.parent.name != "Unity":
        return [path]
    return [pathlib.Path(name) for name in UNITY_INCLUDE.findall(path.read_text())]

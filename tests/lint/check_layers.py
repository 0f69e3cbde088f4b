#!/usr/bin/env python3
"""Checks that includes point one way, as the documentation shows it, that only a system's own folder
knows the system, one folder alone SQLite, and one file alone the time zone.

usage: check_layers.py ROOT
"""

import pathlib
import re
import sys

import sources

# From the bottom to the top: a file includes its own layer and those below.
LAYERS = ["shared", "platform", "system", "store", "services", "capture", "theme", "controls",
          "windows", "views", "core"]

# A folder is in one layer, with all that is below it.
LAYER_OF_FOLDERS = {
    "src/shared": "shared",
    "src/platform": "platform",
    "src/platform/linux": "system",
    "src/platform/macos": "system",
    "src/store": "store",
    "src/preferences": "services",
    "src/diagnostics": "services",
    "src/capture": "capture",
    "src/theme": "theme",
    "src/controls": "controls",
    "src/windows": "windows",
    "src/apps": "views",
    "src/browser": "views",
    "src/diagnosticsview": "views",
    "src/export": "views",
    "src/help": "views",
    "src/settings": "views",
    "src/onboarding": "views",
    "src/shell": "views",
    "src/core": "core",
}

SYSTEM_FOLDERS = ["src/platform/linux", "src/platform/macos"]
# What one system's tests and benchmarks know of it.
SYSTEM_TEST_FOLDERS = ["tests/platform/linux", "tests/platform/macos", "bench/linux", "bench/macos"]
SYSTEM_MACRO = re.compile(
    r"^\s*#\s*(?:if|ifdef|ifndef|elif)\b.*\b(__linux__|__linux|__APPLE__|__MACH__|__unix__|"
    r"__OBJC__|_WIN32|Q_OS_\w+|TARGET_OS_\w+)\b")
SYSTEM_HEADER = re.compile(
    r"^(dbus/|systemd/|linux/|X11/|xcb/|sys/inotify\.h|sys/eventfd\.h|sys/epoll\.h|QDBus|QtDBus|"
    r"AppKit/|ApplicationServices/|Cocoa/|CoreFoundation/|CoreGraphics/|CoreServices/|Foundation/|"
    r"IOKit/|ServiceManagement/|Sparkle/|UniformTypeIdentifiers/|dispatch/|mach/|malloc/|objc/|"
    r"pthread/)")
BUS_NAME = re.compile(r"org\.freedesktop\.\w+")
SYSTEM_LIBRARY = re.compile(r"(Qt6::DBus|PkgConfig::DBUS|-framework)\b")

# One folder alone holds SQLite's handles, so that all of them are closed in one place.
DATABASE_FOLDER = pathlib.PurePosixPath("src/store")

# Two sources of a zone's rules would disagree about the day of a moment. ICU's calendars are for wall
# time, which one file makes sure of.
ZONE_FILES = ["src/shared/LocalZone.cpp", "src/shared/WallCalendar.cpp"]
ZONE_SOURCE = re.compile(
    r"\b(localtime\w*|mktime|tzset|QTimeZone|current_zone|zoned_time|LocalTime|toLocalTime|"
    r"currentDateTime|QDate::currentDate|QTime::currentTime|createDefault|detectHostTimeZone|"
    r"createTimeZone|Calendar::createInstance|GregorianCalendar)\b")


def layer_of(file):
    for folder in file.parents:
        if folder.as_posix() in LAYER_OF_FOLDERS:
            return LAYER_OF_FOLDERS[folder.as_posix()]
    return None


def system_folder_of(file):
    for folder in SYSTEM_FOLDERS:
        if pathlib.PurePosixPath(folder) in file.parents:
            return folder
    return None


def include_violation(file, target):
    """Why a file of src/ may not include another file, or None."""
    layer, target_layer = layer_of(file), layer_of(target)
    if target_layer is None:
        return f"{target} lies outside src/" if target.parts[0] != "src" else None
    if target_layer == "system" and system_folder_of(file) != system_folder_of(target):
        return f"{target} belongs to one system; include its port"
    if LAYERS.index(target_layer) > LAYERS.index(layer):
        return f"{layer} includes {target}, which belongs to {target_layer} above it"
    return None


def check_includes(root, files):
    violations = []
    for file in files:
        if layer_of(file) is None:
            violations.append(f"{file}:1: belongs to no layer")
            continue
        for number, target in sources.project_includes(root, file):
            why = include_violation(file, target)
            if why:
                violations.append(f"{file}:{number}: {why}")
    return violations


def cycles(edges):
    """The cycles in a graph {node: nodes}, each once, as lists of nodes in their order."""
    found, finished = [], set()

    def visit(node, path):
        if node in path:
            found.append(path[path.index(node):] + [node])
            return
        if node in finished:
            return
        for following in sorted(edges.get(node, ())):
            visit(following, path + [node])
        finished.add(node)

    for node in sorted(edges):
        visit(node, [])
    return found


def unit_of(file):
    """A header and its source are one unit: what one of them needs, both do."""
    return file.with_suffix("").as_posix()


def check_cycles(root, files):
    between_units, between_folders = {}, {}
    for file in files:
        for _, target in sources.project_includes(root, file):
            if unit_of(file) != unit_of(target):
                between_units.setdefault(unit_of(file), set()).add(unit_of(target))
            if file.parent != target.parent:
                between_folders.setdefault(file.parent.as_posix(), set()).add(
                    target.parent.as_posix())
    return [f"{cycle[0]}: a cycle: {' -> '.join(cycle)}"
            for cycle in cycles(between_units) + cycles(between_folders)]


def check_databases(root, files):
    return [f"{file}:{number}: <sqlite3.h> belongs to src/store; use store/Sqlite.h"
            for file in files if DATABASE_FOLDER not in file.parents
            for number, _, name in sources.include_lines(root, file) if name == "sqlite3.h"]


def check_systems(root, files):
    violations = []
    for file in files:
        if system_folder_of(file):
            continue
        if file.suffix == ".mm":
            violations.append(f"{file}:1: Objective-C outside src/platform/macos")
        for number, _, name in (entry for entry in sources.include_lines(root, file)
                                if not entry[1]):
            if SYSTEM_HEADER.match(name):
                violations.append(f"{file}:{number}: <{name}> belongs to one system")
        for number, line in enumerate(sources.lines_of(root / file), 1):
            match = SYSTEM_MACRO.match(line) or BUS_NAME.search(line)
            if match:
                violations.append(f"{file}:{number}: {match[match.lastindex or 0]} is known to one "
                                  "system only")
    return violations


def check_system_conditions(root, files):
    """Tests and benchmarks too ask only in their system's own folder which one it is."""
    return [f"{file}:{number}: {match[1]} is known to one system only"
            for file in files
            if not any(pathlib.PurePosixPath(folder) in file.parents
                       for folder in SYSTEM_TEST_FOLDERS)
            for number, line in enumerate(sources.lines_of(root / file), 1)
            if (match := SYSTEM_MACRO.match(line))]


def check_zones(root, files):
    violations = []
    for file in files:
        if file.as_posix() in ZONE_FILES:
            continue
        for number, line in enumerate(sources.lines_of(root / file), 1):
            match = ZONE_SOURCE.search(line.split("//")[0])
            if match:
                violations.append(f"{file}:{number}: {match[1]} has a time zone of its own; ask "
                                  "shared/LocalZone.h")
    return violations


def check_libraries(root):
    violations = []
    for path in sorted((root / "src").rglob("CMakeLists.txt")):
        file = path.relative_to(root)
        if system_folder_of(file):
            continue
        for number, line in enumerate(sources.lines_of(path), 1):
            match = SYSTEM_LIBRARY.search(line.split("#")[0])
            if match:
                violations.append(f"{file}:{number}: {match[1]} belongs to one system")
    return violations


def check_documents(root):
    """The table and the picture of the documentation name every folder that there is."""
    violations = []
    table = root / "docs/architecture.md"
    picture = root / "docs/house.svg"
    for folder in LAYER_OF_FOLDERS:
        if table.exists() and f"| `{folder}` |" not in table.read_text(encoding="utf-8"):
            violations.append(f"docs/architecture.md: the table of folders lacks {folder}")
        if picture.exists() and f">{folder}<" not in picture.read_text(encoding="utf-8"):
            violations.append(f"docs/house.svg: the picture lacks {folder}")
    return violations


def check(root):
    files = sources.cpp_files(root, ["src"])
    return [*check_includes(root, files), *check_cycles(root, files),
            *check_databases(root, files), *check_systems(root, files),
            *check_system_conditions(root, sources.cpp_files(root, ["tests", "bench"])),
            *check_zones(root, files), *check_libraries(root), *check_documents(root)]


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    violations = check(pathlib.Path(sys.argv[1]).resolve())
    print("\n".join(violations))
    sys.exit(1 if violations else 0)


if __name__ == "__main__":
    main()

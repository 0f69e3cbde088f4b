#!/usr/bin/env python3
"""Has the tools of the desktops and of the manual read what the program installs for them, and checks
that all of it goes by one id. A tool that is not installed leaves its check out; the scripts install
all of them.

usage: check_desktop_data.py ROOT
"""

import configparser
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

ID = "com.zorvek.Tessarine"
LANGUAGES = ["de", "fr", "it"]  # besides English, which has no mark

# Keys of version 1.5 of the Desktop Entry Specification.
NEW_KEYS = ["SingleMainWindow"]


def run(*command, locale="C"):
    """What the tool has to say, or nothing if it is content."""
    if shutil.which(command[0]) is None:
        return []
    result = subprocess.run([str(word) for word in command], capture_output=True, text=True,
                            env={**os.environ, "LC_ALL": locale, "LANGUAGE": ""})
    said = (result.stdout + result.stderr).strip()
    return [f"{command[0]}: {said or result.returncode}"] if result.returncode else []


def read_entry(path):
    parser = configparser.RawConfigParser(interpolation=None, strict=True)
    parser.optionxform = str
    parser.read(path, encoding="utf-8")
    return parser


def entry_file(folder, name, text):
    path = pathlib.Path(folder) / name
    path.write_text(text, encoding="utf-8")
    return path


def validator_knows_new_keys(folder):
    text = "[Desktop Entry]\nVersion=1.5\nType=Application\nName=A\nExec=a\n"
    return not run("desktop-file-validate", entry_file(folder, "probe.desktop", text))


def check_by_validator(path):
    """By an older validator as a file of the version that it knows."""
    with tempfile.TemporaryDirectory() as folder:
        text = path.read_text(encoding="utf-8")
        if not validator_knows_new_keys(folder):
            text = text.replace("\nVersion=1.5\n", "\nVersion=1.4\n")
            text = re.sub(rf"\n(?:{'|'.join(NEW_KEYS)})=\w+", "", text)
        return run("desktop-file-validate", "--no-hints", entry_file(folder, path.name, text))


def check_translations(entry):
    problems = []
    for group in entry.sections():
        for key in ("GenericName", "Comment", "Keywords", "Name"):
            if key not in entry[group] or (key, group) == ("Name", "Desktop Entry"):
                continue  # the program's own name is the same everywhere
            problems += [f"[{group}] {key} lacks [{language}]" for language in LANGUAGES
                         if f"{key}[{language}]" not in entry[group]]
    return problems


def check_entry(path):
    entry = read_entry(path)
    main = entry["Desktop Entry"]
    wanted = {"Icon": ID, "StartupWMClass": ID, "DBusActivatable": "true",
              "SingleMainWindow": "true", "Actions": "open;quit;"}
    problems = [f"{key} is {main.get(key)}" for key in wanted if main.get(key) != wanted[key]]
    for action in ("open", "quit"):
        command = entry[f"Desktop Action {action}"]["Exec"]
        if command.split() != ["gapplication", "action", ID, action]:
            problems.append(f"the action {action} is {command}")
    return problems + check_translations(entry) + check_by_validator(path)


def check_service(path):
    name = read_entry(path)["D-BUS Service"]["Name"]
    return [] if name == ID else [f"the bus name is {name}"]


def check_description(path, version):
    root = xml.etree.ElementTree.parse(path).getroot()
    wanted = {"id": ID, "icon": ID, "provides/dbus": ID, "launchable": f"{ID}.desktop"}
    problems = [f"<{key}> is {root.findtext(key)}" for key in wanted
                if root.findtext(key) != wanted[key]]
    newest = root.find("releases/release").get("version")
    if newest != version:
        problems.append(f"the newest release is {newest}, the program's version {version}")
    language = "{http://www.w3.org/XML/1998/namespace}lang"
    summaries = {summary.get(language) for summary in root.findall("summary")}
    problems += [f"no summary in {missing}" for missing in set(LANGUAGES) - summaries]
    return problems + run("appstreamcli", "validate", "--no-net", path)


def check_pictures(description, folder):
    """Those that the description names are in the documentation, in the size that it tells."""
    problems = []
    for image in xml.etree.ElementTree.parse(description).getroot().iter("image"):
        path = folder / image.text.rsplit("/", 1)[1]
        head = path.read_bytes()[:24] if path.exists() else b""
        size = [str(int.from_bytes(head[start:start + 4], "big")) for start in (16, 20)]
        if size != [image.get("width"), image.get("height")]:
            problems.append(f"{path} is {'x'.join(size)}")
    return problems


def check_manual(path, version):
    head = path.read_text(encoding="utf-8").splitlines()[0]
    problems = [] if f'"Tessarine {version}"' in head else [f"{path}: {head}"]
    problems += run("mandoc", "-T", "lint", "-W", "warning", path)
    if shutil.which("man") is None:
        return problems
    result = subprocess.run(["man", "--warnings", "--encoding=UTF-8", "--local-file",
                             "--troff-device=utf8", "--ditroff", str(path)], capture_output=True,
                            text=True, env={**os.environ, "LC_ALL": "C.UTF-8", "MANROFFSEQ": "",
                                            "MANWIDTH": "80"})
    said = result.stderr.strip()
    return problems + ([f"man: {said}"] if said or result.returncode else [])


def check_names_in_sources(root):
    """The other places where the system meets the id."""
    places = {
        "src/core/ApplicationSetup.cpp": f'setDesktopFileName(QStringLiteral("{ID}"))',
        "src/platform/linux/applications/LinuxLoginItem.cpp": f'"{ID}.desktop"',
        "src/platform/linux/LinuxPlatform.cpp": f'"/{ID}.conf"',
    }
    return [f"{path} lacks {text}" for path, text in places.items()
            if text not in (root / path).read_text(encoding="utf-8")]


def check(root):
    data = root / "resources/linux"
    version = re.search(r"project\(tessarine VERSION ([\d.]+)",
                        (root / "CMakeLists.txt").read_text(encoding="utf-8")).group(1)
    description = data / f"{ID}.metainfo.xml"
    return (check_entry(data / f"{ID}.desktop") + check_service(data / f"{ID}.service") +
            check_description(description, version) +
            check_pictures(description, root / "docs/pictures") +
            check_manual(data / "tessarine.1", version) + check_names_in_sources(root))


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    problems = check(pathlib.Path(sys.argv[1]).resolve())
    for problem in problems:
        print(problem)
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()

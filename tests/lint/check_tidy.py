#!/usr/bin/env python3
"""Runs clang-tidy over sources that have changed since it last found nothing in them.

usage: check_tidy.py CLANG_TIDY ROOT BUILD_FOLDER FOLDER [PLUG_IN]

clang-tidy spends nearly all of its time on the headers of libraries, so the sources of a folder are
read as few units, each a list of includes. A unit counts as unchanged while its sources, all they
include of this project, its compile command, the settings and clang-tidy itself are the same. The
plug-in spares clang-tidy the declarations of libraries; without it the same is found.
"""

import dataclasses
import hashlib
import json
import pathlib
import re
import shlex
import subprocess
import sys

import sources

# More take no less time together, and memory.
LARGEST_UNIT = 24


class Command:
    """The union of the compiler's arguments for several sources."""

    def __init__(self):
        self.arguments, self.macros = {}, set()

    def add(self, words):
        words = iter(words[1:])
        for word in words:
            if word in ("-isystem", "-include"):
                word = (word, next(words))
            elif word in ("-o", "-c", "-MF", "-MT", "-Xclang"):
                next(words)
                continue
            elif word.startswith("-D"):
                macro = word.partition("=")[0]
                if macro in self.macros:
                    continue
                self.macros.add(macro)
            elif not word.startswith(("-I", "-f", "-std", "-W")):
                continue
            self.arguments[word] = None

    def words(self):
        flat = [(word,) if isinstance(word, str) else word for word in self.arguments]
        return ["clang++", *(word for pair in flat for word in pair)]


@dataclasses.dataclass
class Unit:
    path: pathlib.Path
    files: list  # of ours, from the root
    command: list

    def write(self, root):
        text = "".join(f'#include "{(root / file).as_posix()}"\n' for file in self.files)
        if not self.path.exists() or self.path.read_text() != text:
            self.path.write_text(text)

    def halves(self):
        middle = len(self.files) // 2
        return [Unit(self.path.with_stem(f"{self.path.stem}{half}"), files, self.command)
                for half, files in (("a", self.files[:middle]), ("b", self.files[middle:]))]


def is_program(path):
    return re.search(r"^int main\(", path.read_text(), re.MULTILINE) is not None


def room_of(file):
    """The folder whose sources go together: the layer's, or the system's in that of the ports."""
    return pathlib.Path(*file.parent.parts[:3 if file.parts[1] == "platform" else 2])


def units_of(root, build, checked):
    """The sources below the folder that the build compiles, as units."""
    groups, commands = {}, {}
    for entry in json.loads((build / "compile_commands.json").read_text()):
        for path in sources.sources_of(entry):
            if root / checked not in path.parents:
                continue
            file = path.relative_to(root)
            group = file if is_program(path) else room_of(file)
            groups.setdefault(group, set()).add(file)
            commands.setdefault(group, Command()).add(shlex.split(entry["command"]))
    units = []
    for group, files in sorted(groups.items()):
        files, parts = sorted(files), -(-len(files) // LARGEST_UNIT)
        for part in range(parts):
            # clang's analyzer follows includes of sources from files of this name alone.
            name = f"UnifiedSource_{group.as_posix().replace('/', '_')}_{part}.cpp"
            units.append(Unit(build / "tidy" / checked / name, files[part::parts], commands[group].words()))
    return units


class Tidy:
    def __init__(self, program, root, checks, plug_in=None):
        self.program, self.root = [program, f"--checks={checks}"], root
        version = subprocess.run([program, "--version"], capture_output=True, check=True).stdout
        version += checks.encode()
        base = hashlib.sha256(version + (root / ".clang-tidy").read_bytes())
        if plug_in:
            self.program += ["--load", plug_in]
            base.update(pathlib.Path(plug_in).read_bytes())
        self.base = base.digest()
        # Without what the build generates, which lies below the root too.
        self.ours = f"^{re.escape(str(root))}/(src|tests)/.*\\.(h|cpp)$"

    def fingerprint(self, unit):
        names = [file.as_posix() for file in unit.files]
        digest = hashlib.sha256(self.base + json.dumps([unit.command, names]).encode())
        included = {name for file in unit.files
                    for name in sources.with_everything_included(self.root, file)}
        for name in sorted(included):
            digest.update(name.as_posix().encode() + (self.root / name).read_bytes())
        return digest.hexdigest()

    def check(self, unit):
        """Nothing if the unit is clean, else what clang-tidy says. Sources of different programs may
        not go together, as when each has its own idea of a name: these are read in two halves."""
        unit.write(self.root)
        stamp = unit.path.with_suffix(".clean")
        fingerprint = self.fingerprint(unit)
        if stamp.exists() and stamp.read_text() == fingerprint:
            return None
        done = subprocess.run([*self.program, "--quiet", "--header-filter", self.ours, unit.path,
                               "--", *unit.command[1:], *ANALYZER],
                              capture_output=True, text=True, encoding="utf-8")
        complaint = done.stdout or done.stderr
        if done.returncode != 0 and "[clang-diagnostic-error]" in complaint and len(unit.files) > 1:
            complaint = self.check_halves(unit)
        elif done.returncode == 0:
            complaint = None
        if complaint is None:
            stamp.write_text(fingerprint)
        return complaint

    def check_halves(self, unit):
        complaints = [text for text in map(self.check, unit.halves()) if text]
        return "".join(complaints) or None


# Paths through a test are as many as its expectations, each of which may fail: the analyzer would
# need minutes for a folder to find what the sanitizers see when the test runs.
CHECKS = {"tests": "-clang-analyzer-*"}

# The analyzer would spend four fifths of its time inside the templates of the standard library.
ANALYZER = ["-Xclang", "-analyzer-config", "-Xclang", "c++-template-inlining=false"]

# Fuzz targets by their own build, macOS's sources by the check of that side.
CHECKED_ELSEWHERE = {"fuzz", "macos"}


def main():
    if len(sys.argv) not in (5, 6):
        sys.exit(__doc__)
    program, root, build = sys.argv[1], *(pathlib.Path(name).resolve() for name in sys.argv[2:4])
    checked = sys.argv[4]
    units = units_of(root, build, checked)
    covered = {file for unit in units for file in unit.files}
    left_out = [file.as_posix() for file in sources.cpp_files(root, [checked])
                if file.suffix == ".cpp" and file not in covered
                and CHECKED_ELSEWHERE.isdisjoint(file.parts)]
    if left_out:
        sys.exit("not compiled by this build, so not checked: " + " ".join(left_out))

    folder = build / "tidy" / checked
    folder.mkdir(parents=True, exist_ok=True)
    tidy, failed = Tidy(program, root, CHECKS.get(checked, ""), *sys.argv[5:]), 0
    for unit in units:
        complaint = tidy.check(unit)
        if complaint:
            failed += 1
            print(complaint)
    print(f"{len(covered)} sources in {len(units)} units, {failed} with complaints")
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()

"""Reads the macOS sources with clang-tidy, which contains the static analyser, by the project's own
configuration. It spends nearly all of its time on headers, so the sources of a folder are read as one."""

import hashlib
import json
import pathlib
import re
import shlex
import subprocess

import build
import target

FOLDER = target.ROOT / "src/platform/macos"
OURS = f"^{re.escape(str(target.ROOT))}/src/platform/macos/.*\\.(h|mm|cpp)$"


def flags_of(entry):
    """The arguments of a compilation that matter to who only reads."""
    words, kept = iter(shlex.split(entry["command"])), []
    for word in words:
        if word in ("-isystem", "-isysroot", "-arch", "-include", "-stdlib++-isystem"):
            kept += [word, next(words)]
        elif word in ("-o", "-MF", "-MT", "-Xclang"):
            next(words)
        elif word.startswith(("--target", "-std=", "-f", "-D", "-I", "-F", "-W", "-m")):
            kept.append(word)
    return kept


class Unit:
    """Sources that are read as one."""

    def __init__(self, name, files, flags):
        self.name, self.files, self.flags = name, files, flags

    def path(self):
        # clang's analyzer follows includes of sources from files of this name alone.
        return build.BUILD / "tidy" / f"UnifiedSource_{self.name}.mm"

    def write(self):
        self.path().parent.mkdir(parents=True, exist_ok=True)
        self.path().write_text("".join(f'#include "{file}"\n' for file in self.files))

    def halves(self):
        middle = len(self.files) // 2
        return [Unit(self.name + half, files, self.flags)
                for half, files in (("a", self.files[:middle]), ("b", self.files[middle:]))]


def units():
    """One for each folder of the macOS sources that the build compiles."""
    found = {}
    for entry in json.loads((build.BUILD / "compile_commands.json").read_text()):
        file = pathlib.Path(entry["directory"], entry["file"])
        if file.suffix == ".mm" and FOLDER in file.parents:
            files, flags = found.setdefault(file.parent, ([], []))
            files.append(file)
            flags += [] if flags else flags_of(entry)
    # Beside them lie sources in C++ alone, which the build may have put together.
    for file in FOLDER.rglob("*.cpp"):
        found[file.parent][0].append(file)
    return [Unit(folder.relative_to(FOLDER.parent).as_posix().replace("/", "_"), sorted(files), flags)
            for folder, (files, flags) in sorted(found.items())]


# A block copies a value but keeps a reference to what a reference names, which is gone when the block
# runs later: a parameter that seems to be copied in vain is not.
NOT_FOR_BLOCKS = "--checks=-performance-unnecessary-value-param"


def tidy(source, flags, *more):
    """What clang-tidy says of a source; nothing if it is clean."""
    command = [target.program(target.TIDY), "--quiet", "--header-filter", OURS, NOT_FOR_BLOCKS,
               *more, str(source), "--", *flags]
    done = subprocess.run(command, capture_output=True, text=True, encoding="utf-8", cwd=target.ROOT)
    return None if done.returncode == 0 else done.stdout or done.stderr


# The blocks of our own, each with the variables that it keeps.
BLOCKS = 'match blockDecl(isExpansionInFileMatching("\\.(mm|h)$"))'
OWN_BLOCK = re.compile(r"^BlockDecl \w+ <(/[^>:]+:\d+)", re.MULTILINE)
REFERENCE = re.compile(r"^\|-capture \w+ \w+ '(\w+)' '[^']*&'", re.MULTILINE)


def kept_references(source, flags):
    """Where a block keeps a reference, as text. It may run when what that names is gone."""
    done = subprocess.run([target.program(target.QUERY), "-c", "set output dump", "-c", BLOCKS,
                           str(source), "--", *flags], capture_output=True, text=True, encoding="utf-8")
    if done.returncode != 0:
        raise build.Failure(done.stderr)
    found = []
    for block in re.split(r"(?=^BlockDecl )", done.stdout, flags=re.MULTILINE):
        place = OWN_BLOCK.match(block)
        found += [f"{place[1]}: the block keeps the reference '{name}', which may be gone when it runs;"
                  " keep a copy\n" for name in REFERENCE.findall(block) if place]
    return "".join(found) or None


def fingerprint(unit):
    """Of all that the compiler reads, and of what judges it."""
    read = subprocess.run([target.program(target.COMPILER), *unit.flags, "-E", "-P", unit.path()],
                          capture_output=True)
    version = subprocess.run([target.program(target.TIDY), "--version"], capture_output=True).stdout
    digest = hashlib.sha256(version + (target.ROOT / ".clang-tidy").read_bytes() + read.stdout)
    # Comments can silence a complaint.
    for path in sorted(FOLDER.rglob("*")):
        digest.update(path.read_bytes() if path.is_file() else b"")
    return digest.hexdigest()


def check(unit):
    """What is found in a unit. Sources that can't be read as one are read in halves."""
    unit.write()
    stamp = unit.path().with_suffix(".clean")
    now = fingerprint(unit)
    if stamp.exists() and stamp.read_text() == now:
        return None
    complaint = tidy(unit.path(), unit.flags)
    if complaint and "[clang-diagnostic-error]" in complaint and len(unit.files) > 1:
        complaint = "".join(filter(None, map(check, unit.halves()))) or None
    else:
        complaint = complaint or kept_references(unit.path(), unit.flags)
    if complaint is None:
        stamp.write_text(now)
    return complaint


def check_all():
    complaints = [complaint for complaint in map(check, units()) if complaint]
    if complaints:
        raise build.Failure("\n".join(complaints))

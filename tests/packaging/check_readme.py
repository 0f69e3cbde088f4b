#!/usr/bin/env python3
"""Does what the README tells those to do who build: each command of its section, in its order, in a
fresh copy of the committed sources; then the files that the section names have to be there.

usage: check_readme.py FOLDER [COMMAND...]

FOLDER is made, and kept for a look at it if a command fails. With commands, to the letter of the
README, only these are done, and files are not looked for.
"""

import os
import pathlib
import shutil
import subprocess
import sys

from readme import ROOT, commands, results

SECTION = "Build"


def run(command, folder):
    """As typed, but for the place that a reader fills in, and without a desktop."""
    typed = command.replace("PREFIX", str(folder / "prefix"))
    environment = {name: value for name, value in os.environ.items()
                   if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
    print(f"  {typed}", flush=True)
    return subprocess.run(["sh", "-c", typed], cwd=folder / "sources", env=environment,
                          stdin=subprocess.DEVNULL).returncode == 0


def is_there(path, folder):
    return path.endswith(".app") or any((folder / "sources").glob(path))  # that one is a Mac's


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    folder = pathlib.Path(sys.argv[1]).resolve()
    known = commands(SECTION)
    chosen = sys.argv[2:] or known
    unknown = [command for command in chosen if command not in known]
    if unknown:
        sys.exit(f"the README has {known}, and not {unknown}")
    subprocess.run(["git", "clone", "-q", ROOT, folder / "sources"], check=True)
    for command in chosen:
        if not run(command, folder):
            sys.exit(f"failed: {command} (in {folder}/sources)")
    missing = [path for path in results(SECTION) if not is_there(path, folder)]
    if missing and chosen == known:
        sys.exit(f"the README speaks of files that are not there: {missing}")
    if any("PREFIX" in command for command in chosen):
        subprocess.run([folder / "prefix/bin/tessarine", "--version"], check=True)
    shutil.rmtree(folder)
    print(f"done as the README says: {', '.join(chosen)}")


if __name__ == "__main__":
    main()

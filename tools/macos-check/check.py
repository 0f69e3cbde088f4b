#!/usr/bin/env python3
"""Checks the macOS side of the program on Linux, as far as anything but a Mac can.

usage: check.py                    everything
       check.py --file SOURCE...   compiles single sources
       check.py --separately       builds without putting several sources together

Its parts, in their order: our declarations agree with public records of the system's interfaces; the
program is built by the project's own CMake lists, and linked; what came out is a bundle for the oldest
system; clang-tidy finds nothing in the sources; planted mistakes are found. What hasn't changed since a
part last found nothing is not looked at again.
"""

import concurrent.futures
import hashlib
import subprocess
import sys
import time

import analyse
import build
import compare
import declarations
import fetch
import names
import ports
import sparkle_record
import target

TEST = target.ROOT / "tests/macoscheck/test_macos_check.py"


def fetch_all():
    """All packages; one of npm's takes as long as all others."""
    with concurrent.futures.ThreadPoolExecutor(len(fetch.NPM_PACKAGES)) as pool:
        from_npm = pool.map(fetch.fetch, fetch.NPM_PACKAGES)
        return [*map(fetch.fetch, fetch.DEBIAN_PACKAGES), *from_npm]


def hash_of(folders, more):
    """Of all files in the folders, and of some texts."""
    digest = hashlib.sha256(repr(more).encode())
    for folder in folders:
        for path in sorted(folder.rglob("*")):
            if path.is_file():
                digest.update(path.as_posix().encode() + path.read_bytes())
    return digest.hexdigest()


def once(name, now, part):
    """Runs a part unless it found nothing in the same content before."""
    stamp = build.BUILD / f"{name}.clean"
    if not stamp.exists() or stamp.read_text() != now:
        part()
        build.BUILD.mkdir(parents=True, exist_ok=True)
        stamp.write_text(now)


def check_declarations():
    found = declarations.read()
    complaints = [*compare.Comparison(found).compare(), *sparkle_record.compare(found)]
    if complaints:
        raise build.Failure("\n".join(complaints))
    build.make_folders(found)
    build.relink()


def check_itself():
    done = subprocess.run([sys.executable, "-B", TEST], capture_output=True, text=True)
    if done.returncode != 0:
        raise build.Failure(done.stdout + done.stderr)


def parts():
    """name and function of each part, in the order in which they need each other"""
    fetched = [path.name for path in fetch_all()]
    tools = hash_of([target.HERE], fetched)
    return [
        ("declarations", lambda: once("declarations", tools, check_declarations)),
        ("configuration", build.configure),
        ("build", build.build),
        ("sources", build.check_sources),
        ("ports", ports.check),
        ("names", names.check),
        ("bundle", build.check_bundle),
        ("views", build.check_views),
        ("analysis and planted mistakes", lambda: together(
            analyse.check_all,
            lambda: once("itself", hash_of([target.HERE, TEST.parent], fetched), check_itself))),
    ]


def together(*parts):
    """Runs parts beside each other; each uses one processor."""
    with concurrent.futures.ThreadPoolExecutor(len(parts)) as pool:
        for running in [pool.submit(part) for part in parts]:
            running.result()


def check_everything():
    """The number of parts that found something."""
    for name, part in parts():
        begin = time.monotonic()
        try:
            part()
        except build.Failure as failure:
            print(failure)
            print(f"check-macos: {name}: failed")
            return 1
        print(f"check-macos: {name}: fine ({time.monotonic() - begin:.0f} s)", flush=True)
    return 0


def build_separately():
    """The number of parts that found something when each source is compiled by itself."""
    fetch_all()
    try:
        build.make_folders(declarations.read())
        build.configure(build.SEPARATE, unity="OFF")
        build.build(build.SEPARATE)
    except build.Failure as failure:
        print(failure)
        return 1
    return 0


def check_files(sources):
    """Compiles single sources and keeps nothing; the number of those that failed."""
    failed = 0
    for source in sources:
        done = subprocess.run(target.compile_command(source, "/dev/null"))
        failed += done.returncode != 0
    return failed


def main():
    arguments = sys.argv[1:]
    try:
        if not arguments:
            failed = check_everything()
        elif arguments == ["--separately"]:
            failed = build_separately()
        elif arguments[0] == "--file" and len(arguments) > 1:
            failed = check_files(arguments[1:])
        else:
            sys.exit(__doc__)
    except fetch.FetchError as error:
        sys.exit(f"check-macos: {error}")
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()

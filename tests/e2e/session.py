"""A private desktop session for the real program: scratch home, display, bus.

Nothing of the user's own session is touched. Everything that a session starts, it ends.
"""

import contextlib
import json
import os
import pathlib
import shutil
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time
import unittest

REFERENCE_DATE = 978307200.0
PROGRAM = os.environ["TESSARINE_PROGRAM"]
TOOLS = pathlib.Path(__file__).resolve().parents[2] / "tools"
sys.path.append(str(TOOLS))
WRITER = str(TOOLS / "system_databases.py")
USERNOTED = "Library/Group Containers/group.com.apple.usernoted/db2/db"
DEFAULTS = "com.zorvek.Tessarine.conf"

ANSWERED = ["hasAcceptedEULA", "hasSeenOnboarding", "hasSeenPrivacyNotice", "fdaSkipped",
            "launchLoginPromptSuppressed"]

# Of the program's windows, in pixels.
PANEL_HEIGHTS = range(10, 61)
MENU_HEIGHTS = range(61, 400)
MAIN_WINDOW_HEIGHTS = range(400, 10000)

# Seconds to wait for what has to come. Only a failing test uses them up, so they are many.
PATIENCE = 90


def now():
    """Seconds since the reference date."""
    return time.time() - REFERENCE_DATE


def wait_until(condition, what, seconds=PATIENCE, interval=0.02):
    """What the condition gives once it gives something; fails the test when the time is up. It is
    asked after each interval, in seconds."""
    end = time.monotonic() + seconds
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise AssertionError(f"not within {seconds} s: {what}")
        time.sleep(interval)


class Display:
    """An X server of its own, shared by the tests of a process. It doesn't begin again when its last
    client goes: a program that starts in that moment would find no server."""

    _shared = None

    def __init__(self):
        reading, writing = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1400x1000x24", "-nolisten", "tcp",
             "-noreset"],
            pass_fds=[writing], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as answer:
            self.name = f":{answer.readline().strip()}"

    @classmethod
    def shared(cls):
        if cls._shared is None:
            cls._shared = cls()
        return cls._shared

    @classmethod
    def end(cls):
        if cls._shared is not None:
            cls._shared.close()
            cls._shared = None

    def close(self):
        self.server.terminate()
        self.server.wait()


class Session:
    def __init__(self, user=None, display=None):
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="tessarine-e2e-"))
        self.home = self.root / "home"
        self.data = self.home / ".local/share"
        self.config = self.home / ".config"
        self.runtime = self.root / "run"
        for folder in (self.home, self.runtime):
            folder.mkdir(mode=0o700)
        self.user = user
        self.processes = []
        self.environment = {
            "PATH": os.environ["PATH"],
            "LANG": "C.UTF-8",
            "HOME": str(self.home),
            "XDG_RUNTIME_DIR": str(self.runtime),
            "DISPLAY": (display or Display.shared()).name,
            "QT_QUICK_BACKEND": "software",
            "ASAN_OPTIONS": os.environ.get("ASAN_OPTIONS", ""),
            "UBSAN_OPTIONS": os.environ.get("UBSAN_OPTIONS", ""),
        }
        self.give_to_user(self.root)
        self.write_defaults("")

    def give_to_user(self, path):
        if self.user is None:
            return
        for entry in [path, *pathlib.Path(path).rglob("*")]:
            os.chown(entry, self.user, self.user)

    # Processes

    def spawn(self, *command, **options):
        if self.user is not None:
            options.setdefault("user", self.user)
            options.setdefault("group", self.user)
            options.setdefault("extra_groups", [])
        options.setdefault("env", self.environment)
        process = subprocess.Popen(command, cwd=self.root, **options)
        self.processes.append(process)
        return process

    def start_program(self, wait=True, *, through=(), environment=None):
        """Through another program that starts it, and with what is changed in its environment."""
        with open(self.root / "program.log", "ab") as log:
            program = self.spawn(*through, self.program(), stdout=log, stderr=log,
                                 env={**self.environment, **(environment or {})})
        if wait:
            self.wait_until_started(program)
        return program

    def program(self):
        """Its path. Another user may not be let into the folder where it was built."""
        if self.user is None:
            return PROGRAM
        copy = self.root / "tessarine"
        if not copy.exists():
            shutil.copy(PROGRAM, copy)
        return str(copy)

    def wait_until_started(self, program):
        """The poll timer's arming follows the launch steps; the hoard is open by then too."""
        wait_until(lambda: self.hoard.exists() or program.poll() is not None, "a hoard")
        self.assert_running(program)

    def assert_running(self, program):
        if program.poll() is not None:
            raise AssertionError(f"the program ended with {program.returncode}: {self.log()}")

    def log(self):
        path = self.root / "program.log"
        return path.read_text(errors="replace") if path.exists() else ""

    def kill(self, process, how=signal.SIGKILL):
        process.send_signal(how)
        process.wait(PATIENCE)

    def running(self):
        """The ids of all that runs in the session, also of what its processes have started: an
        accessibility bus, its registry, whatever the session bus starts by itself."""
        home = f"HOME={self.home}".encode()
        found = []
        for folder in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                if home in (folder / "environ").read_bytes().split(b"\0"):
                    found.append(int(folder.name))
            except OSError:  # it ended, or is another user's
                continue
        return found

    def end_all(self):
        """False while something still runs: each may have started another one at its end."""
        for process in self.running():
            with contextlib.suppress(ProcessLookupError):
                os.kill(process, signal.SIGKILL)
        for process in self.processes:
            process.poll()
        return not self.running()

    def close(self):
        wait_until(self.end_all, "the end of all that runs in the session")
        for process in self.processes:
            process.wait()
            for pipe in (process.stdin, process.stdout, process.stderr):
                if pipe:
                    pipe.close()
        shutil.rmtree(self.root, ignore_errors=True)

    # Files

    @property
    def hoard(self):
        return self.data / "Tessarine/hoard.db"

    @property
    def usernoted(self):
        return self.home / USERNOTED

    def query(self, statement, *parameters):
        """Rows of the hoard, read by another process's connection; empty while there is none."""
        if not self.hoard.exists():
            return []
        connection = sqlite3.connect(f"file:{self.hoard}?mode=ro", uri=True, timeout=10)
        try:
            return connection.execute(statement, parameters).fetchall()
        except sqlite3.OperationalError as error:
            if "no such table" in str(error):
                return []
            raise
        finally:
            connection.close()

    def count(self):
        rows = self.query("SELECT COUNT(*) FROM notifications")
        return rows[0][0] if rows else 0

    def titles(self):
        return [row[0] for row in self.query("SELECT title FROM notifications ORDER BY id")]

    def write_defaults(self, text, without=()):
        """The settings, as a user has them who has answered all questions of the program (but those
        whose keys are left out)."""
        self.config.mkdir(parents=True, exist_ok=True)
        answered = "".join(f"{key}=true\n" for key in ANSWERED if key not in without)
        (self.config / DEFAULTS).write_text(f"[General]\n{answered}{text}\n")
        self.give_to_user(self.home)

    def defaults(self):
        path = self.config / DEFAULTS
        lines = path.read_text().splitlines() if path.exists() else []
        return dict(line.split("=", 1) for line in lines if "=" in line)

    # Windows

    def windows(self, *criteria):
        found = subprocess.run(["xdotool", "search", *criteria], env=self.environment,
                               capture_output=True, text=True)
        return found.stdout.split()

    def xdotool(self, *arguments):
        return subprocess.run(["xdotool", *arguments], env=self.environment,
                              capture_output=True, text=True).stdout

    def place(self, window):
        """Where it stands on the screen, as ImageMagick says it: width x height + left + top."""
        shown = self.xdotool("getwindowgeometry", "--shell", window).split()
        values = dict(line.split("=") for line in shown)
        return f"{values['WIDTH']}x{values['HEIGHT']}+{values['X']}+{values['Y']}"

    def brightness(self, place):
        """Of this part of the screen, from 0 for black to 1 for white, in a picture taken now."""
        return float(self.tool("import", "-silent", "-window", "root", "-crop", place,
                               "-colorspace", "Gray", "-format", "%[fx:mean]", "info:-"))

    def tool(self, *command):
        """What another program prints that looks at the session."""
        return subprocess.run(command, env=self.environment, capture_output=True, text=True,
                              check=True, timeout=PATIENCE).stdout

    def visible_window(self, heights, title=None):
        """The program's window on the screen whose height is one of these. Titles alone don't tell
        its windows apart: the status panel has the main window's."""
        for window in self.windows("--onlyvisible", "--class", "tessarine"):
            geometry = self.xdotool("getwindowgeometry", "--shell", window)
            height = int(dict(line.split("=") for line in geometry.split()).get("HEIGHT", 0))
            if height in heights and title in (None, self.xdotool("getwindowname", window).strip()):
                return window
        return None

    def visible_window_of(self, width, height):
        """The program's window on the screen that has this size."""
        for window in self.windows("--onlyvisible", "--class", "tessarine"):
            if f"WIDTH={width}\nHEIGHT={height}\n" in self.xdotool("getwindowgeometry", "--shell",
                                                                 window):
                return window
        return None

    def visible_panel(self):
        return self.visible_window(PANEL_HEIGHTS)

    def visible_menu(self):
        return self.visible_window(MENU_HEIGHTS)

    def visible_main_window(self):
        return self.visible_window(MAIN_WINDOW_HEIGHTS, "Tessarine")

    def open_menu(self):
        """The status panel's, as on a desktop without a tray."""
        panel = wait_until(self.visible_panel, "the panel")
        self.xdotool("mousemove", "--window", panel, "20", "20", "click", "1")
        return wait_until(self.visible_menu, "the menu")

    def close_menu(self):
        self.xdotool("key", "Escape")
        wait_until(lambda: not self.visible_menu(), "no menu")

    def open_main_window(self):
        self.open_menu()
        self.xdotool("key", "--delay", "150", "Down", "Return")
        return wait_until(self.visible_main_window, "the main window")


@contextlib.contextmanager
def lone_session():
    """A session that is the only one of its process; its display ends with it."""
    session = Session()
    try:
        yield session
    finally:
        session.close()
        Display.end()


class Daemon:
    """The system's notification daemon: a process that holds its database open and writes to it."""

    def __init__(self, session, **defaults):
        self.defaults = defaults
        self.process = session.spawn(sys.executable, WRITER, "usernoted", str(session.usernoted),
                                     stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.tell("count")

    def send(self, operation, **values):
        self.process.stdin.write(json.dumps({"do": operation, **values}) + "\n")
        self.process.stdin.flush()

    def tell(self, operation, **values):
        """Carries out an operation and gives the Unix time at which it was done."""
        self.send(operation, **values)
        line = self.process.stdout.readline()
        answer = json.loads(line) if line else {"error": "nothing"}
        if "error" in answer:
            raise AssertionError(f"the daemon said {answer['error']}")
        return answer["time"]

    def append(self, title, **options):
        """Writes a row and gives the Unix time at which it was committed."""
        return self.tell("append", title=title, **{**self.defaults, **options})


class SessionTestCase(unittest.TestCase):
    user = None

    def setUp(self):
        self.session = Session(self.user)
        self.addCleanup(self.session.close)

    @classmethod
    def tearDownClass(cls):
        Display.end()

    def wait_for_count(self, count, seconds=PATIENCE):
        wait_until(lambda: self.session.count() >= count, f"{count} rows", seconds)
        self.assertEqual(self.session.count(), count)

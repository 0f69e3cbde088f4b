"""Tries the program on real desktops and prints what each shows, as a table.

usage: try_desktops.py [--pictures FOLDER] [NAME...]

Names are parts of the desktops' own. Pictures are for looking at. Not one of the checks that run
every time: scripts/desktops starts it where the desktops are installed.
"""

import argparse
import multiprocessing
import os
import pathlib
import signal
import subprocess
import sys
import time
import traceback

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "e2e"))

import dbus  # noqa: E402
from announcements import EXPECTED, Announcer, install_teapot  # noqa: E402
from session import wait_until  # noqa: E402
from status_item import StatusItem  # noqa: E402
from surroundings import DESKTOPS, become_user_for  # noqa: E402
from windows import Windows  # noqa: E402

MENU = ["Open Hoard", "Launch at Login", "Preferences…", "Quit Tessarine"]
DIALOG = "Export CSV"
LATE = "after the daemon died"


def click():
    """What a menu of applications gives to a program that a click starts: an id with the time of the
    click, which on X11 is that of a clock of the machine."""
    return {"DESKTOP_STARTUP_ID": f"trial_TIME{int(time.monotonic() * 1000) % 2**32}"}


class Trial:
    """What one desktop shows, thing by thing. One that fails leaves its reason, and the next is
    tried."""

    def __init__(self, surroundings):
        self.surroundings = surroundings
        self.results = {}

    def run(self):
        surroundings = self.surroundings
        install_teapot(surroundings)
        surroundings.begin()
        self.program = surroundings.start_program()
        self.announcer = Announcer(surroundings)
        self.item = StatusItem(surroundings, self.program.pid)
        self.windows = Windows(surroundings)
        self.attempt("drawn by", surroundings.server)
        self.attempt("status item", self.item.kind)
        self.announcements()
        for name, test in (("its menu", self.menu), ("window", self.window),
                           ("copied text", self.copied), ("save dialog", self.dialog),
                           ("comes to the front", self.front), ("at 1.5", self.scaled)):
            self.attempt(name, test)
        self.attempt(LATE, self.late)
        self.attempt("its own words", self.words)

    def attempt(self, name, test):
        try:
            self.results[name] = test()
        except Exception as error:  # whatever it is, the table tells it
            traceback.print_exc()
            self.results[name] = f"FAILED: {str(error).splitlines()[0][:60]}" if str(error) else \
                type(error).__name__

    def announcements(self):
        kinds = [kind for kind in EXPECTED if kind != LATE]
        self.attempt("announcements", self.announcer.all)
        self.announcer.settle(kinds)
        for kind in kinds:
            self.results[kind] = self.announcer.result(kind)
        del self.results["announcements"]
        self.results["rows of nobody here"] = str(len(self.announcer.unexpected()) or "none")
        for row in self.announcer.unexpected():
            print(f"unexpected: {row}", file=sys.stderr)
        self.surroundings.picture("announced")

    def menu(self):
        labels = self.item.labels()
        if self.surroundings.tray != "bus":
            return "opens"
        missing = [label for label in MENU if label not in labels]
        return f"lacks {', '.join(missing)}" if missing else f"{len(labels)} entries"

    def window(self):
        self.item.choose("Open Hoard")
        self.windows.wait_for_main()
        time.sleep(2)
        self.surroundings.picture("window")
        return "yes"

    def copied(self):
        row = self.windows.first_row()
        self.windows.press(row)
        time.sleep(1)  # a press waits for a second one
        self.surroundings.press("ctrl+c")
        title = row.name.split(", ")[1]
        wait_until(lambda: title in self.surroundings.clipboard(), f"{title} in the clipboard", 15)
        return "yes"

    def dialog(self):
        self.windows.press_button("Export notifications")
        self.windows.press_button("Export as ")
        owner = wait_until(lambda: self.surroundings.owner_of(DIALOG), "a dialog", 30)
        time.sleep(1)
        self.surroundings.picture("dialog")
        self.surroundings.press("Escape")
        wait_until(lambda: not self.surroundings.owner_of(DIALOG), "no dialog", 30)
        return owner

    def front(self):
        other = self.surroundings.front_window()
        if other is None:
            return "not tried"
        wait_until(lambda: self.surroundings.active_window() == "xmessage", "another window",
                   20)
        try:
            return "yes" if self.comes_to_front({}) else \
                "after a click" if self.comes_to_front(click()) else "NO"
        finally:
            other.kill()

    def comes_to_front(self, environment):
        second = self.surroundings.start_program(wait=False, environment=environment)
        second.wait(30)
        end = time.monotonic() + 8
        while time.monotonic() < end:
            if self.surroundings.active_window() == "Tessarine":
                return True
            time.sleep(0.1)
        return False

    def scaled(self):
        self.surroundings.kill(self.program, signal.SIGTERM)
        self.program = self.surroundings.start_program(environment={"QT_SCALE_FACTOR": "1.5"})
        self.item = StatusItem(self.surroundings, self.program.pid)
        self.item.kind()
        self.item.choose("Open Hoard")
        self.windows.wait_for_main()
        time.sleep(2)
        self.surroundings.picture("scaled")
        return "pictured"

    def late(self):
        """The process that draws the banners dies and comes back, as after a crash."""
        drawing = self.surroundings.drawing_process()
        command = pathlib.Path(f"/proc/{drawing}/cmdline").read_bytes().split(b"\0")[:-1]
        if pathlib.Path(os.fsdecode(command[0])).name in ("gnome-shell", "plasmashell", "cinnamon"):
            return "not tried: it is the shell"
        os.kill(drawing, signal.SIGKILL)
        wait_until(lambda: not self.drawn_by(drawing), "the end of the daemon", 20)
        if not self.surroundings.has_name("org.freedesktop.Notifications"):
            self.surroundings.run(*[os.fsdecode(part) for part in command])
        self.surroundings.wait_for_name("org.freedesktop.Notifications")
        self.announcer.notify(LATE)
        self.announcer.settle([LATE])
        return self.announcer.result(LATE)

    def drawn_by(self, process):
        try:
            return self.surroundings.drawing_process() == process
        except dbus.DBusException:
            return False

    def words(self):
        lines = self.surroundings.log().splitlines()
        for line in lines:
            print(f"the program: {line}", file=sys.stderr)
        return f"{len(lines)} lines" if lines else "none"


def try_desktop(kind, pictures, results):
    become_user_for(kind)
    surroundings = kind(pictures)
    trial = Trial(surroundings)
    try:
        trial.run()
    except Exception as error:
        traceback.print_exc()
        for name, log in surroundings.logs.items():
            print(f"--- {name}\n{log.read_text(errors='replace')[-1500:]}", file=sys.stderr)
        trial.results["started"] = f"FAILED: {error}"
    finally:
        surroundings.close()
        results.put(trial.results)


def try_apart(kind, pictures):
    """In a process of its own, which may become another user's."""
    results = multiprocessing.Queue()
    process = multiprocessing.Process(target=try_desktop, args=(kind, pictures, results))
    process.start()
    process.join()
    return results.get() if process.exitcode == 0 else {"started": f"FAILED: {process.exitcode}"}


def print_table(columns):
    names = list(dict.fromkeys(name for results in columns.values() for name in results))
    print("| | " + " | ".join(columns) + " |")
    print("|---" * (len(columns) + 1) + "|")
    for name in names:
        print(f"| {name} | " + " | ".join(results.get(name, "") for results in columns.values()) +
              " |")


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("--pictures", default="desktops-pictures")
    parser.add_argument("names", nargs="*")
    options = parser.parse_args()
    pictures = pathlib.Path(options.pictures).resolve()
    pictures.mkdir(mode=0o777, parents=True, exist_ok=True)
    pictures.chmod(0o777)
    columns = {}
    for kind in DESKTOPS:
        name = kind.name if isinstance(kind.name, str) else f"sway with {kind.daemon[0]}"
        if options.names and not any(part.lower() in name.lower() for part in options.names):
            continue
        print(f"{name} ...", file=sys.stderr, flush=True)
        columns[name] = try_apart(kind, pictures)
        for what, result in columns[name].items():
            print(f"    {what}: {result}", file=sys.stderr, flush=True)
    print_table(columns)


if __name__ == "__main__":
    main()

"""A year of use pressed into an hour: what the program takes stays flat, and every row arrives once.

usage: soak.py [MINUTES [NOTIFICATIONS]]     60 minutes and 40,000 by default

Notifications come from the bus and from the database of the system's daemon, most of them plain, some
with pages of text. Meanwhile the window is opened and closed, what the hoard holds is exported in each
format, the daemon that draws the banners is restarted, the program is started a second time, old rows
are deleted from outside, the machine sleeps and wakes, and its clock is set back and forth. Every
minute memory, descriptors, threads, the size of the log of the hoard and the processor's time are
written down; at the end they are drawn into soak.svg, in the folder that SOAK_RESULTS names, or here.
Exits with 1 when a row is missing or doubled, or when something has grown after the first tenth.

A year begins with the hoard of the year before: rows that are there from the start fill what the
program keeps in memory of them.

test_soak.py runs a short form of it with each check.
"""

import collections
import itertools
import os
import pathlib
import sqlite3
import sys
import time

import dbus

from desktop import Application, Bus, NotificationDaemon
from growth import as_line, drawing, grown, take_sample
from machine import Clock, Logind
from main_window import MainWindow
from session import PATIENCE, Daemon, lone_session, now, wait_until

ID = "com.zorvek.Tessarine"
HOUR, DAY = 3600, 86400

EXPORTS = {"Text": b"Tessarine", "CSV": b"\xef\xbb\xbf", "PDF Report": b"%PDF"}
CLOCKS = [HOUR, 0, 3 * DAY, -HOUR, 0]


class Soak:
    """One program in a session of its own, and everything that happens to it. Every how many
    notifications a thing happens is what a year would have of it."""

    WINDOW, RESTART, SECOND_START, DELETION = 150, 400, 500, 1000
    EXPORT, SLEEP, CLOCK = 1200, 110, 1000
    YEAR_BEFORE = 5000  # rows

    def __init__(self, session):
        self.session = session
        self.bus = Bus(session)
        self.logind = Logind(session)
        self.clock = Clock(session)
        self.window = MainWindow(session, self.bus)
        self.draw_nothing()
        self.daemon = NotificationDaemon(session, self.bus, "dunst")
        self.system = Daemon(session)
        self.system.tell("pour", records=self.YEAR_BEFORE, date=now() - 60, span=20 * DAY)
        self.program = session.start_program(environment=self.clock.environment)
        self.applications = [Application(self.bus, f"Application {n}") for n in range(5)]
        self.sent = []
        self.deleted = set()
        self.exports = itertools.cycle(EXPORTS.items())
        self.clocks = itertools.cycle(CLOCKS)
        self.done = collections.Counter()  # how often each thing has happened
        self.wait_until_it_listens()
        self.start = time.monotonic()

    def draw_nothing(self):
        """Banners stay for seconds. In a pressed year they would pile up in the daemon."""
        rules = self.session.config / "dunst/dunstrc"
        rules.parent.mkdir(parents=True)
        rules.write_text("[nothing_is_shown]\nskip_display = yes\n")

    def wait_until_it_listens(self):
        """What is announced before that is none of its business."""
        wait_until(lambda: self.session.count() >= self.YEAR_BEFORE, "the year before")

        def is_heard():
            self.applications[0].announce(f"probe {time.monotonic()}")
            return self.session.count() > self.YEAR_BEFORE

        wait_until(is_heard, "the first notification that the program hears")

    def step(self, number):
        title = f"{'row' if number % 5 == 0 else 'banner'} {number}"
        if number % 5 == 0:
            self.system.append(title)
        else:
            body = "long " * 2000 if number % 50 == 1 else f"<b>Body</b> {number} 🎉"
            self.applications[number % 5].announce(title, body)
        self.sent.append(title)
        for every, action in ((self.WINDOW, self.open_and_close_the_window),
                              (self.RESTART, self.restart_the_daemon),
                              (self.SECOND_START, self.start_a_second_time),
                              (self.DELETION, self.delete_the_oldest),
                              (self.EXPORT, self.export),
                              (self.SLEEP, self.sleep),
                              (self.CLOCK, self.set_the_clock)):
            if number % every == every // 2:
                action()
                self.done[action.__name__] += 1

    def open_window(self):
        connection = self.bus.connect()
        connection.call_blocking(ID, "/com/zorvek/Tessarine", "org.freedesktop.Application",
                                 "ActivateAction", "sava{sv}",
                                 ("open", dbus.Array([], "v"), dbus.Dictionary({}, "sv")),
                                 timeout=PATIENCE)
        connection.close()
        window = wait_until(self.session.visible_main_window, "the main window")
        self.session.xdotool("windowfocus", "--sync", window)

    def close_window(self):
        window = self.session.visible_main_window()
        self.session.xdotool("windowfocus", "--sync", window, "key", "ctrl+w")
        wait_until(lambda: not self.session.visible_main_window(), "no window")

    def open_and_close_the_window(self):
        self.open_window()
        self.close_window()

    def export(self):
        kind, beginning = next(self.exports)
        path = self.session.home / "export"
        self.open_window()
        self.window.act("push button", "Export notifications")
        self.window.act("radio button", kind)
        self.window.act("push button", f"Export as {kind}")
        dialog = wait_until(
            lambda: self.session.windows("--onlyvisible", "--name", f"^Export {kind}$"),
            "the dialog")[0]
        self.session.xdotool("windowfocus", "--sync", dialog, "type", str(path))
        self.session.xdotool("key", "Return")
        wait_until(lambda: path.exists() and path.read_bytes().startswith(beginning), kind)
        path.unlink()
        self.window.hides("dialog", "Export Notifications")  # it goes by itself
        self.close_window()

    def start_a_second_time(self):
        second = self.session.start_program(wait=False, environment=self.clock.environment)
        assert second.wait(PATIENCE) == 0

    def restart_the_daemon(self):
        """Once all that it was told is in the hoard: what a monitor sees of a daemon that is gone is
        another test's."""
        self.wait_for_all()
        self.daemon.kill()
        self.daemon.start()

    def sleep(self):
        """Nothing is announced on a machine that sleeps. What the program does at the wake must not
        take what comes right after it."""
        self.wait_for_all()
        self.logind.sleep()
        self.logind.wake()

    def set_the_clock(self):
        self.wait_for_all()
        self.clock.set(next(self.clocks))

    def delete_the_oldest(self):
        """As another program does that has the file open."""
        self.wait_for_all()
        connection = sqlite3.connect(self.session.hoard, timeout=PATIENCE)
        with connection:
            rows = connection.execute("SELECT id, title FROM notifications ORDER BY id LIMIT "
                                      f"{self.DELETION}").fetchall()
            connection.executemany("DELETE FROM notifications WHERE id = ?",
                                   [(row[0],) for row in rows])
        connection.close()
        self.deleted.update(row[1] for row in rows)

    def missing(self):
        return set(self.sent) - self.deleted - set(self.session.titles())

    def wait_for_all(self):
        wait_until(lambda: not self.missing(), "everything that was sent in the hoard")

    def doubled(self):
        counted = collections.Counter(self.session.titles())
        return [title for title, count in counted.items() if count > 1]

    def sample(self):
        return take_sample(self.program.pid, self.session.hoard, self.session.count(),
                           time.monotonic() - self.start)


def run(session, minutes, count):
    """Plays the year; what is wrong at its end, in words."""
    soak = Soak(session)
    samples = [soak.sample()]
    for number in range(count):
        soak.step(number)
        if time.monotonic() - soak.start >= 60 * len(samples):
            samples.append(soak.sample())
            print(as_line(samples[-1]), flush=True)
        time.sleep(max(0.0, soak.start + (number + 1) * minutes * 60 / count - time.monotonic()))
    soak.wait_for_all()
    samples.append(soak.sample())
    picture = pathlib.Path(os.environ.get("SOAK_RESULTS", ".")) / "soak.svg"
    picture.write_text(drawing(samples))
    print(f"sent {len(soak.sent)}, all of them stored; drawn into {picture}")
    print(", ".join(f"{name} {times}" for name, times in soak.done.items()))
    session.assert_running(soak.program)
    return grown(samples) + [f"doubled: {title}" for title in soak.doubled()]


def main(minutes, count):
    with lone_session() as session:
        problems = run(session, minutes, count)
    print(*problems, sep="\n")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(float(sys.argv[1]) if len(sys.argv) > 1 else 60,
                  int(sys.argv[2]) if len(sys.argv) > 2 else 40000))

"""A year of use pressed into an hour: what the program takes stays flat, and every row arrives once.

usage: soak.py [MINUTES [NOTIFICATIONS]]     60 minutes and 40,000 by default

Notifications come from the bus and from the database of the system's daemon, most of them plain, some
with pages of text. Meanwhile the window is opened and closed, the daemon that draws the banners is
restarted, the program is started a second time, and old rows are deleted from outside. Every minute
memory, descriptors, threads, the size of the log of the hoard and the processor's time are written down;
at the end they are drawn into soak.svg, in the folder that SOAK_RESULTS names, or here. Exits with 1
when a row is missing or doubled, or when something has grown after the first tenth.

test_soak.py runs a short form of it with each check.
"""

import collections
import os
import pathlib
import sqlite3
import sys
import time

import dbus

from desktop import Application, Bus, NotificationDaemon
from session import PATIENCE, Daemon, Display, Session, wait_until

ID = "com.zorvek.Tessarine"

Sample = collections.namedtuple("Sample", "seconds rows memory descriptors threads log processor")
UNITS = {"memory": "MB", "descriptors": "", "threads": "", "log": "MB", "processor": "s"}

# What may come on top of the most that the first tenth has seen: windows, icons, the allocator's
# spare pages; a thread or file more for what is under way.
ALLOWANCE = {"memory": 40.0, "descriptors": 12, "threads": 8, "log": 8.0}


class Soak:
    """One program in a session of its own, and everything that happens to it. Every how many
    notifications a thing happens is what a year would have of it."""

    WINDOW, RESTART, SECOND_START, DELETION = 150, 400, 500, 1000

    def __init__(self, session):
        self.session = session
        self.bus = Bus(session)
        self.daemon = NotificationDaemon(session, self.bus, "dunst")
        self.system = Daemon(session)
        self.program = session.start_program()
        self.applications = [Application(self.bus, f"Application {n}") for n in range(5)]
        self.sent = []
        self.deleted = set()
        self.start = time.monotonic()
        self.wait_until_it_listens()

    def wait_until_it_listens(self):
        """What is announced before that is none of its business."""
        def is_heard():
            self.applications[0].announce(f"probe {time.monotonic()}")
            return self.session.count() > 0

        wait_until(is_heard, "the first notification that the program hears")

    def step(self, number):
        title = f"{'row' if number % 5 == 0 else 'banner'} {number}"
        if number % 5 == 0:
            self.system.append(title)
        else:
            body = "long " * 2000 if number % 50 == 1 else f"<b>Body</b> {number} 🎉"
            self.applications[number % 5].announce(title, body)
        self.sent.append(title)
        if number % self.WINDOW == self.WINDOW // 2:
            self.open_and_close_the_window()
        if number % self.RESTART == self.RESTART - 1:
            self.restart_the_daemon()
        if number % self.SECOND_START == self.SECOND_START - 1:
            assert self.session.start_program(wait=False).wait(PATIENCE) == 0
        if number % self.DELETION == self.DELETION - 1:
            self.delete_the_oldest()

    def open_and_close_the_window(self):
        connection = self.bus.connect()
        connection.call_blocking(ID, "/com/zorvek/Tessarine", "org.freedesktop.Application",
                                 "ActivateAction", "sava{sv}",
                                 ("open", dbus.Array([], "v"), dbus.Dictionary({}, "sv")),
                                 timeout=PATIENCE)
        connection.close()
        window = wait_until(self.session.visible_main_window, "the main window")
        self.session.xdotool("windowfocus", "--sync", window, "key", "ctrl+w")
        wait_until(lambda: not self.session.visible_main_window(), "no window")

    def restart_the_daemon(self):
        """Once all that it was told is in the hoard: what a monitor sees of a daemon that is gone is
        another test's."""
        self.wait_for_all()
        self.daemon.kill()
        self.daemon.start()

    def delete_the_oldest(self):
        """As another program does that has the file open."""
        self.wait_for_all()
        connection = sqlite3.connect(self.session.hoard, timeout=PATIENCE)
        with connection:
            rows = connection.execute("SELECT id, title FROM notifications ORDER BY id LIMIT "
                                      f"{self.DELETION // 2}").fetchall()
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
        process = pathlib.Path(f"/proc/{self.program.pid}")
        fields = (process / "stat").read_text().rsplit(")", 1)[1].split()
        pages = int((process / "statm").read_text().split()[1])
        log = self.session.hoard.with_name("hoard.db-wal")
        return Sample(time.monotonic() - self.start, self.session.count(),
                      pages * os.sysconf("SC_PAGE_SIZE") / 1e6, len(os.listdir(process / "fd")),
                      int(fields[17]), log.stat().st_size / 1e6 if log.exists() else 0.0,
                      (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK"))


def grown(samples):
    """What has grown after the first tenth, in words."""
    first = samples[:max(1, len(samples) // 10)]
    rest = samples[len(first):]
    problems = []
    for name, allowance in ALLOWANCE.items():
        before = max(getattr(sample, name) for sample in first)
        most = max((getattr(sample, name) for sample in rest), default=before)
        if most > before + allowance:
            problems.append(f"{name}: {before:.1f} after the first tenth, then up to {most:.1f}")
    return problems


def curve(samples, name, top):
    """One figure over the time, as a part of a drawing."""
    width, height = 700, 90
    most = max(getattr(sample, name) for sample in samples) or 1
    length = samples[-1].seconds or 1
    points = " ".join(f"{60 + width * sample.seconds / length:.1f},"
                      f"{top + height * (1 - getattr(sample, name) / most):.1f}"
                      for sample in samples)
    return (f'<text x="60" y="{top - 8}">{name}, up to {most:.1f} {UNITS[name]}</text>'
            f'<path d="M60 {top}V{top + height}H{60 + width}" fill="none" stroke="#999"/>'
            f'<polyline points="{points}" fill="none" stroke="#1746a8" stroke-width="1.5"/>')


def drawing(samples):
    curves = [curve(samples, name, 60 + 130 * row) for row, name in enumerate(UNITS)]
    return ('<svg xmlns="http://www.w3.org/2000/svg" width="800" '
            f'height="{60 + 130 * len(UNITS)}" font-family="sans-serif" font-size="13">'
            '<rect width="100%" height="100%" fill="white"/>'
            f'<text x="60" y="24" font-weight="bold">{samples[-1].seconds / 60:.0f} minutes, '
            f'{samples[-1].rows} rows</text>{"".join(curves)}</svg>')


def main(minutes, count):
    session = Session()
    soak = Soak(session)
    samples = [soak.sample()]
    for number in range(count):
        soak.step(number)
        if soak.sample().seconds >= 60 * len(samples):
            samples.append(soak.sample())
            print("  ".join(f"{name} {value:.1f}" for name, value in samples[-1]._asdict().items()),
                  flush=True)
        time.sleep(max(0.0, soak.start + (number + 1) * minutes * 60 / count - time.monotonic()))
    soak.wait_for_all()
    samples.append(soak.sample())
    problems = grown(samples) + [f"doubled: {title}" for title in soak.doubled()]
    picture = pathlib.Path(os.environ.get("SOAK_RESULTS", ".")) / "soak.svg"
    picture.write_text(drawing(samples))
    print(f"sent {len(soak.sent)}, all of them stored; drawn into {picture}")
    for problem in problems:
        print(problem)
    session.assert_running(soak.program)
    session.close()
    Display.end()
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(float(sys.argv[1]) if len(sys.argv) > 1 else 60,
                  int(sys.argv[2]) if len(sys.argv) > 2 else 40000))

"""Kills at random moments while notifications pour in: the hoard is sound after each.

usage: kills.py [KILLS [SEED]]     1,000 kills by default

The program is started again and again, and killed some moment later, whatever it does then. Rows come
from the database of the system's daemon and from the bus, all the time. After each kill a copy of the
hoard's files, as the kill left them, is opened by Python's SQLite: it must be sound, hold every row
that another process has read from the hoard before, whole, and none twice.

test_kills.py runs a short form of it.
"""

import contextlib
import pathlib
import random
import shutil
import sqlite3
import sys
import threading
import time

from desktop import Application, Bus, NotificationDaemon
from session import PATIENCE, Daemon, lone_session, wait_until

LONGEST_PAUSE = 0.8  # seconds
CAPTURING = 0.8      # of the lives
RECORDS_A_SECOND = 100
RECORDS_KEPT = 1000
BANNERS_A_SECOND = 100
PAGES = "word " * 3000  # some rows need many pages of the file

ROWS = "SELECT id, app_name, title, body FROM notifications WHERE id > ? ORDER BY id"
TWICE = "SELECT title FROM notifications GROUP BY title HAVING COUNT(*) > 1"


class Announcer(threading.Thread):
    """An application that announces something all the time, from a thread of its own."""

    def __init__(self, bus):
        super().__init__(daemon=True)
        self.application = Application(bus, "Pouring")
        self.count = 0
        self.stopped = threading.Event()
        self.start()

    def run(self):
        while not self.stopped.wait(1 / BANNERS_A_SECOND):
            self.application.announce(f"Banner {self.count}", body_of("Banner", self.count))
            self.count += 1

    def end(self):
        self.stopped.set()
        self.join()
        self.application.close()


def body_of(kind, number):
    if kind == "Banner" and number % 20 == 0:
        return f"Body {number} {PAGES}".strip()
    return f"Body {number}"


def is_whole(app_name, title, body):
    kind, _, number = title.partition(" ")
    return (kind, app_name) in (("Banner", "Pouring"), ("Title", "pouring")) and \
        body == body_of(kind, int(number))


class Kills:
    def __init__(self, session, seed):
        self.session = session
        self.moments = random.Random(seed)
        self.bus = Bus(session)
        NotificationDaemon(session, self.bus, "plain")
        Daemon(session).send("pour", records=10000000, rate=RECORDS_A_SECOND,
                             app="com.example.pouring")
        self.announcer = Announcer(self.bus)
        self.copy = session.root / "copy"
        self.copy.mkdir()
        self.checked = 0  # the id of the last row whose texts have been compared
        self.count = 0

    def live_and_die(self):
        """One life of the program; what is wrong after it, in words. Some end while it starts, most
        while it captures."""
        before = self.rows_seen()
        program = self.session.start_program(wait=False)
        if self.moments.random() < CAPTURING:
            wait_until(lambda: self.rows_seen()[0] > before[0], "a row that was captured")
        end = time.monotonic() + self.moments.uniform(0, LONGEST_PAUSE)
        seen = self.rows_seen()
        while time.monotonic() < end:
            time.sleep(min(0.02, max(0.0, end - time.monotonic())))
            seen = self.rows_seen()
        self.session.assert_running(program)
        self.session.kill(program)
        self.forget_old_records()
        return self.problems(seen)

    def forget_old_records(self):
        """As the system's daemon does it. Readers look at every record that there is."""
        with contextlib.closing(sqlite3.connect(self.session.usernoted, timeout=PATIENCE)) as database:
            with database:
                database.execute("DELETE FROM record WHERE rec_id < "
                                 "(SELECT MAX(rec_id) FROM record) - ?", (RECORDS_KEPT,))

    def rows_seen(self):
        """The number of rows, and the id of the last: what another process has read is stored."""
        with contextlib.suppress(sqlite3.OperationalError):  # another one has it this moment
            found = self.session.query("SELECT COUNT(*), IFNULL(MAX(id), 0) FROM notifications")
            return found[0] if found else (0, 0)
        return (0, 0)

    def copy_files(self):
        """As they lie there, so that the program is the one that has to clean up."""
        for suffix in ("", "-wal"):
            source = pathlib.Path(f"{self.session.hoard}{suffix}")
            target = self.copy / source.name
            target.unlink(missing_ok=True)
            if source.exists():
                shutil.copyfile(source, target)
        (self.copy / "hoard.db-shm").unlink(missing_ok=True)
        return self.copy / self.session.hoard.name

    def problems(self, seen):
        path = self.copy_files()
        if not path.exists():
            return ["the hoard is gone"] if seen[0] else []
        with contextlib.closing(sqlite3.connect(path)) as hoard:
            try:
                return self.problems_of(hoard, seen)
            except sqlite3.Error as error:
                return [f"the hoard can't be read: {error}"]

    def problems_of(self, hoard, seen):
        found = [row[0] for row in hoard.execute("PRAGMA integrity_check") if row[0] != "ok"]
        if not hoard.execute("SELECT 1 FROM sqlite_master WHERE name = 'notifications'").fetchone():
            return found + (["the table is gone"] if seen[0] else [])
        kept = hoard.execute("SELECT COUNT(*) FROM notifications WHERE id <= ?",
                             (seen[1],)).fetchone()[0]
        if kept != seen[0]:
            found.append(f"of {seen[0]} rows that were read {kept} are left")
        for row_id, app_name, title, body in hoard.execute(ROWS, (self.checked,)).fetchall():
            self.checked = row_id
            if not is_whole(app_name, title, body):
                found.append(f"row {row_id} is not whole: {app_name}, {title}, {body[:50]}")
        found += [f"{row[0]} is there twice" for row in hoard.execute(TWICE)]
        self.count = hoard.execute("SELECT COUNT(*) FROM notifications").fetchone()[0]
        return found

    def last_life(self):
        """After all of that the program still captures."""
        self.announcer.end()
        program = self.session.start_program()
        last = Application(self.bus, "The last")

        def is_heard():
            last.announce(f"after all {time.monotonic()}")
            return self.session.query(
                "SELECT 1 FROM notifications WHERE app_name = 'The last' LIMIT 1")

        wait_until(is_heard, "a row after all")
        self.session.assert_running(program)


def run(session, kills, seed):
    print(f"seed {seed}")
    lives = Kills(session, seed)
    problems = []
    for number in range(1, kills + 1):
        problems += [f"kill {number}: {problem}" for problem in lives.live_and_die()]
        if number % 50 == 0:
            print(f"{number} kills, {lives.count} rows, {lives.announcer.count} banners sent, "
                  f"{len(problems)} problems", flush=True)
    lives.last_life()
    return problems


def main(kills, seed):
    with lone_session() as session:
        problems = run(session, kills, seed)
    print(*problems, sep="\n")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(int(sys.argv[1]) if len(sys.argv) > 1 else 1000,
                  int(sys.argv[2]) if len(sys.argv) > 2 else random.randrange(1000000)))

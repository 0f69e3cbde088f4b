"""What one capture costs the program, in hoards of any size, with the window hidden or shown.

usage: measure_capture.py [--shown] [--captures N] [--rows N,N...] [PROGRAM...]

Announces single notifications, one for each scan, and reads from the kernel how much processor time
the program spent from the message on the bus to the published list: its main thread, and all of its
threads. Rows lie in order of time, of twenty applications, one of which is the sender's. Several
programs, for instance of two commits, are measured in turns. Not one of the checks that run every
time: what it prints is for reading.
"""

import argparse
import os
import pathlib
import sqlite3
import statistics
import time

import session as sessions
from desktop import Application, Bus, NotificationDaemon
from session import Display, Session, now, wait_until

SENDER = "Application 7"


def fill(path, rows):
    connection = sqlite3.connect(path)
    start = now() - 2 * rows
    connection.executemany(
        "INSERT INTO notifications (bundle_id, app_name, title, body, timestamp) VALUES (?,?,?,?,?)",
        ((f"application.{n % 20}", f"Application {n % 20}", f"Old title {n}",
          f"The body of an old notification, number {n}", start + 2 * n) for n in range(rows)))
    connection.commit()
    connection.close()


def processor_milliseconds(pid, thread):
    return int(pathlib.Path(f"/proc/{pid}/task/{thread}/schedstat").read_text().split()[0]) / 1e6


class Setting:
    """A session of its own in which one program has a hoard of a size."""

    def __init__(self, program, rows, shown):
        sessions.PROGRAM = program
        # Of its own: programs that are measured in turns must not cover each other's windows.
        self.display = Display()
        self.session = Session(display=self.display)
        bus = Bus(self.session)
        NotificationDaemon(self.session, bus, "plain")
        first = self.session.start_program()
        wait_until(lambda: self.session.query("SELECT name FROM pragma_table_info('notifications')"
                                              " WHERE name = 'pinned'"), "the schema")
        time.sleep(1)
        self.session.kill(first)
        fill(self.session.hoard, rows)
        self.program = self.session.start_program()
        self.application = Application(bus, SENDER)
        self.reader = sqlite3.connect(f"file:{self.session.hoard}?mode=ro", uri=True)
        self.sent = 0
        if shown:
            self.session.open_main_window()
        time.sleep(3 + rows / 200000)
        for _ in range(3):
            self.capture()

    def capture(self):
        """Milliseconds of the main thread, and of all threads."""
        before = self.used()
        start = time.monotonic()
        self.sent += 1
        self.application.announce(f"Title {self.sent}", f"Body {self.sent}")
        newest = "SELECT title FROM notifications ORDER BY id DESC LIMIT 1"
        wait_until(lambda: self.reader.execute(newest).fetchone()[0] == f"Title {self.sent}", "a row")
        time.sleep(max(0.0, 1.4 - (time.monotonic() - start)))
        return tuple(after - earlier for after, earlier in zip(self.used(), before))

    def used(self):
        pid = self.program.pid
        threads = os.listdir(f"/proc/{pid}/task")
        return (processor_milliseconds(pid, pid),
                sum(processor_milliseconds(pid, thread) for thread in threads))

    def close(self):
        self.reader.close()
        self.session.close()
        self.display.close()


def measure(options):
    for rows in options.rows:
        settings = {program: Setting(program, rows, options.shown) for program in options.programs}
        figures = {program: [] for program in settings}
        for _ in range(options.captures):
            for program, setting in settings.items():
                figures[program].append(setting.capture())
        for program, pairs in figures.items():
            main, every = zip(*pairs)
            print(f"{rows:8} rows  main thread {statistics.median(main):8.2f} ms  all threads "
                  f"{statistics.median(every):8.2f} ms  (medians of {len(pairs)})  {program}",
                  flush=True)
            settings[program].close()


if __name__ == "__main__":
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("--shown", action="store_true")
    parser.add_argument("--captures", type=int, default=30)
    parser.add_argument("--rows", default="1000,100000,1000000",
                        type=lambda text: [int(number) for number in text.split(",")])
    parser.add_argument("programs", nargs="*", default=[sessions.PROGRAM])
    measure(parser.parse_args())

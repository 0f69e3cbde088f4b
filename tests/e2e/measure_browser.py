"""How long the window keeps its user waiting on a hoard of any size.

usage: measure_browser.py [ROWS [PICTURE]]   1,000,000 rows by default; saves a picture of the
                                             window at the end

Asks the program's accessibility interface without a pause, which its main thread answers: the
longest wait for an answer is how long that thread was busy with something else. Not one of the
checks that run every time: what it prints is for reading.
"""

import random
import sqlite3
import subprocess
import sys
import time

from desktop import Application, Bus, NotificationDaemon
from main_window import MainWindow
from session import Display, Session, now, wait_until

DAYS = 25 * 86400.0


def fill(path, rows):
    """Rows of the last days, as the program would have stored them."""
    hoard = sqlite3.connect(path)
    start = now() - DAYS
    random.seed(1)
    hoard.executemany(
        "INSERT INTO notifications (system_note_id, bundle_id, app_name, title, body, timestamp)"
        " VALUES (?, ?, ?, ?, ?, ?)",
        ((-10 - number, f"org.example.app{number % 40}", f"App {number % 40}", f"Title {number}",
          f"The body of message {number}, as long as most bodies are",
          start + DAYS * number / rows) for number in range(rows)))
    hoard.commit()
    hoard.close()


class Pulse:
    """Listens to the program's main thread while something is done to it."""

    def __init__(self, window, what, seconds):
        self.reader = window.start_reader("pulse", str(seconds))
        self.what = what
        wait_until(lambda: self.reader.stdout.readline().startswith("listening"), "a pulse")

    def __enter__(self):
        return self

    def __exit__(self, *failure):
        answer = self.reader.communicate(timeout=300)[0].split()
        if not failure[0]:
            median, longest, second = answer
            print(f"{self.what:36} longest wait {float(longest):8.1f} ms, second longest "
                  f"{float(second):7.1f}, median {float(median):6.2f}", flush=True)


def main(rows, picture):
    session = Session()
    bus = Bus(session)
    NotificationDaemon(session, bus, "plain")
    window = MainWindow(session, bus)
    application = Application(bus, "Mail")
    program = session.start_program()
    application.announce("first", "")
    wait_until(lambda: session.count() == 1, "the first row")
    session.kill(program)
    fill(session.hoard, rows)

    start = time.monotonic()
    program = session.start_program()
    window.open()
    wait_until(lambda: window.rows(), "rows")
    print(f"{rows:,} rows; from the start to a window that a reader read: "
          f"{time.monotonic() - start:.1f} s")
    time.sleep(5)

    def counter():
        return next((name for role, name in window.elements()
                     if role == "label" and (" of " in name or "notification" in name)), "")

    with Pulse(window, "nothing", 5):
        pass
    with Pulse(window, "scrolling by pages", 8):
        window.press(*["Next"] * 40, delay=80)
        window.press(*["Prior"] * 40, delay=80)
    with Pulse(window, "searching", 8):
        window.click("text", "Search")
        window.type(f"message {rows - 7}")
    wait_until(lambda: len(window.rows()) == 1, "one row")
    print("   ", window.rows()[0], "|", counter())
    with Pulse(window, "ending the search", 5):
        window.press("ctrl+a", "BackSpace")
    wait_until(lambda: len(window.rows()) > 1, "all rows")
    print("   ", counter())
    with Pulse(window, "one notification captured", 20):
        application.announce("fresh", "just now")
    wait_until(lambda: any("fresh" in row for row in window.rows()), "the fresh row")
    older = "Load Older"
    older = "Load Older"
    window.xdotool("mousemove", "400", "600", "click", "1")
    with Pulse(window, "to the end of the list", 8):
        wait_until(lambda: window.press("End") or window.reads("place", "push button", older),
                   "the end of the list")
    with Pulse(window, "loading older rows", 20):
        window.click("push button", older)
    print("   ", counter())
    session.assert_running(program)
    subprocess.run(["import", "-window", "root", picture], env=session.environment, check=True)
    session.close()
    Display.end()


if __name__ == "__main__":
    main(int(sys.argv[1]) if len(sys.argv) > 1 else 1000000,
         sys.argv[2] if len(sys.argv) > 2 else "window.png")

"""How soon windows are there, and what memory they take.

usage: measure_windows.py [TIMES]   20 times by default

A window is drawn once a point of it on the screen is as light as its background; the X server is
asked without a pause. Resident memory is taken when a window has stood for a while, and when it has
been closed for long enough to be given back. Not one of the checks that run every time: what it
prints is for reading.
"""

import contextlib
import ctypes
import ctypes.util
import os
import statistics
import sys
import time

from desktop import Bus, NotificationDaemon
from session import DEFAULTS, Display, Session, wait_until

Z_PIXMAP = 2  # by the X protocol
ALL_PLANES = 0xFFFFFFFF
REST = 6  # seconds until memory is what it will be

# Each with the steps down in the menu of the bell that lead to it; none: a click of the middle button.
WINDOWS = {
    "main window": 1,
    "help": 2,
    "welcome guide": 3,
    "preferences": 4,
    "diagnostics": None,
    "updates": 6,
}


class Screen:
    """Reads points of a display."""

    def __init__(self, name):
        self.x11 = ctypes.CDLL(ctypes.util.find_library("X11"))
        for function in ("XOpenDisplay", "XDefaultRootWindow", "XGetImage", "XGetPixel"):
            getattr(self.x11, function).restype = ctypes.c_void_p
        self.x11.XGetPixel.restype = ctypes.c_ulong
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(name.encode()))
        self.root = ctypes.c_ulong(self.x11.XDefaultRootWindow(self.display))

    def is_light(self, x, y):
        image = ctypes.c_void_p(self.x11.XGetImage(self.display, self.root, x, y, 1, 1,
                                                   ctypes.c_ulong(ALL_PLANES), Z_PIXMAP))
        pixel = self.x11.XGetPixel(image, 0, 0)
        self.x11.XDestroyImage(image)
        return min(pixel >> 16 & 255, pixel >> 8 & 255, pixel & 255) > 100

    def seconds_to(self, condition, start):
        wait_until(lambda: self.is_light(700, 500) == condition, f"light: {condition}", 30)
        return time.monotonic() - start


def told(what, seconds):
    milliseconds = sorted(value * 1000 for value in seconds)
    print(f"{what:34} median {statistics.median(milliseconds):7.1f} ms, "
          f"slowest {milliseconds[-1]:7.1f} ms of {len(milliseconds)}", flush=True)


def megabytes(program):
    with open(f"/proc/{program.pid}/statm") as status:
        return int(status.read().split()[1]) * os.sysconf("SC_PAGE_SIZE") / 1e6


def open_window(session, steps):
    if steps is None:
        panel = wait_until(session.visible_panel, "the panel")
        session.xdotool("mousemove", "--window", panel, "20", "20")
        start = time.monotonic()
        session.xdotool("click", "2")
        return start
    session.open_menu()
    session.xdotool("key", "--delay", "60", *["Down"] * steps)
    start = time.monotonic()
    session.xdotool("key", "Return")
    return start


def close_window(session, screen):
    session.xdotool("mousemove", "700", "500", "key", "ctrl+w")
    screen.seconds_to(False, 0)


@contextlib.contextmanager
def own_session():
    session = Session()
    bus = Bus(session)
    NotificationDaemon(session, bus, "plain")
    try:
        yield session
    finally:
        session.close()


def measure_first_start(times):
    seconds = []
    for _ in range(times):
        with own_session() as session:
            (session.config / DEFAULTS).unlink()
            screen = Screen(session.environment["DISPLAY"])
            start = time.monotonic()
            session.start_program(wait=False)
            seconds.append(screen.seconds_to(True, start))
        Screen(Display.shared().name).seconds_to(False, 0)
    told("first start to the guide, drawn", seconds)


def measure_windows(times):
    with own_session() as session:
        screen = Screen(session.environment["DISPLAY"])
        program = session.start_program()
        wait_until(session.visible_panel, "the panel")
        time.sleep(REST)
        print(f"memory without a window {megabytes(program):6.1f} MB", flush=True)
        for name, steps in WINDOWS.items():
            seconds = []
            for _ in range(times):
                start = open_window(session, steps)
                seconds.append(screen.seconds_to(True, start))
                close_window(session, screen)
            told(f"{name}, asked for to drawn", seconds)
            open_window(session, steps)
            screen.seconds_to(True, 0)
            time.sleep(REST)
            shown = megabytes(program)
            close_window(session, screen)
            time.sleep(REST)
            print(f"    memory {shown:6.1f} MB open, {megabytes(program):6.1f} MB closed", flush=True)


if __name__ == "__main__":
    measure_first_start(int(sys.argv[1]) if len(sys.argv) > 1 else 20)
    measure_windows(int(sys.argv[1]) if len(sys.argv) > 1 else 20)
    Display.end()

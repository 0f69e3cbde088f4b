"""The main window, worked from outside: found by a screen reader, moved by pointer and keys."""

import os
import subprocess
import sys

from session import wait_until

LAUNCHERS = ["/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi2-core/at-spi-bus-launcher"]
READER = os.path.join(os.path.dirname(__file__), "screen_reader.py")


class MainWindow:
    """To be made before the program starts, which looks for the accessibility bus then."""

    def __init__(self, session, bus):
        self.session = session
        session.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        launcher = next(path for path in LAUNCHERS if os.path.exists(path))
        session.spawn(launcher, "--launch-immediately", stdout=subprocess.DEVNULL,
                      stderr=subprocess.DEVNULL)
        connection = bus.connect()
        wait_until(lambda: connection.name_has_owner("org.a11y.Bus"), "the accessibility bus")
        connection.close()

    def start_reader(self, *arguments):
        return subprocess.Popen([sys.executable, READER, *arguments], text=True,
                                env=self.session.environment, stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE)

    def reads(self, *arguments):
        return self.start_reader(*arguments).communicate(timeout=120)[0]

    def elements(self):
        """What shows: pairs of role and name."""
        return {tuple(line.split("\t", 1)) for line in self.reads("list").splitlines()}

    def focus(self):
        """Role and name of what has the keyboard, or nothing."""
        return tuple(self.reads("focus").rstrip("\n").split("\t", 1))

    def tab_to(self, role, name, most=30):
        """By Tab alone, as often as it takes."""
        for _ in range(most):
            before = self.focus()
            if before == (role, name):
                return
            self.press("Tab")
            wait_until(lambda: self.focus() not in ((), ("",), before),
                       f"the keyboard beyond {before}")
        raise AssertionError(f"Tab doesn't lead to {role} {name}")

    def shows(self, role, name):
        wait_until(lambda: (role, name) in self.elements(), f"{role} {name}")

    def hides(self, role, name):
        wait_until(lambda: (role, name) not in self.elements(), f"no {role} {name}")

    def rows(self):
        return [name for role, name in self.elements() if role == "list item"]

    def xdotool(self, *arguments):
        return self.session.xdotool(*arguments)

    def press(self, *keys, delay=20):
        self.xdotool("key", "--delay", str(delay), *keys)

    def type(self, text):
        self.xdotool("type", text)

    def click(self, role, name):
        place = wait_until(lambda: self.reads("place", role, name).split(), f"{role} {name}")
        self.xdotool("mousemove", *place, "click", "1")

    def act(self, role, name, action="Press", *, dialog=None):
        """Without a pointer or a key, as a screen reader does it for its user. In the dialog of that
        name, if one is given."""
        where = () if dialog is None else (dialog,)
        wait_until(lambda: self.reads("act", role, name, action, *where).strip() == "True",
                   f"{action} of {role} {name}")

    def write(self, role, name, text):
        wait_until(lambda: self.reads("write", role, name, text).strip() == "True",
                   f"{role} {name} takes a text")

    def open(self):
        self.session.open_main_window()

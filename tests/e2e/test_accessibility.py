"""The main window as a screen reader finds it: every control by role and name."""

import os
import subprocess
import sys
import unittest

from desktop import DesktopTestCase
from session import wait_until

LAUNCHERS = ["/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi2-core/at-spi-bus-launcher"]
READER = os.path.join(os.path.dirname(__file__), "screen_reader.py")

CONTROLS = {
    ("text", "Search"),
    ("push button", "Export notifications"),
    ("push button", "Select and delete notifications"),
    ("push button", "App"),
    ("push button", "Sort"),
    ("list", "Notifications"),
}


class ScreenReader(DesktopTestCase):
    def start_services(self):
        # The program looks for the accessibility bus when it starts.
        self.session.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        launcher = next(path for path in LAUNCHERS if os.path.exists(path))
        self.session.spawn(launcher, "--launch-immediately", stdout=subprocess.DEVNULL,
                           stderr=subprocess.DEVNULL)
        connection = self.bus.connect()
        wait_until(lambda: connection.name_has_owner("org.a11y.Bus"), "the accessibility bus")
        connection.close()

    def reads(self, *arguments):
        answer = subprocess.run([sys.executable, READER, *arguments], text=True,
                                env=self.session.environment, capture_output=True, timeout=120)
        return answer.stdout

    def elements(self):
        return {tuple(line.split("\t", 1)) for line in self.reads("list").splitlines()}

    def xdotool(self, *arguments):
        return subprocess.run(["xdotool", *arguments], env=self.session.environment,
                              capture_output=True, text=True).stdout

    def click(self, role, name):
        place = wait_until(lambda: self.reads("place", role, name).split(), f"{role} {name}")
        self.xdotool("mousemove", *place, "click", "1")

    def open_main_window(self):
        """By the status panel's menu, as on a desktop without a tray."""
        def panel():
            for window in self.session.windows("--onlyvisible", "--class", "tessarine"):
                geometry = self.xdotool("getwindowgeometry", "--shell", window)
                height = int(dict(line.split("=") for line in geometry.split())["HEIGHT"])
                if height <= 60:
                    return window
            return None

        self.xdotool("mousemove", "--window", wait_until(panel, "the panel"), "8", "8", "click", "1")

        def opened():
            self.xdotool("key", "--delay", "150", "Down", "Return")
            return self.session.visible_main_window()

        wait_until(opened, "the main window")

    def test_every_control_is_found_and_a_search_can_be_typed_and_read(self):
        application = self.application("Mail")
        application.announce("Anna", "The minutes of Tuesday")
        application.announce("Dentist", "Tomorrow at nine")
        self.wait_for_count(2)
        self.open_main_window()

        missing = wait_until(lambda: self.elements() and (CONTROLS - self.elements() or "none"),
                             "elements")
        if missing != "none":
            wait_until(lambda: CONTROLS <= self.elements(), f"all of {CONTROLS}, in "
                       f"{self.elements()}")

        def rows():
            return [name for role, name in self.elements() if role == "list item"]

        wait_until(lambda: len(rows()) == 2, "two rows")
        self.click("text", "Search")
        self.xdotool("type", "dentist")
        wait_until(lambda: len(rows()) == 1, "one row")
        self.assertIn("Mail, Dentist, Tomorrow at nine", rows()[0])


if __name__ == "__main__":
    unittest.main()

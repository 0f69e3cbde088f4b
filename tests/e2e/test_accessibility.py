"""The main window as a screen reader finds it: every control by role and name."""

import unittest

from desktop import DesktopTestCase
from main_window import MainWindow
from session import wait_until

CONTROLS = {
    ("text", "Search"),
    ("push button", "Export notifications"),
    ("push button", "Select and delete notifications"),
    ("combo box", "App"),
    ("combo box", "Sort"),
    ("list", "Notifications"),
}


class ScreenReader(DesktopTestCase):
    def start_services(self):
        self.window = MainWindow(self.session, self.bus)

    def test_every_control_is_found_and_a_search_can_be_typed_and_read(self):
        application = self.application("Mail")
        application.announce("Anna", "The minutes of Tuesday")
        application.announce("Dentist", "Tomorrow at nine")
        self.wait_for_count(2)
        self.window.open()

        wait_until(lambda: CONTROLS <= self.window.elements(), f"all of {CONTROLS}")
        wait_until(lambda: len(self.window.rows()) == 2, "two rows")
        self.window.click("text", "Search")
        self.window.type("dentist")
        wait_until(lambda: len(self.window.rows()) == 1, "one row")
        self.assertIn("Mail, Dentist, Tomorrow at nine", self.window.rows()[0])


if __name__ == "__main__":
    unittest.main()

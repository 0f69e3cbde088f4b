"""The export sheet of the running program, with the desktop's own dialog for the path."""

import time
import unittest

from desktop import DesktopTestCase
from main_window import MainWindow
from session import wait_until

FORMATS = {"Text": b"Tessarine", "CSV": b"\xef\xbb\xbf", "PDF Report": b"%PDF"}
LONGER_THAN_DONE_SHOWS = 2


class Export(DesktopTestCase):
    def start_services(self):
        self.window = MainWindow(self.session, self.bus)

    def setUp(self):
        super().setUp()
        self.application("Mail").announce("Anna", "The minutes of Tuesday")
        self.wait_for_count(1)
        self.window.open()
        self.files = []

    def wait(self, condition, what):
        """As long as the program runs."""
        return wait_until(lambda: self.session.assert_running(self.program) or condition(), what)

    def shows_sheet(self):
        return ("heading", "Export Notifications") in self.window.elements()

    def open_sheet(self, chosen):
        self.window.click("push button", "Export notifications")
        self.wait(self.shows_sheet, "the sheet")
        self.window.click("radio button", chosen)
        x, y = self.wait(
            lambda: self.window.reads("place", "push button", f"Export as {chosen}").split(),
            f"{chosen} chosen")
        # The sheet grows when it says that it is done: here the button is before and after.
        self.button = x, str(int(y) + 8)

    def dialog(self, chosen):
        return self.session.windows("--onlyvisible", "--name", f"^Export {chosen}$")

    def press_export(self, chosen):
        """Whether the dialog came; not if the sheet has closed."""
        def presses_until_asked():
            # The button takes no press before the export before it has ended.
            for _ in range(40):
                self.window.xdotool("mousemove", *self.button, "click", "1")
                if self.dialog(chosen):
                    return "asked"
            return None if self.shows_sheet() else "closed"

        return self.wait(presses_until_asked, "the dialog, or no sheet") == "asked"

    def save(self, chosen):
        time.sleep(LONGER_THAN_DONE_SHOWS)  # nothing that the export before left behind may end it
        self.session.assert_running(self.program)
        path = self.session.home / f"file{len(self.files)}"
        self.files.append(path)
        self.window.type(str(path))
        self.window.press("Return")
        self.wait(lambda: path.exists() and path.read_bytes().startswith(FORMATS[chosen]),
                  f"{chosen} in {path}")

    def test_one_export_after_the_other_in_every_format(self):
        for chosen in FORMATS:
            self.open_sheet(chosen)
            in_a_row = 0
            while in_a_row < 3:
                if self.press_export(chosen):
                    self.save(chosen)
                    in_a_row += 1
                else:  # this machine took longer than the sheet stays
                    self.open_sheet(chosen)
                    in_a_row = 0
            self.wait(lambda: not self.shows_sheet(), "no sheet")
        self.session.assert_running(self.program)

    def test_a_screen_reader_chooses_a_format(self):
        self.window.act("push button", "Export notifications")
        for chosen in FORMATS:
            self.window.act("radio button", chosen)
            self.window.shows("push button", f"Export as {chosen}")

    def test_escape_closes_the_sheet(self):
        self.open_sheet("CSV")
        self.window.press("Escape")
        self.wait(lambda: not self.shows_sheet(), "no sheet")


if __name__ == "__main__":
    unittest.main(verbosity=2)

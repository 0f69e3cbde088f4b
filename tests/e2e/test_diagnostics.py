"""The diagnostics window of the running program: what it tells, and the files it makes."""

import os
import platform
import sqlite3
import unittest

from desktop import DesktopTestCase
from main_window import MainWindow
from session import wait_until

TITLE = "^Tessarine Diagnostics$"


class Diagnostics(DesktopTestCase):
    def start_services(self):
        self.window = MainWindow(self.session, self.bus)

    def setUp(self):
        super().setUp()
        self.application("Mail").announce("Anna", "The minutes of Tuesday")
        self.wait_for_count(1)

    def visible(self):
        return self.session.windows("--onlyvisible", "--name", TITLE)

    def open(self):
        """By the click that stands in for the one with Option."""
        panel = wait_until(self.session.visible_panel, "the panel")
        self.session.xdotool("mousemove", "--window", panel, "20", "20", "click", "2")
        wait_until(self.visible, "the diagnostics")

    def logged(self, text):
        wait_until(lambda: any(text in name for _, name in self.window.elements()),
                   f"{text} in the log")

    def save(self, button, title, path):
        self.window.click("push button", button)
        wait_until(lambda: self.session.windows("--onlyvisible", "--name", title), "the dialog")
        self.window.press("ctrl+a")
        self.window.type(str(path))
        self.window.press("Return")
        wait_until(path.exists, f"{path}")

    def test_two_requests_are_one_window_and_no_menu(self):
        self.open()
        self.assertIsNone(self.session.visible_menu())
        self.open()
        self.assertEqual(len(self.visible()), 1)
        self.session.xdotool("windowfocus", "--sync", self.visible()[0], "key", "Escape")
        wait_until(lambda: not self.visible(), "no diagnostics")
        self.application("Mail").announce("Later", "")
        self.wait_for_count(2)
        self.open()

    def test_what_is_captured_is_told(self):
        self.open()
        self.logged("1 captured")
        self.application("Chess").announce("Your move", "")
        self.logged("2 captured")
        self.logged("Chess")

    def test_the_integrity_check_says_that_all_is_well(self):
        self.open()
        self.window.click("push button", "Verify Integrity")
        self.logged("Integrity check passed")

    def test_a_backup_holds_what_the_hoard_holds(self):
        self.open()
        copy = self.session.home / "copy.db"
        self.save("Create Backup…", "Back Up", copy)
        self.logged(str(copy))
        self.assertEqual(copy.stat().st_mode & 0o777, 0o600)
        connection = sqlite3.connect(f"file:{copy}?mode=ro&immutable=1", uri=True)
        self.addCleanup(connection.close)
        self.assertEqual(connection.execute("PRAGMA integrity_check").fetchall(), [("ok",)])
        self.assertEqual(connection.execute("SELECT title FROM notifications").fetchall(),
                         [("Anna",)])

    def test_a_report_hides_what_notifications_say(self):
        self.open()
        report = self.session.home / "report.txt"
        self.save("Export Report…", "Report", report)
        self.logged("report.txt")
        text = report.read_text(encoding="utf-8")
        self.assertEqual(report.stat().st_mode & 0o777, 0o600)
        self.assertTrue(text.startswith("=== Tessarine Diagnostics Report ===\n"))
        self.assertTrue(text.endswith("=== End of Report ==="))
        self.assertIn("Records:  1\n", text)
        self.assertIn("Path:     ~/.local/share/Tessarine/hoard.db\n", text)
        self.assertNotIn(str(self.session.home), text)
        self.assertIn("] [AX      ] Notification from [Mail]\n", text)
        self.assertNotIn("Anna", text)
        self.assertNotIn("minutes", text)

    def test_a_copied_report_is_what_other_programs_paste(self):
        self.open()
        self.window.click("push button", "Copy Report")
        self.logged("Report copied to the clipboard")
        text = self.session.tool("xclip", "-selection", "clipboard", "-target", "UTF8_STRING", "-out")
        self.assertTrue(text.startswith("=== Tessarine Diagnostics Report ===\nGenerated: "))
        distribution = platform.freedesktop_os_release()["PRETTY_NAME"]
        self.assertIn(f"\nSystem: {distribution} (Linux {os.uname().release})\n", text)
        self.assertIn("\nRecords:  1\n", text)
        self.assertIn(f"\nPath:     {self.session.hoard}\n", text)
        self.assertIn("Notification from [Mail]", text)


if __name__ == "__main__":
    unittest.main(verbosity=2)

"""The preferences of the running program: each setting changed, seen in the file, and in what the
program then does."""

import contextlib
import os
import pathlib
import socket
import sqlite3
import threading
import time
import unittest

from desktop import DesktopTestCase
from main_window import MainWindow
from session import DEFAULTS, now, wait_until

DAY = 86400
AUTOSTART = "autostart/com.zorvek.Tessarine.desktop"
NOT_SAVED = ("Your changes could not be saved to the settings file. They hold until Tessarine quits, "
             "and are saved with the next change once the file can be written.")


class SettingsTestCase(DesktopTestCase):
    def start_services(self):
        self.window = MainWindow(self.session, self.bus)

    def visible(self):
        return self.session.windows("--onlyvisible", "--name", "^Preferences$")

    def request(self):
        """By the menu of the bell."""
        self.session.open_menu()
        self.session.xdotool("key", "--delay", "150", "ctrl+comma")

    def open(self, tab=None):
        self.request()
        wait_until(self.visible, "the preferences")
        if tab:
            self.window.click("page tab", tab)

    def close(self):
        self.window.press("Escape")
        wait_until(lambda: not self.visible(), "no preferences")

    def wait_for_setting(self, key, value):
        wait_until(lambda: self.session.defaults().get(key) == value, f"{key}={value}")

    def choose(self, row, *keys):
        """From the menu of a row, by the keyboard."""
        self.window.tab_to("combo box", row)
        before = self.window.elements()
        self.window.press("space")
        wait_until(lambda: any(role == "menu item" for role, _ in self.window.elements() - before),
                   "the menu")
        self.window.press(*keys, delay=100)
        wait_until(lambda: all(role != "menu item" for role, _ in self.window.elements()), "no menu")

    def restart(self):
        self.session.kill(self.program)
        wait_until(lambda: not self.session.visible_panel(), "no panel")
        self.program = self.session.start_program()
        wait_until(self.session.visible_panel, "the panel")

    def insert(self, title, body, age):
        """A row of that many seconds, written by another program."""
        wait_until(lambda: self.session.query(
            "SELECT 1 FROM sqlite_master WHERE name = 'notifications'"), "the table")
        with contextlib.closing(sqlite3.connect(self.session.hoard, timeout=30)) as hoard, hoard:
            hoard.execute(
                "INSERT INTO notifications (system_note_id, app_name, bundle_id, title, body, timestamp) "
                "VALUES (?, 'Old', 'old', ?, ?, ?)",
                (-int(age) - len(title), title, body, now() - age))


class General(SettingsTestCase):
    def test_two_requests_are_one_window(self):
        self.open()
        self.request()
        self.request()
        self.assertEqual(len(self.visible()), 1)
        self.assertEqual(len(self.session.windows("--name", "^Preferences$")), 1)

    def test_capture_goes_on_when_the_last_window_was_closed(self):
        self.open()
        self.close()
        self.application("Mail").announce("Later")
        self.wait_for_count(1)

    def test_appearance(self):
        self.open()
        for button, mode in (("Dark", "dark"), ("Light", "light"), ("Automatic", "auto")):
            self.window.click("radio button", button)
            self.wait_for_setting("appearanceMode", mode)

    def test_every_open_window_is_dark_on_the_screen_as_soon_as_that_is_chosen(self):
        behind = self.session.open_main_window()
        self.open()
        places = [self.session.place(window) for window in (behind, self.visible()[0])]
        self.window.click("radio button", "Light")
        for place in places:
            wait_until(lambda: self.session.brightness(place) > 0.8, f"light at {place}")
        self.window.click("radio button", "Dark")
        for place in places:
            wait_until(lambda: self.session.brightness(place) < 0.3, f"darkness at {place}")

    def test_launch_at_login(self):
        entry = self.session.config / AUTOSTART
        self.open()
        self.window.click("check box", "Launch at login")
        wait_until(entry.exists, "the autostart entry")
        self.assertIn("Exec=", entry.read_text())
        self.window.click("check box", "Launch at login")
        wait_until(lambda: not entry.exists(), "no autostart entry")
        self.assertIn("[LaunchAgent] Registered with SMAppService", self.session.log())


class ExcludedApps(SettingsTestCase):
    def setUp(self):
        super().setUp()
        self.mail, self.chat = self.application("Mail"), self.application("Chat")
        self.mail.announce("first")
        self.chat.announce("second")
        self.wait_for_count(2)
        self.open()
        self.window.click("push button", "Manage…")
        self.window.shows("check box", "Mail")

    def test_an_excluded_app_is_captured_no_more_until_it_is_let_in_again(self):
        self.window.click("check box", "Mail")
        self.window.click("push button", "Exclude Only")
        self.wait_for_setting("excludedBundleIds", "mail")
        self.window.hides("push button", "Exclude Only")
        self.mail.announce("third")
        self.chat.announce("fourth")
        self.assert_captured(("Chat", "fourth", ""))
        self.assertEqual(self.session.titles(), ["first", "second", "fourth"])
        self.window.click("check box", "Mail")
        wait_until(lambda: "mail" not in self.session.defaults().get("excludedBundleIds", "mail"),
                   "nothing excluded")
        self.mail.announce("fifth")
        self.assert_captured(("Mail", "fifth", ""))

    def test_with_its_rows(self):
        self.window.click("check box", "Mail")
        self.window.click("push button", "Exclude and Delete")
        wait_until(lambda: self.session.titles() == ["second"], "one row")
        self.wait_for_setting("excludedBundleIds", "mail")

    def test_cancel_changes_nothing(self):
        self.window.click("check box", "Mail")
        self.window.shows("push button", "Exclude Only")
        self.window.press("Escape")
        self.window.hides("push button", "Exclude Only")
        self.window.press("Escape")
        self.window.hides("check box", "Mail")
        self.assertNotIn("excludedBundleIds", self.session.defaults())
        self.assertEqual(self.session.count(), 2)


class Storage(SettingsTestCase):
    def test_old_rows_go_at_the_next_start(self):
        self.insert("old", "", 8 * DAY)
        self.insert("young", "", 6 * DAY)
        self.open("Storage")
        self.choose("Keep notifications", "End", "Return")
        self.wait_for_setting("retentionDays", "7")
        self.assertEqual(self.session.titles(), ["old", "young"])
        self.restart()
        wait_until(lambda: self.session.titles() == ["young"], "the young row alone")

    def test_a_backup_is_read_by_another_program(self):
        for number in range(3):
            self.application("Mail").announce(f"Title {number}")
        self.wait_for_count(3)
        with contextlib.closing(sqlite3.connect(self.session.hoard, timeout=30)) as hoard:
            hoard.execute("PRAGMA wal_checkpoint(FULL)").fetchall()
        target = self.session.home / "backup.db"
        target.write_text("an older one")
        self.save(target)
        wait_until(lambda: target.read_bytes().startswith(b"SQLite"), "the backup")
        with contextlib.closing(sqlite3.connect(target)) as backup:
            self.assertEqual(backup.execute("PRAGMA integrity_check").fetchall(), [("ok",)])
            titles = backup.execute("SELECT title FROM notifications ORDER BY id").fetchall()
        self.assertEqual(titles, [("Title 0",), ("Title 1",), ("Title 2",)])
        self.assertEqual(target.stat().st_mode & 0o777, 0o600)
        self.application("Mail").announce("Afterwards")
        self.wait_for_count(4)

    def test_a_backup_that_cannot_be_made_says_so(self):
        self.application("Mail").announce("Title")
        self.wait_for_count(1)
        self.save(pathlib.Path("/proc/backup.db"))
        self.window.shows("heading", "The backup could not be made.")
        self.window.click("push button", "OK")
        self.window.hides("heading", "The backup could not be made.")
        self.application("Mail").announce("Afterwards")
        self.wait_for_count(2)

    def save(self, path):
        self.open("Storage")
        self.window.click("push button", "Back Up…")
        self.window.click("push button", "Continue")
        wait_until(lambda: self.session.windows("--onlyvisible", "--name", "^Back Up the Hoard$"),
                   "the dialog")
        self.window.press("ctrl+a")
        self.window.type(str(path))
        self.window.press("Return")
        if path.exists():  # the dialog asks whether to replace it
            self.window.click("push button", "Yes")


class Privacy(SettingsTestCase):
    def test_hidden_content_is_masked(self):
        self.application("Mail").announce("Anna", "The minutes")
        self.wait_for_count(1)
        self.open("Privacy")
        self.window.click("check box", "Hide content")
        self.wait_for_setting("globalPrivacyMode", "true")
        self.close()
        self.window.open()
        row = wait_until(self.window.rows, "a row")[0]
        self.assertIn("Mail", row)
        self.assertNotIn("Anna", row)
        self.assertNotIn("minutes", row)

    def test_codes_go_at_the_next_start(self):
        self.insert("code", "1234", 2 * 3600)
        self.insert("fresh code", "1234", 600)
        self.insert("words", "no number", 2 * 3600)
        self.open("Privacy")
        self.choose("Delete codes after", "Down", "Return")
        self.wait_for_setting("otpRetentionHours", "1")
        self.restart()
        wait_until(lambda: self.session.titles() == ["fresh code", "words"], "no old code")


class Permissions(SettingsTestCase):
    def start_services(self):
        super().start_services()
        self.witness = self.session.root / "opened"
        program = self.session.root / "bin/gnome-control-center"
        program.parent.mkdir()
        program.write_text(f'#!/bin/sh\necho "$*" > {self.witness}\n')
        program.chmod(0o755)
        environment = self.session.environment
        environment["PATH"] = f"{program.parent}:{environment['PATH']}"
        environment["XDG_CURRENT_DESKTOP"] = "GNOME"

    def test_the_desktops_own_settings_open(self):
        self.open("Permissions")
        self.window.click("push button", "Open System Settings")
        wait_until(lambda: self.witness.exists() and self.witness.read_text() == "notifications\n",
                   "the page for notifications")

    def test_re_check_finds_what_is_so(self):
        self.open("Permissions")
        self.window.shows("push button", "Re-check")
        self.window.click("push button", "Re-check")
        self.session.assert_running(self.program)


class WithoutSettings(SettingsTestCase):
    def test_the_buttons_say_that_there_is_nothing(self):
        self.open("Permissions")
        self.window.shows("push button", "No System Settings for This")
        self.assertNotIn(("push button", "Open System Settings"), self.window.elements())


class Keyboard(SettingsTestCase):
    def test_a_walk_without_a_mouse(self):
        self.open()
        self.window.tab_to("page tab", "General")
        self.window.tab_to("check box", "Launch at login")
        self.window.press("space")
        wait_until((self.session.config / AUTOSTART).exists, "the autostart entry")
        self.window.tab_to("push button", "Manage…")
        self.window.press("Return")
        self.window.shows("heading", "Excluded Apps")
        self.window.press("Escape")
        self.window.hides("heading", "Excluded Apps")
        self.window.tab_to("page tab", "General")
        self.window.press("Right")
        self.choose("Keep notifications", "Down", "Return")
        self.wait_for_setting("retentionDays", "365")
        self.window.tab_to("page tab", "Storage")
        self.window.press("Right")
        self.window.tab_to("check box", "Hide content")
        self.window.press("Return")
        self.wait_for_setting("globalPrivacyMode", "true")
        self.close()

    def test_control_w_closes_the_window(self):
        self.open()
        self.window.press("ctrl+w")
        wait_until(lambda: not self.visible(), "no preferences")


class HeldFile:
    """The settings file locked by this program, as one that uses Qt locks it. A lock that nobody
    renews would be taken for forgotten."""

    def __init__(self, path):
        self.path = path
        name = os.path.basename(os.readlink("/proc/self/exe"))
        path.write_text(f"{os.getpid()}\n{name}\n{socket.gethostname()}\n\n\n")
        self.ended = threading.Event()
        self.thread = threading.Thread(target=self.renew)
        self.thread.start()

    def renew(self):
        while not self.ended.wait(1):
            os.utime(self.path)

    def release(self):
        self.ended.set()
        self.thread.join()
        self.path.unlink(missing_ok=True)


class Saving(SettingsTestCase):
    def test_while_another_program_holds_the_file(self):
        self.open("Privacy")
        held = HeldFile(self.session.config / f"{DEFAULTS}.lock")
        try:
            self.window.click("check box", "Hide content")
            started = time.monotonic()
            self.window.shows("alert", NOT_SAVED)
            self.assertLess(time.monotonic() - started, 25)
            self.assertNotEqual(self.session.defaults().get("globalPrivacyMode"), "true")
        finally:
            held.release()
        self.choose("Delete codes after", "End", "Return")
        self.wait_for_setting("otpRetentionHours", "24")
        self.wait_for_setting("globalPrivacyMode", "true")
        self.window.hides("alert", NOT_SAVED)

    def test_a_value_of_another_kind_is_no_harm(self):
        self.session.kill(self.program)
        with open(self.session.config / DEFAULTS, "a", encoding="utf-8") as settings:
            settings.write("retentionDays=soon\nglobalPrivacyMode=maybe\nmine=kept\n")
        self.program = self.session.start_program()
        wait_until(self.session.visible_panel, "the panel")
        self.open("Storage")
        self.choose("Keep notifications", "Down", "Return")
        self.wait_for_setting("retentionDays", "365")
        self.assertEqual(self.session.defaults()["globalPrivacyMode"], "maybe")
        self.assertEqual(self.session.defaults()["mine"], "kept")
        self.session.assert_running(self.program)


if __name__ == "__main__":
    unittest.main(verbosity=2)

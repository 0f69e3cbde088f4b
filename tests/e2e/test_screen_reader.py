"""A walk through everything by a screen reader alone: what it finds by role and name, and what that
offers to do. Nothing is pointed at, and no key leads anywhere; keys are pressed only to put letters
into the search field, which a screen reader's user does too."""

import datetime
import unittest

from desktop import DesktopTestCase
from main_window import MainWindow
from session import PATIENCE, REFERENCE_DATE, wait_until


class ScreenReaderWalk(DesktopTestCase):
    def start_services(self):
        self.window = MainWindow(self.session, self.bus)

    def setUp(self):
        super().setUp()
        self.application("Mail").announce("Anna", "The minutes of Tuesday")
        self.application("Chat").announce("Ben", "Lunch?")
        self.wait_for_count(2)

    # What is done

    def open_menu(self):
        panel = wait_until(lambda: [name for role, name in self.window.elements()
                                    if role == "push button" and name.startswith("Tessarine")],
                           "the panel")[0]
        self.window.act("push button", panel)

    def choose_in_panel(self, entry):
        self.open_menu()
        self.window.act("menu item", entry)
        self.window.hides("menu item", entry)

    def open_diagnostics(self):
        """Nothing but a click of the mouse opens it."""
        panel = wait_until(self.session.visible_panel, "the panel")
        self.session.xdotool("mousemove", "--window", panel, "20", "20", "click", "2")
        self.window.shows("frame", "Tessarine Diagnostics")

    def open_hoard(self):
        self.choose_in_panel("Open Hoard")
        self.wait_for_rows(2)

    def wait_for_rows(self, count):
        wait_until(lambda: len(self.window.rows()) == count, f"{count} rows")

    def row(self, *texts):
        """The name of the one row that says all this."""
        return wait_until(lambda: [name for name in self.window.rows()
                                   if all(text in name for text in texts)], f"a row with {texts}")[0]

    def wait_for_order(self, *texts):
        """Until the rows with these texts stand one below the other."""
        wait_until(lambda: self.heights(texts) == sorted(self.heights(texts)), f"{texts} in order")

    def heights(self, texts):
        return [int(self.window.reads("place", "list item", self.row(text)).split()[1])
                for text in texts]

    def days(self):
        """Of the notifications, as the titles of their groups."""
        stamps = self.session.query("SELECT timestamp FROM notifications")
        moments = [datetime.datetime.fromtimestamp(stamp + REFERENCE_DATE) for (stamp,) in stamps]
        return {f"{moment:%A, %B} {moment.day}, {moment.year}" for moment in moments}

    # The walk

    def test_search_filter_and_groups(self):
        self.open_hoard()
        self.window.act("text", "Search", "SetFocus")
        wait_until(lambda: self.window.focus() == ("text", "Search"), "the search field")
        self.window.type("lunch")
        self.wait_for_rows(1)
        self.window.act("push button", "Clear the search")
        self.wait_for_rows(2)

        self.window.act("combo box", "App")
        self.window.act("menu item", "Mail")
        self.wait_for_rows(1)
        self.window.act("combo box", "App")
        self.assertNotIn(("dialog", ""), self.window.elements())
        self.window.act("menu item", "All Apps")
        self.wait_for_rows(2)

        self.window.act("radio button", "App")
        self.window.act("push button", "Hide Mail")
        self.wait_for_rows(1)
        self.window.act("push button", "Show Mail")
        self.wait_for_rows(2)

    def test_sorting(self):
        self.application("Mail").announce("Cleo", "Minutes, again")
        self.wait_for_count(3)
        self.choose_in_panel("Open Hoard")
        self.wait_for_rows(3)
        self.wait_for_order("Cleo", "Ben", "Anna")
        self.window.act("combo box", "Sort")
        self.window.act("menu item", "Oldest First")
        self.wait_for_order("Anna", "Ben", "Cleo")
        self.window.act("combo box", "Sort")
        self.window.act("menu item", "App A–Z")
        self.wait_for_order("Ben", "Cleo", "Anna")
        self.window.act("combo box", "Sort")
        self.window.act("menu item", "Newest First")
        self.wait_for_order("Cleo", "Ben", "Anna")

    def test_groups_of_days(self):
        self.open_hoard()
        self.window.act("radio button", "Date")
        for day in self.days():
            self.window.shows("heading", day)
            self.window.act("push button", f"Hide {day}")
        self.wait_for_rows(0)
        for day in self.days():
            self.window.act("push button", f"Show {day}")
        self.wait_for_rows(2)
        self.window.act("radio button", "None")
        for day in self.days():
            self.window.hides("heading", day)

    def test_a_group_and_its_menu(self):
        self.application("Mail").announce("Cleo", "Minutes, again")
        self.wait_for_count(3)
        self.choose_in_panel("Open Hoard")
        self.window.act("radio button", "App")
        self.window.act("heading", "Mail", "ShowMenu")
        self.window.act("menu item", "Delete All 2 Notifications")
        self.window.hides("heading", "Mail")
        self.wait_for_rows(1)
        self.row("Chat", "Ben")
        self.assertEqual(self.session.count(), 1)

    def test_deleting_all(self):
        asks = "Delete all notifications? (2 loaded)"
        self.open_hoard()
        self.window.act("push button", "Select and delete notifications")
        self.window.act("push button", "Delete All")
        self.window.shows("dialog", asks)
        self.window.act("push button", "Cancel", dialog=asks)
        self.window.hides("dialog", asks)
        self.wait_for_rows(2)
        self.assertEqual(self.session.count(), 2)
        self.window.act("push button", "Delete All")
        self.window.act("push button", "Delete All", dialog=asks)
        self.window.hides("dialog", asks)
        self.wait_for_rows(0)
        self.assertEqual(self.session.count(), 0)

    def test_a_row_its_preview_and_its_menu(self):
        self.open_hoard()
        ben = self.row("Ben")
        self.window.act("list item", ben, "preview")
        self.window.shows("dialog", "Notification")
        self.window.shows("label", "Lunch?")
        self.window.act("push button", "Close")
        self.window.hides("dialog", "Notification")

        self.window.act("list item", ben, "ShowMenu")
        self.window.act("menu item", "Pin")
        ben = self.row("Ben", "Pinned")
        self.window.act("list item", ben, "ShowMenu")
        self.window.act("menu item", "Delete This Notification")
        self.wait_for_rows(1)
        self.assertEqual(self.session.count(), 1)

    def test_a_mask(self):
        self.open_hoard()
        self.choose_in_panel("Preferences…")
        self.window.act("page tab", "Privacy")
        self.window.act("check box", "Hide content")
        self.window.act("list item", self.row("Mail", "Content hidden"))
        self.row("Mail", "Anna")
        self.assertIn("Content hidden", self.row("Chat"))

    def test_selecting_by_date_and_deleting(self):
        self.open_hoard()
        self.window.act("push button", "Select and delete notifications")
        self.window.act("push button", "Date")
        self.window.shows("dialog", "Select by Date")
        self.assertNotIn(("dialog", ""), self.window.elements())
        self.window.act("push button", "Last 7 Days")
        self.window.shows("label", "2 selected")
        self.window.act("list item", self.row("Ben"))
        self.window.shows("label", "1 selected")
        self.window.act("push button", "Delete Selected…")
        self.window.shows("dialog", "Delete 1 notification?")
        self.window.act("push button", "Delete")
        self.wait_for_rows(1)
        self.assertEqual(self.session.count(), 1)

    def test_the_export(self):
        self.open_hoard()
        self.window.act("push button", "Export notifications")
        self.window.act("radio button", "Text")
        self.window.act("push button", "Export as Text")
        file = self.session.home / "walk.txt"
        self.window.write("text", "File name:", str(file))
        self.window.act("push button", "Export")
        wait_until(lambda: file.exists() and "Lunch?" in file.read_text(), "the export")

    def test_the_diagnostics(self):
        self.open_diagnostics()
        self.wait_for_log("Mail")
        self.window.act("check box", "Only DB", "Toggle")
        self.wait_for_log("Mail", is_there=False)
        self.window.act("check box", "Only DB", "Press")
        self.wait_for_log("Mail")
        self.window.act("push button", "Verify Integrity")
        self.wait_for_log("Integrity check passed")
        self.window.act("push button", "Clear the log")
        self.wait_for_log("Integrity check passed", is_there=False)

    def wait_for_log(self, text, *, is_there=True):
        wait_until(lambda: is_there == any(text in name for name in self.window.rows()),
                   f"{text} in the log: {is_there}")

    def test_preferences_and_help(self):
        self.choose_in_panel("Preferences…")
        for tab, holds in (("Storage", ("push button", "Back Up…")),
                           ("Permissions", ("push button", "Re-check")),
                           ("General", ("push button", "Manage…"))):
            self.window.act("page tab", tab)
            self.window.shows(*holds)
        self.choose_in_panel("Tessarine Help")
        self.window.act("list item", "Exporting")
        self.window.shows("heading", "Exporting")

    def test_quitting(self):
        self.open_hoard()
        self.open_menu()
        self.window.shows("menu item", "Quit Tessarine")
        self.window.reads("act", "menu item", "Quit Tessarine", "Press")  # and can't answer any more
        self.assertEqual(self.program.wait(timeout=PATIENCE), 0)


if __name__ == "__main__":
    unittest.main()

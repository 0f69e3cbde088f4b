"""A walk through the main window by the keyboard alone. Only rows can't be come upon by it: they get
the focus by a click."""

import unittest

from desktop import DesktopTestCase
from main_window import MainWindow
from session import wait_until


class Keyboard(DesktopTestCase):
    def start_services(self):
        self.window = MainWindow(self.session, self.bus)

    def setUp(self):
        super().setUp()
        self.application("Mail").announce("Anna", "The minutes of Tuesday")
        self.application("Chat").announce("Ben", "Lunch?")
        self.wait_for_count(2)
        self.window.open()
        self.wait_for_rows(2)

    def wait_for_rows(self, count):
        wait_until(lambda: len(self.window.rows()) == count, f"{count} rows")

    def test_a_search(self):
        self.window.press("ctrl+f")
        wait_until(lambda: self.window.focus() == ("text", "Search"), "the search field")
        self.window.type("lunch")
        self.wait_for_rows(1)
        self.window.press("ctrl+f")
        self.window.press("Delete")
        self.wait_for_rows(2)

    def test_a_choice_from_a_menu(self):
        self.window.tab_to("combo box", "App")
        self.window.press("Down")
        self.window.shows("menu item", "Mail")
        self.window.press("Up", "Return")  # from the first entry to the last one
        self.wait_for_rows(1)
        wait_until(lambda: self.window.focus() == ("combo box", "App"), "the picker again")
        self.window.press("Return")
        self.window.shows("menu item", "Mail")
        self.window.press("Home", "Return")
        self.wait_for_rows(2)

    def test_groups_and_their_menu(self):
        self.window.tab_to("radio button", "None")
        self.window.press("Right")
        self.window.shows("heading", "Mail")
        self.window.tab_to("push button", "Hide Mail")
        self.window.press("Return")
        self.wait_for_rows(1)
        self.window.press("Return")
        self.wait_for_rows(2)
        self.window.press("Menu")
        self.window.shows("menu item", "Delete 1 Notification")
        self.window.press("Escape")
        self.window.hides("menu item", "Delete 1 Notification")
        self.window.press("shift+F10")
        self.window.shows("menu item", "Delete 1 Notification")
        self.window.press("Down", "Return")
        self.wait_for_rows(1)

    def test_the_export(self):
        self.window.tab_to("push button", "Export notifications")
        self.window.press("space")
        self.window.shows("dialog", "Export Notifications")
        self.window.press("Escape")
        self.window.hides("dialog", "Export Notifications")
        wait_until(lambda: self.window.focus() == ("push button", "Export notifications"),
                   "the button again")

    def test_selecting_and_deleting(self):
        self.window.tab_to("push button", "Select and delete notifications")
        self.window.press("Return")
        self.window.tab_to("push button", "Select All")
        self.window.press("Return")
        self.window.tab_to("push button", "Delete Selected…")
        self.window.press("Return")
        self.window.shows("dialog", "Delete 2 notifications?")
        self.window.press("Escape")
        self.window.hides("dialog", "Delete 2 notifications?")
        self.wait_for_rows(2)
        self.window.press("Return")
        self.window.tab_to("push button", "Delete")
        self.window.press("Return")
        self.wait_for_rows(0)
        self.assertEqual(self.session.count(), 0)

    def test_the_window_closes(self):
        self.window.press("ctrl+w")
        wait_until(lambda: not self.session.visible_main_window(), "no main window")


if __name__ == "__main__":
    unittest.main()

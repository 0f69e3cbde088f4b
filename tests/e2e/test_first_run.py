"""The first start: nothing is captured, read or deleted before the user has agreed."""

import re
import unittest

from desktop import Application, Bus, NotificationDaemon
from session import DEFAULTS, PATIENCE, SessionTestCase, wait_until
from window_manager import ask_to_close

GUIDE = "^Welcome to Tessarine$"
OPENED = re.compile(r'(?:open|openat|creat)\([^"]*"([^"]+)"')


class FirstRun(SessionTestCase):
    def setUp(self):
        super().setUp()
        (self.session.config / DEFAULTS).unlink()
        self.bus = Bus(self.session)
        NotificationDaemon(self.session, self.bus, "plain")
        self.application = Application(self.bus, "Teapot")

    def guide(self):
        found = self.session.windows("--onlyvisible", "--name", GUIDE)
        return found[0] if found else None

    def start(self, **options):
        program = self.session.start_program(wait=False, **options)
        wait_until(self.guide, "the guide")
        return program

    def press(self, *keys):
        self.session.xdotool("windowfocus", "--sync", self.guide(),
                             *[word for key in keys for word in ("key", "--delay", "150", key)])

    def agree(self):
        """Page by page until the one after the agreement, by the keyboard alone."""
        self.press("Return", "Tab")
        self.read_and_accept()

    def read_and_accept(self):
        """The box takes the keyboard only once the end was seen; ticked, the button leads on."""
        self.press("End", "Tab", "space", "Tab", "Return")
        wait_until(self.accepted, "the consent")

    def accepted(self):
        return self.session.defaults().get("hasAcceptedEULA") == "true"

    def assert_at_work(self, title):
        self.application.announce(title, "")
        wait_until(lambda: title in self.session.titles(), f"{title} in the hoard")

    def test_what_comes_before_consent_never_reaches_the_hoard(self):
        trace = self.session.root / "opened"
        program = self.start(through=["strace", "-f", "-qq", "-e", "trace=open,openat,creat",
                                      "-o", str(trace)])
        self.application.announce("Before", "consent")
        self.press("Return", "Tab")
        self.application.announce("Before too", "consent")
        home = str(self.session.home)
        opened = {path for path in OPENED.findall(trace.read_text(errors="replace"))
                  if path.startswith(home) and not path.endswith(".lock")}
        self.assertEqual([path for path in opened if "hoard" in path or "usernoted" in path], [])
        self.assertFalse(self.session.hoard.exists())

        self.read_and_accept()
        self.press("Return", "Return")
        wait_until(lambda: not self.guide(), "the end of the guide")
        self.session.wait_until_started(program)
        self.assert_at_work("After")
        self.assertEqual(self.session.titles(), ["After"])

    def test_closing_the_guide_ends_the_program_and_leaves_nothing(self):
        program = self.start()
        ask_to_close(self.session.environment["DISPLAY"], self.guide())
        self.assertEqual(program.wait(PATIENCE), 0)
        self.assertFalse(self.session.hoard.exists())
        self.assertFalse(self.accepted())

    def test_one_who_was_interrupted_after_agreeing_is_not_asked_again(self):
        program = self.start()
        self.agree()
        self.session.kill(program)
        self.session.start_program()
        self.assert_at_work("Later")
        self.assertIsNone(self.guide())

    def test_one_who_was_interrupted_before_is_asked_again(self):
        program = self.start()
        self.press("Return")
        self.session.kill(program)
        wait_until(lambda: not self.guide(), "no guide")
        self.start()
        self.assertFalse(self.session.hoard.exists())

    def test_the_menu_leads_to_the_guide_before_consent(self):
        self.start()
        self.session.open_menu()
        self.session.xdotool("key", "--delay", "150", "Down", "Return")
        wait_until(lambda: not self.session.visible_menu(), "the end of the menu")
        self.assertIsNone(self.session.visible_main_window())
        self.assertFalse(self.session.hoard.exists())
        self.assertIsNotNone(self.guide())


if __name__ == "__main__":
    unittest.main(verbosity=2)

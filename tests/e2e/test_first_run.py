"""The first start: nothing is captured, read or deleted before the user has agreed."""

import pathlib
import re
import unittest
import xml.etree.ElementTree as ElementTree

from desktop import Application, Bus, NotificationDaemon
from main_window import MainWindow
from session import DEFAULTS, PATIENCE, SessionTestCase, wait_until
from window_manager import ask_to_close

TEXTS = pathlib.Path(__file__).resolve().parents[2] / "resources/texts"
LOCK = ".local/share/Tessarine/hoard.db.lock"  # by which a second start knows of the first

# What the kernel was asked to make, open, rename or remove, and with which flags.
FILE_CALLS = "open,openat,creat,mkdir,mkdirat,rename,renameat,renameat2,unlink,unlinkat,link,linkat"
CALL = re.compile(r'(\w+)\((.*".*)')
WRITING = re.compile(r"O_WRONLY|O_RDWR|O_CREAT|O_TRUNC")


def texts_of(language):
    """{id: text} of all systems, and of this one where it has its own."""
    texts = {}
    for name in (f"tessarine_{language}.ts", f"linux_{language}.ts"):
        for message in ElementTree.parse(TEXTS / name).getroot().iter("message"):
            texts[message.get("id")] = "".join(message.find("translation").itertext())
    return texts


def touched(traces, home):
    """(all files below the home folder that were opened, those that were changed)"""
    opened, changed = set(), set()
    for line in "\n".join(trace.read_text(errors="replace") for trace in traces).splitlines():
        call = CALL.match(line)
        if not call or " = -1 " in line:
            continue
        paths = {path[len(home) + 1:] for path in re.findall(r'"([^"]+)"', call[2])
                 if path.startswith(home + "/")}
        if "open" not in call[1] or WRITING.search(call[2]):
            changed |= paths
        opened |= paths
    return opened, changed


class FirstRunTestCase(SessionTestCase):
    def setUp(self):
        super().setUp()
        (self.session.config / DEFAULTS).unlink()
        self.bus = Bus(self.session)
        NotificationDaemon(self.session, self.bus, "plain")
        self.application = Application(self.bus, "Teapot")

    texts = texts_of("en")

    def guide(self):
        title = re.escape(self.texts["onboarding.window.title"])
        found = self.session.windows("--onlyvisible", "--name", f"^{title}$")
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


class FirstRun(FirstRunTestCase):
    def test_what_comes_before_consent_never_reaches_the_hoard(self):
        program = self.start(through=["strace", "-ff", "-qq", "-s", "4096", "-e", f"trace={FILE_CALLS}",
                                      "-o", str(self.session.root / "calls")])
        self.application.announce("Before", "consent")
        self.press("Return", "Tab")
        self.application.announce("Before too", "consent")
        opened, changed = touched(self.session.root.glob("calls.*"), str(self.session.home))
        self.assertEqual([path for path in opened - {LOCK} if "hoard" in path or "usernoted" in path],
                         [])
        settings = {path for path in changed
                    if path == ".config" or path.startswith(f".config/{DEFAULTS}")}
        self.assertIn(f".config/{DEFAULTS}", settings)
        self.assertEqual(changed - settings,
                         {".local", ".local/share", ".local/share/Tessarine", LOCK})
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
        self.start()
        self.assertFalse(self.session.hoard.exists())

    def test_quitting_by_the_menu_ends_it_too(self):
        program = self.start()
        self.session.open_menu()
        self.session.xdotool("key", "ctrl+q")
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


class WayThrough(FirstRunTestCase):
    """The whole guide in a language, by one way of working it."""

    def setUp(self):
        super().setUp()
        self.window = MainWindow(self.session, self.bus)

    def walk(self, language):
        self.texts = texts_of(language)
        program = self.start(environment={"LANG": f"{language}_XX.UTF-8", "LANGUAGE": language})
        self.application.announce("Before", "consent")
        self.window.shows("heading", self.texts["onboarding.welcome.title"])
        self.go_on("onboarding.btn.continue")
        self.window.shows("heading", self.texts["onboarding.eula.title"])
        self.read()
        self.window.hides("label", self.texts["onboarding.eula.scrollHint"])
        self.tick("onboarding.eula.agree")
        self.assertFalse(self.accepted())
        self.go_on("onboarding.btn.agreeAndContinue")
        wait_until(self.accepted, "the consent")
        self.window.shows("heading", self.texts["onboarding.ax.title"])
        self.go_on("onboarding.btn.continue")
        self.window.shows("heading", self.texts["onboarding.privacy.title"])
        self.go_on("onboarding.btn.start")
        wait_until(lambda: not self.guide(), "the end of the guide")
        self.session.wait_until_started(program)
        self.assert_at_work("After")
        self.assertEqual(self.session.titles(), ["After"])


class ByMouse(WayThrough):
    def test_in_english(self):
        self.walk("en")

    def test_in_german(self):
        self.walk("de")

    def go_on(self, text):
        self.window.click("push button", self.texts[text])

    def read(self):
        self.window.shows("label", self.texts["onboarding.eula.scrollHint"])
        self.window.xdotool("mousemove", "--window", self.guide(), "290", "300",
                            "click", "--repeat", "100", "--delay", "5", "5")

    def tick(self, text):
        self.window.click("check box", self.texts[text])


class ByKeyboard(WayThrough):
    def test_in_italian(self):
        self.walk("it")

    def test_in_french(self):
        self.walk("fr")

    def go_on(self, text):
        self.press("Return")

    def read(self):
        self.press("Tab", "End")

    def tick(self, text):
        self.press("Tab", "space", "Tab")


class ByScreenReader(WayThrough):
    def test_in_german(self):
        self.walk("de")

    def test_in_italian(self):
        self.walk("it")

    def go_on(self, text):
        self.window.act("push button", self.texts[text])

    def read(self):
        self.press("Tab", "End")  # through the text that is read out

    def tick(self, text):
        self.window.act("check box", self.texts[text])


if __name__ == "__main__":
    unittest.main(verbosity=2)

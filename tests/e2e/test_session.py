"""What a session starts ends with it."""

import subprocess
import sys
import unittest

from desktop import Bus, NotificationDaemon
from main_window import MainWindow
from session import SessionTestCase, wait_until


class EndOfSession(SessionTestCase):
    def assert_ends(self, count):
        """The session runs so many processes or more, and none once it is closed."""
        wait_until(lambda: len(self.session.running()) >= count, f"{count} processes")
        self.session.close()
        self.assertEqual(self.session.running(), [])
        self.assertFalse(self.session.root.exists())

    def test_of_the_program_alone(self):
        self.session.start_program()
        self.assert_ends(1)

    def test_with_a_bus_and_a_notification_daemon(self):
        bus = Bus(self.session)
        NotificationDaemon(self.session, bus, "plain")
        self.session.start_program()
        self.assert_ends(3)

    def test_with_an_accessibility_bus(self):
        bus = Bus(self.session)
        NotificationDaemon(self.session, bus, "plain")
        window = MainWindow(self.session, bus)
        self.session.start_program()
        wait_until(window.elements, "an element that shows")
        # The launcher, the bus that it starts, and the registry that this bus starts.
        self.assert_ends(6)

    def test_with_what_a_process_left_behind(self):
        self.session.spawn(sys.executable, "-c",
                           "import subprocess; subprocess.Popen(['sleep', '600'])",
                           stdout=subprocess.DEVNULL).wait()
        self.assert_ends(1)


class Screen(SessionTestCase):
    def test_stays_as_it_is_when_its_last_client_goes(self):
        """Else a program that starts in that moment would find no display."""
        self.session.xdotool("mousemove", "7", "9")
        self.assertIn("x:7 y:9 ", self.session.xdotool("getmouselocation"))


if __name__ == "__main__":
    unittest.main(verbosity=2)

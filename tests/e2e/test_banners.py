"""What applications announce on the desktop's bus is in the hoard, whatever daemon draws it."""

import subprocess
import threading
import time
import unittest

import dbus

from desktop import (Application, Bus, DesktopTestCase, NotificationDaemon, RawConnection,
                     daemon_is_installed, wait_until)
from session import Daemon, SessionTestCase


def texts(count, what="burst"):
    return [(f"{what} {number}", f"Body of {what} {number}") for number in range(count)]


class SingleNotifications(DesktopTestCase):
    def test_each_is_captured_as_sent(self):
        sent = [("Mail", "Grüße aus Köln", "Schöne Zeit"),
                ("Chat", "🎉 Party", "at the usual place 🏠"),
                ("Signal Desktop", "Long", "word " * 200 + "end"),
                ("Tag", "Markup", "1 < 2 & <3")]
        for name, summary, body in sent:
            subprocess.run(["notify-send", "-a", name, summary, body],
                           env=self.session.environment, check=True)
        self.assert_captured(*sent)
        self.assertEqual(self.session.query(
            "SELECT bundle_id FROM notifications WHERE app_name = 'Signal Desktop'"),
            [("signal.desktop",)])

    def test_markup_goes_and_entities_are_decoded(self):
        self.application("Tag").announce("Markup", "<b>Bold</b> &amp; <i>thin</i> &lt;kept&gt; &#228;")
        self.assert_captured(("Tag", "Markup", "Bold & thin <kept> ä"))

    def test_the_same_text_twice_is_one_row(self):
        application = self.application()
        for _ in range(3):
            application.announce("Again", "and again")
            time.sleep(1.2)
        application.announce("Last", "")
        self.assert_captured(("Application", "Again", "and again"), ("Application", "Last", ""))

    def test_replaced_texts_are_both_captured(self):
        application = self.application()
        identifier = application.announce("First", "version")
        application.announce("Second", "version", replaces=identifier)
        self.assert_captured(("Application", "First", "version"),
                             ("Application", "Second", "version"))

    def test_one_that_is_closed_at_once_is_captured(self):
        application = self.application()
        application.withdraw(application.announce("Gone", "already"))
        self.assert_captured(("Application", "Gone", "already"))

    def test_one_that_is_shown_for_a_millisecond_is_captured(self):
        self.application().announce("Short", "life", timeout=1)
        self.assert_captured(("Application", "Short", "life"))


class WithNotificationDaemon(SingleNotifications):
    daemon_name = "notification-daemon"

    def setUp(self):
        if not daemon_is_installed(self.daemon_name):
            self.skipTest(f"{self.daemon_name} is not installed")
        super().setUp()

    def test_two_hundred_in_a_burst(self):
        self.application("Burst").pour(texts(200))
        self.assert_captured(*[("Burst", *pair) for pair in texts(200)], seconds=240)
        self.assertEqual(self.session.count(), 200)


class Bursts(DesktopTestCase):
    def test_two_thousand_from_one_client(self):
        self.application("Burst").pour(texts(2000))
        wait_until(lambda: self.session.count() >= 2000, "2,000 rows", 600)
        self.assertEqual(sorted(self.rows()), sorted(("Burst", *pair) for pair in texts(2000)))

    def test_twenty_clients_with_two_hundred_each(self):
        def send(number):
            application = Application(self.bus, f"Client {number}")
            application.pour(texts(200, f"from {number}"))
            application.close()

        threads = [threading.Thread(target=send, args=[number]) for number in range(20)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        wait_until(lambda: self.session.count() >= 4000, "4,000 rows", 900)
        self.assertEqual(sorted(self.rows()), sorted(
            (f"Client {number}", *pair) for number in range(20)
            for pair in texts(200, f"from {number}")))


class UnusualContent(DesktopTestCase):
    def test_texts_of_every_kind_are_captured(self):
        application = self.application()
        application.announce("Controls", "a\tb\x01c")
        application.announce("", "Only a body")
        application.announce("Age", "9223372036854775807d ago")
        application.announce("Cut", "text", name="Jones, Smith & Co")
        application.announce("Right to left", "\u200fשלום\u200e")
        application.announce("", "")
        application.announce("End", "")
        self.assert_captured(("Application", "Controls", "a\tb\x01c"),
                             ("Application", "Only a body", ""),
                             ("Jones", "Cut", "text"),
                             ("Application", "Right to left", "\u200fשלום\u200e"),
                             ("Application", "Age", ""), ("Application", "End", ""))
        self.assertEqual(self.session.count(), 6)

    def test_a_megabyte_of_body_is_captured_whole(self):
        body = "abcdefghi " * 100000
        self.application().announce("Long", body.strip())
        self.assert_captured(("Application", "Long", body.strip()))

    def test_ten_thousand_hints_do_no_harm(self):
        hints = {f"x-hint-{number}": dbus.Int32(number) for number in range(10000)}
        self.application().announce("Hints", "many", hints=hints)
        self.assert_captured(("Application", "Hints", "many"))

    def test_pictures_leave_the_memory_flat(self):
        application = self.application()
        picture = dbus.Struct([1000, 1250, 4000, True, 8, 4, dbus.ByteArray(bytes(5000000))],
                              signature="iiibiiay")
        application.announce("Before", "")
        self.assert_captured(("Application", "Before", ""))
        before = self.memory()
        for number in range(20):
            application.announce(f"Picture {number}", "", hints={"image-data": picture})
        self.assert_captured(*[("Application", f"Picture {number}", "") for number in range(20)])
        self.assertLess(self.memory() - before, 30)

    def test_text_that_is_no_utf_8_breaks_nothing(self):
        proper, broken = RawConnection(self.bus), RawConnection(self.bus)
        self.addCleanup(proper.close)
        self.addCleanup(broken.close)
        proper.notify(b"proper")
        broken.notify(b"broken \xff\xfe")
        self.assertTrue(broken.is_cut_off())
        self.application().announce("Still", "here")
        self.assert_captured(("Raw", "proper", ""), ("Application", "Still", "here"))
        self.assertFalse(proper.is_cut_off(1))
        self.assertEqual(self.session.count(), 2)

    def test_an_empty_name_becomes_that_of_the_desktop_entry(self):
        folder = self.session.data / "applications"
        folder.mkdir(parents=True, exist_ok=True)
        (folder / "org.example.Mailer.desktop").write_text(
            "[Desktop Entry]\nType=Application\nName=Mailer of Example\nExec=mailer\n")
        application = self.application("")
        application.announce("Named", "by entry", hints={"desktop-entry": "org.example.Mailer"})
        application.announce("Named", "by process")
        wait_until(lambda: self.session.count() >= 2, "two rows")
        rows = {body: name for name, _, body in self.rows()}
        self.assertEqual(rows["by entry"], "Mailer of Example")
        self.assertIn("python", rows["by process"].lower())


class Misbehaving(DesktopTestCase):
    daemon_name = "plain"

    def restart_as(self, manner):
        self.daemon.kill()
        self.daemon = NotificationDaemon(self.session, self.bus, manner)

    def test_what_the_daemon_refuses_is_captured(self):
        self.restart_as("refusing")
        self.assertIsNone(self.application().announce("Refused", "by the daemon"))
        self.assert_captured(("Application", "Refused", "by the daemon"))

    def test_what_the_daemon_closes_at_once_is_captured(self):
        self.restart_as("flashing")
        self.application().announce("Flash", "gone")
        self.assert_captured(("Application", "Flash", "gone"))

    def test_what_the_daemon_never_answers_is_captured(self):
        self.restart_as("silent")
        self.application().pour([("Unanswered", "call")])
        self.assert_captured(("Application", "Unanswered", "call"))


class ComingAndGoing(DesktopTestCase):
    daemon_name = "plain"

    def test_a_daemon_killed_in_the_middle_of_a_burst(self):
        application = self.application("Burst")
        held = []
        for number in range(400):
            if number == 200:
                self.daemon.kill()
                self.daemon.start()
            summary = f"burst {number}"
            if application.announce(summary, "body") is not None:
                held.append(("Burst", summary, "body"))
        self.assertGreater(len(held), 300)
        self.assert_captured(*held, seconds=240)

    def test_a_daemon_that_another_one_replaces(self):
        application = self.application()
        application.announce("With the first", "")
        second = NotificationDaemon(self.session, self.bus, "plain")
        application.announce("With the second", "")
        self.assert_captured(("Application", "With the first", ""),
                             ("Application", "With the second", ""))
        self.assertIsNone(second.process.poll())

    def test_a_bus_that_goes_and_comes_back(self):
        self.application().announce("Before", "")
        self.assert_captured(("Application", "Before", ""))
        self.bus.stop()
        time.sleep(0.5)
        self.session.assert_running(self.program)
        self.bus.start()
        self.daemon.kill()
        self.daemon.start()
        application = self.application()
        number = 0

        def captured_after():
            nonlocal number
            number += 1
            application.announce(f"After {number}", "")
            time.sleep(0.5)
            return any(title.startswith("After") for title in self.session.titles())

        wait_until(captured_after, "a capture on the new bus", 240)


class WithoutABanner(SessionTestCase):
    def assert_database_layers_work(self):
        daemon = Daemon(self.session)
        program = self.session.start_program()
        daemon.append("From the database")
        self.wait_for_count(1)
        self.session.assert_running(program)

    def test_without_a_session_bus(self):
        self.session.environment["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=/nonexistent/bus"
        self.assert_database_layers_work()

    def test_on_a_bus_that_refuses_monitors(self):
        Bus(self.session, '<deny send_interface="org.freedesktop.DBus.Monitoring"/>')
        self.assert_database_layers_work()

    def test_a_daemon_that_is_not_there_yet(self):
        bus = Bus(self.session)
        self.session.start_program()
        time.sleep(1)
        NotificationDaemon(self.session, bus, "plain")
        application = Application(bus)
        self.addCleanup(application.close)
        application.announce("At last", "")
        wait_until(lambda: "At last" in self.session.titles(), "the row")


if __name__ == "__main__":
    unittest.main(verbosity=2)

"""What applications announce on the desktop's bus is in the hoard, whatever daemon draws it."""

import subprocess
import threading
import time
import unittest

import dbus

from desktop import (Application, Bus, DesktopTestCase, NotificationDaemon, RawConnection, Shell,
                     daemon_is_installed, wait_until)
from session import Daemon, SessionTestCase, now


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
        application.announce("Meeting 14:30 - 15:00, Room 5", "07:30", name="Foo, Inc.")
        application.announce("5m ago", "Today at 10:00")
        application.announce(" Age ", "\n9223372036854775807d ago ")
        application.announce("Cut", "text", name="Jones, Smith & Co")
        application.announce("Right to left", "\u200fשלום\u200e")
        application.announce("", "")
        application.announce("End", "")
        self.assert_captured(("Application", "Controls", "a\tb\x01c"),
                             ("Application", "Only a body", ""),
                             ("Jones, Smith & Co", "Cut", "text"),
                             ("Application", "Right to left", "\u200fשלום\u200e"),
                             ("Foo, Inc.", "Meeting 14:30 - 15:00, Room 5", "07:30"),
                             ("Application", "5m ago", "Today at 10:00"),
                             ("Application", " Age ", "\n9223372036854775807d ago "),
                             ("Application", "End", ""))
        self.assertEqual(self.session.count(), 8)

    def test_the_moment_is_that_of_the_call(self):
        """Of three within a second two have to wait for a scan. A busy machine may keep the program
        from hearing of a call at once, so this is tried several times."""
        application = self.application()

        def are_dated_by_their_calls(turn):
            moments = {}
            for title in (f"first {turn}", f"second {turn}", f"third {turn}"):
                before = now()
                application.announce(title)
                moments[title] = (before, now())
                time.sleep(0.2)
            wait_until(lambda: self.session.count() == 3 * turn, "three more rows")
            rows = self.session.query("SELECT title, timestamp FROM notifications")
            return all(moments[title][0] - 0.01 < timestamp < moments[title][1] + 0.15
                       for title, timestamp in rows if title in moments)

        self.assertTrue(any(are_dated_by_their_calls(turn) for turn in range(1, 21)))

    def test_long_texts_keep_their_start(self):
        self.application().announce("ä" * 1000000, "<b>abcdefghi</b> " * 100000, name="n" * 1000000)
        wait_until(lambda: self.session.count() == 1, "the row")
        expected = ("n" * 200 + "…", "ä" * 2000 + "…", "abcdefghi " * 2000 + "…")
        self.assertTrue(self.rows() == [expected], [len(text) for text in self.rows()[0]])

    def test_huge_texts_leave_the_memory_and_the_others_alone(self):
        application = self.application()
        application.announce("Before", "")
        self.assert_captured(("Application", "Before", ""))
        before, used = self.memory(), self.processor_seconds()
        for number in range(6):
            application.announce(f"Huge {number}", "x" * 50000000)
        application.announce("Marks", "m", name="a" + "\u0301" * 10000000)
        application.announce("After", "")
        wait_until(lambda: self.session.count() == 9, "nine rows")
        self.assertEqual(self.session.query("SELECT DISTINCT length(body) FROM notifications"
                                            " WHERE title LIKE 'Huge%'"), [(20001,)])
        wait_until(lambda: self.memory() - before < 20, "the memory given back")
        # Who looks for characters in all of that needs minutes.
        self.assertLess(self.processor_seconds() - used, 20)

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


class TwoServices(DesktopTestCase):
    """A desktop like GNOME's."""

    def setUp(self):
        super().setUp()
        self.daemon.kill()
        self.shell = Shell(self.session, self.bus)
        entries = self.session.data / "applications"
        entries.mkdir(parents=True, exist_ok=True)
        (entries / "com.example.Teapot.desktop").write_text(
            "[Desktop Entry]\nType=Application\nName=Teapot Timer\nExec=teapot\n")

    def test_each_notification_is_captured_once_by_whichever_service(self):
        application = self.application()
        self.assertTrue(application.add("tea", "Tea is ready", "Pour <b>it</b>"))
        self.assertIsNotNone(application.announce("Passed on", "to the shell"))
        application.announce("Unnamed", "", name="", hints={"desktop-entry": "com.example.Teapot"})
        application.announce("End")
        self.assert_captured(("Teapot Timer", "Tea is ready", "Pour <b>it</b>"),
                             ("Application", "Passed on", "to the shell"),
                             ("Teapot Timer", "Unnamed", ""), ("Application", "End", ""))
        self.assertEqual(self.session.count(), 4)
        self.assertEqual(self.session.query("SELECT DISTINCT bundle_id FROM notifications"
                                            " WHERE app_name = 'Teapot Timer'"),
                         [("teapot.timer",)])

    def test_one_that_comes_by_both_services_is_stored_once(self):
        application = self.application()
        application.add("tea", "Tea is ready", "Pour it")
        application.announce("Tea is ready", "Pour it", name="",
                             hints={"desktop-entry": "com.example.Teapot"})
        time.sleep(2)
        application.add("tea", "Tea is ready", "Pour it")
        application.announce("End")
        self.assert_captured(("Teapot Timer", "Tea is ready", "Pour it"), ("Application", "End", ""))
        self.assertEqual(self.session.count(), 2)

    def test_portals_are_left_out_for_what_they_pass_on_to(self):
        application, portal = self.application(), self.application()
        connections = [application.connection, portal.connection]
        names = ["org.freedesktop.portal.Desktop", "org.freedesktop.impl.portal.desktop.gnome"]
        for connection, name in zip(connections, names):
            connection.request_name(name)
        for name, interface in zip(names, ("org.freedesktop.portal.Notification",
                                           "org.freedesktop.impl.portal.Notification")):
            application.connection.send_message(application.gtk_message(
                "tea", "Through a portal", destination=name, interface=interface,
                path="/org/freedesktop/portal/desktop"))
        application.connection.flush()
        portal.add("tea", "Through a portal", destination=self.shell.unique_name(self.bus))
        self.application().announce("End")
        self.assert_captured(("Teapot Timer", "Through a portal", ""), ("Application", "End", ""))
        self.assertEqual(self.session.count(), 2)

    def test_the_older_service_may_go_and_come_back(self):
        application = self.application()
        application.add("1", "With both")
        self.session.kill(self.shell.processes[1])
        application.add("2", "With the shell alone")
        self.assertIsNone(application.announce("With nobody"))
        daemon = NotificationDaemon(self.session, self.bus, "plain")
        application.announce("With another daemon")
        application.add("3", "With both again")
        self.assert_captured(("Teapot Timer", "With both", ""),
                             ("Teapot Timer", "With the shell alone", ""),
                             ("Application", "With another daemon", ""),
                             ("Teapot Timer", "With both again", ""))
        self.assertEqual(self.session.count(), 4)
        self.assertIsNone(daemon.process.poll())

    def test_the_shell_may_go_and_come_back(self):
        application = self.application()
        application.add("1", "With the first")
        for process in self.shell.processes:
            self.session.kill(process)
        self.assertFalse(application.add("2", "With nobody"))
        self.shell = Shell(self.session, self.bus)
        application.add("3", "With the second")
        self.assert_captured(("Teapot Timer", "With the first", ""),
                             ("Teapot Timer", "With the second", ""))
        self.assertEqual(self.session.count(), 2)


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

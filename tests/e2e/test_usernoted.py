"""The main job: what the system's daemon records is in the hoard, at once and for good."""

import time
import unittest

from session import PATIENCE, Daemon, SessionTestCase, now, wait_until
from system_databases import FORMS

DAY = 86400


class Recovery(SessionTestCase):
    def test_ten_thousand_old_rows_come_at_the_first_start_and_never_again(self):
        Daemon(self.session).tell("pour", records=10000, date=now() - 60, span=28 * DAY, forms=FORMS)
        program = self.session.start_program()
        self.wait_for_count(10000, 300)
        self.session.kill(program)
        for _ in range(2):
            program = self.session.start_program()
            time.sleep(2)
            self.session.assert_running(program)
            self.assertEqual(self.session.count(), 10000)
            self.session.kill(program)

    def test_rows_written_while_it_was_off_come_at_the_next_start(self):
        daemon = Daemon(self.session)
        daemon.append("before")
        program = self.session.start_program()
        self.wait_for_count(1)
        self.session.kill(program)
        daemon.append("meanwhile")
        self.session.start_program()
        self.wait_for_count(2)


class Live(SessionTestCase):
    def setUp(self):
        super().setUp()
        self.daemon = Daemon(self.session)
        self.program = self.session.start_program()
        self.daemon.append("first")
        self.wait_for_count(1)

    def test_a_row_shows_by_the_watch_and_not_by_the_timer(self):
        """On an idle machine within a second. On any machine long before the timer could have shown
        five rows, one after the other: it polls every 30 seconds."""
        for number in range(5):
            written = self.daemon.append(f"live {number}")
            wait_until(lambda: f"live {number}" in self.session.titles(), "the row")
            self.assertLess(time.time() - written, 15)

    def test_two_rows_of_one_instant_both_arrive(self):
        date = now()
        self.daemon.append("one", date=date)
        self.wait_for_count(2)
        self.daemon.append("other", date=date)
        self.wait_for_count(3)

    def test_a_row_slightly_behind_the_cursor_arrives(self):
        date = now() + 5
        self.daemon.append("newer", date=date)
        self.wait_for_count(2)
        self.daemon.append("late", date=date - 1)
        self.wait_for_count(3)

    def test_when_the_log_is_replaced_the_timer_carries_on(self):
        self.daemon.tell("close")
        self.assertFalse((self.session.usernoted.parent / "db-wal").exists())
        self.daemon.tell("open")
        self.daemon.append("after")
        self.wait_for_count(2)

    def test_unreadable_rows_stop_no_other(self):
        for form in "broken zero-bytes null not-a-dictionary other-type request-empty".split():
            self.daemon.append("bad", form=form)
        self.daemon.append("good")
        wait_until(lambda: "good" in self.session.titles(), "the readable row")
        self.assertEqual(self.session.count(), 2)

    def test_a_row_id_beyond_32_bits_ends_the_program(self):
        self.daemon.append("beyond", rec_id=2**31)
        self.assertNotEqual(self.program.wait(PATIENCE), 0)
        self.assertIn("does not fit", self.session.log())


class Defaults(SessionTestCase):
    def test_an_excluded_application_leaves_no_row_and_moves_the_cursor(self):
        self.session.write_defaults("excludedBundleIds=com.example.secret")
        daemon = Daemon(self.session, app="com.example.secret")
        date = now()
        daemon.append("secret", date=date)
        self.session.start_program()
        wait_until(lambda: self.session.defaults().get("lastSeenUsernotedTimestamp"), "the cursor")
        self.assertAlmostEqual(float(self.session.defaults()["lastSeenUsernotedTimestamp"]), date, 3)
        daemon.append("open", app="com.example.open")
        self.wait_for_count(1)
        self.assertEqual(self.session.titles(), ["open"])

    def test_a_changed_file_holds_at_the_next_start(self):
        daemon = Daemon(self.session, app="com.example.mail")
        program = self.session.start_program()
        daemon.append("one")
        self.wait_for_count(1)
        self.session.kill(program)
        text = "\n".join(f"{key}={value}" for key, value in self.session.defaults().items())
        self.session.write_defaults(text + "\nexcludedBundleIds=com.example.mail")
        self.session.start_program()
        daemon.append("two")
        time.sleep(2)
        self.assertEqual(self.session.titles(), ["one"])


if __name__ == "__main__":
    unittest.main(verbosity=2)

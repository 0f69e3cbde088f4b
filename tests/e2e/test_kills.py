"""The short form of kills.py, and that it sees what it looks for."""

import sqlite3
import unittest

from kills import Kills
from session import SessionTestCase


class SuddenDeath(SessionTestCase):
    KILLS = 15

    def test_the_hoard_is_sound_after_each_kill_while_notifications_pour_in(self):
        lives = Kills(self.session, seed=20)
        for number in range(self.KILLS):
            self.assertEqual(lives.live_and_die(), [], f"kill {number}")
        self.assertGreater(lives.count, self.KILLS // 2)
        lives.last_life()


class Findings(SessionTestCase):
    """What would be found in a hoard after a kill."""

    def setUp(self):
        super().setUp()
        self.lives = Kills(self.session, seed=1)
        self.session.hoard.parent.mkdir(parents=True)

    def found(self, rows, seen, spoil=b""):
        hoard = sqlite3.connect(self.session.hoard)
        with hoard:
            hoard.execute("CREATE TABLE notifications (id INTEGER PRIMARY KEY, app_name, title, body)")
            hoard.executemany("INSERT INTO notifications VALUES (?, ?, ?, ?)", rows)
        hoard.close()
        if spoil:
            with open(self.session.hoard, "r+b") as file:
                file.seek(4096)
                file.write(spoil)
        return self.lives.problems(seen)

    def test_nothing_in_a_sound_one(self):
        self.assertEqual(self.found([(1, "Pouring", "Banner 1", "Body 1"),
                                     (2, "pouring", "Title 1", "Body 1")], (2, 2)), [])

    def test_a_row_that_is_lost(self):
        self.assertEqual(self.found([(1, "Pouring", "Banner 1", "Body 1")], (2, 2)),
                         ["of 2 rows that were read 1 are left"])

    def test_a_row_that_is_there_twice(self):
        self.assertEqual(self.found([(1, "Pouring", "Banner 1", "Body 1"),
                                     (2, "Pouring", "Banner 1", "Body 1")], (2, 2)),
                         ["Banner 1 is there twice"])

    def test_a_row_that_is_half_written(self):
        self.assertEqual(len(self.found([(1, "Pouring", "Banner 20", "Body 20 word")], (1, 1))), 1)

    def test_a_file_that_is_spoilt(self):
        self.assertTrue(self.found([(1, "Pouring", "Banner 1", "Body 1")], (1, 1), b"\xff" * 4096))

    def test_a_file_that_is_gone(self):
        self.assertEqual(self.lives.problems((1, 1)), ["the hoard is gone"])


if __name__ == "__main__":
    unittest.main(verbosity=2)

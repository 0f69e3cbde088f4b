"""Starting, starting again, and starting under bad conditions."""

import os
import pathlib
import subprocess
import time
import unittest

from session import PATIENCE, Daemon, Session, SessionTestCase, wait_until

NOBODY = 65534


def snapshot(folder):
    """Every file with its size and date of change."""
    return {str(path): (path.stat().st_size, path.stat().st_mtime_ns)
            for path in sorted(pathlib.Path(folder).rglob("*"))}


def settled_snapshot(folder):
    """The same, once nothing has changed for two seconds."""
    def still():
        before = snapshot(folder)
        time.sleep(2)
        return before if snapshot(folder) == before else None

    return wait_until(still, "files that stay as they are")


class SingleInstance(SessionTestCase):
    def test_a_second_start_exits_with_zero_and_touches_no_file(self):
        program = self.session.start_program()
        before = settled_snapshot(self.session.home)
        second = self.session.start_program(wait=False)
        self.assertEqual(second.wait(PATIENCE), 0)
        self.session.assert_running(program)
        self.assertEqual(snapshot(self.session.home), before)

    def test_a_hidden_window_stays_hidden(self):
        self.session.start_program()
        time.sleep(1)
        self.assertEqual(self.session.start_program(wait=False).wait(PATIENCE), 0)
        time.sleep(0.5)
        self.assertEqual(self.session.visible_main_window(), [])

    def test_sessions_with_data_folders_of_their_own_do_not_meet(self):
        other = Session()
        self.addCleanup(other.close)
        first, second = self.session.start_program(), other.start_program()
        time.sleep(1)
        self.session.assert_running(first)
        other.assert_running(second)

    def test_a_killed_program_leaves_the_way_free(self):
        self.session.kill(self.session.start_program())
        program = self.session.start_program(wait=False)
        time.sleep(2)
        self.session.assert_running(program)


class HoardFile(SessionTestCase):
    def test_only_the_user_can_read_it(self):
        self.session.start_program()
        wait_until(lambda: self.session.hoard.stat().st_mode & 0o777 == 0o600, "mode 600")


class BadStart(SessionTestCase):
    """The program runs, without a hoard if need be, and loses nothing of what is there."""

    def assert_runs(self):
        Daemon(self.session, "--records", "3", "--date", "now-5", "--quiet")
        program = self.session.start_program(wait=False)
        time.sleep(3)
        self.session.assert_running(program)
        return program

    def test_with_a_file_where_the_data_folder_should_be(self):
        self.session.data.mkdir(parents=True)
        place = self.session.data / "Tessarine"
        place.write_text("mine")
        self.assert_runs()
        self.assertEqual(place.read_text(), "mine")

    def test_with_a_hoard_that_is_no_database(self):
        self.session.hoard.parent.mkdir(parents=True)
        garbage = bytes(range(256)) * 64
        self.session.hoard.write_bytes(garbage)
        self.assert_runs()
        self.assertEqual(self.session.hoard.read_bytes(), garbage)

    def test_with_a_folder_in_the_place_of_the_hoard(self):
        self.session.hoard.mkdir(parents=True)
        self.assert_runs()
        self.assertTrue(self.session.hoard.is_dir())

    def test_on_a_full_disk(self):
        self.session.data.mkdir(parents=True)
        mounted = subprocess.run(["mount", "-t", "tmpfs", "-o", "size=64k", "tmpfs",
                                  str(self.session.data)], capture_output=True)
        if mounted.returncode != 0:
            self.skipTest("this user may not mount a small disk")
        self.addCleanup(subprocess.run, ["umount", "-l", str(self.session.data)])
        (self.session.data / "filling").write_bytes(b"x" * 60000)
        self.assert_runs()
        self.assertEqual((self.session.data / "filling").read_bytes(), b"x" * 60000)


@unittest.skipUnless(os.getuid() == 0, "needs root, to become a user whom modes bind")
class BadPermissions(SessionTestCase):
    user = NOBODY

    def start(self):
        program = self.session.start_program(wait=False)
        time.sleep(3)
        self.session.assert_running(program)

    def test_with_a_data_folder_that_is_read_only(self):
        self.session.data.mkdir(parents=True)
        os.chmod(self.session.data, 0o555)
        self.start()
        self.assertFalse(self.session.hoard.exists())

    def test_with_a_hoard_that_is_read_only(self):
        program = self.session.start_program()
        time.sleep(1)
        self.session.kill(program)
        before = self.session.hoard.read_bytes()
        os.chown(self.session.hoard, 0, 0)
        os.chmod(self.session.hoard, 0o444)
        os.chmod(self.session.hoard.parent, 0o555)
        os.chown(self.session.hoard.parent, 0, 0)
        self.start()
        self.assertEqual(self.session.hoard.read_bytes(), before)


if __name__ == "__main__":
    unittest.main(verbosity=2)

"""Starting, starting again, and starting under bad conditions."""

import os
import pathlib
import shutil
import subprocess
import time
import unittest

from desktop import Bus
from session import PATIENCE, PROGRAM, Daemon, Session, SessionTestCase, wait_until

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


class WithoutADisplay(SessionTestCase):
    def assert_says_so_and_ends(self, environment):
        program = self.session.start_program(wait=False, environment=environment)
        self.assertEqual(program.wait(PATIENCE), 1)
        self.assertEqual(self.session.log().splitlines(), [
            "Tessarine needs a graphical session: there is no display to open windows on."])

    def test_none_is_named(self):
        self.assert_says_so_and_ends({"DISPLAY": ""})

    def test_the_one_that_is_named_is_not_there(self):
        self.assert_says_so_and_ends({"DISPLAY": ":65123"})


class Arguments(SessionTestCase):
    """What the program says without starting."""

    def run_with(self, *arguments, through=(), environment=None):
        result = subprocess.run([*through, PROGRAM, *arguments], cwd=self.session.root,
                                env={**self.session.environment, **(environment or {})},
                                capture_output=True, text=True, timeout=PATIENCE)
        return result.returncode, result.stdout, result.stderr

    def test_help_and_version_need_no_display(self):
        for option, beginning in (("--help", "Usage: tessarine\n"), ("--version", "Tessarine ")):
            status, said, complained = self.run_with(option, environment={"DISPLAY": ""})
            self.assertEqual((status, complained), (0, ""))
            self.assertTrue(said.startswith(beginning), said)

    def test_they_disturb_no_running_copy_and_no_file(self):
        program = self.session.start_program()
        wait_until(self.session.visible_panel, "the panel")
        before = settled_snapshot(self.session.home)
        self.run_with("--help")
        self.run_with("--version")
        self.assertEqual(snapshot(self.session.home), before)
        self.session.assert_running(program)

    def test_they_read_nothing(self):
        if shutil.which("strace") is None:
            self.skipTest("strace is not installed")
        for option in ("--help", "--version"):
            trace = self.session.root / "trace"
            self.run_with(option, through=["strace", "-f", "-o", str(trace), "-e",
                                           "trace=open,openat,creat,mkdir,connect,readlink,access"])
            calls = trace.read_text()
            self.assertNotIn(str(self.session.root), calls.split("\n", 1)[1])
            for forbidden in ("connect(", "O_CREAT", "O_WRONLY", "O_RDWR", "mkdir("):
                self.assertNotIn(forbidden, calls)

    def test_anything_else_is_refused_in_one_line(self):
        self.assertEqual(self.run_with("--open"), (
            2, "", 'tessarine: it takes no argument "--open"; see tessarine --help\n'))
        self.assertFalse(self.session.data.exists())


class SingleInstance(SessionTestCase):
    def assert_second_start_ends(self, first, **options):
        second = self.session.start_program(wait=False, **options)
        self.assertEqual(second.wait(PATIENCE), 0)
        self.session.assert_running(first)

    def test_a_second_start_exits_with_zero_and_touches_no_file(self):
        program = self.session.start_program()
        before = settled_snapshot(self.session.home)
        self.assert_second_start_ends(program)
        self.assertEqual(snapshot(self.session.home), before)

    def test_a_hidden_window_stays_hidden(self):
        program = self.session.start_program()
        wait_until(self.session.visible_panel, "the panel")
        self.assert_second_start_ends(program)
        # A window that came to the front at the request would be on the screen before the menu,
        # at the latest the second time that it opens.
        for _ in range(2):
            self.session.open_menu()
            self.session.close_menu()
        self.assertIsNone(self.session.visible_main_window())
        self.assertIsNotNone(self.session.open_main_window())

    def test_a_slash_too_many_is_no_other_folder(self):
        program = self.session.start_program()
        self.assert_second_start_ends(
            program, environment={"XDG_DATA_HOME": f"{self.session.data}//"})

    def test_a_link_to_the_data_folder_is_no_other_folder(self):
        program = self.session.start_program()
        link = self.session.root / "link"
        link.symlink_to(self.session.data)
        self.assert_second_start_ends(program, environment={"XDG_DATA_HOME": str(link)})

    def test_a_link_to_the_hoard_is_no_other_hoard(self):
        program = self.session.start_program()
        other = self.session.root / "other/Tessarine"
        other.mkdir(parents=True)
        (other / "hoard.db").symlink_to(self.session.hoard)
        self.assert_second_start_ends(program, environment={"XDG_DATA_HOME": str(other.parent)})

    def test_a_network_of_its_own_makes_no_other_folder(self):
        if subprocess.run(["unshare", "-n", "true"], capture_output=True).returncode != 0:
            self.skipTest("this user may not leave the network")
        self.assert_second_start_ends(self.session.start_program(), through=["unshare", "-n"])

    def test_of_twenty_first_starts_at_once_one_stays(self):
        programs = [self.session.start_program(wait=False) for _ in range(20)]
        wait_until(lambda: sum(program.poll() is not None for program in programs) == 19,
                   "one program left of 20")
        running = [program for program in programs if program.poll() is None]
        self.assertEqual(len(running), 1)
        self.assertEqual({program.returncode for program in programs} - {None}, {0})
        wait_until(self.session.visible_panel, "the panel of the one that stayed")
        self.session.assert_running(running[0])

    def test_sessions_with_data_folders_of_their_own_do_not_meet(self):
        other = Session()
        self.addCleanup(other.close)
        first, second = self.session.start_program(), other.start_program()
        self.session.assert_running(first)
        other.assert_running(second)

    def test_a_killed_program_leaves_the_way_free(self):
        self.session.kill(self.session.start_program())
        wait_until(lambda: not self.session.visible_panel(), "no panel")
        program = self.session.start_program(wait=False)
        wait_until(self.session.visible_panel, "the panel of the second")
        self.session.assert_running(program)


class LoginQuestion(SessionTestCase):
    """Whether to start at login, asked at each start until there is an answer for good."""

    def setUp(self):
        super().setUp()
        self.session.write_defaults("", without=["launchLoginPromptSuppressed"])
        Bus(self.session)
        self.autostart = self.session.config / "autostart/com.zorvek.Tessarine.desktop"

    def question(self):
        return self.session.visible_window_of(440, 300)

    def start_and_answer(self, key):
        program = self.session.start_program()
        window = wait_until(self.question, "the question")
        self.session.xdotool("windowfocus", "--sync", window, "key", key)
        wait_until(lambda: not self.question(), "the end of the question")
        return program

    def start_without_a_question(self):
        self.session.start_program()
        wait_until(self.session.visible_panel, "the panel")  # comes two seconds after the start
        self.assertIsNone(self.question())

    def test_yes_makes_an_entry_and_ends_the_questions(self):
        program = self.start_and_answer("Return")
        wait_until(self.autostart.exists, "the entry")
        self.session.kill(program)
        wait_until(lambda: not self.session.visible_panel(), "no panel")
        self.start_without_a_question()

    def test_not_now_is_for_this_time(self):
        self.session.kill(self.start_and_answer("Escape"))
        self.assertFalse(self.autostart.exists())
        self.start_and_answer("Escape")

    def test_never_is_for_good(self):
        program = self.session.start_program()
        window = wait_until(self.question, "the question")
        self.session.xdotool("windowfocus", "--sync", window, "key", "Tab", "key", "space")
        wait_until(lambda: self.session.defaults().get("launchLoginPromptSuppressed") == "true",
                   "the setting")
        self.session.kill(program)
        wait_until(lambda: not self.session.visible_panel(), "no panel")
        self.assertFalse(self.autostart.exists())
        self.start_without_a_question()


class HoardFile(SessionTestCase):
    def test_only_the_user_can_read_it(self):
        self.session.start_program()
        wait_until(lambda: self.session.hoard.stat().st_mode & 0o777 == 0o600, "mode 600")


class BadStart(SessionTestCase):
    """The program runs, without a hoard if need be, and loses nothing of what is there."""

    def assert_runs(self):
        Daemon(self.session).tell("pour", records=3, age=5)
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
        wait_until(self.session.visible_panel, "the panel")

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

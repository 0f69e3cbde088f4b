"""What the tests of the database writers share: a folder, running the tool, reading its rows."""

import os
import plistlib
import shutil
import signal
import sqlite3
import subprocess
import sys
import tempfile
import unittest

PATIENCE = 60


def main():
    """Runs the tests of the calling script; the tool's path is its first argument."""
    if len(sys.argv) < 2:
        sys.exit("usage: %s TOOL [unittest arguments]" % sys.argv[0])
    WriterTestCase.tool = os.path.abspath(sys.argv.pop(1))
    unittest.main()


class WriterTestCase(unittest.TestCase):
    tool = None

    def setUp(self):
        self.folder = tempfile.mkdtemp(prefix="writer-test-")
        self.addCleanup(shutil.rmtree, self.folder)
        self.database = os.path.join(self.folder, "db")
        self.environment = dict(os.environ, LC_ALL="C.UTF-8")

    def run_tool(self, *arguments):
        return subprocess.run([self.tool, self.database, *arguments], env=self.environment,
                              stdin=subprocess.DEVNULL, capture_output=True, text=True,
                              encoding="utf-8", timeout=PATIENCE)

    def write(self, *arguments):
        """Runs the tool, which must succeed without a word of complaint; gives its lines."""
        done = self.run_tool(*arguments)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        return done.stdout.splitlines()

    def create(self, *arguments):
        return self.write("--create", *arguments)

    def assert_refused(self, arguments, exit_code, part_of_message):
        done = self.run_tool(*arguments)
        self.assertEqual(done.returncode, exit_code, done.stderr)
        self.assertEqual(done.stdout, "")
        self.assertEqual(done.stderr.count("\n"), 1, done.stderr)
        self.assertIn(part_of_message, done.stderr)

    def hold(self, *arguments):
        """Starts the tool and leaves it running, with pipes on both sides."""
        process = subprocess.Popen([self.tool, self.database, *arguments], env=self.environment,
                                   stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True,
                                   encoding="utf-8", bufsize=1)
        self.addCleanup(self.end, process)
        return process

    @staticmethod
    def end(process):
        if process.poll() is None:
            process.kill()
        process.wait()
        process.stdin.close()
        process.stdout.close()

    def finish(self, process):
        """Closes the input of a held tool, which must then end well."""
        process.stdin.close()
        self.assertEqual(process.wait(timeout=PATIENCE), 0)

    def terminate(self, process):
        process.send_signal(signal.SIGTERM)
        self.assertEqual(process.wait(timeout=PATIENCE), 0)

    def rows(self, sql):
        connection = sqlite3.connect(self.database)
        try:
            return connection.execute(sql).fetchall()
        finally:
            connection.close()

    def column(self, sql):
        return [row[0] for row in self.rows(sql)]

    def columns_of(self, table):
        return [(row[1], row[2], row[5]) for row in self.rows("PRAGMA table_info(%s)" % table)]


def parse(payload):
    """A payload as a dictionary; it must be a binary property list."""
    return plistlib.loads(payload, fmt=plistlib.FMT_BINARY)

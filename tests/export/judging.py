"""What the judges of exported files share: running the exporter, a folder, records."""

import json
import os
import subprocess
import sys
import tempfile
import unittest

PATIENCE = 120

# A zone whose clock goes from 23:00 to midnight on 28 March 2026, and moments just before and at that,
# with what it shows then: by Python's zoneinfo. One of 1900 is hours, minutes and seconds from UTC.
NUUK = "America/Nuuk"
NUUK_MOMENTS = {796438799: ("2026-03-28", "22:59:59"), 796438800: ("2026-03-29", "00:00:00"),
                -3187296000: ("1899-12-31", "20:33:04")}

# Midnight of 3 March 2026, universal time, in seconds since 2001.
MARCH_3 = 794188800


def main():
    """Runs the tests of the calling script; the exporter's path is its first argument."""
    if len(sys.argv) < 2:
        sys.exit("usage: %s EXPORT_LINES [unittest arguments]" % sys.argv[0])
    JudgeTestCase.exporter = os.path.abspath(sys.argv.pop(1))
    unittest.main()


def record(app="Mail", title="Title", body="Body", time=MARCH_3 + 9 * 3600):
    return {"app": app, "id": "com.example." + app.lower(), "title": title, "body": body,
            "time": time}


class JudgeTestCase(unittest.TestCase):
    exporter = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="export-judge-")
        self.addCleanup(folder.cleanup)
        self.folder = folder.name

    def export(self, file_format, records, *private_ids, locale="en_US.UTF-8", zone="UTC",
               **variables):
        """Exports the records with these in the environment; gives the path of the file."""
        path = os.path.join(self.folder, "out." + file_format)
        lines = "".join(json.dumps(each) + "\n" for each in records)
        environment = dict(os.environ, TZ=zone, LC_ALL=locale, **variables)
        done = subprocess.run([self.exporter, file_format, path, *private_ids], env=environment,
                              input=lines, text=True, encoding="utf-8", timeout=PATIENCE)
        self.assertEqual(done.returncode, 0)
        return path

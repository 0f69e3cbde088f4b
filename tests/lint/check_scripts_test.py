#!/usr/bin/env python3
"""Tests of the check of shell scripts."""

import pathlib
import shutil
import tempfile
import unittest

import check_scripts


class ScriptsTest(unittest.TestCase):
    def setUp(self):
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="scripts-"))
        self.addCleanup(shutil.rmtree, self.root)

    def violations(self, *lines):
        script = self.root / "script"
        script.write_text("\n".join(lines) + "\n", encoding="utf-8")
        return [violation.partition("script:")[2] for violation in check_scripts.check([script])]

    def test_finds_what_is_newer(self):
        for line, newer in [
                ("coproc WRITER { cat; }", "coproc"),
                ("mapfile -t lines <file", "mapfile"),
                ("readarray -t lines <file", "readarray"),
                ("declare -A names", "declare -A"),
                ("    local -A names", "local -A"),
                ("local -n other=$1", "local -n"),
                ('echo "${name^^}"', "${name^^"),
                ('echo "${name,}"', "${name,"),
                ('echo "${name@Q}"', "${name@Q"),
                ("command &>>log", "&>>"),
                ("command |& cat", "|&"),
                ("wait -n", "wait -n"),
                ("read -t 0.5 answer", "read -t 0.5"),
                ("printf '%(%F)T'", "%(%F)T"),
                ("echo $EPOCHSECONDS", "$EPOCHSECONDS")]:
            with self.subTest(line):
                self.assertEqual(self.violations("set -e", line),
                                 [f"2: {newer} is newer than Bash 3.2"])

    def test_what_is_old_enough_is_free(self):
        self.assertEqual(self.violations(
            "# no coproc here", "local name=$1 other", "declare -r fixed=1", "local -a list",
            'echo "${name//a/b}" "${name#*.}" "${1%%|*}"', "read -r -t 20 -u 9 answer",
            "command >log 2>&1", "a || b && c | d", "wait", "exec 8>\"$to\" 9<\"$from\""), [])


if __name__ == "__main__":
    unittest.main()

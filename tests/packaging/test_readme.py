"""What the README tells a reader to type is there, and is what the scripts that check it do."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

import check_on_bare_system
from readme import ROOT, commands, results

TEXT = """# A program

## Build

    scripts/build      # only builds
    scripts/test

`scripts/build` makes `build/bin/it`, and `cmake --install build --prefix PREFIX` installs it;
`man it` tells more.

## More

    scripts/more
"""


class Reading(unittest.TestCase):
    def test_commands_come_in_order_and_once(self):
        self.assertEqual(commands("Build", TEXT), [
            "scripts/build", "scripts/test", "cmake --install build --prefix PREFIX"])

    def test_files_that_are_named(self):
        self.assertEqual(results("Build", TEXT), ["build/bin/it"])

    def test_a_section_that_is_missing(self):
        self.assertRaises(ValueError, commands, "Instal", TEXT)


class Doing(unittest.TestCase):
    """The check itself, on a small project whose README speaks of one script and what it makes."""

    README = """## Build

    scripts/build    # makes it

The program is then `build/bin/it`.
"""

    def checked(self, script):
        """What the check says of a project with this script: its exit status and its words."""
        folder = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, folder)
        project = folder / "project"
        for path, text in (("README.md", self.README), ("scripts/build", script)):
            (project / path).parent.mkdir(parents=True, exist_ok=True)
            (project / path).write_text(text)
        (project / "scripts/build").chmod(0o755)
        for name in ("readme.py", "check_readme.py"):
            target = project / "tests/packaging" / name
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(ROOT / "tests/packaging" / name, target)
        for words in (["init", "-q"], ["add", "-A"],
                      ["-c", "user.name=x", "-c", "user.email=x", "commit", "-qm", "x"]):
            subprocess.run(["git", *words], cwd=project, check=True)
        result = subprocess.run([sys.executable, "-B", project / "tests/packaging/check_readme.py",
                                 folder / "copy"], capture_output=True, text=True)
        return result.returncode, result.stdout + result.stderr

    def test_what_works_is_done(self):
        status, words = self.checked("#!/bin/sh\nmkdir -p build/bin && touch build/bin/it\n")
        self.assertEqual(status, 0, words)
        self.assertIn("done as the README says: scripts/build", words)

    def test_a_command_that_fails_is_named(self):
        status, words = self.checked("#!/bin/sh\nexit 3\n")
        self.assertNotEqual(status, 0)
        self.assertIn("failed: scripts/build", words)

    def test_a_file_that_is_not_made_is_named(self):
        status, words = self.checked("#!/bin/sh\n")
        self.assertNotEqual(status, 0)
        self.assertIn("build/bin/it", words)


class Readme(unittest.TestCase):
    def test_the_commands_for_those_who_build_exist(self):
        found = commands("Build")
        self.assertEqual(found[:2], ["scripts/run", "scripts/test"])
        for command in found:
            word = command.split()[0]
            program = ROOT / word if "/" in word else shutil.which(word)
            self.assertTrue(program and os.access(program, os.X_OK), command)

    def test_arguments_of_scripts_are_known_to_them(self):
        for command in commands("Build"):
            script, *options = command.split()
            for option in options if script.startswith("scripts/") else []:
                self.assertIn(option, (ROOT / script).read_text(), command)

    def test_the_check_of_the_package_types_what_the_readme_says(self):
        typed = check_on_bare_system.readme_commands()
        self.assertEqual(["scripts/package", *(f"sudo {command}" for command in typed)],
                         commands("Install"))

    def test_every_script_that_the_documents_name_exists(self):
        for document in [ROOT / "README.md", ROOT / "CONTRIBUTING.md", *(ROOT / "docs").glob("*.md")]:
            for script in re.findall(r"\bscripts/[a-z][a-z-]*", document.read_text()):
                self.assertTrue((ROOT / script).exists(), f"{document.name}: {script}")


if __name__ == "__main__":
    unittest.main(verbosity=2)

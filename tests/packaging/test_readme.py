"""What the README tells a reader to type is there, and is what the scripts that check it do."""

import os
import re
import shutil
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

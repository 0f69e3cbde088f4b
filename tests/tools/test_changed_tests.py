"""Tests of what says which tests a change concerns."""

import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

TOOLS = pathlib.Path(__file__).resolve().parents[2] / "tools"
sys.path.insert(0, str(TOOLS))
import changed_tests  # noqa: E402


class LabelsTest(unittest.TestCase):
    def test_sources_and_their_tests_have_the_label_of_their_folder(self):
        self.assertEqual(changed_tests.labels(["src/store/HoardStore.cpp"]), {"store", "brief"})
        self.assertEqual(changed_tests.labels(["src/platform/linux/bus/BusNames.cpp"]), {"platform", "brief"})
        self.assertEqual(changed_tests.labels(["tests/export/pdf_judge.py", "src/help/HelpView.qml"]),
                         {"export", "help", "brief"})

    def test_what_many_tests_share_concerns_all(self):
        for file in ("CMakeLists.txt", "cmake/TessarineTests.cmake", "CMakePresets.json",
                     "tests/support/EventLoop.h", "tests/CMakeLists.txt", "a_new_thing/file"):
            self.assertEqual(changed_tests.labels(["src/store/HoardStore.cpp", file]), {"all"}, file)

    def test_the_main_windows_parts_are_tested_in_the_window_too(self):
        self.assertEqual(changed_tests.labels(["src/browser/RowTimeFormatter.cpp"]), {"browser", "ui", "brief"})

    def test_texts_and_colours_are_read_in_the_views(self):
        self.assertEqual(changed_tests.labels(["resources/texts/tessarine_de.ts"]),
                         {"theme", "languages", "brief"})

    def test_what_no_test_runs_leaves_the_quick_checks(self):
        self.assertEqual(changed_tests.labels(["README.md", "docs/testing.md", "scripts/run"]), {"brief"})
        self.assertEqual(changed_tests.labels([]), set())

    def test_only_what_is_newer_than_the_stamp_counts_and_nothing_that_was_built(self):
        with tempfile.TemporaryDirectory() as name:
            root = pathlib.Path(name)
            for file, moment in (("src/store/Old.cpp", 1000), ("src/apps/New.cpp", 3000), ("src/shell/Then.cpp", 2000),
                                 ("tests/help/Old.cpp", 1000),
                                 ("build/release/passed", 2000), ("build/release/made.cpp", 3000),
                                 ("tools/__pycache__/x.pyc", 3000)):
                (root / file).parent.mkdir(parents=True, exist_ok=True)
                (root / file).write_text("")
                os.utime(root / file, (moment, moment))
            for folder in [path for path in root.rglob("*") if path.is_dir()]:
                os.utime(folder, (1000, 1000))
            os.utime(root / "tests/help", (3000, 3000))  # a file has gone
            said = subprocess.run([sys.executable, "-B", TOOLS / "changed_tests.py", root,
                                   root / "build/release/passed"], capture_output=True, text=True, check=True)
            self.assertEqual(said.stdout, "apps\nbrief\nhelp\nshell\nui\n")


class FoldersTest(unittest.TestCase):
    def test_every_folder_of_sources_has_tests_of_its_name(self):
        root = TOOLS.parent
        without = {folder.name for folder in (root / "src").iterdir() if folder.is_dir()
                   and not (root / "tests" / folder.name / "CMakeLists.txt").exists()}
        self.assertEqual(without, set())


if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
"""Tests of the check that each source includes what it uses, on small trees.

usage: check_includes_test.py COMPILER
"""

import json
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent


class IncludesTest(unittest.TestCase):
    def setUp(self):
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="includes-")).resolve()
        self.addCleanup(shutil.rmtree, self.root)
        self.write("src/Pair.h", "#pragma once\n#include <string>\nstruct Pair { std::string name; };\n")
        self.write("src/First.cpp", '#include "Pair.h"\nPair first() { return {"a"}; }\n')
        self.write("src/Second.cpp", "Pair second() { return {}; }\n")

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def check(self):
        """(status, what was said) of the check of a build that compiles both sources as one."""
        together = self.root / "build/Unity/unity_0.cxx"
        self.write("build/Unity/unity_0.cxx", "".join(
            f'#include "{self.root}/src/{name}.cpp"\n' for name in ("First", "Second")))
        self.write("build/compile_commands.json", json.dumps(
            [{"directory": str(self.root), "file": str(together),
              "command": f"{COMPILER} -std=c++20 -I{self.root}/src -c {together}"}]))
        done = subprocess.run([sys.executable, "-B", HERE / "check_includes.py", COMPILER, self.root,
                               self.root / "build"], capture_output=True, text=True, encoding="utf-8")
        return done.returncode, done.stdout + done.stderr

    def test_a_source_that_lives_on_its_neighbours_include_is_found(self):
        status, said = self.check()
        self.assertEqual(status, 1, said)
        self.assertIn("src/Second.cpp:1", said)
        self.assertNotIn("src/First.cpp:", said)
        self.assertTrue(said.endswith("2 sources, 2 changed, 1 with complaints\n"), said)

    def test_it_is_found_again_until_it_is_mended(self):
        self.check()
        status, said = self.check()
        self.assertEqual(status, 1, said)
        self.assertTrue(said.endswith("2 sources, 1 changed, 1 with complaints\n"), said)
        self.write("src/Second.cpp", '#include "Pair.h"\nPair second() { return {}; }\n')
        self.assertEqual(self.check(), (0, "2 sources, 1 changed, 0 with complaints\n"))

    def test_what_has_not_changed_is_not_compiled_again_and_what_a_change_reaches_is(self):
        self.write("src/Second.cpp", '#include "Pair.h"\nPair second() { return {}; }\n')
        self.assertEqual(self.check(), (0, "2 sources, 2 changed, 0 with complaints\n"))
        self.assertEqual(self.check(), (0, "2 sources, 0 changed, 0 with complaints\n"))
        self.write("src/Pair.h", "#pragma once\nstruct Pair { const char* name; };\n")
        self.assertEqual(self.check(), (0, "2 sources, 2 changed, 0 with complaints\n"))


if __name__ == "__main__":
    COMPILER = sys.argv[1]
    unittest.main(argv=sys.argv[:1])

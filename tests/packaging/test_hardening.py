"""The program is compiled and linked so that a fault in it is hard to use. Read from the binary by
binutils."""

import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

SOURCES = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(SOURCES / "tests/lint"))
from sources import sources_of  # noqa: E402

PROGRAM = os.environ["TESSARINE_PROGRAM"]
BINARIES = pathlib.Path(os.environ["TESSARINE_BINARIES"])

# Functions that trust the room they are given; where sizes are checked, calls of them go to others.
UNCHECKED = ["strcpy", "stpcpy", "strcat", "sprintf", "vsprintf", "gets"]

SAMPLE = """#include <string.h>
int main(int count, char** words) { char room[64]; strcpy(room, words[0]); return room[count]; }
"""


def readelf(*arguments):
    return subprocess.run(["readelf", "--wide", *arguments], capture_output=True, text=True,
                          check=True, env={**os.environ, "LC_ALL": "C"}).stdout


def missing(program):
    """What the binary lacks."""
    head, dynamic = readelf("--file-header", program), readelf("--dynamic", program)
    segments, symbols = readelf("--segments", program), readelf("--dyn-syms", program)
    found = {
        "place-independent": re.search(r"Type:\s+DYN", head) and re.search(
            r"\(FLAGS_1\).*\bPIE\b", dynamic),
        "tables read-only": "GNU_RELRO" in segments and re.search(
            r"\(FLAGS(_1)?\).*\b(BIND_)?NOW\b", dynamic),
        "stack not executable": re.search(r"GNU_STACK\s+(0x\S+\s+){5}RW\s", segments),
        "stack protector": re.search(r"\b__stack_chk_fail\b", symbols),
        "checked sizes": not re.search(rf"\b({'|'.join(UNCHECKED)})@", symbols),
    }
    return {name for name, is_there in found.items() if not is_there}


class Hardening(unittest.TestCase):
    def test_the_program_has_all_of_it(self):
        self.assertEqual(missing(PROGRAM), set())

    def test_every_source_is_compiled_with_checks_of_sizes(self):
        """Where the compiler can prove that a size fits it leaves the check out, so that the binary
        doesn't show it."""
        commands = json.loads((BINARIES / "compile_commands.json").read_text())
        own = 0
        for entry in commands:
            for path in sources_of(entry):
                if path.is_relative_to(SOURCES / "src"):
                    own += 1
                    self.assertRegex(entry["command"], r"-O2\b.*-D_FORTIFY_SOURCE=[23]", path)
        self.assertGreater(own, 150)

    @unittest.skipUnless(shutil.which("gcc"), "needs a compiler")
    def test_a_sample_without_any_of_it_is_found_out(self):
        """The check finds what is missing."""
        with tempfile.TemporaryDirectory() as folder:
            def sample(*flags):
                program = os.path.join(folder, "sample")
                subprocess.run(["gcc", "-x", "c", "-", "-o", program, "-w", *flags], check=True,
                               input=SAMPLE, text=True)
                return missing(program)

            everything = ["-O2", "-fPIE", "-pie", "-fstack-protector-all", "-U_FORTIFY_SOURCE",
                          "-D_FORTIFY_SOURCE=2", "-Wl,-z,relro,-z,now,-z,noexecstack"]
            self.assertEqual(sample(*everything), set())
            for flags, lack in ((["-no-pie"], "place-independent"),
                                (["-Wl,-z,norelro"], "tables read-only"),
                                (["-Wl,-z,lazy"], "tables read-only"),
                                (["-Wl,-z,execstack"], "stack not executable"),
                                (["-fno-stack-protector"], "stack protector"),
                                (["-U_FORTIFY_SOURCE"], "checked sizes")):
                self.assertEqual(sample(*everything, *flags), {lack}, flags)


if __name__ == "__main__":
    if shutil.which("readelf") is None:
        sys.exit(77)
    unittest.main(verbosity=2)

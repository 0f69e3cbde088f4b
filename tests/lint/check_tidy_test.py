#!/usr/bin/env python3
"""Tests of the check with clang-tidy, on small trees with planted mistakes.

usage: check_tidy_test.py CLANG_TIDY SETTINGS [PLUG_IN]
"""

import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent

PLANTED = {
    "src/shared/Shared.h": """
        #pragma once
        #include <library.h>
        inline int* nothing(void) { return 0; }
        namespace part { struct Base { virtual ~Base() = default; virtual void run(); }; }
        namespace part { struct Derived : Base { virtual void run(); }; }
        template<typename T> int useOfTemplate(T value) { T* none = NULL; return none == &value; }
        """,
    "src/shared/Shared.cpp": """
        #include "shared/Shared.h"
        int divided(int value) { int zero = 0; if (value > 3) { return value / zero; } return 1; }
        std::string moved(std::string text) { std::string other = std::move(text); return text + other; }
        int lengthOf(std::string text) { return static_cast<int>(text.size()); }
        int instance() { return useOfTemplate(3) + static_cast<int>(library::Text("a").size()); }
        """,
    "src/shared/Second.cpp": """
        #include "shared/Shared.h"
        bool isEmpty(const library::Text& text) { return text.size() == 0; }
        namespace { int* hidden() { int* pointer = nullptr; *pointer = 1; return pointer; } }
        int* shown() { return hidden(); }
        """,
}
# Where clang-tidy has to find what: worked out from what each check is for.
EXPECTED = {
    ("src/shared/Shared.h", "modernize-redundant-void-arg"),
    ("src/shared/Shared.h", "modernize-use-nullptr"),
    ("src/shared/Shared.h", "modernize-use-override"),
    ("src/shared/Shared.cpp", "clang-analyzer-core.DivideZero"),
    ("src/shared/Shared.cpp", "bugprone-use-after-move"),
    ("src/shared/Shared.cpp", "performance-unnecessary-value-param"),
    ("src/shared/Second.cpp", "readability-container-size-empty"),
    ("src/shared/Second.cpp", "clang-analyzer-core.NullDereference"),
}
# What a library does is its own affair.
LIBRARY = """
    #pragma once
    #include <string>
    #include <utility>
    namespace library {
    inline int* mistake(void) { return 0; }
    struct Text {
        Text(std::string text) : text(text) {}
        unsigned long size() const { return text.size(); }
        bool empty() const { return text.empty(); }
        std::string text;
    };
    }
    """


class TidyTest(unittest.TestCase):
    def setUp(self):
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="tidy-")).resolve()
        self.addCleanup(shutil.rmtree, self.root)
        self.write(".clang-tidy", pathlib.Path(SETTINGS).read_text())
        self.write("library/library.h", LIBRARY)

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def check(self):
        """(status, what was said) of the check of src."""
        compiled = sorted(self.root.glob("src/**/*.cpp"))
        command = f"clang++ -std=c++20 -I{self.root}/src -isystem {self.root}/library -c"
        self.write("build/compile_commands.json", json.dumps(
            [{"directory": str(self.root), "file": str(path), "command": f"{command} {path}"}
             for path in compiled]))
        done = subprocess.run([sys.executable, "-B", HERE / "check_tidy.py", CLANG_TIDY, self.root,
                               self.root / "build", "src", *PLUG_IN],
                              capture_output=True, text=True, encoding="utf-8")
        return done.returncode, done.stdout + done.stderr

    def found(self, said):
        pattern = re.compile(r"^(\S+?):\d+:\d+: error: .* \[([\w.,-]+)\]$", re.MULTILINE)
        return {(str(pathlib.Path(file).relative_to(self.root)), name)
                for file, names in pattern.findall(said)
                for name in names.split(",") if name != "-warnings-as-errors"}

    def test_finds_mistakes_in_sources_and_headers_and_none_in_libraries(self):
        for name, text in PLANTED.items():
            self.write(name, text)
        status, said = self.check()
        self.assertEqual(status, 1, said)
        self.assertEqual(self.found(said), EXPECTED, said)

    def test_says_nothing_of_clean_sources_until_one_changes(self):
        self.write("src/shared/Clean.cpp", "#include <library.h>\nint three() { return 3; }\n")
        for _ in range(2):
            self.assertEqual(self.check(), (0, "1 sources in 1 units, 0 with complaints\n"))
        self.write("src/shared/Clean.cpp", "int three(void) { return 3; }\n")
        status, said = self.check()
        self.assertEqual(status, 1, said)
        self.assertIn("modernize-redundant-void-arg", said)

    def test_a_source_that_nothing_compiles_is_an_error(self):
        self.write("src/shared/Clean.cpp", "int three() { return 3; }\n")
        self.check()
        self.write("src/shared/Forgotten.cpp.in", "")
        (self.root / "src/shared/Forgotten.cpp.in").rename(self.root / "src/shared/Forgotten.cpp")
        done = subprocess.run([sys.executable, "-B", HERE / "check_tidy.py", CLANG_TIDY, self.root,
                               self.root / "build", "src", *PLUG_IN], capture_output=True, text=True)
        self.assertEqual(done.returncode, 1)
        self.assertIn("src/shared/Forgotten.cpp", done.stderr)


if __name__ == "__main__":
    CLANG_TIDY, SETTINGS, *PLUG_IN = sys.argv[1:4]
    unittest.main(argv=sys.argv[:1])

"""The Debian package: what it holds, what it needs, and that Lintian has nothing to say."""

import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

BINARIES = pathlib.Path(os.environ["TESSARINE_BINARIES"])
SOURCES = pathlib.Path(__file__).resolve().parents[2]
SCANNER = os.environ["TESSARINE_QMLIMPORTSCANNER"]
QML = os.environ["TESSARINE_QML"]
TOOLS = ["cpack", "dpkg-deb", "dpkg-shlibdeps", "lintian"]


def run(*command):
    result = subprocess.run([str(word) for word in command], capture_output=True, text=True,
                            env={**os.environ, "LC_ALL": "C.UTF-8"})
    if result.returncode:
        raise AssertionError(f"{command[0]} gave {result.returncode}: {result.stdout}{result.stderr}")
    return result.stdout


def package_of(path):
    """The installed package that a file belongs to, which may have been packed before /lib became a
    link to /usr/lib."""
    try:
        found = run("dpkg", "--search", path)
    except AssertionError:
        found = run("dpkg", "--search", str(path).removeprefix("/usr"))
    return found.split(":", 1)[0].split(",")[0]


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.temporary = tempfile.TemporaryDirectory()
        cls.folder = pathlib.Path(cls.temporary.name)
        run("cpack", "--config", BINARIES / "CPackConfig.cmake", "-B", cls.folder)
        cls.package = next(cls.folder.glob("tessarine_*.deb"))
        cls.symbols = next(cls.folder.glob("tessarine-dbgsym_*.deb"))
        cls.content = cls.folder / "content"
        run("dpkg-deb", "--extract", cls.package, cls.content)

    @classmethod
    def tearDownClass(cls):
        cls.temporary.cleanup()

    def field(self, name):
        return run("dpkg-deb", "--field", self.package, name).strip()

    def dependencies(self):
        """Each with its alternatives."""
        return [{re.split(r"[ :(]", name.strip())[0] for name in entry.split("|")}
                for entry in self.field("Depends").split(",")]

    def assert_depends_on(self, package):
        self.assertTrue(any(package in entry for entry in self.dependencies()),
                        f"{package} is not in {self.field('Depends')}")

    def test_lintian_finds_nothing_to_say(self):
        said = run("lintian", "--info", "--pedantic", "--display-info", "--tag-display-limit", "0",
                   "--allow-root", self.package)
        self.assertEqual(said, "")

    def test_lintian_finds_no_fault_in_the_package_of_symbols(self):
        self.assertEqual(run("lintian", "--info", "--allow-root", self.symbols), "")

    def test_needs_the_modules_that_qt_finds_in_the_views(self):
        modules = json.loads(run(SCANNER, "-rootPath", SOURCES / "src", "-importPath", QML,
                                 "-importPath", BINARIES / "qml"))
        folders = [module["path"] for module in modules if module.get("path", "").startswith(QML)]
        self.assertGreater(len(folders), 4)
        for folder in folders:
            self.assert_depends_on(package_of(f"{folder}/qmldir"))

    def test_needs_the_faces_that_the_program_names(self):
        source = (SOURCES / "src/platform/linux/desktop/LinuxFontFamilies.cpp").read_text()
        for family in re.findall(r'QStringLiteral\("([^"]+)"\)', source):
            file = run("fc-match", "--format=%{file}", family)
            package = package_of(file)
            if package == "fonts-noto-cjk":  # a hundred megabytes
                self.assertIn(package, self.field("Recommends"))
            else:
                self.assert_depends_on(package)

    def test_needs_what_qt_loads_at_run_time(self):
        plugins = pathlib.Path(QML).parent / "plugins"
        for plugin in ("platforms/libqxcb.so", "platforms/libqwayland-generic.so",
                       "imageformats/libqsvg.so", "iconengines/libqsvgicon.so"):
            self.assert_depends_on(package_of(plugins / plugin))

    def test_needs_the_libraries_that_the_program_links(self):
        program = self.content / "usr/bin/tessarine"
        libraries = re.findall(r"=> (/\S+) ", run("ldd", program))
        direct = set(re.findall(r"\(NEEDED\).*\[(.*?)\]", run("readelf", "-d", program)))
        for library in libraries:
            if os.path.basename(library) in direct:
                self.assert_depends_on(package_of(os.path.realpath(library)))

    def test_has_its_symbols_apart(self):
        self.assertIn("stripped", run("file", self.content / "usr/bin/tessarine").split(", ")[-1])
        notes = run("readelf", "--notes", self.content / "usr/bin/tessarine")
        build = re.search(r"Build ID: (\w\w)(\w+)", notes)
        self.assertIn(f"usr/lib/debug/.build-id/{build[1]}/{build[2]}.debug",
                      run("dpkg-deb", "--contents", self.symbols))

    def test_leaves_alone_what_is_the_users(self):
        """No script runs at installation or removal, and nothing lies outside of /usr."""
        control = self.folder / "control"
        run("dpkg-deb", "--control", self.package, control)
        self.assertEqual({path.name for path in control.iterdir()}, {"control", "md5sums"})
        self.assertEqual([path.name for path in self.content.iterdir()], ["usr"])

    def test_is_small(self):
        self.assertLess(self.package.stat().st_size, 4_000_000)
        print(f"{self.package.name}: {self.package.stat().st_size} bytes, "
              f"installed {self.field('Installed-Size')} KiB")


if __name__ == "__main__":
    if not all(map(shutil.which, TOOLS)):
        print("needs", *TOOLS)
        sys.exit(77)
    unittest.main(verbosity=2)

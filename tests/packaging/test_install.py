"""What `cmake --install` puts into a prefix, which may be any."""

import configparser
import os
import pathlib
import shlex
import struct
import subprocess
import tempfile
import unittest

BINARIES = os.environ["TESSARINE_BINARIES"]
ID = "com.zorvek.Tessarine"
SIZES = [16, 22, 24, 32, 48, 64, 128, 256, 512]


def install(prefix, check=True, **environment):
    return subprocess.run(["cmake", "--install", BINARIES, "--prefix", str(prefix)], check=check,
                          capture_output=True, text=True, env={**os.environ, **environment})


def picture_size(path):
    """Width and height, which stand in the first chunk of a PNG file."""
    return struct.unpack(">II", path.read_bytes()[16:24])


class Installation(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def read(self, path):
        parser = configparser.RawConfigParser(interpolation=None)
        parser.optionxform = str
        parser.read(path, encoding="utf-8")
        return parser

    def entry(self, prefix):
        return self.read(prefix / f"share/applications/{ID}.desktop")["Desktop Entry"]

    def service(self, prefix):
        return self.read(prefix / f"share/dbus-1/services/{ID}.service")["D-BUS Service"]

    def test_is_complete(self):
        install(self.folder)
        files = {str(path.relative_to(self.folder)) for path in self.folder.rglob("*")
                 if path.is_file()}
        icons = {f"share/icons/hicolor/{size}x{size}/apps/{ID}.png" for size in SIZES}
        self.assertEqual(files, icons | {
            "bin/tessarine", f"share/applications/{ID}.desktop",
            f"share/dbus-1/services/{ID}.service", f"share/metainfo/{ID}.metainfo.xml",
            f"share/icons/hicolor/scalable/apps/{ID}.svg",
            f"share/icons/hicolor/symbolic/apps/{ID}-symbolic.svg", "share/man/man1/tessarine.1",
            "share/doc/tessarine/README.md", "share/doc/tessarine/CHANGELOG.md",
            "share/doc/tessarine/LICENSE"})
        for size in SIZES:
            picture = self.folder / f"share/icons/hicolor/{size}x{size}/apps/{ID}.png"
            self.assertEqual(picture_size(picture), (size, size))

    def test_names_the_program_where_it_lies(self):
        prefix = self.folder / "a prefix (of mine)"
        install(prefix)
        program = str(prefix / "bin/tessarine")
        self.assertEqual(shlex.split(self.service(prefix)["Exec"]), [program])
        self.assertEqual(shlex.split(self.entry(prefix)["Exec"]), [program])
        self.assertEqual(self.entry(prefix)["TryExec"], program)
        version = subprocess.run([program, "--version"], capture_output=True, text=True, check=True)
        self.assertTrue(version.stdout.startswith("Tessarine "))

    def test_keeps_the_rest_of_the_entry(self):
        install(self.folder)
        source = self.read(pathlib.Path(__file__).parents[2] / f"resources/linux/{ID}.desktop")
        installed = self.read(self.folder / f"share/applications/{ID}.desktop")
        for section in source.sections():
            for key, value in source[section].items():
                if key != "TryExec" and (section, key) != ("Desktop Entry", "Exec"):
                    self.assertEqual(installed[section][key], value)

    def test_names_it_shortly_where_every_session_finds_it(self):
        install("/usr", DESTDIR=str(self.folder))
        self.assertEqual(self.entry(self.folder / "usr")["Exec"], "tessarine")
        self.assertEqual(self.entry(self.folder / "usr")["TryExec"], "tessarine")
        self.assertEqual(self.service(self.folder / "usr")["Exec"], "/usr/bin/tessarine")

    def test_refuses_a_prefix_that_no_entry_can_name(self):
        result = install(self.folder / 'a "quoted" prefix', check=False)
        self.assertNotEqual(result.returncode, 0)
        self.assertIn("choose another prefix", " ".join(result.stderr.split()))


if __name__ == "__main__":
    unittest.main(verbosity=2)

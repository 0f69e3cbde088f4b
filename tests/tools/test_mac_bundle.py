#!/usr/bin/env python3
"""Tests what the bundle for macOS tells of itself, and its icon, as far as any machine can.

usage: test_mac_bundle.py CMAKE ROOT
"""

import pathlib
import plistlib
import struct
import subprocess
import sys
import tempfile
import unittest
import zlib

CMAKE, ROOT = sys.argv.pop(1), pathlib.Path(sys.argv.pop(1))
BUNDLE = ROOT / "resources/macos"


def configured_description(**variables):
    """The bundle's Info.plist as the build makes it with these variables."""
    with tempfile.TemporaryDirectory() as folder:
        script = pathlib.Path(folder) / "configure.cmake"
        script.write_text(f'configure_file("{BUNDLE}/Info.plist.in" "{folder}/Info.plist" @ONLY)\n')
        definitions = [f"-D{name}={value}" for name, value in variables.items()]
        subprocess.run([CMAKE, *definitions, "-P", script], check=True)
        return plistlib.loads((pathlib.Path(folder) / "Info.plist").read_bytes())


def pictures():
    """{name: PNG file} of the icon."""
    content = (BUNDLE / "Tessarine.icns").read_bytes()
    name, length = struct.unpack_from(">4sI", content)
    assert name == b"icns" and length == len(content)
    found, at = {}, 8
    while at < length:
        name, size = struct.unpack_from(">4sI", content, at)
        found[name.decode()] = content[at + 8:at + size]
        at += size
    assert at == length
    return found


def size_of(png):
    assert png.startswith(b"\x89PNG\r\n\x1a\n")
    return struct.unpack_from(">II", png, 16)


def distinct_bytes(png):
    """How many values there are among the bytes of a picture: a blank one has very few."""
    packed, at = b"", 8
    while at < len(png):
        length, kind = struct.unpack_from(">I4s", png, at)
        if kind == b"IDAT":
            packed += png[at + 8:at + 8 + length]
        at += length + 12
    return len(set(zlib.decompress(packed)))


class BundleTest(unittest.TestCase):
    def test_tells_what_it_is(self):
        told = configured_description(PROJECT_VERSION="1.2.3", TESSARINE_BUILD="456")
        self.assertEqual(told["CFBundleIdentifier"], "com.zorvek.Tessarine")
        self.assertEqual(told["CFBundleExecutable"], "Tessarine")
        self.assertEqual(told["CFBundlePackageType"], "APPL")
        self.assertEqual(told["CFBundleShortVersionString"], "1.2.3")
        self.assertEqual(told["CFBundleVersion"], "456")
        self.assertEqual(told["LSMinimumSystemVersion"], "14.0")
        self.assertIs(told["LSUIElement"], True)
        self.assertEqual(told["NSPrincipalClass"], "NSApplication")
        self.assertIs(told["NSHighResolutionCapable"], True)
        self.assertEqual(told["LSApplicationCategoryType"], "public.app-category.utilities")
        self.assertFalse([key for key in told if key.startswith("SU")])

    def test_names_the_languages_that_there_are_texts_in(self):
        there = {path.stem.partition("_")[2]
                 for path in (ROOT / "resources/texts").glob("tessarine_*.ts")}
        self.assertEqual(set(configured_description()["CFBundleLocalizations"]), there)

    def test_tells_where_new_versions_are(self):
        entries = ("<key>SUFeedURL</key><string>https://example.com/a.xml</string>"
                   "<key>SUPublicEDKey</key><string>abc=</string>")
        told = configured_description(TESSARINE_FEED_ENTRIES=entries)
        self.assertEqual(told["SUFeedURL"], "https://example.com/a.xml")
        self.assertEqual(told["SUPublicEDKey"], "abc=")

    def test_stays_out_of_the_sandbox(self):
        rights = plistlib.loads((BUNDLE / "Tessarine.entitlements").read_bytes())
        self.assertEqual(rights, {"com.apple.security.cs.allow-jit": True})

    # Apple's names of sizes.
    def test_has_an_icon_in_each_size(self):
        sizes = {"ic11": 32, "ic12": 64, "ic07": 128, "ic13": 256, "ic08": 256, "ic14": 512,
                 "ic09": 512, "ic10": 1024}
        found = pictures()
        self.assertEqual({name: size_of(png) for name, png in found.items()},
                         {name: (side, side) for name, side in sizes.items()})
        for name, png in found.items():
            with self.subTest(name):
                self.assertGreater(distinct_bytes(png), 50)


if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
"""Makes the icon of the bundle for macOS from the drawing of the program's icon. To be called again when
the drawing has changed; needs rsvg-convert (librsvg).

usage: tools/make_icns.py [DRAWING ICON]

An .icns file is a list of pictures. Each has a name of four letters, which says for which size in points
and which density it is, and its length with both; the pictures are PNG files.
"""

import pathlib
import struct
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
DRAWING = ROOT / "resources/icons/com.zorvek.Tessarine.svg"
ICON = ROOT / "resources/macos/Tessarine.icns"

# Name and pixels a side: 16, 32, 128, 256 and 512 points at both densities; the smallest ones at single
# density have no form as PNG that all programs read, and are scaled from their double.
PICTURES = [("ic11", 32), ("ic12", 64), ("ic07", 128), ("ic13", 256), ("ic08", 256), ("ic14", 512),
            ("ic09", 512), ("ic10", 1024)]


def draw(drawing, pixels):
    """The drawing as a PNG file in memory."""
    return subprocess.run(["rsvg-convert", "--width", str(pixels), "--height", str(pixels), drawing],
                          check=True, capture_output=True).stdout


def entry(name, content):
    return name.encode("ascii") + struct.pack(">I", len(content) + 8) + content


def make(drawing):
    return entry("icns", b"".join(entry(name, draw(drawing, pixels)) for name, pixels in PICTURES))


def main():
    if len(sys.argv) not in (1, 3):
        sys.exit(__doc__)
    drawing, icon = map(pathlib.Path, sys.argv[1:]) if len(sys.argv) == 3 else (DRAWING, ICON)
    icon.write_bytes(make(drawing))


if __name__ == "__main__":
    main()

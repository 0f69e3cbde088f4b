#!/usr/bin/env python3
"""The compiler as a linker: libraries of Linux among its arguments become lists of their names.

usage: link.py COMPILER ARGUMENT...
"""

import os
import pathlib
import re
import sys

import stubs

LIBRARY = re.compile(r"\.so(\.\d+)*$")


def translated(word):
    if word.startswith("/") and LIBRARY.search(word):
        return str(stubs.stub_for(pathlib.Path(word), pathlib.Path("stubs").resolve()))
    return word


def main():
    words = [translated(word) for word in sys.argv[1:]]
    os.execvp(words[0], [words[0], "-fuse-ld=lld", *words[1:]])


if __name__ == "__main__":
    main()

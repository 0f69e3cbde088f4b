#!/usr/bin/env python3
"""Writes the seeds of fuzz_bus_message: messages of the bus, in its own form.

usage: make_bus_message_corpus.py FOLDER
"""

import pathlib
import struct
import sys

FREEDESKTOP = "org.freedesktop.Notifications"
GTK = "org.gtk.Notifications"
CALL, RETURN, SIGNAL = 1, 2, 4


class Writer:
    """Values in little-endian order, each at its border."""

    def __init__(self):
        self.bytes = b""

    def align(self, to):
        self.bytes += b"\0" * (-len(self.bytes) % to)

    def number(self, value, form="<I", size=4):
        self.align(size)
        self.bytes += struct.pack(form, value)

    def text(self, value):
        encoded = value.encode()
        self.number(len(encoded))
        self.bytes += encoded + b"\0"

    def signature(self, value):
        self.bytes += bytes([len(value)]) + value.encode() + b"\0"

    def array(self, write_all, border):
        self.number(0)
        at = len(self.bytes)
        self.align(border)
        start = len(self.bytes)
        write_all()
        self.bytes = (self.bytes[:at - 4] + struct.pack("<I", len(self.bytes) - start)
                      + self.bytes[at:])

    def variant(self, value):
        if isinstance(value, str):
            self.signature("s")
            self.text(value)
        elif isinstance(value, int):
            self.signature("u")
            self.number(value)
        elif isinstance(value, list):
            self.signature("as")
            self.array(lambda: [self.text(text) for text in value], 4)
        else:
            self.signature("a{sv}")
            self.dictionary(value)

    def dictionary(self, entries):
        def write_all():
            for key, value in entries.items():
                self.align(8)
                self.text(key)
                self.variant(value)
        self.array(write_all, 8)


def message(kind, fields, signature, body):
    header = Writer()
    header.bytes = b"l" + bytes([kind, 0, 1])
    header.number(len(body.bytes))
    header.number(7)

    def write_fields():
        for code, form, value in [*fields, (8, "g", signature)]:
            header.align(8)
            header.bytes += bytes([code])
            header.signature(form)
            if form == "g":
                header.signature(value)
            elif form == "u":
                header.number(value)
            else:
                header.text(value)
    header.array(write_fields, 8)
    header.align(8)
    return header.bytes + body.bytes


def call(interface, path, member, signature, body):
    return message(CALL, [(1, "o", path), (2, "s", interface), (3, "s", member),
                          (6, "s", interface), (7, "s", ":1.5")], signature, body)


def notify(name, summary, text, hints):
    body = Writer()
    body.text(name)
    body.number(0)
    body.text("icon")
    body.text(summary)
    body.text(text)
    body.array(lambda: [body.text("default"), body.text("Open")], 4)
    body.dictionary(hints)
    body.number(-1, "<i")
    return call(FREEDESKTOP, "/org/freedesktop/Notifications", "Notify", "susssasa{sv}i", body)


def add(application, identifier, texts):
    body = Writer()
    body.text(application)
    body.text(identifier)
    body.dictionary(texts)
    return call(GTK, "/org/gtk/Notifications", "AddNotification", "ssa{sv}", body)


def remove(application, identifier):
    body = Writer()
    body.text(application)
    body.text(identifier)
    return call(GTK, "/org/gtk/Notifications", "RemoveNotification", "ss", body)


def numbers(kind, fields, signature, *values):
    body = Writer()
    for value in values:
        body.number(value)
    return message(kind, fields, signature, body)


SEEDS = {
    "notify": notify("Mail", "Grüße 😀", "<b>Body</b> &amp; more", {"urgency": 1}),
    "notify-unnamed": notify("", "title", "", {"desktop-entry": "com.example.Teapot"}),
    "notify-odd-entry": notify("", "title", "", {"desktop-entry": ["a", "b"]}),
    "add": add("com.example.Teapot", "tea", {"title": "Tea", "body": "is ready"}),
    "add-empty": add("", "", {}),
    "add-odd": add("com.example.Teapot", "tea", {"title": 5, "body": {"title": "inside"}}),
    "remove": remove("com.example.Teapot", "tea"),
    "return": numbers(RETURN, [(5, "u", 3), (6, "s", ":1.9")], "u", 12),
    "closed": numbers(SIGNAL, [(1, "o", "/org/freedesktop/Notifications"),
                               (2, "s", FREEDESKTOP), (3, "s", "NotificationClosed")], "uu", 12, 2),
}


def main(folder):
    target = pathlib.Path(folder)
    target.mkdir(parents=True, exist_ok=True)
    for name, seed in SEEDS.items():
        (target / name).write_bytes(seed)


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(sys.argv[1])

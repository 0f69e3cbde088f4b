#!/usr/bin/python3
"""Writes the seeds of fuzz_property_list, small binary property lists, into a folder.

usage: make_property_list_corpus.py FOLDER

The lists come from Python's plistlib, so that no seed is what our own code takes a list to be; those
that it can't write are put together here by hand. The same seeds come out at every run.
"""

import datetime
import pathlib
import plistlib
import struct
import sys

UID = plistlib.UID
WHEN = datetime.datetime(2025, 7, 14, 12, 30)


def payload(**request):
    return {"app": "com.example.Mail", "date": 774189000.5, "orig": 0, "req": request,
            "resp": {"act": 0}, "srce": bytes(range(16)), "styl": 1, "uuid": bytes(range(16, 32))}


def archive(*objects):
    return {"$archiver": "NSKeyedArchiver", "$version": 100000, "$top": {"root": UID(1)},
            "$objects": ["$null", *objects]}


def written():
    shared = ["shared", 1]
    nested = []
    for _ in range(40):
        nested = [nested]
    inner = plistlib.dumps(archive({"NSTitle": UID(2)}, "NSString", "A sentence inside"),
                           fmt=plistlib.FMT_BINARY)
    return {
        "true": True, "false": False, "integer-1": 7, "integer-2": 700, "integer-4": 70000,
        "integer-8": 1 << 40, "integer-negative": -1, "integer-16": (1 << 64) - 1, "real": 1.5,
        "date": WHEN, "data-empty": b"", "data": b"\0\xff\x80", "data-long": bytes(300),
        "text-empty": "", "text-ascii": "plain text", "text-nul": "a\0b", "text-long": "x" * 300,
        "text-utf16": "Grüße, 日本", "text-emoji": "👩\u200d👧 🇨🇭", "text-rtl": "\u202eשלום\u202c",
        "uid-1": UID(7), "uid-2": UID(700), "uid-4": UID(70000),
        "array-empty": [], "array": [1, "a", b"b", 2.5, WHEN, True, UID(1)],
        "array-15": list(range(15)), "array-300": list(range(300)), "array-nested": nested,
        "array-shared": [shared, shared, [shared]], "dictionary-empty": {},
        "dictionary": {"a": 1, "ü": {"b": []}}, "dictionary-20": {str(i): i for i in range(20)},
        "payload": payload(titl="Lunch", body="Where are you? 🍜", subt="Today"),
        "payload-subtitle": payload(subt="Today", soun={"nam": "Glass"}, acts=[{"id": "a"}]),
        "payload-archive": {"titl": "Lunch", "subt": "Today", "req": inner},
        "archive": archive({"NSTitle": UID(2), "NSInformativetext": UID(3),
                            "NSActualdeliverydate": UID(4)}, "Lunch", "Where are you?",
                           {"NS.time": 774189000.5}),
    }


def by_hand(objects, width=1):
    """A list of objects given as bytes, with references and offsets of one width."""
    raw, table = b"bplist00", b""
    for item in objects:
        table += len(raw).to_bytes(width, "big")
        raw += item
    return raw + table + struct.pack(">6xBBQQQ", width, width, len(objects), 0, len(raw))


def unwritable():
    doubling = [bytes([0xa2, i + 1, i + 1]) for i in range(26)] + [b"\xa0"]
    return {
        "null": by_hand([b"\x00"]), "real-4": by_hand([b"\x22\xc0\x20\x00\x00"]),
        "set": by_hand([b"\xc1\x01", b"\x09"]), "uid-8": by_hand([b"\x87" + bytes(7) + b"\x01"]),
        "count-8": by_hand([b"\x5f\x13" + bytes(7) + b"\x02ab"]),
        "count-16": by_hand([b"\x5f\x14" + bytes(15) + b"\x02ab"]),
        "surrogates-alone": by_hand([b"\x62\xde\x00\xd8\x3d"]),
        "keys-utf16": by_hand([b"\xd1\x01\x02", b"\x63\0r\0e\0q", b"\x09"]),
        "keys-twice": by_hand([b"\xd2\x01\x01\x02\x03", b"\x51a", b"\x08", b"\x09"]),
        "keys-no-text": by_hand([b"\xd1\x01\x01", b"\x10\x01"]),
        "loop": by_hand([b"\xa1\x01", b"\xa1\x00"]), "doubling": by_hand(doubling),
        "wide-3": by_hand([b"\xa1\0\0\x01", b"\x09"], 3),
        "wide-12": by_hand([b"\xa1" + bytes(11) + b"\x01", b"\x09"], 12),
    }


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    for name, value in written().items():
        raw = plistlib.dumps(value, fmt=plistlib.FMT_BINARY, sort_keys=False)
        (folder / f"{name}.plist").write_bytes(raw)
    for name, raw in unwritable().items():
        (folder / f"{name}.plist").write_bytes(raw)


if __name__ == "__main__":
    main()

#!/usr/bin/python3
"""Judges the reader of binary property lists against two others.

usage: propertylist_judge.py DUMP [--documents N] [--mutants N] [--seed N] [--self-check]

DUMP is the built property_list_dump program. Two independent readers say what it has to print:

1. Python's plistlib. Random documents that it wrote must be read as what was written, and damaged
   ones ("mutants") that both readers accept must be read alike.
2. `Rules` below, the published format with CoreFoundation's bounds, written from the format's
   description and not from our source. It says of every mutant whether it has to be refused, and
   reads what plistlib can't.

plistlib is no judge of what has to be refused, and of nothing else, because by design

- it takes any header (told the format), any gap between the parts and any width of numbers;
- it lets objects lie anywhere, the header and the trailer included, and cuts short numbers off;
- it takes arrays and dictionaries that hold themselves, keys that are no text, UIDs and integers of
  any width, the fill byte as empty data, and any object as a count of which it looks at two bits;
- it refuses lone surrogates, which our text keeps, sets, and dates that its type can't hold.

So a mutant that it accepts and ours refuses has to be one that `Rules` refuses as well, and the other
way round; the report counts both. Exits with 1 on any difference, and with 0 on none.

--self-check falsifies one expectation of each kind and succeeds only if the judge notices all.
"""

import argparse
import datetime
import json
import math
import plistlib
import random
import struct
import subprocess
import sys
from collections import Counter

EPOCH = datetime.datetime(2001, 1, 1)
MAXIMUM_DEPTH = 512
MAXIMUM_OBJECTS = 1 << 20
OVERLAP_ALLOWANCE = 8
MUTATIONS = 3


class Refused(Exception):
    pass


class Date:
    def __init__(self, seconds):
        self.seconds = seconds


class Set:
    def __init__(self, size):
        self.size = size


class Beyond:
    """An integer of sixteen bytes that 64 bits can't hold."""


class Rules:
    """What a list has to be, and what it holds."""

    def __init__(self, raw):
        self.raw = raw
        self.read_frame()
        self.states = {}
        self.values = {}
        self.left = OVERLAP_ALLOWANCE * self.table
        self.value = self.read(self.top, 0)

    @staticmethod
    def require(condition, reason):
        if not condition:
            raise Refused(reason)

    def read_frame(self):
        raw = self.raw
        self.require(len(raw) > 40, "too short")
        self.require(raw[:7] == b"bplist0", "header")
        self.offset_width, self.ref_width, self.count, self.top, self.table = struct.unpack(
            ">6xBBQQQ", raw[-32:])
        self.require(self.offset_width and self.ref_width, "width of zero")
        self.require(1 <= self.count <= MAXIMUM_OBJECTS, "object count")
        self.require(self.top < self.count, "root")
        self.require(9 <= self.table < len(raw) - 32, "offset of the table")
        self.require(self.table + self.count * self.offset_width + 32 == len(raw), "total size")
        self.require(self.table < 256**self.offset_width, "offset width")
        self.require(self.count < 256**self.ref_width, "reference width")
        self.offsets = [self.number(self.table + i * self.offset_width, self.offset_width)
                        for i in range(self.count)]
        self.require(max(self.offsets) < self.table, "offset in the table")

    def number(self, position, width, signed=False):
        return int.from_bytes(self.raw[position:position + width], "big", signed=signed)

    def take(self, position, size):
        self.require(position + size <= self.table, "object too long")
        return self.raw[position:position + size]

    def counted(self, position, low):
        """The count of an object and where its contents begin."""
        if low != 15:
            return low, position
        marker = self.take(position, 1)[0]
        self.require(marker >> 4 == 1 and marker & 15 <= 4, "count")
        width = 1 << (marker & 15)
        self.take(position + 1, width)
        return self.number(position + 1, width), position + 1 + width

    def charge(self, size):
        self.left -= size
        self.require(self.left >= 0, "overlap")

    def read(self, index, depth):
        self.require(index < self.count, "reference")
        self.require(depth <= MAXIMUM_DEPTH, "depth")
        self.require(self.states.get(index) != "open", "loop")
        if index not in self.states:
            self.states[index] = "open"
            self.values[index] = self.read_object(self.offsets[index], depth)
            self.states[index] = "done"
        return self.values[index]

    def read_object(self, offset, depth):
        self.require(offset >= 8, "offset in the header")
        marker = self.raw[offset]
        high, low, start = marker >> 4, marker & 15, offset + 1
        if marker in (0x00, 0x08, 0x09):
            return {0x00: None, 0x08: False, 0x09: True}[marker]
        if high == 1 and low <= 4:
            return self.read_integer(start, 1 << low)
        if marker == 0x22:
            return struct.unpack(">f", self.scalar(start, 4))[0]
        if marker == 0x23:
            return struct.unpack(">d", self.scalar(start, 8))[0]
        if marker == 0x33:
            return Date(struct.unpack(">d", self.scalar(start, 8))[0])
        if high == 8:
            uid = int.from_bytes(self.scalar(start, low + 1), "big")
            self.require(uid < 1 << 32, "uid")
            return plistlib.UID(uid)
        self.require(high in (4, 5, 6, 10, 12, 13), "marker")
        return self.read_counted(high, *self.counted(start, low), depth)

    def scalar(self, start, size):
        self.charge(size)
        return self.take(start, size)

    def read_integer(self, start, width):
        value = int.from_bytes(self.scalar(start, width), "big", signed=width >= 8)
        return value if -1 << 63 <= value < 1 << 63 else Beyond()

    def read_counted(self, high, count, start, depth):
        unit = {4: 1, 5: 1, 6: 2, 10: self.ref_width, 12: self.ref_width,
                13: 2 * self.ref_width}[high]
        body = self.take(start, count * unit)
        self.charge(len(body))
        if high == 4:
            return body
        if high == 5:
            self.require(max(body, default=0) < 128, "ascii")
            return body.decode("ascii")
        if high == 6:
            return body.decode("utf-16-be", "surrogatepass")
        refs = [self.number(start + i, self.ref_width) for i in range(0, len(body), self.ref_width)]
        if high != 13:
            items = [self.read(ref, depth + 1) for ref in refs]
            return items if high == 10 else Set(count)
        keys = [self.read_key(ref, depth + 1) for ref in refs[:count]]
        return dict(zip(keys, [self.read(ref, depth + 1) for ref in refs[count:]]))

    def read_key(self, ref, depth):
        key = self.read(ref, depth)
        self.require(isinstance(key, str), "key")
        return key


def bits(value):
    """A number as its bits; all that are no number count as one."""
    return "nan" if math.isnan(value) else struct.pack(">d", value).hex()


def as_text(text):
    return text.encode("utf-16-be", "surrogatepass").hex()


def canonical(value):
    """A value of plistlib, of Rules or of a generator in one comparable form."""
    if value is None or isinstance(value, bool):
        return ("simple", value)
    if isinstance(value, int):
        return ("integer", value) if -1 << 63 <= value < 1 << 63 else ("integer", "beyond")
    if isinstance(value, Beyond):
        return ("integer", "beyond")
    if isinstance(value, float):
        return ("real", bits(value))
    if isinstance(value, Date):
        return ("date", bits(value.seconds))
    if isinstance(value, datetime.datetime):
        return ("date", value)
    if isinstance(value, (bytes, bytearray)):
        return ("data", bytes(value).hex())
    if isinstance(value, str):
        return ("string", as_text(value))
    if isinstance(value, plistlib.UID):
        return ("uid", value.data)
    if isinstance(value, Set):
        return ("set", value.size)
    if isinstance(value, list):
        return ("array", [canonical(item) for item in value])
    return ("dictionary", {as_text(key): canonical(item) for key, item in value.items()})


def from_dump(value):
    """What the program printed, in the form of `canonical`."""
    if value is None or isinstance(value, bool):
        return ("simple", value)
    if isinstance(value, list):
        return ("array", [from_dump(item) for item in value])
    (tag, content), = value.items()
    if tag == "dictionary":
        return (tag, {key: from_dump(item) for key, item in content})
    if tag in ("real", "date"):
        return (tag, bits(struct.unpack(">d", bytes.fromhex(content.zfill(16)))[0]))
    if tag in ("integer", "uid", "set") and content != "beyond":
        return (tag, int(content))
    return (tag, content)


def same(ours, theirs):
    if ours[0] != theirs[0]:
        return False
    if ours[0] == "array":
        return len(ours[1]) == len(theirs[1]) and all(map(same, ours[1], theirs[1]))
    if ours[0] == "dictionary":
        return (ours[1].keys() == theirs[1].keys()
                and all(same(ours[1][key], theirs[1][key]) for key in ours[1]))
    if ours[0] == "date" and isinstance(theirs[1], datetime.datetime):
        seconds = struct.unpack(">d", bytes.fromhex(ours[1]))[0]
        return EPOCH + datetime.timedelta(seconds=seconds) == theirs[1]
    return ours[1] == theirs[1]


def dump(program, documents):
    stream = b"".join(struct.pack(">Q", len(raw)) + raw for raw in documents)
    done = subprocess.run([program, "--stream"], input=stream, stdout=subprocess.PIPE, check=True)
    lines = done.stdout.splitlines()
    if len(lines) != len(documents):
        raise SystemExit(f"{len(lines)} lines for {len(documents)} documents")
    return [json.loads(line) for line in lines]


class Generator:
    ALPHABETS = ["abcdefgh XYZ.$", "äöüßéñ", "日本語中文字", "\u200f\u202eשלוםمرحبا", "😀🍜👩\u200d👧🇨🇭",
                 "a\0b", "\ufffe\uffff\U0010fffd"]
    EDGES = [0, 1, 127, 128, 255, 256, 65535, 65536, (1 << 31) - 1, 1 << 31, (1 << 32) - 1, 1 << 32,
             (1 << 63) - 1, 1 << 63, (1 << 64) - 1, -1, -128, -(1 << 31), -(1 << 63)]
    LENGTHS = [0, 1, 2, 5, 14, 15, 16, 40, 255, 256, 300]

    def __init__(self, random_source):
        self.random = random_source
        self.shared = []

    def document(self):
        self.shared = []
        kind = self.random.random()
        value = self.scalar() if kind < 0.05 else self.container(self.random.randint(1, 6))
        if kind > 0.99:
            value = [value] + [str(i) for i in range(self.random.choice([250, 255, 256, 70000]))]
        return value

    def text(self):
        alphabet = "".join(self.random.sample(self.ALPHABETS, self.random.choice([1, 1, 1, 2])))
        return "".join(self.random.choices(alphabet, k=self.random.choice(self.LENGTHS)))

    def scalar(self):
        return self.random.choice([
            self.text, self.text, self.integer, self.real, self.date, self.data, self.uid,
            lambda: self.random.random() < 0.5])()

    def integer(self):
        if self.random.random() < 0.5:
            return self.random.choice(self.EDGES)
        return self.random.randint(-1 << 63, 1 << 63) >> self.random.randint(0, 62)

    def real(self):
        # No -0.0: plistlib writes one object for it and for 0.0, as they compare equal.
        edges = [0.0, math.inf, -math.inf, math.nan, 5e-324, 1.7976931348623157e308, 774e6]
        return self.random.choice(edges + [self.random.uniform(-1e9, 1e9)])

    def date(self):
        return EPOCH + datetime.timedelta(seconds=self.random.randint(-10**10, 10**10))

    def data(self):
        return self.random.randbytes(self.random.choice(self.LENGTHS))

    def uid(self):
        return plistlib.UID(self.random.choice([0, 1, 255, 256, 65536, (1 << 32) - 1]))

    def container(self, depth):
        size = self.random.choice([0, 1, 2, 3, 5, 14, 15, 16, 20])
        if self.random.random() < 0.4:
            made = [self.any(depth - 1) for _ in range(size)]
        else:
            made = {self.text(): self.any(depth - 1) for _ in range(size)}
        self.shared.append(made)
        return made

    def any(self, depth):
        if self.shared and self.random.random() < 0.05:
            return self.random.choice(self.shared)
        return self.container(depth) if depth > 0 and self.random.random() < 0.15 else self.scalar()


def written_size(value):
    """How many values a document has when shared ones are written out."""
    if isinstance(value, list):
        return 1 + sum(map(written_size, value))
    if isinstance(value, dict):
        return 1 + sum(map(written_size, value.values()))
    return 1


def mutant(source, raw):
    raw = bytearray(raw)
    table = struct.unpack(">Q", raw[-8:])[0]
    for _ in range(source.randint(1, MUTATIONS)):
        where = source.random()
        if where < 0.15:
            position = source.randrange(len(raw) - 32, len(raw))
        elif where < 0.4 and table < len(raw) - 32:
            position = source.randrange(table, len(raw) - 32)
        else:
            position = source.randrange(0, table)
        kind = source.random()
        if kind < 0.4:
            raw[position] = source.randrange(256)
        elif kind < 0.7:
            raw[position] ^= 1 << source.randrange(8)
        elif kind < 0.9:
            raw[position] = source.choice([0x00, 0x08, 0x0f, 0x13, 0x14, 0x22, 0x33, 0x50, 0x5f, 0x61,
                                           0x80, 0x83, 0x84, 0xa0, 0xa2, 0xb1, 0xc1, 0xd0, 0xd1, 0xff])
        elif kind < 0.95:
            raw[position:position + 1] = b""
        else:
            raw[position:position] = source.randbytes(1)
        if len(raw) < 48:
            break
    return bytes(raw)


class Judge:
    def __init__(self):
        self.counts = Counter()
        self.reasons = Counter()
        self.differences = []

    def differ(self, kind, raw):
        self.counts["DIFFERENCE: " + kind] += 1
        self.differences.append((kind, raw.hex()))

    def judge_document(self, value, raw, ours):
        self.counts["documents"] += 1
        if ours == "refused":
            self.differ("a document was refused", raw)
        elif ours == "too large":
            self.counts["documents too large to print"] += 1
        else:
            reading = from_dump(ours)
            if not same(reading, canonical(value)):
                self.differ("a document was not read as written", raw)
            if not same(reading, canonical(plistlib.loads(raw, fmt=plistlib.FMT_BINARY))):
                self.differ("a document was not read as plistlib reads it", raw)

    def judge_mutant(self, raw, ours):
        self.counts["mutants"] += 1
        try:
            ruled = Rules(raw).value
        except Refused as reason:
            self.judge_refusal(str(reason), raw, ours)
            return
        self.counts["mutants that have to be accepted"] += 1
        if ours == "refused":
            self.differ("a mutant was refused without a reason", raw)
        elif ours == "too large":
            self.counts["mutants too large to print"] += 1
        else:
            self.judge_reading(from_dump(ours), ruled, raw)

    def judge_refusal(self, reason, raw, ours):
        self.reasons[reason] += 1
        if ours != "refused":
            self.differ("a mutant was accepted in spite of: " + reason, raw)
        if self.plistlib_reading(raw) is not None:
            self.counts["mutants that only plistlib accepts"] += 1

    def judge_reading(self, reading, ruled, raw):
        if not same(reading, canonical(ruled)):
            self.differ("a mutant was not read by the rules", raw)
        theirs = self.plistlib_reading(raw)
        if theirs is None:
            self.counts["mutants that plistlib can't read"] += 1
            return
        self.counts["mutants compared with plistlib"] += 1
        if not same(reading, theirs[0]):
            self.differ("a mutant was not read as plistlib reads it", raw)

    @staticmethod
    def plistlib_reading(raw):
        try:
            return (canonical(plistlib.loads(raw, fmt=plistlib.FMT_BINARY)),)
        except RecursionError:
            return ("loop",)
        except (plistlib.InvalidFileException, TypeError, AttributeError, MemoryError):
            return None

    def report(self):
        for name, count in sorted(self.counts.items()):
            print(f"{count:8} {name}")
        print("reasons to refuse:",
              ", ".join(f"{name} {count}" for name, count in self.reasons.most_common()))
        for kind, digits in self.differences[:5]:
            print(f"{kind}: {digits[:2000]}")


def make_documents(source, count):
    generator = Generator(source)
    made = []
    while len(made) < count:
        value = generator.document()
        if written_size(value) < 100_000:
            made.append((value, plistlib.dumps(value, fmt=plistlib.FMT_BINARY, sort_keys=False)))
    return made


def run(options, falsify=None):
    source = random.Random(options.seed)
    documents = make_documents(source, options.documents)
    small = [raw for _, raw in documents if len(raw) < 4000]
    mutants = [mutant(source, source.choice(small)) for _ in range(options.mutants)]
    outputs = dump(options.dump, [raw for _, raw in documents] + mutants)
    if falsify:
        falsify(outputs, len(documents))
    judge = Judge()
    for (value, raw), ours in zip(documents, outputs):
        judge.judge_document(value, raw, ours)
    for raw, ours in zip(mutants, outputs[len(documents):]):
        judge.judge_mutant(raw, ours)
    return judge


def first_index(outputs, start, wanted):
    return next(i for i in range(start, len(outputs)) if wanted(outputs[i]))


def self_check(options):
    def is_read(output):
        return output not in ("refused", "too large")

    falsifications = {
        "a document read wrongly": lambda out, n: out.__setitem__(
            first_index(out, 0, is_read), {"integer": "-987654321"}),
        "a document refused": lambda out, n: out.__setitem__(0, "refused"),
        "a mutant read wrongly": lambda out, n: out.__setitem__(
            first_index(out, n, is_read), {"integer": "-987654321"}),
        "a mutant refused": lambda out, n: out.__setitem__(
            first_index(out, n, is_read), "refused"),
        "a mutant accepted": lambda out, n: out.__setitem__(
            first_index(out, n, lambda output: output == "refused"), True),
    }
    missed = [name for name, falsify in falsifications.items()
              if not run(options, falsify).differences]
    print("self-check:", "missed " + ", ".join(missed) if missed
          else f"all {len(falsifications)} falsified expectations were noticed")
    return 1 if missed else 0


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("dump")
    parser.add_argument("--documents", type=int, default=3000)
    parser.add_argument("--mutants", type=int, default=40000)
    parser.add_argument("--seed", type=int, default=20010101)
    parser.add_argument("--self-check", action="store_true")
    options = parser.parse_args()
    if options.self_check:
        options.documents, options.mutants = 50, 500
        return self_check(options)
    judge = run(options)
    judge.report()
    return 1 if judge.differences else 0


if __name__ == "__main__":
    sys.exit(main())

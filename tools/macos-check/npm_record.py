"""The record of a recent macOS, from the npm registry: declarations for TypeScript, one a line.

It knows neither versions nor widths of integers, but classes, selectors (joined to one word), whether a
parameter may be nil, and the values of enumerations.
"""

import dataclasses
import re

import fetch

# Later ones don't replace what earlier ones tell.
FILES = ["Runtime", "CoreFoundation", "CoreGraphics", "ApplicationServices", "Foundation", "AppKit",
         "ServiceManagement", "UniformTypeIdentifiers"]

HEAD = re.compile(r"^declare (class|interface) (\w+)(?:<[^{]*?>)?(?: extends (\w+))?(?:<[^{]*?>)?"
                  r"(?: implements ([^{]*))? \{$")
PROPERTY = re.compile(r"^  (static )?(readonly )?([\w$]+)\??: (.*);$")
GETTER = re.compile(r"^  (static )?(get|set) ([\w$]+)\(.*?\)(?:: (.*))?;$")
METHOD = re.compile(r"^  (static )?([\w$]+)\??(<.*?>)?\((.*)\): (.*);$")
FUNCTION = re.compile(r"^declare function ([\w$]+)\((.*)\): (.*);$")
CONSTANT = re.compile(r"^declare const ([\w$]+): (.*);$")
ENUMERATION = re.compile(r"^declare const (\w+): \{$")
MEMBER = re.compile(r"^  ([\w$]+): (-?\d+),$")
BLOCK_FIELD = re.compile(r"^  ([\w$]+): (.*);$")


@dataclasses.dataclass
class Method:
    static: bool
    arguments: list
    result: str


@dataclasses.dataclass
class Property:
    static: bool
    readonly: bool
    type: str


@dataclasses.dataclass
class Class:
    superclass: str = None
    protocols: set = dataclasses.field(default_factory=set)
    methods: dict = dataclasses.field(default_factory=dict)     # (static, name): Method
    properties: dict = dataclasses.field(default_factory=dict)  # (static, name): Property


class Record:
    def __init__(self):
        self.classes, self.functions, self.constants, self.enumerations = {}, {}, {}, {}
        folder = fetch.fetch("@nativescript/macos-node-api") / "package/types"
        for name in FILES:
            self.read((folder / f"{name}.d.ts").read_text(encoding="utf-8"))

    def read(self, text):
        current = None
        for line in text.splitlines():
            if line.startswith("}"):
                current = None
            elif current is not None and line:
                self.read_member(current, line)
            elif line.startswith("declare"):
                current = self.read_head(line)

    def read_head(self, line):
        if match := HEAD.match(line):
            found = self.classes.setdefault(match[2], Class())
            found.superclass = found.superclass or match[3]
            found.protocols |= set(re.findall(r"\w+", match[4] or ""))
            return found
        if match := ENUMERATION.match(line):
            return self.enumerations.setdefault(match[1], {})
        if match := FUNCTION.match(line):
            self.functions.setdefault(match[1], Method(True, arguments_of(match[2]), match[3]))
        elif match := CONSTANT.match(line):
            self.constants.setdefault(match[1], match[2])
        return None

    @staticmethod
    def read_member(current, line):
        if isinstance(current, dict):
            if match := MEMBER.match(line):
                current.setdefault(match[1], int(match[2]))
        elif match := GETTER.match(line):
            add_accessor(current, bool(match[1]), match[2], match[3], match[4])
        elif match := METHOD.match(line):
            key = (bool(match[1]), match[2])
            current.methods.setdefault(key, Method(bool(match[1]), arguments_of(match[4]), match[5]))
        elif match := PROPERTY.match(line):
            key = (bool(match[1]), match[3])
            current.properties.setdefault(key, Property(bool(match[1]), bool(match[2]), match[4]))

    # --- Questions ---

    def ancestry(self, name):
        """The class and those that it inherits from, protocols included, nearest first."""
        waiting, seen = [name], []
        while waiting:
            current = waiting.pop(0)
            if current in self.classes and current not in seen:
                seen.append(current)
                found = self.classes[current]
                waiting += [found.superclass, *sorted(found.protocols)]
        return [self.classes[one] for one in seen]

    def method(self, owner, static, selector):
        name = joined(selector)
        for one in self.ancestry(owner):
            for spelling in (name, f"{name}$"):
                if found := one.methods.get((static, spelling)):
                    return found
        return None

    def property(self, owner, static, name):
        for one in self.ancestry(owner):
            for spelling in (name, f"{name}$"):
                if found := one.properties.get((static, spelling)):
                    return found
        return None


def add_accessor(owner, static, which, name, result):
    """A property whose getter gives another type than its setter takes."""
    found = owner.properties.setdefault((static, name), Property(static, True, result))
    if which == "get":
        found.type = result
    else:
        found.readonly = False


def joined(selector):
    """A selector as the record writes it: openURL:configuration: is openURLConfiguration."""
    first, *others = [part for part in selector.split(":") if part]
    return first + "".join(part[0].upper() + part[1:] for part in others)


def split_outside(text, separator):
    """The parts of a text between separators that stand in no bracket."""
    parts, depth, current = [], 0, ""
    for index, character in enumerate(text):
        if character in "(<{[":
            depth += 1
        elif character in ")}]" or (character == ">" and text[index - 1] != "="):
            depth -= 1
        if depth == 0 and text.startswith(separator, index):
            parts.append(current)
            current = ""
        else:
            current += character
    return [part.strip() for part in [*parts, current] if part.strip()]


def arguments_of(text):
    """Types of the arguments, without that for "this", which only tells whose result it is."""
    pairs = [part.partition(":") for part in split_outside(text, ",")]
    return [type_.strip() for name, _, type_ in pairs if name != "this"]

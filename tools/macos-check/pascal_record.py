"""The record of macOS 10.10 in the sources of Free Pascal: units with one declaration a line.

It knows the exact types in C. What it lacks came later than 10.10.
"""

import dataclasses
import re

import fetch

UNITS = ["CFBase", "CFString", "CFArray", "CFDictionary", "CFNumber", "CFData", "CFDate", "CFURL",
         "CFRunLoop", "CFDateFormatter", "CGBase", "CGGeometry", "CGContext", "CGImage", "CGColorSpace",
         "CGBitmapContext", "AXErrors", "AXUIElement", "MacTypes"]
FOLDERS = ["foundation", "appkit", "servicemanagement"]
# Includes that declare C functions and types of their own.
COMMENT = re.compile(r"\{[^$}][^}]*\}|\(\*.*?\*\)", re.DOTALL)

CLASS = re.compile(r"^\s*(\w+) = (objcclass|objccategory|objcprotocol) (?:external )?"
                   r"(?:name '(\w+)' )?(?:\(([^)]*)\))?")
METHOD = re.compile(r"^\s*(class )?(?:function|procedure) \w+\s*(?:\((.*?)\))?\s*(?::\s*(\w+))?;"
                    r" message '([^']+)'")
FUNCTION = re.compile(r"(?m)^\s*(?:function|procedure) (\w+)\s*(?:\(([^)]*)\))?\s*(?::\s*(\w+))?\s*;"
                      r"(?:\s*cdecl;)?\s*external")
INLINE = re.compile(r"(?m)^\s*(?:function|procedure) (\w+)\s*(?:\(([^)]*)\))?\s*(?::\s*(\w+))?\s*;"
                    r"[^\n]*inline;")
VARIABLE = re.compile(r"(?m)^\s*(?:var )?(\w+): (\w+)\s*; (?:cvar; external|external name)")
ALIAS = re.compile(r"(?m)^\s*(\w+) = (\^?\w+);")
VALUE = re.compile(r"(?m)^\s*(\w+) = ([-$\w(][^;]*);")
CALLBACK = re.compile(r"(?m)^\s*(\w+) = (?:function|procedure)\s*\(([^)]*)\)\s*(?::\s*(\w+))?\s*;")
STRUCT = re.compile(r"(?m)^\s*(\w+) = (?:packed )?record\s*$(.*?)^\s*end;", re.DOTALL)

C_TYPES = {
    "NSInteger": "long", "NSUInteger": "unsigned long", "ObjCBOOL": "bool", "CGFloat": "double",
    "double": "double", "single": "float", "float32": "float", "float64": "double",
    "cint": "int", "cuint": "unsigned int", "clong": "long", "culong": "unsigned long",
    "cslong": "long", "culonglong": "unsigned long long", "clonglong": "long long",
    "cuint64": "unsigned long long", "cint64": "long long", "cushort": "unsigned short",
    "cshort": "short", "cfloat": "float", "cdouble": "double", "cuint32": "unsigned int",
    "unichar": "unsigned short", "unichar_": "unsigned short", "boolean": "unsigned char",
    "sint32": "int", "uint32": "unsigned int", "uint32_t": "unsigned int", "uint16": "unsigned short",
    "size_t": "unsigned long", "pid_t": "int", "sel": "SEL", "id": "id", "instancetype": "id",
    "pobjc_class": "Class", "pointer": "void*", "univptr": "void*", "univcfptr": "void*",
    "pchar": "char*", "pcchar": "char*", "pculong": "unsigned long*",
    "opaquecblock": "block", "unicharptr": "unsigned short*", "cftyperef": "void*",
    # On 64 bits.
    "cfindex": "long", "cftypeid": "unsigned long", "cfhashcode": "unsigned long",
    "cfoptionflags": "unsigned long", "nstimeinterval": "double",
}
C_TYPES = {name.lower(): type_ for name, type_ in C_TYPES.items()}


@dataclasses.dataclass
class Method:
    arguments: list
    result: str


@dataclasses.dataclass
class Class:
    superclass: str = None
    protocols: set = dataclasses.field(default_factory=set)
    methods: dict = dataclasses.field(default_factory=dict)  # (static, selector): Method


class Record:
    def __init__(self):
        self.classes, self.functions, self.variables = {}, {}, {}
        self.aliases, self.values, self.callbacks, self.structs = {}, {}, {}, {}
        root = fetch.fetch("fpc-source-3.2.2") / "usr/share/fpcsrc/3.2.2/packages"
        for folder in FOLDERS:
            for file in sorted((root / "cocoaint/src" / folder).glob("*.inc")):
                self.read(file)
        for unit in UNITS:
            self.read(root / f"univint/src/{unit}.pas")

    def read(self, file):
        text = COMMENT.sub(" ", file.read_text(encoding="latin-1"))
        self.read_classes(text)
        for name, arguments, result in [*FUNCTION.findall(text), *INLINE.findall(text)]:
            self.functions.setdefault(name, Method(arguments_of(arguments), result or "void"))
        for name, arguments, result in CALLBACK.findall(text):
            self.callbacks.setdefault(name, Method(arguments_of(arguments), result or "void"))
        self.variables.update(VARIABLE.findall(text))
        for name, type_ in ALIAS.findall(text):
            self.aliases.setdefault(name.lower(), type_)
        for name, value in VALUE.findall(text):
            self.values.setdefault(name, value)
        for name, fields in STRUCT.findall(text):
            self.structs.setdefault(name.lower(), arguments_of(fields.replace("\n", " ")))

    def read_classes(self, text):
        current = None
        for line in text.splitlines():
            if match := CLASS.match(line):
                current = self.class_of(match)
            elif current is not None and (match := METHOD.match(line)):
                method = Method(arguments_of(match[2] or ""), match[3] or "void")
                current.methods.setdefault((bool(match[1]), match[4]), method)

    def class_of(self, match):
        name, kind, real, bases = match.groups()
        bases = re.findall(r"\w+", bases or "")
        if kind == "objccategory":
            return self.classes.setdefault(bases[0], Class())
        if kind == "objcprotocol":
            name = f"{real or name.removesuffix('Protocol')} protocol"
        found = self.classes.setdefault(name, Class())
        if kind == "objcclass" and bases:
            found.superclass = bases[0]
        found.protocols |= {base.removesuffix("Protocol") for base in bases
                            if base.endswith("Protocol")}
        return found

    # --- Questions ---

    def ancestry(self, name):
        """The class and those that it inherits from, nearest first."""
        waiting, seen = [name], []
        while waiting:
            current = waiting.pop(0)
            if current in self.classes and current not in seen:
                seen.append(current)
                found = self.classes[current]
                waiting += [found.superclass, *(f"{one} protocol" for one in sorted(found.protocols))]
        return [self.classes[one] for one in seen]

    def method(self, owner, static, selector):
        for one in self.ancestry(owner):
            if found := one.methods.get((static, selector)):
                return found
        return None

    def c_type(self, name):
        """A type of Pascal as C has it: "long", "NSString*", "id", "block", "struct CGRect"."""
        pointers = ""
        if match := re.match(r"array\[0\.\.(\d+)\] of (\w+)$", name):
            return f"{self.c_type(match[2])}[{int(match[1]) + 1}]"
        for _ in range(20):
            if name.startswith("^"):
                name, pointers = name[1:], pointers + "*"
            known = C_TYPES.get(name.lower())
            if known:
                return known + pointers
            if name in self.classes:
                return f"{name}*{pointers}"
            if name.endswith("Protocol") and f"{name.removesuffix('Protocol')} protocol" in self.classes:
                return "id" + pointers
            if name.lower().endswith("ptr") and name.lower() not in self.aliases:
                name, pointers = name[:-3], pointers + "*"
                continue
            if name.lower() in self.aliases:
                name = self.aliases[name.lower()]
                continue
            return name + pointers
        return name + pointers

    def value(self, name, depth=0):
        """The number behind a constant's name; nothing where it isn't one."""
        if name not in self.values or depth > 8:
            return None
        text = re.sub(r"\$([0-9A-Fa-f]+)", r"0x\1", self.values[name])
        words = re.findall(r"0x[0-9A-Fa-f]+|\d+\.\d+|\w+|[-+*()]", text)
        if "".join(words) != re.sub(r"\s", "", text):
            return None
        operators = {"shl": "<<", "shr": ">>", "or": "|", "and": "&", "not": "~"}
        parts = []
        for word in words:
            if word.lower() in operators:
                parts.append(operators[word.lower()])
            elif re.match(r"[A-Za-z_]", word):
                if word.lower() in C_TYPES:
                    continue
                inner = self.value(word, depth + 1)
                if inner is None:
                    return None
                parts.append(f"({inner})")
            else:
                parts.append(word)
        try:
            return eval(" ".join(parts), {"__builtins__": {}})  # numbers and operators alone
        except (SyntaxError, TypeError):
            return None


def arguments_of(text):
    """The types of "a, b: T; var c: U", the last one as a pointer to it: ["T", "T", "^U"]."""
    found = []
    for part in filter(None, (one.strip() for one in text.split(";"))):
        match = re.match(r"(var |const |constref |out )?\s*([\w, ]+?)\s*:\s*(.+)$", part)
        if match:
            pointer = "^" if (match[1] or "").strip() in ("var", "out") else ""
            found += [pointer + match[3].strip()] * len(match[2].split(","))
    return found

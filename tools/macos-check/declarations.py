"""The declarations of our own headers, as the compiler understands them."""

import dataclasses
import json
import pathlib
import re
import subprocess

import target

FRAMEWORKS = ["CoreFoundation", "CoreGraphics", "ApplicationServices", "Foundation", "AppKit",
              "ServiceManagement", "UniformTypeIdentifiers", "Sparkle"]


@dataclasses.dataclass(frozen=True)
class Type:
    """As written and as it is after all names of types are resolved, without ownership."""
    written: str
    resolved: str
    nullable: bool = False

    def __str__(self):
        return self.written


@dataclasses.dataclass
class Declaration:
    name: str
    place: str              # "AppKit/AppKit.h:120"
    framework: str
    since: tuple = None     # of its own mark of availability: (11, 0)


@dataclasses.dataclass
class Method(Declaration):
    owner: str = ""
    instance: bool = True
    implicit: bool = False  # of a property
    result: Type = None
    arguments: list = dataclasses.field(default_factory=list)

    def __str__(self):
        return f"{'-' if self.instance else '+'}[{self.owner} {self.name}]"


@dataclasses.dataclass
class Property(Declaration):
    owner: str = ""
    instance: bool = True
    readonly: bool = False
    getter: str = ""
    type: Type = None

    def __str__(self):
        return f"{self.owner}.{self.name}"


@dataclasses.dataclass
class Class(Declaration):
    protocol: bool = False
    superclass: str = None
    protocols: set = dataclasses.field(default_factory=set)
    methods: list = dataclasses.field(default_factory=list)
    properties: list = dataclasses.field(default_factory=list)

    def __str__(self):
        return self.name


@dataclasses.dataclass
class Function(Declaration):
    result: Type = None
    arguments: list = dataclasses.field(default_factory=list)
    inline: bool = False

    def __str__(self):
        return f"{self.name}()"


@dataclasses.dataclass
class Variable(Declaration):
    type: Type = None
    value: str = None       # of a constant of the header's own

    def __str__(self):
        return self.name


@dataclasses.dataclass
class Enumeration(Declaration):
    underlying: str = ""
    members: list = dataclasses.field(default_factory=list)  # of Member

    def __str__(self):
        return f"enum {self.name}"


@dataclasses.dataclass
class Member(Declaration):
    value: int = 0

    def __str__(self):
        return self.name


@dataclasses.dataclass
class Record(Declaration):
    fields: list = dataclasses.field(default_factory=list)  # of (name, Type)

    def __str__(self):
        return f"struct {self.name}"


@dataclasses.dataclass
class Callback(Declaration):
    type: Type = None

    def __str__(self):
        return self.name


@dataclasses.dataclass
class Declarations:
    classes: dict = dataclasses.field(default_factory=dict)
    functions: list = dataclasses.field(default_factory=list)
    variables: list = dataclasses.field(default_factory=list)
    enumerations: list = dataclasses.field(default_factory=list)
    records: list = dataclasses.field(default_factory=list)
    callbacks: list = dataclasses.field(default_factory=list)
    typedefs: dict = dataclasses.field(default_factory=dict)  # name: what it is in the end


# --- Reading --------------------------------------------------------------------------------------

NULLABILITY = re.compile(r"\b(_Nonnull|_Nullable|_Null_unspecified|__strong|__weak|__kindof"
                         r"|__unsafe_unretained|__autoreleasing)\b")


def plain(text):
    text = NULLABILITY.sub("", text)
    text = re.sub(r"\s+", " ", text).strip()
    return re.sub(r" (?=[*),\]])", "", text).replace("( ", "(")


def type_of(node):
    written = node.get("qualType", "")
    marks = re.sub(r"\b(__strong|__weak|const)\b", "", written).rstrip()
    resolved = written if re.match(r"(const )?SEL\b", written) else node.get("desugaredQualType", written)
    return Type(plain(written), plain(resolved),
                nullable=marks.endswith("_Nullable") or "(^ _Nullable" in written)


def result_of_function(node):
    """The written type before the arguments, which stand in the last brackets."""
    text = node["type"]["qualType"].removesuffix(" noexcept")
    depth = 0
    for index in range(len(text) - 1, 0, -1):
        depth += {")": 1, "(": -1}.get(text[index], 0)
        if depth == 0:
            return type_of({"qualType": text[:index]})
    return type_of({"qualType": text})


class Body:
    """What is declared inside a function is nobody else's business."""
    since = None


class Reader:
    """Walks what the compiler tells. It names a file only where that changes, and the versions of
    availability only in its other form of telling, in the same order."""

    def __init__(self, folder, versions):
        self.folder, self.versions = folder, iter(versions)
        self.file = self.line = None
        self.found = Declarations()

    def follow(self, value):
        """Keeps the current file and line while everything in a node passes in order."""
        if isinstance(value, dict):
            if "offset" in value and "tokLen" in value:
                self.file = value.get("file", self.file)
                self.line = value.get("line", self.line)
            for key, part in value.items():
                if key not in ("inner", "includedFrom"):
                    self.follow(part)

    def place(self):
        try:
            return pathlib.Path(self.file).relative_to(self.folder)
        except (ValueError, TypeError):
            return None

    def walk(self, node, owner=None):
        kind = node.get("kind")
        if kind == "AvailabilityAttr":
            version = next(self.versions)
            if owner is not None:
                owner.since = version
        location = node.get("loc", {})
        self.follow(location)
        # A name that a macro wrote has its place of use last.
        file, line = self.place(), self.line
        self.follow({key: value for key, value in node.items() if key != "loc"})
        if kind == "TypedefDecl":
            self.found.typedefs[node["name"]] = type_of(node["type"]).resolved
        made = self.declare(node, kind, owner, file, line) if file else None
        inside = made if made is not None else Body() if kind == "CompoundStmt" else None
        for part in node.get("inner", []):
            self.walk(part, owner if isinstance(owner, Body) else inside)
        if isinstance(made, Enumeration):
            self.count_members(made, node)
        return made

    def declare(self, node, kind, owner, file, line):
        place = {"place": f"{file}:{line}", "framework": file.parts[0]}
        read = getattr(self, f"read_{kind}", None)
        if isinstance(owner, Body):
            return None
        return read(node, owner, place) if read else None

    def class_named(self, name, place, protocol):
        key = f"{name} protocol" if protocol else name
        if key not in self.found.classes:
            self.found.classes[key] = Class(name, protocol=protocol, **place)
        return self.found.classes[key]

    def read_ObjCInterfaceDecl(self, node, _, place):
        made = self.class_named(node["name"], place, protocol=False)
        made.superclass = node.get("super", {}).get("name", made.superclass)
        made.protocols |= {one["name"] for one in node.get("protocols", [])}
        return made

    def read_ObjCProtocolDecl(self, node, _, place):
        made = self.class_named(node["name"], place, protocol=True)
        made.protocols |= {one["name"] for one in node.get("protocols", [])}
        return made

    def read_ObjCCategoryDecl(self, node, _, place):
        return self.class_named(node["interface"]["name"], place, protocol=False)

    def read_ObjCMethodDecl(self, node, owner, place):
        made = Method(node["name"], owner=owner.name, instance=node["instance"],
                      implicit=node.get("isImplicit", False), result=type_of(node["returnType"]),
                      **place)
        owner.methods.append(made)
        return made

    def read_ObjCPropertyDecl(self, node, owner, place):
        made = Property(node["name"], owner=owner.name, instance=not node.get("class", False),
                        readonly=node.get("readonly", False), type=type_of(node["type"]),
                        getter=node.get("getter", {}).get("name", node["name"]), **place)
        owner.properties.append(made)
        return made

    def read_ParmVarDecl(self, node, owner, _):
        if isinstance(owner, (Method, Function)):
            owner.arguments.append(type_of(node["type"]))

    def read_FunctionDecl(self, node, _, place):
        made = Function(node["name"], result=result_of_function(node),
                        inline=node.get("inline", False), **place)
        self.found.functions.append(made)
        return made

    def read_VarDecl(self, node, _, place):
        made = Variable(node["name"], type=type_of(node["type"]), **place)
        if "init" in node:
            made.value = constant_in(node)
        self.found.variables.append(made)
        return made

    def read_EnumDecl(self, node, _, place):
        if not any(one["kind"] == "EnumConstantDecl" for one in node.get("inner", [])):  # announced
            return None
        made = Enumeration(node.get("name", ""), **place,
                           underlying=type_of(node.get("fixedUnderlyingType", {})).resolved)
        self.found.enumerations.append(made)
        return made

    def read_EnumConstantDecl(self, node, owner, place):
        made = Member(node["name"], **place)
        owner.members.append(made)
        return made

    def read_CXXRecordDecl(self, node, _, place):
        if not node.get("completeDefinition") or node.get("isImplicit"):
            return None
        made = Record(node.get("name", ""), **place)
        self.found.records.append(made)
        return made

    def read_FieldDecl(self, node, owner, _):
        owner.fields.append((node["name"], type_of(node["type"])))

    def read_TypedefDecl(self, node, _, place):
        type_ = type_of(node["type"])
        for record in self.found.records[-1:]:
            record.name = record.name or node["name"]
        if "(*)" in type_.resolved:
            self.found.callbacks.append(Callback(node["name"], type=type_, **place))

    def count_members(self, enumeration, node):
        value = -1
        constants = [one for one in node.get("inner", []) if one["kind"] == "EnumConstantDecl"]
        for member, told in zip(enumeration.members, constants):
            given = constant_in(told)
            value = int(given) if given is not None else value + 1
            member.value = value


def constant_in(node):
    """The value that the compiler has worked out for a constant; nothing without one."""
    for part in node.get("inner", []):
        if part.get("kind") in ("ConstantExpr", "FloatingLiteral", "IntegerLiteral"):
            return part.get("value")
        if part.get("kind") in ("UnaryOperator", "ImplicitCastExpr"):
            value = constant_in(part)
            minus = part.get("opcode") == "-"
            return f"-{value}" if minus and value is not None else value
    return None


# --- The compiler ---------------------------------------------------------------------------------

AVAILABILITY = re.compile(r"AvailabilityAttr .*> (?:Inherited )?(?:Implicit )?(\w+) ([\d.]+) ")


def dump(form, source, flags):
    command = [target.program(target.COMPILER), *flags, "-std=c++20", "-fobjc-arc", "-fsyntax-only",
               "-x", "objective-c++", "-Xclang", f"-ast-dump{form}", "-fno-color-diagnostics", "-"]
    done = subprocess.run(command, input=source, capture_output=True, text=True, encoding="utf-8")
    if done.returncode != 0:
        raise SystemExit(f"the declarations don't compile:\n{done.stderr}")
    return done.stdout


def version_of(match):
    system, version = match
    return tuple(map(int, version.split("."))) if system == "macos" else None


def read(folder=target.HERE / "declarations", frameworks=FRAMEWORKS):
    """All declarations of the headers in the folder."""
    flags = target.system_flags(declarations=folder)
    source = "".join(f"#import <{name}/{name}.h>\n" for name in frameworks
                     if (folder / name / f"{name}.h").exists())
    versions = [version_of(match) for match in AVAILABILITY.findall(dump("", source, flags))]
    reader = Reader(folder, versions)
    reader.walk(json.loads(dump("=json", source, flags)))
    if next(reader.versions, "none") != "none":
        raise SystemExit("the compiler told of more marks of availability than were read")
    return name_flags(reader)


def name_flags(reader):
    """Flags in C++ are enumerations without a name, behind a name for their integer."""
    found = reader.found
    for enumeration in found.enumerations:
        if not enumeration.name:
            file, line = enumeration.place.rsplit(":", 1)
            text = (reader.folder / file).read_text().splitlines()[int(line) - 1]
            match = re.search(r"_OPTIONS\([\w ]+, (\w+)\)", text)
            enumeration.name = match[1] if match else ""
    return found

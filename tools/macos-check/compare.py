"""Compares our declarations with two public records of the system's interfaces.

The newer one (npm_record) has to know all of them, with the same kinds of arguments. The older one
(pascal_record) is macOS 10.10: what it knows has to agree in C's exact types; what it lacks came later,
so our declaration has to say when, and not later than the oldest system that the program runs on.
"""

import re

import npm_record
import pascal_record
import target

OLDEST = tuple(map(int, target.OLDEST_SYSTEM.split(".")))
RECORDED = (10, 10)

# What changed its type after macOS 14, so that the newer record has it otherwise.
CHANGED_AFTER = {
    "CGBitmapContextCreate() 7": "interop.Enum<typeof CGBitmapInfo>",
}

# What changed its exact type after 10.10, with the type that it had then.
CHANGED_SINCE = {
    "-[NSControl sendActionOn:] 1": "NSInteger",
    "enum CGImageAlphaInfo": "int",
}

# Where the older record is wrong: it adds flags that overlap.
OLDER_RECORD_ERRS = {"NSActivityUserInitiated", "NSActivityUserInitiatedAllowingIdleSystemSleep"}

# What has its body in the system's headers, so that no library and no record has it.
INLINE = {"CFRangeMake", "CGRectMake", "CGSizeMake", "CGPointMake", "NSMakeSize", "NSMakeRect",
          "NSMakePoint", "NSMakeRange"}

# Names for types that the compiler brings, whose own names for them are of no interest.
BUILT_IN = {"id", "Class", "SEL", "instancetype"}
# The parameters of our generic classes, which at run time are objects of any class.
GENERIC = re.compile(r"\b(ObjectType|KeyType)\b(<\w+>)?")


def without_const(text):
    return re.sub(r"\s+(?=[*\[])", "", re.sub(r"\bconst\b ?", "", text)).strip()


class Comparison:
    def __init__(self, declarations, newer=None, older=None):
        self.ours = declarations
        self.newer = newer or npm_record.Record()
        self.older = older or pascal_record.Record()
        self.enumerations = {one.name: one for one in declarations.enumerations}
        self.complaints = []

    def complain(self, declaration, text):
        self.complaints.append(f"{declaration.place}: {declaration}: {text}")

    # --- Types ------------------------------------------------------------------------------------

    def resolved(self, type_):
        """The type with all names resolved, to that of its integer for an enumeration."""
        text = without_const(re.sub(r"\b(struct|enum) ", "", GENERIC.sub("id", type_.resolved)))
        for _ in range(10):
            match = re.match(r"([\w ]+?)\s*((?:\*|\[\d*\])*)$", text)
            if not match or match[1] in BUILT_IN:
                break
            name, stars = match.groups()
            if name in self.enumerations and self.enumerations[name].underlying:
                text = self.enumerations[name].underlying + stars
            elif self.ours.typedefs.get(name, name) != name:
                text = without_const(self.ours.typedefs[name]) + stars
            else:
                break
        return re.sub(r"\b(struct|enum) ", "", text)

    def is_object(self, text):
        return text == "id" or text.startswith("id<") or bool(
            re.match(r"\w+(<.*>)?\*$", text) and re.match(r"\w+", text)[0] in self.ours.classes)

    # --- The newer record -------------------------------------------------------------------------

    def agrees_with_newer(self, type_, recorded):
        """Whether one of our types is of the kind that the newer record tells."""
        recorded = re.sub(r" \| null$", "", recorded)
        ours = self.resolved(type_)
        if enumeration := re.match(r"interop\.Enum<typeof (\w+)>$", recorded):
            name = without_const(type_.written)
            return name == enumeration[1] or self.is_alias_of(name, enumeration[1])
        if ours == "void" or recorded == "void":
            return ours == recorded
        if ours == "bool":
            return recorded == "boolean"
        if "(^)" in ours:
            return self.block_agrees(ours, recorded)
        if "(*)" in ours:
            return "=>" in recorded
        if re.match(r"(unsigned |signed )?(char|short|int|long|long long)$|float$|double$", ours):
            return recorded == "number"
        if ours == "SEL":
            return recorded == "string"
        if self.is_object(ours) or ours in ("Class", "instancetype"):
            return self.object_agrees(type_, ours, recorded)
        if ours.endswith(("*", "]")):
            return recorded in ("interop.PointerConvertible", "interop.Pointer", "interop.Object",
                                "string", "unknown /* const array */")
        return ours == recorded or ours == recorded.lstrip("_")

    def is_alias_of(self, name, other):
        return without_const(self.ours.typedefs.get(name, "")) == other

    def object_agrees(self, type_, ours, recorded):
        if type_.written.startswith("instancetype"):
            return recorded in ("this", "InstanceType<This>") or re.match(r"\w+$", recorded)
        first = npm_record.split_outside(recorded, "|")[0]
        name = re.match(r"\w+", ours)[0]
        if name in ("NSString", "NSMutableString") and first == "string":
            return True
        if name == "id" and first in ("ObjectType", "KeyType"):
            return True
        if name == "id":
            protocols = re.findall(r"\w+", ours)[1:]
            return first in ("interop.Object", *protocols) or (
                protocols == ["NSObject"] and first == "NSObjectProtocol")
        return re.match(r"[\w.]+", first)[0] == name or (name == "Class" and first == "interop.Object")

    def block_agrees(self, ours, recorded):
        match = re.match(r"\((.*)\) => (.*)$", recorded)
        inner = re.match(r"(.*?)\(\^\)\((.*)\)$", ours)
        if not match or not inner:
            return False
        arguments = [one for one in npm_record.split_outside(inner[2], ",") if one != "void"]
        told = npm_record.arguments_of(match[1])
        return (len(arguments) == len(told) and self.plain_agrees(inner[1].strip(), match[2])
                and all(map(self.plain_agrees, arguments, told)))

    def plain_agrees(self, ours, recorded):
        return self.agrees_with_newer(PlainType(ours), recorded)

    def nil_agrees(self, type_, recorded):
        """Whether a parameter may be nil; the record knows that of objects and blocks alone."""
        ours = self.resolved(type_)
        if not (self.is_object(ours) or "(^)" in ours):
            return True
        if type_.written.startswith("id") and not recorded.endswith("| null"):
            return not type_.nullable
        return recorded.endswith("| null") == type_.nullable

    def compare_call(self, declaration, recorded, strict_nil=True):
        """Arguments and result of a method or function with the newer record."""
        if len(recorded.arguments) != len(declaration.arguments):
            self.complain(declaration, f"takes {len(recorded.arguments)} argument(s)")
            return
        for number, (ours, told) in enumerate(zip(declaration.arguments, recorded.arguments), 1):
            if CHANGED_AFTER.get(f"{declaration} {number}") == told:
                continue
            if not self.agrees_with_newer(ours, told):
                self.complain(declaration, f"argument {number} is {told}, not {ours}")
            elif strict_nil and not self.nil_agrees(ours, told):
                can = "may" if told.endswith("| null") else "may not"
                self.complain(declaration, f"argument {number} {can} be nil")
        if not self.agrees_with_newer(declaration.result, recorded.result):
            self.complain(declaration, f"gives {recorded.result}, not {declaration.result}")

    # --- The older record -------------------------------------------------------------------------

    def agrees_with_older(self, type_, recorded):
        ours, told = self.resolved(type_), self.older.c_type(recorded)
        if "(^)" in ours:
            return told == "block"
        if self.is_object(ours):
            name = re.sub(r"<.*>", "", ours)
            return told.startswith("id") or name.startswith("id") or told == name
        if ours.endswith(("*", "]", ")")):
            if "(*)" in ours or told in self.older.callbacks:
                return type_.written == told
            told = re.sub(r"^Opaque(\w+?)Ref\b", r"\1", told)
            return told == ours or told.endswith("*") and (
                "void*" in (told, ours) or told.rstrip("*") in ("void", ours.rstrip("*").strip())
                or ours.startswith("__CF") or self.same_object_pointer(ours, told))
        return ours == told or (ours.lstrip("_") == told.lstrip("_"))

    def same_object_pointer(self, ours, told):
        return ours.count("*") == told.count("*") and ours.rstrip("*") == told.rstrip("*")

    def compare_exactly(self, declaration, recorded):
        name = str(declaration)
        for number, (ours, told) in enumerate(zip(declaration.arguments, recorded.arguments), 1):
            if not self.agrees_with_older(ours, told) and CHANGED_SINCE.get(f"{name} {number}") != told:
                self.complain(declaration, f"argument {number} was {told} ({self.older.c_type(told)}) "
                                           f"in 10.10, not {ours} ({self.resolved(ours)})")
        if len(declaration.arguments) != len(recorded.arguments):
            self.complain(declaration, f"took {len(recorded.arguments)} argument(s) in 10.10")
        told = recorded.result
        if not self.agrees_with_older(declaration.result, told) and CHANGED_SINCE.get(name) != told:
            self.complain(declaration, f"gave {told} ({self.older.c_type(told)}) in 10.10, not "
                                       f"{declaration.result} ({self.resolved(declaration.result)})")

    def check_age(self, declaration, recorded, owner=None):
        """The mark of availability, of its own or of what it is declared in."""
        since = declaration.since or (owner.since if owner else None)
        if since and since > OLDEST:
            self.complain(declaration, f"came with macOS {text_of(since)}; the program runs on "
                                       f"{target.OLDEST_SYSTEM}")
        known = recorded is not None
        if not known and not since:
            self.complain(declaration, "came after macOS 10.10: API_AVAILABLE has to tell when")
        elif known and since and since > RECORDED:
            self.complain(declaration, f"was there before macOS {text_of(since)}")

    # --- Kinds of declarations --------------------------------------------------------------------

    def compare(self):
        for one in self.ours.classes.values():
            if one.framework != "Sparkle":
                self.compare_class(one)
        for one in self.ours.functions:
            self.compare_function(one)
        for one in self.ours.variables:
            self.compare_variable(one)
        for one in self.ours.enumerations:
            self.compare_enumeration(one)
        for one in self.ours.records:
            self.compare_record(one)
        for one in self.ours.callbacks:
            self.compare_callback(one)
        return self.complaints

    def compare_class(self, one):
        key = f"{one.name} protocol" if one.protocol else one.name
        if one.name not in self.newer.classes:
            self.complain(one, "no such class or protocol is known")
            return
        self.check_age(one, self.older.classes.get(key))
        if not one.protocol:
            self.compare_ancestors(one)
        for method in one.methods:
            self.compare_method(one, key, method)
        for property_ in one.properties:
            self.compare_property(one, property_)

    def compare_ancestors(self, one):
        ancestry = self.newer.ancestry(one.name)
        supers = {found.superclass for found in ancestry}
        if one.superclass and one.superclass not in supers:
            self.complain(one, f"does not inherit from {one.superclass}")
        for protocol in one.protocols - {"NSObject"}:
            if not any(protocol in found.protocols for found in ancestry):
                self.complain(one, f"does not adopt {protocol}")

    def compare_method(self, owner, key, method):
        static = not method.instance
        recorded = self.older.method(key, static, method.name)
        if not method.implicit:
            newer = self.newer.method(owner.name, static, method.name)
            if newer is None:
                newer = self.getter_or_setter(owner, static, method)
            if newer is None:
                other = self.newer.method(owner.name, not static, method.name)
                self.complain(method, "is a method of the class" if other and method.instance else
                              "is a method of an instance" if other else "no such method is known")
                return
            self.compare_call(method, newer)
            self.check_age(method, recorded, owner)
        if recorded is not None:
            self.compare_exactly(method, recorded)

    def getter_or_setter(self, owner, static, method):
        """A property of the record as the method that we declare in its place."""
        found = self.newer.property(owner.name, static, method.name)
        if found and not method.arguments:
            return npm_record.Method(static, [], found.type)
        name = re.match(r"set([A-Z])(\w*):$", method.name)
        found = name and self.newer.property(owner.name, static, name[1].lower() + name[2])
        return npm_record.Method(static, [found.type], "void") if found and not found.readonly else None

    def compare_property(self, owner, property_):
        static = not property_.instance
        newer = self.newer.property(owner.name, static, property_.name)
        if newer is None:
            other = self.newer.property(owner.name, not static, property_.name)
            self.complain(property_, "is a property of the other kind, class or instance" if other
                          else "no such property is known")
            return
        if newer.readonly and not property_.readonly:
            self.complain(property_, "can only be read")
        if not self.agrees_with_newer(property_.type, newer.type):
            self.complain(property_, f"is {newer.type}, not {property_.type}")
        if property_.getter != property_.name and not self.newer.method(owner.name, static,
                                                                        property_.getter):
            self.complain(property_, f"has no getter {property_.getter}")
        key = f"{owner.name} protocol" if owner.protocol else owner.name
        recorded = self.older.method(key, static, property_.getter)
        self.check_age(property_, recorded, owner)

    def compare_function(self, one):
        if one.inline and one.name in INLINE:
            return
        newer, older = self.newer.functions.get(one.name), self.older.functions.get(one.name)
        if newer is None and older is None:
            self.complain(one, "no such function is known")
            return
        if newer is not None:
            self.compare_call(one, newer, strict_nil=False)
        self.check_age(one, older)
        if older is not None:
            self.compare_exactly(one, older)

    def compare_variable(self, one):
        newer, older = self.newer.constants.get(one.name), self.older.variables.get(one.name)
        value = self.older.value(one.name)
        if newer is None and older is None and value is None:
            self.complain(one, "no such constant is known")
            return
        if newer is not None and not self.agrees_with_newer(one.type, newer):
            self.complain(one, f"is {newer}, not {one.type}")
        if older is not None and not self.agrees_with_older(one.type, older):
            self.complain(one, f"was {older} in 10.10, not {one.type}")
        if one.value is not None and value is not None and float(one.value) != float(value):
            self.complain(one, f"is {value}, not {one.value}")
        self.check_age(one, older if older is not None else value)

    def compare_enumeration(self, one):
        newer = self.newer.enumerations.get(one.name)
        if newer is None:
            self.complain(one, "no such enumeration is known")
            return
        if one.name.lower() in self.older.aliases:
            told = self.older.c_type(one.name)
            if told != one.underlying and CHANGED_SINCE.get(str(one)) != told:
                self.complain(one, f"was {told} in 10.10, not {one.underlying}")
        for member in one.members:
            self.compare_member(one, member, newer)

    def compare_member(self, owner, member, newer):
        names = sorted((name for name in newer if name in member.name), key=len)
        if not names:
            self.complain(member, f"{owner.name} has no such value")
            return
        told, recorded = newer[names[-1]], self.older.value(member.name)
        if member.value not in (told, told % 2 ** 64):
            self.complain(member, f"is {told}, not {member.value}")
        if member.name not in OLDER_RECORD_ERRS and recorded not in (None, member.value):
            self.complain(member, f"was {recorded} in 10.10, not {member.value}")
        self.check_age(member, recorded, owner)

    def compare_record(self, one):
        newer = self.newer.classes.get(one.name)
        if newer is None:
            self.complain(one, "no such structure is known")
            return
        told = [(name, found.type) for (_, name), found in newer.properties.items()]
        if [name for name, _ in told] != [name for name, _ in one.fields]:
            self.complain(one, f"has the fields {', '.join(name for name, _ in told)}")
            return
        for (name, type_), (_, recorded) in zip(one.fields, told):
            if not self.agrees_with_newer(type_, recorded):
                self.complain(one, f"{name} is {recorded}, not {type_}")
        older = self.older.structs.get(one.name.lower().lstrip("_"), [])
        for (name, type_), recorded in zip(one.fields, older):
            if not self.agrees_with_older(type_, recorded):
                self.complain(one, f"{name} was {recorded} in 10.10, not {type_}")

    def compare_callback(self, one):
        recorded = self.older.callbacks.get(one.name)
        if recorded is None:
            self.complain(one, "no such callback is known")
            return
        result, arguments = re.match(r"(.*?)\s*\(\*\)\((.*)\)$", one.type.resolved).groups()
        types = [PlainType(text) for text in npm_record.split_outside(arguments, ",")]
        agree = (len(types) == len(recorded.arguments)
                 and all(map(self.agrees_with_older, types, recorded.arguments))
                 and self.agrees_with_older(PlainType(result), recorded.result))
        if not agree:
            self.complain(one, f"takes {', '.join(recorded.arguments)} and gives {recorded.result}")


class PlainType:
    """A type that stands inside another, of which only the text is known."""
    nullable = False

    def __init__(self, text):
        self.written = self.resolved = text

    def __str__(self):
        return self.written


def text_of(version):
    return ".".join(map(str, version))

"""Compares what we declare of Sparkle with the framework's own headers."""

import re
import tarfile

import fetch

METHOD = re.compile(r"^([-+]) ?\((.*?)\) ?((?:[^;{])+);", re.MULTILINE)
PART = re.compile(r"(\w+):\((.*?)\) ?\w+(?= |$)")
HEADER = re.compile(r"/Versions/B/Headers/\w+\.h$")
MARKS = re.compile(r"\b(nullable|nonnull|_Nullable|_Nonnull|__kindof|IBAction|NS_\w+|__strong)\b")


def plain(type_):
    text = re.sub(r"\s+", " ", MARKS.sub(lambda mark: "void" if mark[0] == "IBAction" else "", type_))
    return re.sub(r" (?=[*>])", "", text).strip()


def methods_in(text):
    """sign and selector: types of result and arguments, of the methods that a header declares"""
    found = {}
    for sign, result, rest in METHOD.findall(re.sub(r"/\*.*?\*/|//[^\n]*", "", text, flags=re.DOTALL)):
        parts = PART.findall(re.sub(r"\s+", " ", rest))
        selector = "".join(f"{name}:" for name, _ in parts) or rest.split()[0]
        found[sign + selector] = [plain(result), *(plain(type_) for _, type_ in parts)]
    return found


def headers():
    """name: text of each header"""
    archive = fetch.fetch("electron-sparkle-updater") / "package/native/sparkle-chain.tar.xz"
    with tarfile.open(archive) as members:
        return {member.name.rpartition("/")[2]: members.extractfile(member).read().decode()
                for member in members if HEADER.search(member.name)}


def compare(declarations):
    found, complaints = headers(), []
    for one in declarations.classes.values():
        if one.framework != "Sparkle":
            continue
        text = found.get(f"{one.name}.h", "")
        word = "protocol" if one.protocol else "interface"
        if not re.search(rf"@{word} {one.name}\b", text):
            complaints.append(f"{one.place}: {one}: Sparkle has no such {word}")
            continue
        recorded = methods_in(text)
        for method in one.methods:
            told = recorded.get(("-" if method.instance else "+") + method.name)
            ours = [plain(type_.written) for type_ in (method.result, *method.arguments)]
            if told is None:
                complaints.append(f"{method.place}: {method}: Sparkle has no such method")
            elif told != ours and [told[0], ours[0]] != ["instancetype", "instancetype"]:
                complaints.append(f"{method.place}: {method}: is {', '.join(told)} in Sparkle")
            elif told[1:] != ours[1:]:
                complaints.append(f"{method.place}: {method}: takes {', '.join(told[1:])} in Sparkle")
    return complaints

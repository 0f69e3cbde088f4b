#!/usr/bin/env python3
"""The check of the macOS side finds planted mistakes, each in an otherwise clean sample."""

import contextlib
import pathlib
import plistlib
import shutil
import subprocess
import sys
import tempfile
import unittest
from unittest import mock

HERE = pathlib.Path(__file__).resolve().parent
TOOLS = HERE.parent.parent / "tools/macos-check"
sys.path.insert(0, str(TOOLS))

import analyse  # noqa: E402
import build  # noqa: E402
import compare  # noqa: E402
import declarations  # noqa: E402
import fetch  # noqa: E402
import names  # noqa: E402
import npm_record  # noqa: E402
import pascal_record  # noqa: E402
import ports  # noqa: E402
import sparkle_record  # noqa: E402
import stubs  # noqa: E402
import target  # noqa: E402

SAMPLE = (HERE / "Sample.mm.txt").read_text(encoding="utf-8")


class FolderTest(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="macos-check-"))
        self.addCleanup(shutil.rmtree, self.folder)

    def changed(self, text, old, new):
        """The text with one place changed, which has to be there."""
        self.assertEqual(text.count(old), 1, old)
        return text.replace(old, new)


class SampleTest(FolderTest):
    def write(self, *change):
        source = self.folder / "Sample.mm"
        source.write_text(self.changed(SAMPLE, *change) if change else SAMPLE, encoding="utf-8")
        return source

    def complaint(self, command):
        done = subprocess.run([str(word) for word in command], capture_output=True, text=True)
        return "" if done.returncode == 0 else done.stderr


class CompilerTest(SampleTest):
    def compiled(self, *change):
        return self.complaint(target.compile_command(self.write(*change), self.folder / "Sample.o"))

    def test_a_clean_sample_passes(self):
        self.assertEqual(self.compiled(), "")

    def test_a_wrong_selector(self):
        self.assertIn("no known class method for selector",
                      self.compiled("runningApplicationsWithBundleIdentifier:",
                                    "runningApplicationsWithIdentifier:"))

    def test_a_wrong_argument(self):
        self.assertIn("cannot initialize a parameter of type 'NSString",
                      self.compiled("identifier.toNSString()", "NSWorkspace.sharedWorkspace"))

    def test_an_argument_of_another_kind_in_a_list(self):
        self.assertIn("with an rvalue of type 'NSArray<NSString *>",
                      self.compiled("activateFileViewerSelectingURLs:@[ file ]",
                                    "activateFileViewerSelectingURLs:NSLocale.preferredLanguages"))

    def test_a_method_of_the_class_called_on_an_instance(self):
        self.assertIn("no visible @interface for 'NSRunningApplication' declares the selector",
                      self.compiled("[NSRunningApplication running",
                                    "[NSRunningApplication.currentApplication running"))

    def test_a_method_of_an_instance_called_on_the_class(self):
        self.assertIn("no known class method for selector 'activateFileViewerSelectingURLs:'",
                      self.compiled("[NSWorkspace.sharedWorkspace activate", "[NSWorkspace activate"))

    def test_nil_for_what_may_not_be_nil(self):
        self.assertIn("null passed to a callee that requires a non-null argument",
                      self.compiled("identifier.toNSString()", "nil"))

    def test_a_name_of_a_method_that_nothing_has(self):
        self.assertIn("undeclared selector 'activateAll'",
                      self.compiled("@selector(activate)", "@selector(activateAll)"))

    def test_a_constant_that_nothing_has(self):
        self.assertIn("use of undeclared identifier 'kAXErrorFine'",
                      self.compiled("error == kAXErrorSuccess", "error == kAXErrorFine"))

    def test_a_port_without_one_of_its_operations(self):
        self.assertIn("unimplemented pure virtual method 'unregisterMainApp'",
                      self.compiled("Failure unregisterMainApp() override { return std::nullopt; }", ""))

    def test_what_an_older_systems_library_of_cpp_lacks(self):
        source = self.write("std::from_chars(begin, end, value);",
                            "std::from_chars(begin, end, value);\n"
                            "    std::to_chars(nullptr, nullptr, 1.0);")
        command = target.compile_command(source, "/dev/null")
        older = [word.replace("macos14.0", "macos13.0") for word in command]
        self.assertEqual(self.complaint(command), "")
        self.assertIn("'to_chars' is unavailable: introduced in macOS 13.", self.complaint(older))

    def test_an_interface_newer_than_the_oldest_system(self):
        headers = self.folder / "declarations"
        shutil.copytree(TOOLS / "declarations", headers)
        header = headers / "AppKit/AppKit.h"
        header.write_text(self.changed(
            header.read_text(), "(NSArray<NSURL*>*)fileURLs;",
            "(NSArray<NSURL*>*)fileURLs API_AVAILABLE(macos(15.0));"))
        command = target.compile_command(self.write(), "/dev/null", headers=headers)
        self.assertIn("is only available on macOS 15.0 or newer", self.complaint(command))


class AnalyserTest(SampleTest):
    def flags(self):
        command = target.compile_command("source", "/dev/null")
        return command[1:command.index("-c")]

    def found(self, *change):
        source = self.write(*change)
        flags = self.flags()
        config = f"--config-file={target.ROOT / '.clang-tidy'}"
        return analyse.tidy(source, flags, config) or ""

    def test_a_clean_sample_passes(self):
        self.assertEqual(self.found(), "")
        self.assertIsNone(analyse.kept_references(self.write(), self.flags()))

    def test_a_reference_that_a_block_keeps(self):
        source = self.write("(std::function<void()> handler)",
                            "(const std::function<void()>& handler)")
        self.assertIn("Sample.mm:76: the block keeps the reference 'handler'",
                      analyse.kept_references(source, self.flags()) or "nothing")

    def test_a_leak(self):
        self.assertIn("Potential leak of an object stored into 'element'",
                      self.found("    CFRelease(element);\n", ""))

    def test_an_over_release(self):
        self.assertIn("Incorrect decrement of the reference count",
                      self.found("    CFRelease(element);\n",
                                 "    CFRelease(element);\n    CFRelease(element);\n"))

    def test_use_after_release(self):
        self.assertIn("Reference-counted object is used after it is released",
                      self.found("    const AXError error = AXUIElementSetMessagingTimeout(element, 1.0F);\n"
                                 "    CFRelease(element);\n",
                                 "    CFRelease(element);\n"
                                 "    const AXError error = AXUIElementSetMessagingTimeout(element, 1.0F);\n"))


class RecordTest(FolderTest):
    @classmethod
    def setUpClass(cls):
        cls.newer, cls.older = npm_record.Record(), pascal_record.Record()

    def complaints(self, framework=None, *change):
        """What is found in our declarations with one place changed."""
        headers = self.folder / "declarations"
        shutil.copytree(TOOLS / "declarations", headers)
        if framework:
            header = headers / framework / f"{framework}.h"
            header.write_text(self.changed(header.read_text(encoding="utf-8"), *change))
        found = declarations.read(headers)
        return [*compare.Comparison(found, self.newer, self.older).compare(),
                *sparkle_record.compare(found)]

    def assert_found(self, what, framework, *change):
        found = self.complaints(framework, *change)
        self.assertTrue(any(what in one for one in found), f"{what} is not in {found}")

    def test_our_declarations_pass(self):
        self.assertEqual(self.complaints(), [])

    def test_a_wrong_selector(self):
        self.assert_found("-[NSWorkspace iconForPath:]: no such method is known", "AppKit",
                          "iconForFile:", "iconForPath:")

    def test_a_wrong_argument(self):
        self.assert_found("-[NSWorkspace openURL:]: argument 1 is NSURL, not NSString*", "AppKit",
                          "- (BOOL)openURL:(NSURL*)url;", "- (BOOL)openURL:(NSString*)url;")

    def test_a_wrong_width_of_an_argument(self):
        self.assert_found("argument 1 was CGFloat (double) in 10.10, not float", "AppKit",
                          "statusItemWithLength:(CGFloat)length", "statusItemWithLength:(float)length")

    def test_a_wrong_result(self):
        self.assert_found("-[NSWorkspace iconForFile:]: gives NSImage, not NSString*", "AppKit",
                          "- (NSImage*)iconForFile:", "- (NSString*)iconForFile:")

    def test_a_wrong_block(self):
        self.assert_found("argument 4 is (p1: NSNotification) => void", "Foundation",
                          "usingBlock:(void (^)(NSNotification* notification))block",
                          "usingBlock:(void (^)(NSString* notification))block")

    def test_an_argument_that_may_not_be_nil(self):
        self.assert_found("argument 1 may not be nil", "AppKit",
                          "(NSString*)bundleIdentifier;\n- (nullable NSURL*)URLForApplicationToOpen",
                          "(nullable NSString*)bundleIdentifier;\n"
                          "- (nullable NSURL*)URLForApplicationToOpen")

    def test_a_method_of_the_class_declared_for_instances(self):
        self.assert_found("appearanceNamed:]: is a method of the class", "AppKit",
                          "+ (nullable NSAppearance*)appearanceNamed:",
                          "- (nullable NSAppearance*)appearanceNamed:")

    def test_a_property_that_can_only_be_read(self):
        self.assert_found("NSStatusBar.thickness: can only be read", "AppKit",
                          "@property (readonly) CGFloat thickness;", "@property CGFloat thickness;")

    def test_a_wrong_type_of_a_property(self):
        self.assert_found("NSStatusItem.menu: is NSMenu, not NSMenuItem*", "AppKit",
                          "@property (nullable, strong) NSMenu* menu;",
                          "@property (nullable, strong) NSMenuItem* menu;")

    def test_a_wrong_base(self):
        self.assert_found("NSStatusItem: does not inherit from NSView", "AppKit",
                          "@interface NSStatusItem : NSObject", "@interface NSStatusItem : NSView")

    def test_a_class_that_does_not_exist(self):
        self.assert_found("NSWorkspaceOpening: no such class or protocol is known", "AppKit",
                          "@interface NSStatusBar : NSObject",
                          "@interface NSWorkspaceOpening : NSObject\n@end\n"
                          "@interface NSStatusBar : NSObject")

    def test_a_wrong_value_of_an_enumeration(self):
        self.assert_found("NSEventMaskRightMouseUp: is 16, not 8", "AppKit",
                          "NSEventMaskRightMouseUp API_AVAILABLE(macos(10.12)) = 1ULL << 4",
                          "NSEventMaskRightMouseUp API_AVAILABLE(macos(10.12)) = 1ULL << 3")

    def test_a_wrong_order_of_an_enumeration(self):
        self.assert_found("SMAppServiceStatusEnabled: is 1, not 2", "ServiceManagement",
                          "    SMAppServiceStatusEnabled,\n    SMAppServiceStatusRequiresApproval,",
                          "    SMAppServiceStatusRequiresApproval,\n    SMAppServiceStatusEnabled,")

    def test_a_wrong_value_of_a_constant(self):
        self.assert_found("NSVariableStatusItemLength: is -1, not -2", "AppKit",
                          "NSVariableStatusItemLength = -1.0", "NSVariableStatusItemLength = -2.0")

    def test_a_constant_that_does_not_exist(self):
        self.assert_found("NSWorkspaceWillRestNotification: no such constant is known", "AppKit",
                          "NSWorkspaceWillSleepNotification", "NSWorkspaceWillRestNotification")

    def test_a_missing_mark_of_availability(self):
        self.assert_found("-[NSWorkspace iconForContentType:]: came after macOS 10.10", "AppKit",
                          "iconForContentType:(UTType*)contentType API_AVAILABLE(macos(11.0));",
                          "iconForContentType:(UTType*)contentType;")

    def test_a_missing_mark_of_a_class(self):
        self.assert_found("SMAppService: came after macOS 10.10", "ServiceManagement",
                          "API_AVAILABLE(macos(13.0))\n@interface SMAppService",
                          "@interface SMAppService")

    def test_an_interface_newer_than_the_oldest_system(self):
        self.assert_found("came with macOS 15.0; the program runs on 14.0", "AppKit",
                          "- (void)activate API_AVAILABLE(macos(14.0));",
                          "- (void)activate API_AVAILABLE(macos(15.0));")

    def test_a_wrong_argument_of_a_c_function(self):
        self.assert_found("AXUIElementSetMessagingTimeout(): argument 2 was Float32 (float) in 10.10",
                          "ApplicationServices", "float timeoutInSeconds", "double timeoutInSeconds")

    def test_a_c_function_with_too_few_arguments(self):
        self.assert_found("AXUIElementGetPid(): takes 2 argument(s)", "ApplicationServices",
                          "AXUIElementGetPid(AXUIElementRef element, pid_t* pid)",
                          "AXUIElementGetPid(AXUIElementRef element)")

    def test_a_wrong_callback(self):
        self.assert_found("AXObserverCallback: takes AXObserverRef", "ApplicationServices",
                          "CFStringRef notification, void* refcon);\n\nCF_EXPORT CFStringRef",
                          "void* refcon);\n\nCF_EXPORT CFStringRef")

    def test_a_wrong_field_of_a_structure(self):
        self.assert_found("struct CGSize: has the fields width, height", "CoreGraphics",
                          "struct CGSize {\n    CGFloat width;\n    CGFloat height;",
                          "struct CGSize {\n    CGFloat height;\n    CGFloat width;")

    def test_a_wrong_selector_of_sparkle(self):
        self.assert_found("-[SPUStandardUpdaterController checkUpdates:]: Sparkle has no such method",
                          "Sparkle", "checkForUpdates:", "checkUpdates:")

    def test_a_wrong_argument_of_sparkle(self):
        self.assert_found("initWithStartingUpdater:updaterDelegate:userDriverDelegate:]: takes BOOL",
                          "Sparkle", "initWithStartingUpdater:(BOOL)startUpdater",
                          "initWithStartingUpdater:(NSInteger)startUpdater")


class LinkedTest(SampleTest):
    @classmethod
    def setUpClass(cls):
        cls.sysroot = pathlib.Path(tempfile.mkdtemp(prefix="macos-check-"))
        cls.addClassCleanup(shutil.rmtree, cls.sysroot)
        stubs.make_sysroot(cls.sysroot, declarations.read(), declarations.FRAMEWORKS)

    FRAMEWORKS = ("Foundation", "AppKit", "ApplicationServices", "ServiceManagement")

    def linked(self, *change, frameworks=FRAMEWORKS):
        program, thing = self.folder / "Sample", self.folder / "Sample.o"
        self.assertEqual("", self.complaint(target.compile_command(self.write(*change), thing)))
        qt = next(target.qt_libraries().glob("libQt6Core.so.6*")).resolve()
        command = [sys.executable, "-B", TOOLS / "link.py", target.program(target.COMPILER),
                   f"--target={target.TRIPLE}", "-isysroot", self.sysroot, thing, "-o", program, qt,
                   *(word for name in frameworks for word in ("-framework", name))]
        with contextlib.chdir(self.folder):
            return self.complaint(command)


class LinkerTest(LinkedTest):
    def test_a_clean_sample_is_linked(self):
        self.assertEqual(self.linked(), "")
        self.assertEqual(build.oldest_system(self.folder / "Sample"), (14, 0))

    def test_an_undefined_symbol(self):
        self.assertIn("undefined symbol: tessarine::nowhere()",
                      self.linked("int main() {\n    return ",
                                  "namespace tessarine {\nint nowhere();\n}\n"
                                  "int main() {\n    return tessarine::nowhere() + "))

    def test_a_framework_that_is_not_linked(self):
        self.assertIn("undefined symbol: OBJC_CLASS_$_SMAppService",
                      self.linked(frameworks=self.FRAMEWORKS[:3]))


class BundleTest(LinkedTest):
    FACTS = {"CFBundleExecutable": "Sample", "CFBundleIconFile": "Sample",
             "CFBundleIdentifier": "com.example.Sample", "LSMinimumSystemVersion": "14.0"}

    def bundle(self, **facts):
        contents = self.folder / "Sample.app/Contents"
        for name in ("MacOS", "Resources"):
            (contents / name).mkdir(parents=True)
        self.assertEqual(self.linked(), "")
        (self.folder / "Sample").rename(contents / "MacOS/Sample")
        (contents / "Resources/Sample.icns").touch()
        (contents / "Info.plist").write_bytes(plistlib.dumps(self.FACTS | facts))
        return contents.parent

    def assert_found(self, what, **facts):
        with self.assertRaisesRegex(build.Failure, what):
            build.check_bundle(self.bundle(**facts))

    def test_a_clean_bundle_passes(self):
        build.check_bundle(self.bundle())

    def test_a_program_that_is_not_there(self):
        self.assert_found("names a program that isn't in the bundle", CFBundleExecutable="Other")

    def test_an_icon_that_is_not_there(self):
        self.assert_found("names an icon that isn't in the bundle", CFBundleIconFile="Other")

    def test_another_oldest_system_than_the_program_was_built_for(self):
        self.assert_found("the program runs on 14.0, Info.plist says 13.0",
                          LSMinimumSystemVersion="13.0")

    def test_a_value_that_was_not_filled_in(self):
        self.assert_found("no value for CFBundleVersion", CFBundleVersion="@TESSARINE_BUILD@")


class PortsTest(unittest.TestCase):
    HEADER = ("struct Platform {\n    std::unique_ptr<Clock> clock;\n"
              "    std::unique_ptr<Files> files;\n};\n")

    def test_ports_that_are_all_made(self):
        made = "platform->clock = make();\nplatform->files =\n    make();\n"
        self.assertEqual(ports.left_out(self.HEADER, "platform", made), [])

    def test_a_port_that_nothing_makes(self):
        made = "platform->clock = make(platform->files);"
        self.assertEqual(ports.left_out(self.HEADER, "platform", made), ["files"])


class FetchTest(FolderTest):
    """What the registries give is played by a function that writes a file."""

    GOOD = b"what was agreed on"

    def registry(self, content):
        def give(*words, cwd=None):
            self.asked.append(words[0])
            into = cwd or words[words.index("--pack-destination") + 1]
            name = "one.tgz" if words[0] == "npm" else "one.deb"
            (pathlib.Path(into) / name).write_bytes(content)
        self.asked = []
        return mock.patch.object(fetch, "run", give)

    def npm(self, content):
        good = self.folder / "good"
        good.write_bytes(self.GOOD)
        package = {"one": ("1.0.0", fetch.integrity_of(good), [])}
        with self.registry(content), mock.patch.object(fetch, "NPM_PACKAGES", package):
            return fetch.npm_archive("one", self.folder)

    def debian(self, content):
        with self.registry(content):
            return fetch.debian_archive("one", self.folder)

    def test_lists_of_packages_are_renewed_where_one_is_not_in_them(self):
        def give(*words, cwd=None):
            self.asked.append(words[-1])
            if "update" not in self.asked:
                raise fetch.FetchError("no such package")
            if cwd:
                (pathlib.Path(cwd) / "one.deb").write_bytes(self.GOOD)
        self.asked = []
        fetch.update_lists.cache_clear()
        with mock.patch.object(fetch, "run", give):
            self.assertEqual(fetch.debian_archive("one", self.folder).read_bytes(), self.GOOD)
        self.assertEqual(self.asked, ["one", "update", "one"])

    def test_an_archive_is_asked_for_once(self):
        self.assertEqual(self.npm(self.GOOD).read_bytes(), self.GOOD)
        self.assertEqual(self.asked, ["npm"])
        self.npm(self.GOOD)
        self.assertEqual(self.asked, [])

    def test_another_archive_than_was_agreed_on_is_refused(self):
        with self.assertRaisesRegex(fetch.FetchError, "not the package that was agreed on"):
            self.npm(b"something else")
        self.assertEqual(list(self.folder.glob("*.tgz")), [])

    def test_a_damaged_archive_is_asked_for_again(self):
        self.npm(self.GOOD).write_bytes(b"damaged")
        self.assertEqual(self.npm(self.GOOD).read_bytes(), self.GOOD)
        self.debian(self.GOOD).write_bytes(b"damaged")
        self.assertEqual(self.debian(self.GOOD).read_bytes(), self.GOOD)
        self.assertEqual(self.asked, ["apt-get"])


class NamesTest(unittest.TestCase):
    def test_names_that_the_system_has(self):
        text = 'QStringLiteral("AXWindows"); CFSTR("AXUIElementDestroyed"); "AXStaticText"; "AX"'
        self.assertEqual(names.unknown(text, names.recorded()), [])

    def test_a_name_that_the_system_does_not_have(self):
        self.assertEqual(names.unknown('QStringLiteral("AXWindowDestroyed")', names.recorded()),
                         ["AXWindowDestroyed"])


if __name__ == "__main__":
    unittest.main()

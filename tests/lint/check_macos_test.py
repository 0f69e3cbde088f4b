#!/usr/bin/env python3
"""Tests of the checks of the sources for macOS, each on a small tree of its own."""

import pathlib
import shutil
import tempfile
import unittest

import check_macos

FOLDER = "src/platform/macos"


class MacSourcesTest(unittest.TestCase):
    def setUp(self):
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="macos-"))
        self.addCleanup(shutil.rmtree, self.root)

    def write(self, name, *lines):
        path = self.root / FOLDER / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text("\n".join(lines) + "\n", encoding="utf-8")

    def assert_violations(self, *expected):
        self.assertEqual(check_macos.check(self.root),
                         [f"{FOLDER}/{violation}" for violation in expected])

    # What is owned

    def test_one_header_gives_references_back(self):
        self.write("OwnedRef.h", "CFRelease(ref_);")
        self.write("desktop/Drawing.mm", "// CFRelease would be wrong here", "CFRelease(text);",
                   "CGContextRelease(context);", "CFAutorelease(text);")
        self.assert_violations("desktop/Drawing.mm:2: CFRelease belongs to OwnedRef.h",
                               "desktop/Drawing.mm:3: CGContextRelease belongs to OwnedRef.h",
                               "desktop/Drawing.mm:4: CFAutorelease belongs to OwnedRef.h")

    def test_one_source_copies_from_elements(self):
        copy = "AXUIElementCopyAttributeValue(element, name, &value);"
        self.write("AccessibilityReading.mm", copy)
        self.write("MacAccessibility.mm", copy, "AXUIElementCreateApplication(pid);")
        self.assert_violations("MacAccessibility.mm:1: AXUIElementCopyAttributeValue belongs to "
                               "AccessibilityReading.mm")

    # Threads and names

    def test_nothing_goes_by_the_main_queue(self):
        self.write("MacWorkspace.mm", "dispatch_async(dispatch_get_main_queue(), block);",
                   "queue:NSOperationQueue.mainQueue")
        self.assert_violations(
            "MacWorkspace.mm:1: dispatch_get_main_queue goes by the scheduler",
            "MacWorkspace.mm:2: NSOperationQueue.mainQueue goes by the scheduler")

    def test_properties_are_named_by_selectors(self):
        self.write("Observation.mm", '[object addObserver:self forKeyPath:@"runningApplications"',
                   "forKeyPath:NSStringFromSelector(property)")
        self.assert_violations('Observation.mm:1: forKeyPath:@" needs NSStringFromSelector')

    # Pools

    def test_an_operation_begins_with_a_pool(self):
        self.write("MacLoginItem.mm",
                   "LoginItemStatus MacLoginItem::status() const {", "    @autoreleasepool {",
                   "        return x;", "    }", "}",
                   "LoginItem::Failure MacLoginItem::registerMainApp() {", "    return y;", "}")
        self.assert_violations("MacLoginItem.mm:6: MacLoginItem::registerMainApp must begin with "
                               "@autoreleasepool")

    def test_an_operation_of_several_lines_too(self):
        self.write("MacWorkspace.mm",
                   "std::vector<RunningApplication>",
                   "MacWorkspace::runningApplications(const QString& bundleIdentifier,",
                   "                                  int second) const {", "    return {};", "}")
        self.assert_violations("MacWorkspace.mm:2: MacWorkspace::runningApplications must begin "
                               "with @autoreleasepool")

    def test_constructors_and_destructors_that_do_something_too(self):
        self.write("MacStatusItem.mm",
                   "MacStatusItem::MacStatusItem()", "    : target_(nil) {", "    show();", "}",
                   "MacStatusItem::~MacStatusItem() {", "    [bar remove:item_];", "}")
        self.assert_violations(
            "MacStatusItem.mm:1: MacStatusItem::MacStatusItem must begin with @autoreleasepool",
            "MacStatusItem.mm:5: MacStatusItem::~MacStatusItem must begin with @autoreleasepool")

    def test_what_does_nothing_needs_none(self):
        self.write("MacStatusItem.mm",
                   "MacStatusItem::MacStatusItem()", "    : target_(nil) {}",
                   "MacStatusItem::~MacStatusItem() = default;",
                   "void MacStatusItem::keep() {", "}")
        self.assert_violations()

    def test_methods_that_the_system_calls_too(self):
        self.write("Target.mm", "- (void)run:(id)sender {", "    action();", "}",
                   "- (instancetype)initWithAction:(int)action {", "    self = [super init];", "}")
        self.assert_violations("Target.mm:1: run must begin with @autoreleasepool")

    def test_functions_of_no_class_have_that_of_their_caller(self):
        self.write("MacLoginItem.mm", "QString text(NSString* text) {", "    return x;", "}")
        self.write("MacThreads.cpp", "void MacThreads::start() {", "    begin();", "}")
        self.assert_violations()


if __name__ == "__main__":
    unittest.main()

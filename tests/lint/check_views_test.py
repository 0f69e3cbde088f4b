#!/usr/bin/env python3
"""Tests of the check of the views, each on a small tree of its own."""

import pathlib
import shutil
import tempfile
import unittest

import check_views

UNTYPED = "a value without a type; name its type"


class ViewsTest(unittest.TestCase):
    def setUp(self):
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="views-"))
        self.addCleanup(shutil.rmtree, self.root)

    def write(self, name, *lines):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text("\n".join(lines) + "\n", encoding="utf-8")

    def assert_violations(self, *expected):
        self.assertEqual(check_views.check(self.root), list(expected))

    def test_values_with_a_type_are_free(self):
        self.write("src/browser/Row.qml", "required property rowContent row",
                   "property list<string> texts", "// no property var", "function open(id: uuid) {}",
                   "property string variant", "text: variable")
        self.write("src/browser/Row.h", "Q_PROPERTY(QList<Row> rows READ rows CONSTANT)",
                   "Q_INVOKABLE Row row(int line) const;", "QVariant data(int role) const;")
        self.assert_violations()

    def test_a_property_needs_a_type(self):
        self.write("src/browser/Row.qml", "    property var row: ({})", "",
                   "    required property var modelData", "    readonly property variant texts")
        self.assert_violations(*[f"src/browser/Row.qml:{line}: {UNTYPED}" for line in (1, 3, 4)])

    def test_lists_arguments_and_results_need_one_too(self):
        self.write("src/browser/Row.qml", "property list<var> rows", "function open(id: var) {}",
                   "function row(): var {}")
        self.assert_violations(*[f"src/browser/Row.qml:{line}: {UNTYPED}" for line in (1, 2, 3)])

    def test_cpp_hands_a_view_no_maps(self):
        self.write("src/browser/View.h", "Q_PROPERTY(QVariantList rows READ rows CONSTANT)",
                   "Q_INVOKABLE QVariantMap menuOf(const QUuid& id);")
        why = "for a view; hand it a value type, a list of them or a model"
        self.assert_violations(f"src/browser/View.h:1: QVariantList {why}",
                               f"src/browser/View.h:2: QVariantMap {why}")

    def test_a_type_of_qt_that_fails_somewhere_is_named_with_what_to_use(self):
        self.write("src/browser/Row.qml", "TapHandler { }")
        self.write("src/browser/List.qml", "ListView { }", "// ListView { }", "ScrollList { }")
        self.write("src/controls/ScrollList.qml", "ListView { }")
        self.assert_violations(
            "src/browser/List.qml:1: the mouse drags a ListView as a finger would; use a ScrollList",
            "src/browser/Row.qml:1: once a TapHandler has opened a menu, Qt hands it the left button "
            "too on Wayland; use a MouseArea")


if __name__ == "__main__":
    unittest.main()

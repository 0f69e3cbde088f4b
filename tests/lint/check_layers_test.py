#!/usr/bin/env python3
"""Tests of the layer check, each on a small tree of its own."""

import pathlib
import shutil
import tempfile
import unittest

import check_layers


class LayersTest(unittest.TestCase):
    def setUp(self):
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="layers-"))
        self.addCleanup(shutil.rmtree, self.root)

    def write(self, name, *lines):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text("\n".join(lines) + "\n", encoding="utf-8")

    def assert_violations(self, *expected):
        self.assertEqual(check_layers.check(self.root), list(expected))

    def test_every_layer_may_include_those_below_it(self):
        self.write("src/shared/Text.h")
        self.write("src/platform/Scheduler.h", '#include "shared/Text.h"')
        self.write("src/store/HoardStore.h", '#include "platform/Scheduler.h"')
        self.write("src/preferences/PreferencesStore.h", '#include "store/HoardStore.h"')
        self.write("src/diagnostics/DiagnosticsStore.h", '#include "preferences/PreferencesStore.h"')
        self.write("src/capture/NotificationListener.h", '#include "diagnostics/DiagnosticsStore.h"')
        self.write("src/theme/Theme.h", '#include "platform/Scheduler.h"')
        self.write("src/browser/ContentView.h", '#include "capture/NotificationListener.h"',
                   '#include "theme/Theme.h"')
        self.write("src/core/main.cpp", '#include "browser/ContentView.h"')
        self.assert_violations()

    def test_a_lower_layer_must_not_include_a_higher_one(self):
        self.write("src/capture/NotificationListener.h")
        self.write("src/store/HoardStore.cpp", "", '#include "capture/NotificationListener.h"')
        self.assert_violations("src/store/HoardStore.cpp:2: store includes "
                               "src/capture/NotificationListener.h, which belongs to capture "
                               "above it")

    def test_an_include_beside_the_file_counts_too(self):
        self.write("src/core/AppDelegate.h")
        self.write("src/preferences/PreferencesStore.cpp", '#include "../core/AppDelegate.h"')
        self.assert_violations("src/preferences/PreferencesStore.cpp:1: services includes "
                               "src/core/AppDelegate.h, which belongs to core above it")

    def test_the_program_must_not_include_a_test(self):
        self.write("tests/support/ManualScheduler.h")
        self.write("src/store/HoardStore.cpp", '#include "support/ManualScheduler.h"')
        self.assert_violations("src/store/HoardStore.cpp:1: tests/support/ManualScheduler.h lies "
                               "outside src/")

    def test_a_new_folder_needs_a_layer(self):
        self.write("src/news/Reader.h")
        self.assert_violations("src/news/Reader.h:1: belongs to no layer")

    def test_the_documentation_names_every_folder(self):
        folders = list(check_layers.LAYER_OF_FOLDERS)
        self.write("docs/architecture.md", *(f"| `{folder}` | what |" for folder in folders[1:]))
        self.write("docs/house.svg", *(f"<text>{folder}</text>" for folder in folders[:-1]))
        self.assert_violations(f"docs/architecture.md: the table of folders lacks {folders[0]}",
                               f"docs/house.svg: the picture lacks {folders[-1]}")

    def test_one_file_alone_asks_for_the_time_zone(self):
        self.write("src/shared/LocalZone.cpp", "localtime_r(&time, &local);", "tzset();")
        self.write("src/browser/Row.cpp", "// localtime_r was here", "localtime_r(&time, &local);",
                   "const QDateTime now = QDateTime::currentDateTime();",
                   "const QDateTime utc = QDateTime::currentDateTimeUtc();")
        why = "has a time zone of its own; ask shared/LocalZone.h"
        self.assert_violations(f"src/browser/Row.cpp:2: localtime_r {why}",
                               f"src/browser/Row.cpp:3: currentDateTime {why}")

    def test_files_must_not_include_each_other(self):
        self.write("src/browser/List.h", '#include "browser/Row.h"')
        self.write("src/browser/Row.h", '#include "browser/List.h"')
        self.assert_violations("src/browser/List: a cycle: src/browser/List -> src/browser/Row -> "
                               "src/browser/List")

    def test_a_header_and_its_source_are_one_unit_of_a_cycle(self):
        self.write("src/capture/Listener.h")
        self.write("src/capture/Listener.cpp", '#include "capture/Listener.h"',
                   '#include "capture/Recovery.h"')
        self.write("src/capture/Recovery.h")
        self.write("src/capture/Recovery.cpp", '#include "capture/Recovery.h"',
                   '#include "capture/Listener.h"')
        self.assert_violations("src/capture/Listener: a cycle: src/capture/Listener -> "
                               "src/capture/Recovery -> src/capture/Listener")

    def test_units_of_one_name_in_two_folders_differ(self):
        self.write("src/store/Database.h")
        self.write("src/capture/Database.h", '#include "store/Database.h"')
        self.assert_violations()

    def test_the_store_alone_includes_the_header_of_the_database_library(self):
        self.write("src/store/Sqlite.cpp", "#include <sqlite3.h>")
        self.write("src/capture/Database.cpp", "#include <QString>", "#include <sqlite3.h>")
        self.assert_violations("src/capture/Database.cpp:2: <sqlite3.h> belongs to src/store; use "
                               "store/Sqlite.h")

    def test_folders_of_one_layer_must_not_need_each_other(self):
        self.write("src/apps/Launcher.h")
        self.write("src/apps/Icons.h", '#include "browser/Row.h"')
        self.write("src/browser/Row.h")
        self.write("src/browser/List.h", '#include "apps/Launcher.h"')
        self.assert_violations("src/apps: a cycle: src/apps -> src/browser "
                               "-> src/apps")

    def test_a_file_of_one_system_stays_in_its_folder(self):
        self.write("src/platform/linux/InotifyWatcher.h")
        self.write("src/platform/linux/LinuxPlatform.cpp",
                   '#include "platform/linux/InotifyWatcher.h"')
        self.write("src/core/main.cpp", '#include "platform/linux/InotifyWatcher.h"')
        self.assert_violations("src/core/main.cpp:1: src/platform/linux/InotifyWatcher.h belongs "
                               "to one system; include its port")

    def test_the_systems_must_not_include_each_other(self):
        self.write("src/platform/linux/Autostart.h")
        self.write("src/platform/macos/LoginItem.mm", '#import "platform/linux/Autostart.h"')
        self.assert_violations("src/platform/macos/LoginItem.mm:1: "
                               "src/platform/linux/Autostart.h belongs to one system; include its "
                               "port")

    def test_only_a_systems_own_folder_asks_which_system_it_is(self):
        self.write("src/platform/linux/Clock.cpp", "#ifdef __linux__")
        self.write("src/store/HoardStore.cpp", "#if defined(Q_OS_MACOS)")
        self.write("src/shared/Text.cpp", "# ifndef __APPLE__")
        self.assert_violations(
            "src/shared/Text.cpp:1: __APPLE__ is known to one system only",
            "src/store/HoardStore.cpp:1: Q_OS_MACOS is known to one system only")

    def test_tests_and_benchmarks_ask_nothing_either(self):
        self.write("tests/platform/linux/ClockTest.cpp", "#ifdef __linux__")
        self.write("bench/linux/Memory.cpp", "#ifdef __linux__")
        self.write("tests/store/HoardTest.cpp", "#ifdef Q_OS_LINUX")
        self.write("bench/HoardBench.cpp", "", "#if defined(__APPLE__)")
        self.assert_violations(
            "bench/HoardBench.cpp:2: __APPLE__ is known to one system only",
            "tests/store/HoardTest.cpp:1: Q_OS_LINUX is known to one system only")

    def test_conditions_on_anything_else_are_free(self):
        self.write("src/shared/Text.cpp", "#if QT_VERSION >= 0x060500", "// not on __APPLE__")
        self.assert_violations()

    def test_headers_of_a_system_stay_in_its_folder(self):
        self.write("src/platform/linux/Bus.cpp", "#include <dbus/dbus.h>")
        self.write("src/capture/Bus.cpp", "#include <dbus/dbus.h>", "#include <QDBusConnection>")
        self.write("src/platform/qt/Watcher.cpp", "#include <sys/inotify.h>")
        self.assert_violations(
            "src/capture/Bus.cpp:1: <dbus/dbus.h> belongs to one system",
            "src/capture/Bus.cpp:2: <QDBusConnection> belongs to one system",
            "src/platform/qt/Watcher.cpp:1: <sys/inotify.h> belongs to one system")

    def test_headers_of_the_other_system_too(self):
        self.write("src/platform/macos/MacWorkspace.mm", "#import <AppKit/AppKit.h>")
        self.write("src/apps/Launcher.cpp", "#include <AppKit/AppKit.h>",
                   "#include <dispatch/dispatch.h>", "#include <pthread.h>")
        self.assert_violations("src/apps/Launcher.cpp:1: <AppKit/AppKit.h> belongs to one system",
                               "src/apps/Launcher.cpp:2: <dispatch/dispatch.h> belongs to one "
                               "system")

    def test_bus_names_stay_in_their_folder(self):
        self.write("src/capture/Bus.cpp", 'const char* name = "org.freedesktop.Notifications";')
        self.assert_violations("src/capture/Bus.cpp:1: org.freedesktop.Notifications is known to "
                               "one system only")

    def test_objective_c_stays_in_its_folder(self):
        self.write("src/platform/macos/LoginItem.mm", "#import <ServiceManagement/SMAppService.h>")
        self.write("src/apps/Launcher.mm")
        self.assert_violations("src/apps/Launcher.mm:1: Objective-C outside src/platform/macos")

    def test_libraries_of_a_system_are_linked_in_its_folder(self):
        self.write("src/platform/linux/CMakeLists.txt", "    LINKS Qt6::DBus")
        self.write("src/capture/CMakeLists.txt", "# not Qt6::DBus", "    LINKS Qt6::DBus")
        self.assert_violations("src/capture/CMakeLists.txt:2: Qt6::DBus belongs to one system")


if __name__ == "__main__":
    unittest.main()

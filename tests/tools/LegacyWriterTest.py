"""Checks legacy-writer from outside: what it writes is read with sqlite3 and plistlib."""

import os
import plistlib
import sqlite3
import time

from WriterTestCase import WriterTestCase, main, parse

REFERENCE_DATE = 978307200


class TheDatabase(WriterTestCase):
    def test_has_the_tables_of_older_systems(self):
        self.create()
        self.assertEqual(self.columns_of("app_info"),
                         [("app_id", "INTEGER", 0), ("bundleid", "VARCHAR", 0)])
        self.assertEqual(self.columns_of("notifications")[:3],
                         [("note_id", "INTEGER", 1), ("app_id", "INTEGER", 0),
                          ("encoded_data", "BLOB", 0)])

    def test_is_written_in_its_main_file(self):
        tool = self.hold("--create", "--records", "1", "--title", "Unmistakable", "--hold", "-1")
        self.assertTrue(tool.stdout.readline().startswith("appended 1 "))
        self.assertFalse(os.path.exists(self.database + "-wal"))
        self.assertEqual(self.column("PRAGMA journal_mode"), ["delete"])
        with open(self.database, "rb") as file:
            self.assertIn(b"Unmistakable", file.read())
        self.finish(tool)

    def test_keeps_its_rows_when_it_is_there_already(self):
        self.create("--records", "2")
        self.create("--records", "1")
        self.assertEqual(self.column("SELECT note_id FROM notifications"), [1, 2, 3])


class APayload(WriterTestCase):
    def archive(self, *arguments):
        self.create("--records", "1", "--title", "A title", "--body", "čaj 🇯🇵", *arguments)
        (data,), = self.rows("SELECT encoded_data FROM notifications")
        return parse(data)

    @staticmethod
    def referred(archive, key):
        reference = archive["$objects"][1][key]
        assert type(reference) is plistlib.UID
        return archive["$objects"][reference.data]

    def test_is_a_keyed_archive(self):
        archive = self.archive()
        self.assertEqual(set(archive), {"$archiver", "$version", "$top", "$objects"})
        self.assertEqual((archive["$archiver"], archive["$version"]), ("NSKeyedArchiver", 100000))
        self.assertEqual(archive["$top"], {"root": plistlib.UID(1)})
        self.assertEqual(archive["$objects"][0], "$null")

    def test_refers_to_its_texts_and_its_date(self):
        archive = self.archive("--date", "650000000.5")
        self.assertEqual(self.referred(archive, "NSTitle"), "A title")
        self.assertEqual(self.referred(archive, "NSInformativetext"), "čaj 🇯🇵")
        self.assertEqual(self.referred(archive, "NSActualdeliverydate")["NS.time"], 650000000.5)

    def test_bears_the_time_of_its_writing_by_default(self):
        before = time.time() - REFERENCE_DATE
        date = self.referred(self.archive(), "NSActualdeliverydate")["NS.time"]
        self.assertTrue(before - 0.001 <= date <= time.time() - REFERENCE_DATE + 0.001)

    def test_may_lack_a_date(self):
        archive = self.archive("--date", "none")
        self.assertNotIn("NSActualdeliverydate", archive["$objects"][1])
        self.assertEqual(self.referred(archive, "NSTitle"), "A title")

    def test_may_have_no_objects(self):
        self.assertEqual(self.archive("--raw-objects", "0")["$objects"], [])

    def test_may_have_too_few_objects(self):
        self.assertEqual(self.archive("--raw-objects", "1")["$objects"], ["$null"])

    def test_may_have_references_past_its_objects(self):
        archive = self.archive("--raw-objects", "3")
        self.assertEqual(len(archive["$objects"]), 3)
        self.assertEqual(self.referred(archive, "NSTitle"), "A title")
        self.assertEqual(archive["$objects"][1]["NSInformativetext"], plistlib.UID(3))

    def test_has_all_objects_when_more_are_allowed(self):
        archive = self.archive("--raw-objects", "50", "--date", "1")
        self.assertEqual(self.referred(archive, "NSActualdeliverydate")["NS.time"], 1.0)


class Rows(WriterTestCase):
    joined = ("SELECT note_id, bundleid FROM notifications NATURAL JOIN app_info ORDER BY note_id")

    def test_have_ids_and_applications_in_turn(self):
        lines = self.create("--records", "3", "--first-note-id", "20", "--app", "com.a.One",
                            "--app", "com.b")
        self.assertEqual(self.rows(self.joined),
                         [(20, "com.a.One"), (21, "com.b"), (22, "com.a.One")])
        self.assertEqual(self.column("SELECT COUNT(*) FROM app_info"), [2])
        self.assertEqual(lines[-1], "records 3 first 20 last 22")

    def test_bear_the_running_number(self):
        self.create("--records", "2", "--title", "No {n}")
        objects = [parse(data)["$objects"] for data in
                   self.column("SELECT encoded_data FROM notifications ORDER BY note_id")]
        self.assertEqual([(each[2], each[3]) for each in objects],
                         [("No 1", "Body 1"), ("No 2", "Body 2")])

    def test_have_a_commit_each_at_a_rate(self):
        lines = self.create("--records", "5", "--rate", "100")
        self.assertEqual(len({line.split()[2] for line in lines[:-1]}), 5)
        self.assertEqual(self.column("SELECT COUNT(*) FROM notifications"), [5])

    def test_have_one_commit_without_a_rate(self):
        lines = self.create("--records", "5")
        self.assertEqual(len({line.split()[2] for line in lines[:-1]}), 1)

    def test_have_no_lines_when_quiet(self):
        self.assertEqual(self.create("--records", "5", "--quiet"), ["records 5 first 1 last 5"])

    def test_whose_ids_are_taken_leave_the_table_as_it_was(self):
        self.create("--records", "1", "--first-note-id", "2")
        self.assert_refused(["--records", "2", "--first-note-id", "1"], 1, "UNIQUE")
        self.assertEqual(self.column("SELECT note_id FROM notifications"), [2])


class BadInput(WriterTestCase):
    def assert_bad(self, part_of_message, *arguments):
        self.assert_refused(["--create", *arguments], 2, part_of_message)
        self.assertFalse(os.path.exists(self.database))

    def test_unknown_option(self):
        self.assert_bad("form", "--form", "archive")

    def test_count_that_is_no_number(self):
        self.assert_bad("--records", "--records", "x")

    def test_date_that_is_none(self):
        self.assert_bad("--date", "--date", "null")

    def test_negative_number_of_objects(self):
        self.assert_bad("--raw-objects", "--raw-objects", "-1")

    def test_missing_database(self):
        self.assert_refused(["--records", "1"], 2, "there is no")

    def test_file_that_is_no_database(self):
        with open(self.database, "w", encoding="ascii") as file:
            file.write("certainly no database, but a text that is long enough to be one " * 10)
        self.assert_refused(["--records", "1"], 1, "not a database")

    def test_database_of_another_kind(self):
        connection = sqlite3.connect(self.database)
        connection.execute("CREATE TABLE hoard (id INTEGER)")
        connection.close()
        self.assert_refused(["--records", "1"], 1, "lacks the tables")


if __name__ == "__main__":
    main()

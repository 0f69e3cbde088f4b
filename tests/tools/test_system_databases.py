"""Checks tools/system_databases.py: what it writes is read with sqlite3 and plistlib."""

import json
import os
import pathlib
import plistlib
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import unittest

SCRIPT = pathlib.Path(__file__).resolve().parents[2] / "tools/system_databases.py"
sys.path.append(str(SCRIPT.parent))
from system_databases import BAD_FORMS, FORMS, LegacyDatabase, UsernotedDatabase, now

LISTS = ("requests", "delivered", "displayed", "snoozed")
BODY = "A body of some words"


def parse(payload):
    return plistlib.loads(payload, fmt=plistlib.FMT_BINARY)


def kept_by_a_reader(strings):
    """The strings of an archive that the least strict reader may take for a text."""
    prefixes = ("NS", "UI", "com.", "UNM", "kCI", "XPC", "CA", "CF")
    return [text for text in strings
            if len(text) >= 5 and not text.startswith(prefixes)
            and "://" not in text and "\\" not in text]


class DatabaseTestCase(unittest.TestCase):
    kind = UsernotedDatabase

    def setUp(self):
        folder = tempfile.mkdtemp(prefix="system-databases-")
        self.addCleanup(shutil.rmtree, folder)
        self.path = os.path.join(folder, "one", "db")
        self.database = self.kind(self.path)
        self.addCleanup(self.database.close)

    def rows(self, sql):
        connection = sqlite3.connect(self.path)
        try:
            return connection.execute(sql).fetchall()
        finally:
            connection.close()

    def column(self, sql):
        return [row[0] for row in self.rows(sql)]

    def columns_of(self, table):
        return [(row[1], row[2], row[5]) for row in self.rows(f"PRAGMA table_info({table})")]

    def contents(self, suffix=""):
        return pathlib.Path(self.path + suffix).read_bytes()

    def has_log(self):
        return os.path.exists(self.path + "-wal")


class TheDaemonsDatabase(DatabaseTestCase):
    def test_has_its_tables(self):
        self.assertEqual(self.columns_of("dbinfo"), [("key", "VARCHAR", 0), ("value", "VARCHAR", 0)])
        self.assertEqual(self.columns_of("app"),
                         [("app_id", "INTEGER", 1), ("identifier", "VARCHAR", 0)])
        self.assertEqual(self.columns_of("record"), [
            ("rec_id", "INTEGER", 1), ("app_id", "INTEGER", 0), ("uuid", "BLOB", 0),
            ("data", "BLOB", 0), ("request_date", "REAL", 0), ("request_last_date", "REAL", 0),
            ("delivered_date", "REAL", 0), ("presented", "Bool", 0), ("style", "INTEGER", 0),
            ("snooze_fire_date", "REAL", 0)])
        self.assertEqual([self.columns_of(name) for name in LISTS],
                         [[("app_id", "INTEGER", 1), ("list", "BLOB", 0)]] * 4)

    def test_drops_the_rows_of_an_application_with_it(self):
        for app in ("com.a.one", "com.a.two") * 2:
            self.database.append(app=app)
        for name in LISTS:
            self.database.connection.execute(f"INSERT INTO {name} VALUES (1, x'00'), (2, x'00')")
        self.database.connection.execute("DELETE FROM app WHERE identifier = 'com.a.one'")
        self.assertEqual(self.column("SELECT rec_id FROM record ORDER BY 1"), [2, 4])
        self.assertEqual([self.column(f"SELECT app_id FROM {name}") for name in LISTS], [[2]] * 4)

    def test_keeps_its_rows_when_it_is_there_already(self):
        self.database.append()
        again = UsernotedDatabase(self.path)
        again.append()
        again.close()
        self.assertEqual(self.column("SELECT rec_id FROM record"), [1, 2])

    def test_leaves_the_columns_of_requests_empty(self):
        self.database.append()
        self.assertEqual(self.rows("SELECT request_date, request_last_date, snooze_fire_date, "
                                   "presented, style, length(uuid) FROM record"),
                         [(None, None, None, 1, 1, 16)])

    def test_keeps_what_is_new_in_its_log_until_it_is_closed(self):
        self.database.append()
        self.assertEqual(self.contents()[18:20], b"\x02\x02", "the header doesn't tell of WAL")
        self.assertNotIn(b"com.example.mail", self.contents())
        self.assertIn(b"com.example.mail", self.contents("-wal"))
        self.database.close()
        self.assertFalse(self.has_log())
        self.assertIn(b"com.example.mail", self.contents())
        self.database.open()
        self.database.append()
        self.assertTrue(self.has_log())

    def test_when_locked_keeps_writers_away_and_hides_rows_until_it_is_unlocked(self):
        self.database.lock()
        self.database.append()
        self.assertEqual((self.database.count(), self.column("SELECT COUNT(*) FROM record")), (1, [0]))
        other = sqlite3.connect(self.path, timeout=0)
        self.addCleanup(other.close)
        with self.assertRaisesRegex(sqlite3.OperationalError, "locked"):
            other.execute("BEGIN IMMEDIATE")
        self.database.unlock()
        self.assertEqual(self.column("SELECT COUNT(*) FROM record"), [1])


class APayload(DatabaseTestCase):
    def payload(self, form):
        self.database.append(form=form, title="A title", body=BODY, subtitle="A subtitle")
        return self.column("SELECT data FROM record")[0]

    def request(self, form):
        data = self.payload(form)
        self.assertTrue(280 <= len(data) <= 420, len(data))
        root = parse(data)
        self.assertFalse({"titl", "subt"} & set(root))
        return root["req"]

    def texts(self, form):
        return {key: value for key, value in self.request(form).items()
                if key in ("titl", "subt", "body")}

    def test_has_the_daemons_keys(self):
        root = parse(self.payload("request-title-body"))
        (uuid, date), = self.rows("SELECT uuid, delivered_date FROM record")
        self.assertEqual(set(root), {"styl", "app", "uuid", "srce", "orig", "date", "resp", "req"})
        self.assertEqual((root["app"], root["uuid"], root["date"]), ("com.example.Mail", uuid, date))
        self.assertIs(type(root["date"]), float)
        self.assertEqual((type(root["srce"]), len(root["srce"])), (bytes, 16))
        self.assertEqual((type(root["styl"]), type(root["orig"])), (int, int))
        self.assertEqual(set(root["resp"]), {"act"})
        self.assertEqual(set(root["req"]), {"titl", "body", "iden", "soun", "cate", "scat"})
        self.assertEqual(set(root["req"]["scat"]), {"id", "opt"})

    def test_request_title(self):
        self.assertEqual(self.texts("request-title"), {"titl": "A title"})

    def test_request_body(self):
        self.assertEqual(self.texts("request-body"), {"body": BODY})

    def test_request_title_body(self):
        self.assertEqual(self.texts("request-title-body"), {"titl": "A title", "body": BODY})

    def test_request_all(self):
        self.assertEqual(self.texts("request-all"),
                         {"titl": "A title", "subt": "A subtitle", "body": BODY})

    def test_request_subtitle(self):
        self.assertEqual(self.texts("request-subtitle"), {"subt": "A subtitle"})

    def test_request_title_subtitle(self):
        self.assertEqual(self.texts("request-title-subtitle"),
                         {"titl": "A title", "subt": "A subtitle"})

    def test_request_body_subtitle(self):
        self.assertEqual(self.texts("request-body-subtitle"), {"subt": "A subtitle", "body": BODY})

    def test_request_empty(self):
        self.assertEqual(self.texts("request-empty"), {})

    def test_other_type(self):
        self.assertEqual({key: type(value) for key, value in self.texts("other-type").items()},
                         {"titl": int, "subt": list, "body": bytes})

    def archived(self, form):
        root = parse(self.payload(form))
        self.assertEqual((root["titl"], root["subt"]), ("A title", "A subtitle"))
        archive = parse(root["req"])
        self.assertEqual(set(archive), {"$archiver", "$version", "$top", "$objects"})
        self.assertEqual((archive["$archiver"], archive["$version"]), ("NSKeyedArchiver", 100000))
        objects = archive["$objects"]
        self.assertEqual(objects[0], "$null")
        self.assertEqual(objects[objects[1]["text"].data], BODY)
        return objects, [text for text in objects if type(text) is str]

    def test_archive_has_beside_the_body_only_what_readers_refuse(self):
        _, strings = self.archived("archive")
        self.assertTrue({"com.", "NSMu", "UNMN", "text"} <= {text[:4] for text in strings})
        self.assertEqual(kept_by_a_reader(strings), ["$null", BODY])

    def test_archive_long_has_hundreds_of_objects_and_longer_strings_that_readers_refuse(self):
        objects, strings = self.archived("archive-long")
        self.assertGreater(len(objects), 400)
        self.assertGreater(len([text for text in strings if len(text) > len(BODY)]), 200)
        self.assertEqual(kept_by_a_reader(strings), ["$null", BODY])

    def test_not_a_dictionary(self):
        self.assertEqual(parse(self.payload("not-a-dictionary")), ["A title", BODY])

    def test_broken(self):
        data = self.payload("broken")
        self.assertEqual(data[:8], b"bplist00")
        with self.assertRaises(plistlib.InvalidFileException):
            parse(data)

    def test_zero_bytes(self):
        self.assertEqual(self.payload("zero-bytes"), b"")

    def test_null(self):
        self.assertIsNone(self.payload("null"))

    def test_may_have_texts_of_any_script_or_none(self):
        self.database.append(title="日本語 🇯🇵", body="čaj\nnaïve")
        self.database.append(title="", body="")
        requests = [parse(data)["req"] for data in self.column("SELECT data FROM record")]
        self.assertEqual([(request["titl"], request["body"]) for request in requests],
                         [("日本語 🇯🇵", "čaj\nnaïve"), ("", "")])


class ARecord(DatabaseTestCase):
    def test_has_its_application_in_lower_case_and_its_payload_in_the_applications_own(self):
        self.database.append(app="com.Example.Chat")
        self.assertEqual(self.column("SELECT identifier FROM record NATURAL JOIN app"),
                         ["com.example.chat"])
        self.assertEqual(parse(self.column("SELECT data FROM record")[0])["app"], "com.Example.Chat")

    def test_shares_the_row_of_its_application(self):
        for app in ("com.a.one", "com.a.two", "com.a.one"):
            self.database.append(app=app)
        self.assertEqual(self.column("SELECT app_id FROM record ORDER BY rec_id"), [1, 2, 1])
        self.assertEqual(self.column("SELECT COUNT(*) FROM app"), [2])

    def test_may_lack_an_application(self):
        self.database.append(app_id=7)
        self.assertEqual(self.rows("SELECT app_id, (SELECT COUNT(*) FROM app) FROM record"), [(7, 0)])

    def test_has_the_id_that_is_wanted_or_the_next(self):
        self.assertEqual([self.database.append(rec_id=2**31), self.database.append()],
                         [2**31, 2**31 + 1])
        with self.assertRaisesRegex(sqlite3.IntegrityError, "UNIQUE"):
            self.database.append(rec_id=2**31)

    def test_is_delivered_now_or_earlier(self):
        before = now()
        self.database.append()
        self.database.append(age=3600)
        after = now()
        just, earlier = self.column("SELECT delivered_date FROM record ORDER BY rec_id")
        self.assertTrue(before <= just <= after)
        self.assertTrue(before - 3600 <= earlier <= after - 3600)

    def test_has_the_very_date_that_is_wanted(self):
        wanted = [None, "text", 1000.5, -1.0, float("inf")]
        for date in wanted:
            self.database.append(date=date)
        self.assertEqual(self.column("SELECT delivered_date FROM record ORDER BY rec_id"), wanted)


class Pouring(DatabaseTestCase):
    def dates(self):
        return self.column("SELECT delivered_date FROM record ORDER BY rec_id")

    def test_goes_round_the_forms(self):
        self.database.pour(len(FORMS) + 1, forms=FORMS)
        payloads = self.column("SELECT data FROM record ORDER BY rec_id")
        roots = [parse(data) for data in payloads]
        self.assertEqual([type(root["req"]) for root in roots], [dict] * 7 + [bytes] * 2 + [dict])
        self.assertEqual(roots[0]["req"]["titl"], "Title 1")
        self.assertEqual(roots[-1]["req"]["titl"], "Title 10")

    def test_takes_bad_forms_too(self):
        self.database.pour(6, forms=BAD_FORMS)
        self.assertEqual([type(data) for data in self.column("SELECT data FROM record")],
                         [bytes] * 5 + [type(None)])

    def test_spreads_dates_over_a_span(self):
        self.database.pour(3, date=1000, span=10)
        self.assertEqual(self.dates(), [990.0, 995.0, 1000.0])
        self.assertEqual([parse(data)["date"] for data in self.column("SELECT data FROM record")],
                         self.dates())

    def test_gives_all_one_date(self):
        self.database.pour(3, date=5.0)
        self.assertEqual(self.dates(), [5.0] * 3)

    def test_without_a_rate_is_one_transaction(self):
        with self.assertRaises(sqlite3.IntegrityError):
            self.database.pour(2, rec_id=5)
        self.assertEqual(self.column("SELECT COUNT(*) FROM record"), [0])

    def test_at_a_rate_has_a_transaction_for_each(self):
        with self.assertRaises(sqlite3.IntegrityError):
            self.database.pour(2, rec_id=5, rate=1000)
        self.assertEqual(self.column("SELECT COUNT(*) FROM record"), [1])


class TheLegacyDatabase(DatabaseTestCase):
    kind = LegacyDatabase

    def archive(self, **keywords):
        self.database.append(title="A title", body="čaj 🇯🇵", **keywords)
        return parse(self.column("SELECT encoded_data FROM notifications")[0])

    @staticmethod
    def referred(archive, key):
        return archive["$objects"][archive["$objects"][1][key].data]

    def test_has_the_tables_of_older_systems(self):
        self.assertEqual(self.columns_of("app_info"),
                         [("app_id", "INTEGER", 0), ("bundleid", "VARCHAR", 0)])
        self.assertEqual(self.columns_of("notifications")[:3],
                         [("note_id", "INTEGER", 1), ("app_id", "INTEGER", 0),
                          ("encoded_data", "BLOB", 0)])

    def test_is_written_in_its_main_file(self):
        self.database.append(title="Unmistakable")
        self.assertFalse(self.has_log())
        self.assertIn(b"Unmistakable", self.contents())

    def test_has_rows_with_ids_and_applications(self):
        for app in ("com.a.One", "com.b", "com.a.One"):
            self.database.append(app=app)
        self.assertEqual(
            self.rows("SELECT note_id, bundleid FROM notifications NATURAL JOIN app_info ORDER BY 1"),
            [(1, "com.a.One"), (2, "com.b"), (3, "com.a.One")])

    def test_has_keyed_archives(self):
        archive = self.archive(date=650000000.5)
        self.assertEqual((archive["$archiver"], archive["$version"]), ("NSKeyedArchiver", 100000))
        self.assertEqual(archive["$top"], {"root": plistlib.UID(1)})
        self.assertEqual(self.referred(archive, "NSTitle"), "A title")
        self.assertEqual(self.referred(archive, "NSInformativetext"), "čaj 🇯🇵")
        self.assertEqual(self.referred(archive, "NSActualdeliverydate")["NS.time"], 650000000.5)

    def test_may_lack_a_date(self):
        self.assertNotIn("NSActualdeliverydate", self.archive(date=None)["$objects"][1])

    def test_may_have_references_past_its_objects(self):
        archive = self.archive(objects=3)
        self.assertEqual(len(archive["$objects"]), 3)
        self.assertEqual(archive["$objects"][1]["NSInformativetext"], plistlib.UID(3))

    def test_may_have_no_objects(self):
        self.assertEqual(self.archive(objects=0)["$objects"], [])


class TheCommandLine(DatabaseTestCase):
    def answers(self, *lines):
        self.database.close()
        done = subprocess.run([sys.executable, SCRIPT, "usernoted", self.path], check=True,
                              input="".join(line + "\n" for line in lines), capture_output=True,
                              encoding="utf-8")
        self.assertEqual(done.stderr, "")
        return [json.loads(line) for line in done.stdout.splitlines()]

    def test_carries_out_one_operation_a_line(self):
        answers = self.answers('{"do": "append", "title": "ä"}', '{"do": "close"}', '{"do": "open"}',
                               '{"do": "pour", "records": 2}', '{"do": "count"}')
        self.assertEqual([answer["result"] for answer in answers], [1, None, None, None, 3])
        self.assertFalse(self.has_log())

    def test_tells_of_what_fails_and_goes_on(self):
        answers = self.answers('{"do": "dance"}', "nothing", '{"do": "append", "colour": 1}',
                               '{"do": "append", "form": "round"}', '{"do": "close"}',
                               '{"do": "append"}', '{"do": "open"}', '{"do": "append"}')
        self.assertEqual(["error" in answer for answer in answers],
                         [True, True, True, True, False, True, False, False])
        self.assertEqual(self.column("SELECT COUNT(*) FROM record"), [1])

    def test_refuses_other_kinds(self):
        done = subprocess.run([sys.executable, SCRIPT, "other", self.path], capture_output=True)
        self.assertNotEqual(done.returncode, 0)


if __name__ == "__main__":
    unittest.main()

"""Checks usernoted-writer from outside: what it writes is read with sqlite3 and plistlib."""

import os
import plistlib
import sqlite3
import time

from WriterTestCase import WriterTestCase, main, parse

REFERENCE_DATE = 978307200
ARCHIVE_BODY_INDEX = 4
LISTS = ("requests", "delivered", "displayed", "snoozed")


def kept_by_a_reader(strings):
    """The strings of an archive that the least strict reader may take for a text."""
    prefixes = ("NS", "UI", "com.", "UNM", "kCI", "XPC", "CA", "CF")
    return [text for text in strings
            if len(text) >= 5 and not text.startswith(prefixes)
            and "://" not in text and "\\" not in text]


class TheDatabase(WriterTestCase):
    def test_has_the_tables_of_the_daemon(self):
        self.create()
        self.assertEqual(self.columns_of("dbinfo"),
                         [("key", "VARCHAR", 0), ("value", "VARCHAR", 0)])
        self.assertEqual(self.columns_of("app"),
                         [("app_id", "INTEGER", 1), ("identifier", "VARCHAR", 0)])
        self.assertEqual(self.columns_of("record"), [
            ("rec_id", "INTEGER", 1), ("app_id", "INTEGER", 0), ("uuid", "BLOB", 0),
            ("data", "BLOB", 0), ("request_date", "REAL", 0), ("request_last_date", "REAL", 0),
            ("delivered_date", "REAL", 0), ("presented", "Bool", 0), ("style", "INTEGER", 0),
            ("snooze_fire_date", "REAL", 0)])

    def test_has_the_lists_of_the_daemon(self):
        self.create()
        lists = [self.columns_of(name) for name in LISTS]
        self.assertEqual(lists, [[("app_id", "INTEGER", 1), ("list", "BLOB", 0)]] * 4)

    def test_drops_the_rows_of_an_application_with_it(self):
        self.create("--records", "4", "--app", "com.a.one", "--app", "com.a.two")
        connection = sqlite3.connect(self.database)
        for name in LISTS:
            connection.execute("INSERT INTO %s VALUES (1, x'00'), (2, x'00')" % name)
        connection.execute("DELETE FROM app WHERE identifier = 'com.a.one'")
        connection.commit()
        connection.close()
        self.assertEqual(self.column("SELECT rec_id FROM record ORDER BY rec_id"), [2, 4])
        left = [self.column("SELECT app_id FROM " + name) for name in LISTS]
        self.assertEqual(left, [[2]] * 4)

    def test_comes_with_its_folder(self):
        self.database = os.path.join(self.folder, "one", "two", "db")
        self.create("--records", "1")
        self.assertEqual(self.column("SELECT COUNT(*) FROM record"), [1])

    def test_keeps_its_rows_when_it_is_there_already(self):
        self.create("--records", "2")
        self.create("--records", "1")
        self.assertEqual(self.column("SELECT rec_id FROM record"), [1, 2, 3])

    def test_leaves_the_columns_of_requests_empty_and_is_presented(self):
        self.create("--records", "1")
        self.assertEqual(
            self.rows("SELECT request_date, request_last_date, snooze_fire_date, presented, style, "
                      "length(uuid) FROM record"), [(None, None, None, 1, 1, 16)])


class TheLog(WriterTestCase):
    def log_is_there(self):
        return os.path.exists(self.database + "-wal")

    def test_is_there_while_the_connection_is_held_and_goes_with_it(self):
        tool = self.hold("--create", "--records", "1", "--hold", "-1", "--quiet")
        self.assertEqual(tool.stdout.readline(), "records 1 first 1 last 1\n")
        self.assertTrue(self.log_is_there())
        with open(self.database, "rb") as file:
            self.assertEqual(file.read(20)[18:20], b"\x02\x02", "the header doesn't tell of WAL")
        self.assertEqual(self.column("PRAGMA journal_mode"), ["wal"])
        self.finish(tool)
        self.assertFalse(self.log_is_there())
        self.assertEqual(self.column("SELECT COUNT(*) FROM record"), [1])

    def test_holds_what_was_appended_until_a_checkpoint(self):
        tool = self.hold("--create", "--records", "1", "--hold", "-1")
        tool.stdout.readline()
        with open(self.database, "rb") as file:
            self.assertNotIn(b"com.example.mail", file.read())
        with open(self.database + "-wal", "rb") as file:
            self.assertIn(b"com.example.mail", file.read())

    def test_goes_when_the_process_is_asked_to_end(self):
        tool = self.hold("--create", "--records", "1", "--hold", "-1")
        tool.stdout.readline()
        self.terminate(tool)
        self.assertFalse(self.log_is_there())

    def test_goes_after_a_hold_of_some_time(self):
        tool = self.hold("--create", "--records", "1", "--hold", "0.2")
        self.assertEqual(tool.wait(timeout=60), 0)
        self.assertFalse(self.log_is_there())

    def test_goes_when_a_slow_tool_is_asked_to_end(self):
        tool = self.hold("--create", "--records", "1000", "--rate", "0.001")
        self.assertTrue(tool.stdout.readline().startswith("appended 1 "))
        self.terminate(tool)
        self.assertFalse(self.log_is_there())
        self.assertEqual(tool.stdout.readline(), "records 1 first 1 last 1\n")


class APayload(WriterTestCase):
    def payload(self, form):
        self.create("--records", "1", "--form", form, "--title", "A title", "--body",
                    "A body of some words", "--subtitle", "A subtitle", "--app", "com.example.Mail")
        (data,), = self.rows("SELECT data FROM record")
        return data

    def request(self, form):
        data = self.payload(form)
        self.assertTrue(280 <= len(data) <= 420, len(data))
        root = parse(data)
        self.assertNotIn("titl", root)
        self.assertNotIn("subt", root)
        return root["req"]

    def texts(self, form):
        request = self.request(form)
        return {key: request[key] for key in ("titl", "subt", "body") if key in request}

    def test_has_the_daemons_keys_at_its_root(self):
        root = parse(self.payload("request-title-body"))
        (uuid, date), = self.rows("SELECT uuid, delivered_date FROM record")
        self.assertEqual(set(root), {"styl", "app", "uuid", "srce", "orig", "date", "resp", "req"})
        self.assertEqual(root["app"], "com.example.Mail")
        self.assertEqual(root["uuid"], uuid)
        self.assertEqual(root["date"], date)
        self.assertIs(type(root["date"]), float)
        self.assertEqual((type(root["srce"]), len(root["srce"])), (bytes, 16))
        self.assertEqual((type(root["styl"]), type(root["orig"])), (int, int))
        self.assertEqual(set(root["resp"]), {"act"})

    def test_has_the_daemons_keys_in_its_request(self):
        request = self.request("request-title-body")
        self.assertEqual(set(request), {"titl", "body", "iden", "soun", "cate", "scat"})
        self.assertEqual(set(request["scat"]), {"id", "opt"})

    def test_request_title(self):
        self.assertEqual(self.texts("request-title"), {"titl": "A title"})

    def test_request_body(self):
        self.assertEqual(self.texts("request-body"), {"body": "A body of some words"})

    def test_request_title_body(self):
        self.assertEqual(self.texts("request-title-body"),
                         {"titl": "A title", "body": "A body of some words"})

    def test_request_all(self):
        self.assertEqual(self.texts("request-all"), {
            "titl": "A title", "subt": "A subtitle", "body": "A body of some words"})

    def test_request_subtitle(self):
        self.assertEqual(self.texts("request-subtitle"), {"subt": "A subtitle"})

    def test_request_title_subtitle(self):
        self.assertEqual(self.texts("request-title-subtitle"),
                         {"titl": "A title", "subt": "A subtitle"})

    def test_request_body_subtitle(self):
        self.assertEqual(self.texts("request-body-subtitle"),
                         {"subt": "A subtitle", "body": "A body of some words"})

    def test_request_empty(self):
        self.assertEqual(self.texts("request-empty"), {})

    def test_other_type(self):
        self.assertEqual({key: type(value) for key, value in self.texts("other-type").items()},
                         {"titl": int, "subt": list, "body": bytes})

    def archive(self, form):
        root = parse(self.payload(form))
        self.assertEqual((root["titl"], root["subt"]), ("A title", "A subtitle"))
        self.assertIs(type(root["req"]), bytes)
        return parse(root["req"])

    def test_archive_is_a_keyed_archive(self):
        archive = self.archive("archive")
        self.assertEqual(set(archive), {"$archiver", "$version", "$top", "$objects"})
        self.assertEqual((archive["$archiver"], archive["$version"]), ("NSKeyedArchiver", 100000))
        self.assertEqual(archive["$top"], {"root": plistlib.UID(1)})
        self.assertEqual(archive["$objects"][0], "$null")
        self.assertEqual(archive["$objects"][1]["text"], plistlib.UID(ARCHIVE_BODY_INDEX))
        self.assertEqual(archive["$objects"][ARCHIVE_BODY_INDEX], "A body of some words")

    def test_archive_has_beside_the_body_only_what_readers_refuse(self):
        strings = [text for text in self.archive("archive")["$objects"] if type(text) is str]
        self.assertTrue({"com.", "NSMu", "UNMN", "text"} <= {text[:4] for text in strings})
        self.assertEqual(kept_by_a_reader(strings), ["$null", "A body of some words"])

    def test_archive_long_has_hundreds_of_objects_and_longer_strings_that_readers_refuse(self):
        archive = self.archive("archive-long")
        self.assertGreater(len(archive["$objects"]), 400)
        strings = [text for text in archive["$objects"] if type(text) is str]
        longer = [text for text in strings if len(text) > len("A body of some words")]
        self.assertGreater(len(longer), 200)
        self.assertEqual(kept_by_a_reader(strings), ["$null", "A body of some words"])

    def test_not_a_dictionary(self):
        self.assertEqual(parse(self.payload("not-a-dictionary")),
                         ["A title", "A body of some words"])

    def test_broken(self):
        data = self.payload("broken")
        self.assertEqual(data[:8], b"bplist00")
        with self.assertRaises(plistlib.InvalidFileException):
            plistlib.loads(data, fmt=plistlib.FMT_BINARY)

    def test_zero_bytes(self):
        self.assertEqual(self.payload("zero-bytes"), b"")

    def test_null(self):
        self.assertIsNone(self.payload("null"))


class MixedForms(WriterTestCase):
    """A form is told here by its texts, or by what stands in their place."""

    def kinds(self, form, count):
        self.create("--records", str(count), "--form", form)
        return [self.kind(data) for data in self.column("SELECT data FROM record ORDER BY rec_id")]

    def kind(self, data):
        if not data:
            return repr(data)
        try:
            root = plistlib.loads(data, fmt=plistlib.FMT_BINARY)
        except plistlib.InvalidFileException:
            return "broken"
        if type(root) is list:
            return "array"
        if type(root["req"]) is bytes:
            return "archive" if len(root["req"]) < 1000 else "long archive"
        texts = [key for key in ("titl", "subt", "body") if key in root["req"]]
        strings = all(type(root["req"][key]) is str for key in texts)
        return "+".join(texts) if strings else "other type"

    good = ["titl", "body", "titl+body", "titl+subt+body", "subt", "titl+subt", "subt+body",
            "archive", "long archive"]
    bad = ["", "other type", "array", "broken", "b''", "None"]

    def test_mixed_goes_round_what_gives_text(self):
        self.assertEqual(self.kinds("mixed", 10), self.good + self.good[:1])

    def test_mixed_bad_goes_round_what_gives_none(self):
        self.assertEqual(self.kinds("mixed-bad", 7), self.bad + self.bad[:1])

    def test_all_goes_round_both(self):
        self.assertEqual(self.kinds("all", 16), self.good + self.bad + self.good[:1])


class Texts(WriterTestCase):
    def texts(self):
        return [(root["req"]["titl"], root["req"]["body"])
                for root in map(parse, self.column("SELECT data FROM record ORDER BY rec_id"))]

    def test_bear_the_running_number_by_default(self):
        self.create("--records", "2")
        self.assertEqual(self.texts(), [("Title 1", "Body 1"), ("Title 2", "Body 2")])

    def test_take_the_running_number_wherever_it_is_wanted(self):
        self.create("--records", "2", "--title", "{n} of {n}", "--body", "the same")
        self.assertEqual(self.texts(), [("1 of 1", "the same"), ("2 of 2", "the same")])

    def test_may_be_of_any_script(self):
        self.create("--records", "1", "--title", "日本語 🇯🇵", "--body", "čaj\nnaïve")
        self.assertEqual(self.texts(), [("日本語 🇯🇵", "čaj\nnaïve")])

    def test_may_be_empty(self):
        self.create("--records", "1", "--title", "", "--body", "")
        self.assertEqual(self.texts(), [("", "")])


class Applications(WriterTestCase):
    joined = ("SELECT identifier FROM record LEFT JOIN app ON app.app_id = record.app_id "
              "ORDER BY rec_id")

    def test_are_taken_in_turn_with_one_row_for_each(self):
        self.create("--records", "3", "--app", "com.a.one", "--app", "com.a.two")
        self.assertEqual(self.column(self.joined), ["com.a.one", "com.a.two", "com.a.one"])
        self.assertEqual(self.column("SELECT COUNT(*) FROM app"), [2])

    def test_have_lower_case_in_the_table_and_their_own_in_the_payload(self):
        self.create("--records", "1", "--app", "com.Example.Chat")
        self.assertEqual(self.column(self.joined), ["com.example.chat"])
        (data,), = self.rows("SELECT data FROM record")
        self.assertEqual(parse(data)["app"], "com.Example.Chat")

    def test_keep_their_row_from_run_to_run(self):
        self.create("--records", "1", "--app", "com.a.one")
        self.write("--records", "1", "--app", "com.a.two")
        self.write("--records", "1", "--app", "com.a.one")
        self.assertEqual(self.column(self.joined), ["com.a.one", "com.a.two", "com.a.one"])

    def test_may_lack_a_row(self):
        self.create("--records", "2", "--no-app-row", "7")
        self.assertEqual(self.column("SELECT app_id FROM record"), [7, 7])
        self.assertEqual(self.column("SELECT COUNT(*) FROM app"), [0])

    def test_that_have_a_row_are_no_strays(self):
        self.create("--records", "1")
        self.assert_refused(["--records", "1", "--no-app-row", "1"], 1, "app_id 1 has a row")


class RecordIds(WriterTestCase):
    ids = "SELECT rec_id FROM record ORDER BY rowid"

    def test_begin_and_step_as_told(self):
        self.create("--records", "3", "--first-rec-id", "100", "--rec-id-step", "7")
        self.assertEqual(self.column(self.ids), [100, 107, 114])

    def test_follow_the_greatest(self):
        self.create("--records", "1", "--first-rec-id", "40")
        self.write("--records", "2", "--rec-id-step", "5")
        self.assertEqual(self.column(self.ids), [40, 45, 50])

    def test_may_go_down(self):
        lines = self.create("--records", "3", "--first-rec-id", "9", "--rec-id-step", "-4")
        self.assertEqual(self.column(self.ids), [1, 5, 9])
        self.assertEqual(lines[-1], "records 3 first 9 last 1")

    def test_reach_the_ends_of_their_range(self):
        self.create("--records", "2", "--first-rec-id", "9223372036854775806")
        self.assertEqual(self.column(self.ids), [2**63 - 2, 2**63 - 1])
        self.assert_refused(["--records", "1"], 1, "would not fit")

    def test_that_are_taken_leave_the_table_as_it_was(self):
        self.create("--records", "1", "--first-rec-id", "3")
        self.assert_refused(["--records", "3", "--first-rec-id", "1", "--app", "com.new"], 1,
                            "UNIQUE")
        self.assertEqual(self.column(self.ids), [3])
        self.assertEqual(self.column("SELECT identifier FROM app"), ["com.example.mail"])


class Dates(WriterTestCase):
    def dates(self, *arguments):
        self.create(*arguments)
        return self.column("SELECT delivered_date FROM record ORDER BY rec_id")

    def clock(self):
        return time.time() - REFERENCE_DATE

    def test_as_seconds_are_the_same_for_all(self):
        self.assertEqual(self.dates("--records", "3", "--date", "700000000.25"),
                         [700000000.25, 700000000.25, 700000000.25])

    def test_may_lie_before_the_reference_date(self):
        self.assertEqual(self.dates("--records", "1", "--date", "-12.5"), [-12.5])
        self.assertEqual(self.dates("--records", "1", "--date", "negative")[1:], [-1.0])

    def test_are_each_records_own_moment_by_default(self):
        before = self.clock()
        dates = self.dates("--records", "3", "--rate", "100")
        self.assertTrue(before - 0.001 <= dates[0] < dates[1] < dates[2] <= self.clock() + 0.001)

    def test_may_lie_behind_now(self):
        before = self.clock()
        date, = self.dates("--records", "1", "--date", "now-3600")
        self.assertTrue(before - 3600.001 <= date <= self.clock() - 3599.999)

    def test_spread_over_a_span_that_ends_at_the_date(self):
        self.assertEqual(self.dates("--records", "5", "--date", "1000", "--span", "100"),
                         [900.0, 925.0, 950.0, 975.0, 1000.0])

    def test_of_one_record_is_the_end_of_the_span(self):
        self.assertEqual(self.dates("--records", "1", "--date", "1000", "--span", "100"), [1000.0])

    def test_spread_back_from_one_now(self):
        first, middle, last = self.dates("--records", "3", "--span", "60")
        self.assertAlmostEqual(middle - first, 30, places=6)
        self.assertAlmostEqual(last - middle, 30, places=6)

    def test_can_be_one_now_for_all(self):
        dates = self.dates("--records", "4", "--same-date", "--rate", "200")
        self.assertEqual(len(set(dates)), 1)

    def test_can_be_null(self):
        self.assertEqual(self.dates("--records", "1", "--date", "null"), [None])

    def test_can_be_a_text(self):
        self.assertEqual(self.dates("--records", "1", "--date", "text"), ["yesterday"])

    def test_can_be_infinite(self):
        self.assertEqual(self.dates("--records", "1", "--date", "inf"), [float("inf")])

    def test_can_be_infinite_downwards(self):
        self.assertEqual(self.dates("--records", "1", "--date", "-inf"), [float("-inf")])

    def test_are_the_same_in_the_payload(self):
        dates = self.dates("--records", "2", "--date", "500", "--span", "1.5")
        self.assertEqual(dates, [498.5, 500.0])
        payloads = self.column("SELECT data FROM record ORDER BY rec_id")
        self.assertEqual([parse(data)["date"] for data in payloads], [498.5, 500.0])


class Reports(WriterTestCase):
    def test_name_each_record_and_the_moment_after_its_commit(self):
        before = time.time()
        lines = self.create("--records", "2", "--first-rec-id", "5")
        self.assertEqual([line.split()[:2] for line in lines[:2]],
                         [["appended", "5"], ["appended", "6"]])
        for line in lines[:2]:
            self.assertRegex(line, r"^appended \d+ \d+\.\d{6}$")
            self.assertTrue(before - 0.001 <= float(line.split()[2]) <= time.time() + 0.001)
        self.assertEqual(lines[2:], ["records 2 first 5 last 6"])

    def test_have_dashes_where_nothing_was_appended(self):
        self.assertEqual(self.create(), ["records 0 first - last -"])

    def test_are_short_when_quiet(self):
        self.assertEqual(self.create("--records", "3", "--quiet"), ["records 3 first 1 last 3"])

    def commits(self, *arguments):
        lines = self.create("--records", "10", *arguments)
        self.assertEqual(self.column("SELECT COUNT(*) FROM record"), [10])
        return len({line.split()[2] for line in lines[:-1]})

    def test_tell_one_commit_without_a_rate(self):
        self.assertEqual(self.commits(), 1)

    def test_tell_a_commit_for_each_record_at_a_rate(self):
        self.assertEqual(self.commits("--rate", "100"), 10)

    def test_tell_a_commit_for_each_batch_at_a_rate(self):
        self.assertEqual(self.commits("--rate", "200", "--batch", "4"), 3)

    def test_tell_a_commit_for_each_batch_without_a_rate(self):
        self.assertEqual(self.commits("--batch", "5"), 2)


class Commands(WriterTestCase):
    def setUp(self):
        super().setUp()
        self.process = self.hold("--create", "--commands", "--app", "com.a.One")
        self.assertEqual(self.process.stdout.readline(), "records 0 first - last -\n")

    def send(self, command):
        self.process.stdin.write(command + "\n")

    def answer(self):
        return self.process.stdout.readline().rstrip("\n")

    def ask(self, command):
        self.send(command)
        return self.answer()

    def test_append_one_record_which_others_see_at_once(self):
        self.assertRegex(self.ask("append"), r"^ok records 1 first 1 last 1 time \d+\.\d{6}$")
        self.assertEqual(self.rows("SELECT rec_id, identifier FROM record NATURAL JOIN app"),
                         [(1, "com.a.one")])

    def test_append_with_the_options_of_the_command_line(self):
        answer = self.ask("append records=3 first-rec-id=10 rec-id-step=10 date=1000 span=10 "
                          "form=request-body app=com.b app=com.c")
        self.assertTrue(answer.startswith("ok records 3 first 10 last 30 time "), answer)
        self.assertEqual(
            self.rows("SELECT rec_id, identifier, delivered_date FROM record NATURAL JOIN app "
                      "ORDER BY rec_id"),
            [(10, "com.b", 990.0), (20, "com.c", 995.0), (30, "com.b", 1000.0)])

    def test_append_takes_quoted_values(self):
        self.ask(r'''append title="two words" body='it is "so"\n' ''')
        self.ask(r'''append title="a \"b\"\n\tc\\" "body=x = y"''')
        requests = [parse(data)["req"] for data in self.column("SELECT data FROM record")]
        self.assertEqual([(request["titl"], request["body"]) for request in requests],
                         [("two words", 'it is "so"\\n'), ('a "b"\n\tc\\', "x = y")])

    def test_append_goes_on_with_the_running_number(self):
        self.ask("append records=2")
        self.ask("append")
        titles = [parse(data)["req"]["titl"] for data in self.column("SELECT data FROM record")]
        self.assertEqual(titles, ["Title 1", "Title 2", "Title 3"])

    def test_append_refuses_what_the_command_line_refuses(self):
        self.assertEqual(self.ask("append records=x"),
                         "error records: a whole number from 0 up is wanted, not 'x'")
        self.assertEqual(self.ask("append colour=red"), "error there is no key 'colour'")
        self.assertTrue(self.ask("append span=1 same-date").startswith("error "))
        self.assertTrue(self.ask('append title="open').startswith("error "))
        self.assertEqual(self.ask("count"), "ok count 0")

    def test_append_tells_of_the_databases_refusal_and_goes_on(self):
        self.ask("append first-rec-id=5")
        self.assertIn("UNIQUE", self.ask("append first-rec-id=5"))
        self.assertTrue(self.ask("append").startswith("ok records 1 first 6 last 6"))

    def test_checkpoint_moves_the_log_into_the_file(self):
        self.ask("append title=Unmistakable")
        with open(self.database, "rb") as file:
            self.assertNotIn(b"Unmistakable", file.read())
        self.assertRegex(self.ask("checkpoint"), r"^ok checkpoint log (\d+) copied \1$")
        with open(self.database, "rb") as file:
            self.assertIn(b"Unmistakable", file.read())
        self.assertGreater(os.path.getsize(self.database + "-wal"), 0)

    def test_checkpoint_truncate_empties_the_log(self):
        self.ask("append")
        self.assertTrue(self.ask("checkpoint truncate").startswith("ok checkpoint"))
        self.assertEqual(os.path.getsize(self.database + "-wal"), 0)

    def test_close_drops_the_log_and_open_goes_on(self):
        self.ask("append")
        self.assertEqual(self.ask("close"), "ok close")
        self.assertFalse(os.path.exists(self.database + "-wal"))
        self.assertTrue(self.ask("append").startswith("error "))
        self.assertTrue(self.ask("close").startswith("error "))
        self.assertEqual(self.ask("open"), "ok open")
        self.assertTrue(self.ask("open").startswith("error "))
        self.assertTrue(self.ask("append").startswith("ok records 1 first 2 last 2"))

    def test_lock_keeps_other_writers_away_and_hides_records_until_unlock(self):
        self.assertEqual(self.ask("lock"), "ok lock")
        self.assertTrue(self.ask("lock").startswith("error "))
        self.ask("append")
        self.assertEqual(self.ask("count"), "ok count 1")
        self.assertEqual(self.column("SELECT COUNT(*) FROM record"), [0])
        other = sqlite3.connect(self.database, timeout=0)
        self.addCleanup(other.close)
        with self.assertRaisesRegex(sqlite3.OperationalError, "locked"):
            other.execute("BEGIN IMMEDIATE")
        self.assertEqual(self.ask("unlock"), "ok unlock")
        self.assertTrue(self.ask("unlock").startswith("error "))
        self.assertEqual(self.column("SELECT COUNT(*) FROM record"), [1])

    def test_append_waits_for_another_writer(self):
        other = sqlite3.connect(self.database, isolation_level=None)
        self.addCleanup(other.close)
        other.execute("BEGIN IMMEDIATE")
        self.send("append")
        time.sleep(0.5)
        other.execute("COMMIT")
        self.assertTrue(self.answer().startswith("ok records 1 "))

    def test_quit_ends_with_a_summary_of_all(self):
        self.ask("append records=2")
        self.assertEqual(self.ask("quit"), "ok quit")
        self.assertEqual(self.answer(), "records 2 first 1 last 2")
        self.assertEqual(self.process.wait(timeout=60), 0)
        self.assertFalse(os.path.exists(self.database + "-wal"))

    def test_the_end_of_the_input_ends_them_after_the_last_line(self):
        self.process.stdin.write("append\n\ncount")
        self.process.stdin.close()
        self.assertTrue(self.answer().startswith("ok records 1"))
        self.assertEqual(self.answer(), "ok count 1")
        self.assertEqual(self.answer(), "records 1 first 1 last 1")
        self.assertEqual(self.process.wait(timeout=60), 0)

    def test_unknown_ones_are_refused(self):
        self.assertEqual(self.ask("dance"), "error there is no command 'dance'")
        self.assertEqual(self.ask("count twice"), "error there is no command 'count twice'")

    def test_a_request_to_end_closes_the_database(self):
        self.ask("append")
        self.terminate(self.process)
        self.assertFalse(os.path.exists(self.database + "-wal"))


class BadInput(WriterTestCase):
    def assert_bad(self, part_of_message, *arguments):
        self.assert_refused(["--create", *arguments], 2, part_of_message)
        self.assertFalse(os.path.exists(self.database))

    def test_unknown_option(self):
        self.assert_bad("colour", "--colour", "red")

    def test_option_without_its_value(self):
        self.assert_bad("records", "--records")

    def test_second_file(self):
        self.assert_bad("one database file", "another")

    def test_unknown_form(self):
        self.assert_bad("'archives'", "--form", "archives")

    def test_count_that_is_no_number(self):
        self.assert_bad("--records", "--records", "many")

    def test_negative_count(self):
        self.assert_bad("--records", "--records", "-1")

    def test_date_that_is_none(self):
        self.assert_bad("--date", "--date", "tomorrow")

    def test_date_without_a_number_after_now(self):
        self.assert_bad("--date", "--date", "now-")

    def test_date_that_is_not_a_number(self):
        self.assert_bad("--date", "--date", "nan")

    def test_negative_span(self):
        self.assert_bad("--span", "--span", "-1")

    def test_span_of_one_date(self):
        self.assert_bad("--same-date", "--span", "1", "--same-date")

    def test_span_without_a_moment(self):
        self.assert_bad("--span", "--span", "1", "--date", "null")

    def test_rate_of_zero(self):
        self.assert_bad("--rate", "--rate", "0")

    def test_infinite_rate(self):
        self.assert_bad("--rate", "--rate", "inf")

    def test_batch_of_zero(self):
        self.assert_bad("--batch", "--batch", "0")

    def test_step_of_zero(self):
        self.assert_bad("--rec-id-step", "--rec-id-step", "0")

    def test_way_down_from_nowhere(self):
        self.assert_bad("--first-rec-id", "--rec-id-step", "-1")

    def test_ids_beyond_their_range(self):
        self.assert_bad("would not fit", "--records", "2", "--first-rec-id", str(2**63 - 1))

    def test_negative_hold(self):
        self.assert_bad("--hold", "--hold", "-2")

    def test_empty_application(self):
        self.assert_bad("--app", "--app", "")

    def test_missing_database(self):
        self.assert_refused(["--records", "1"], 2, "there is no")
        self.assertFalse(os.path.exists(self.database))

    def test_file_that_is_no_database(self):
        with open(self.database, "w", encoding="ascii") as file:
            file.write("certainly no database, but a text that is long enough to be one " * 10)
        self.assert_refused(["--records", "1"], 1, "not a database")

    def test_database_of_another_kind(self):
        connection = sqlite3.connect(self.database)
        connection.execute("CREATE TABLE hoard (id INTEGER)")
        connection.close()
        self.assert_refused(["--records", "1"], 1, "lacks the tables")

    def test_folder_that_cannot_be_made(self):
        with open(os.path.join(self.folder, "file"), "w", encoding="ascii"):
            pass
        self.database = os.path.join(self.folder, "file", "db")
        self.assert_refused(["--create"], 1, "can't be made")

    def test_help_is_no_error(self):
        lines = self.write("--help")
        self.assertTrue(any("--rec-id-step" in line for line in lines))
        self.assertFalse(os.path.exists(self.database))


if __name__ == "__main__":
    main()

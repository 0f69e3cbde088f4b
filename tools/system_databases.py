#!/usr/bin/env python3
"""Makes and fills databases of notifications as the systems do, for tests and for developers.

    system_databases.py usernoted|legacy FILE

opens the file, or makes it with its folder, and carries out one operation for each line of standard
input, a JSON object; it answers each by one line on standard output, an object again: what came of
it, or "error" with the reason. At the end of the input the file is closed.

    {"do": "append", ...}   keywords of the database's method append()
    {"do": "pour", "records": N, "span": SECONDS, "rate": PER_SECOND, "forms": [...], ...}
                            N records, as pour() writes them
    {"do": "count"}, {"do": "lock"}, {"do": "unlock"}, {"do": "close"}, {"do": "open"}

In Python the classes do the same without the lines. Failures of SQLite are its own exceptions.
"""

import json
import os
import plistlib
import sqlite3
import sys
import time
import uuid

REFERENCE_DATE = 978307200.0
JUST_NOW = object()
NAMES = uuid.UUID("6b1f7a0e-93c5-4d0b-8a53-2f0c4be1d7a9")

# Which texts stand in the request of a form.
REQUEST_TEXTS = {
    "request-title": ["titl"], "request-body": ["body"], "request-title-body": ["titl", "body"],
    "request-all": ["titl", "subt", "body"], "request-subtitle": ["subt"],
    "request-title-subtitle": ["titl", "subt"], "request-body-subtitle": ["subt", "body"]}
# From these a reader gets text, and from the others none.
FORMS = [*REQUEST_TEXTS, "archive", "archive-long"]
BAD_FORMS = ["request-empty", "other-type", "not-a-dictionary", "broken", "zero-bytes", "null"]


def now():
    """Seconds since 2001-01-01 00:00:00 UTC, in which all dates are counted."""
    return time.time() - REFERENCE_DATE


def uuid_of(number):
    """The 16 bytes that name a record: the same number gives the same bytes."""
    return uuid.uuid5(NAMES, str(number)).bytes


def binary(root):
    return plistlib.dumps(root, fmt=plistlib.FMT_BINARY, sort_keys=False)


def keyed_archive(objects):
    return {"$version": 100000, "$archiver": "NSKeyedArchiver", "$top": {"root": plistlib.UID(1)},
            "$objects": objects}


def class_info(*names):
    return {"$classname": names[0], "$classes": list(names)}


def archived_request(number, body, rounds):
    """An archive whose longest string that a reader may take for a text is the body. Each round adds
    longer ones that readers refuse, and short ones."""
    uid = plistlib.UID
    objects = ["$null", {"$class": uid(6), "identifier": uid(2), "kind": uid(3), "text": uid(4),
                         "badge": uid(5)},
               f"com.example.request.{number}", "text", body, 1,
               class_info("UNMutableNotificationContent", "UNNotificationContent", "NSObject"),
               "NSMutableDictionary", "UNMNotificationSourceDescription", "mail"]
    for turn in range(rounds):
        longer = f"{body} and much more {turn}"
        objects += [f"https://example.com/{longer}", f"com.example.{longer}",
                    f"NSAttributed {longer}", f"share\\{longer}", f"w{turn}", turn, turn + 0.5,
                    longer.encode()]
    return binary(keyed_archive(objects))


def usernoted_payload(form, number, *, app, date, title, body, subtitle):
    """The bytes of a record in one of the forms; None stands for NULL."""
    if form in ("null", "zero-bytes"):
        return None if form == "null" else b""
    if form == "not-a-dictionary":
        return binary([title, body])
    root = {"styl": 1, "app": app, "uuid": uuid_of(number), "srce": uuid_of(-1 - number), "orig": 1,
            "date": float(date) if isinstance(date, (int, float)) else 0.0, "resp": {"act": 0}}
    if form in ("archive", "archive-long"):
        rounds = 60 if form == "archive-long" else 0
        return binary({**root, "titl": title, "subt": subtitle,
                       "req": archived_request(number, body, rounds)})
    if form == "other-type":
        texts = {"titl": 1, "subt": ["x"], "body": b"not a string"}
    else:
        all_texts = {"titl": title, "subt": subtitle, "body": body}
        wanted = {**REQUEST_TEXTS, "request-empty": [], "broken": list(all_texts)}[form]
        texts = {key: all_texts[key] for key in wanted}
    root["req"] = {**texts, "iden": str(uuid.UUID(bytes=uuid_of(number))).upper(),
                   "soun": "default", "cate": "MESSAGE", "scat": {"id": "MESSAGE", "opt": 1}}
    payload = binary(root)
    return payload[:len(payload) // 2] if form == "broken" else payload


class Database:
    """What both kinds share. A connection waits ten seconds for another writer."""

    def __init__(self, path):
        self.path, self.connection = path, None
        os.makedirs(os.path.dirname(os.path.abspath(path)), exist_ok=True)
        self.open()

    def open(self):
        if self.connection is None:
            self.connection = sqlite3.connect(self.path, timeout=10, isolation_level=None)
            self.connection.executescript(self.SCHEMA)

    def close(self):
        """The last connection of all takes a write-ahead log along."""
        if self.connection is not None:
            self.connection.close()
            self.connection = None

    def lock(self):
        self.connection.execute("BEGIN EXCLUSIVE")

    def unlock(self):
        self.connection.execute("COMMIT")

    def number(self, statement, *values):
        row = self.connection.execute(statement, values).fetchone()
        return row[0] if row else None

    def count(self):
        return self.number(f"SELECT COUNT(*) FROM {self.TABLE}")

    def pour(self, records, *, span=0.0, rate=None, forms=None, title="Title {n}", body="Body {n}",
             date=None, **keywords):
        """Appends records whose texts bear their number: in one transaction, or so many a second.
        Their dates end at the given one, or now, and begin a span of seconds earlier."""
        if rate is None:
            self.connection.execute("BEGIN IMMEDIATE")
        try:
            started, last = time.monotonic(), now() if date is None and span else date
            for index in range(records):
                if rate is not None:
                    time.sleep(max(0.0, started + index / rate - time.monotonic()))
                if last is not None:
                    earlier = (records - 1 - index) / max(records - 1, 1)
                    keywords["date"] = last - span * earlier if span else last
                if forms:
                    keywords["form"] = forms[index % len(forms)]
                number = str(index + 1)
                self.append(title=title.replace("{n}", number), body=body.replace("{n}", number),
                            **keywords)
        finally:
            if self.connection.in_transaction and rate is None:
                self.connection.execute("ROLLBACK" if sys.exc_info()[0] else "COMMIT")


class UsernotedDatabase(Database):
    """Of the daemon: in WAL mode, a row for each notification."""

    TABLE = "record"
    LISTS = ["requests", "delivered", "displayed", "snoozed"]
    SCHEMA = """
PRAGMA journal_mode = WAL;
CREATE TABLE IF NOT EXISTS dbinfo (key VARCHAR, value VARCHAR);
CREATE TABLE IF NOT EXISTS app (app_id INTEGER PRIMARY KEY, identifier VARCHAR);
CREATE TABLE IF NOT EXISTS record (
    rec_id INTEGER PRIMARY KEY, app_id INTEGER, uuid BLOB, data BLOB, request_date REAL,
    request_last_date REAL, delivered_date REAL, presented Bool, style INTEGER,
    snooze_fire_date REAL);
""" + "".join(f"CREATE TABLE IF NOT EXISTS {name} (app_id INTEGER PRIMARY KEY, list BLOB);\n"
              for name in LISTS) + """
CREATE TRIGGER IF NOT EXISTS app_deleted AFTER DELETE ON app BEGIN
""" + "".join(f"DELETE FROM {name} WHERE app_id = OLD.app_id;\n" for name in ["record", *LISTS]
              ) + "END;"

    def app_id(self, identifier):
        """Of an application, whose row is made if it is missing."""
        known = self.number("SELECT app_id FROM app WHERE identifier = ? ORDER BY 1", identifier)
        return known or self.number("INSERT INTO app (identifier) VALUES (?) RETURNING app_id",
                                    identifier)

    def append(self, *, title="Title", body="Body", subtitle="Subtitle", app="com.example.Mail",
               form="request-title-body", rec_id=None, app_id=None, date=JUST_NOW, age=0.0):
        """Writes a record; gives its id. `date` may be anything that SQLite stores, None included;
        without it, the record is delivered now, or as many seconds earlier as `age` says. The table
        of applications has identifiers in lower case. An `app_id` is taken as it is."""
        date = now() - age if date is JUST_NOW else date
        number = rec_id or self.number("SELECT IFNULL(MAX(rec_id), 0) + 1 FROM record")
        payload = usernoted_payload(form, number, app=app, date=date, title=title, body=body,
                                    subtitle=subtitle)
        self.connection.execute(
            "INSERT INTO record (rec_id, app_id, uuid, data, delivered_date, presented, style) "
            "VALUES (?, ?, ?, ?, ?, 1, 1)",
            (number, app_id or self.app_id(app.lower()), uuid_of(number), payload, date))
        return number


class LegacyDatabase(Database):
    """Of older systems: with a rollback journal, so that every write touches the main file."""

    TABLE = "notifications"
    SCHEMA = """
CREATE TABLE IF NOT EXISTS app_info (app_id INTEGER, bundleid VARCHAR);
CREATE TABLE IF NOT EXISTS notifications (
    note_id INTEGER PRIMARY KEY, app_id INTEGER, encoded_data BLOB, date_presented REAL);"""

    def app_id(self, bundle_id):
        known = self.number("SELECT app_id FROM app_info WHERE bundleid = ?", bundle_id)
        return known or self.number("INSERT INTO app_info SELECT IFNULL(MAX(app_id), 0) + 1, ? "
                                    "FROM app_info RETURNING app_id", bundle_id)

    @staticmethod
    def payload(title, body, date, objects=None):
        """A keyed archive; no date is none in the archive. `objects` cuts its list of objects to that
        length, so that references point past its end."""
        uid = plistlib.UID
        note = {"$class": uid(4), "NSTitle": uid(2), "NSInformativetext": uid(3)}
        dates = []
        if date is not None:
            note["NSActualdeliverydate"] = uid(5)
            dates = [{"NS.time": float(date), "$class": uid(6)}, class_info("NSDate", "NSObject")]
        everything = ["$null", note, title, body, class_info("NSUserNotification", "NSObject"),
                      *dates]
        return binary(keyed_archive(everything[:objects]))

    def append(self, *, title="Title", body="Body", app="com.example.Mail", note_id=None,
               objects=None, date=JUST_NOW, age=0.0):
        date = now() - age if date is JUST_NOW else date
        number = note_id or self.number("SELECT IFNULL(MAX(note_id), 0) + 1 FROM notifications")
        self.connection.execute(
            "INSERT INTO notifications (note_id, app_id, encoded_data) VALUES (?, ?, ?)",
            (number, self.app_id(app), self.payload(title, body, date, objects)))
        return number


OPERATIONS = ["append", "pour", "count", "lock", "unlock", "close", "open"]


def answer(database, line):
    try:
        operation = json.loads(line)
        name = operation.pop("do")
        if name not in OPERATIONS:
            raise ValueError(f"there is no operation {name!r}")
        return {"result": getattr(database, name)(**operation), "time": time.time()}
    except (sqlite3.Error, ValueError, TypeError, KeyError, AttributeError) as error:
        return {"error": f"{type(error).__name__}: {error}"}


def main(arguments):
    kinds = {"usernoted": UsernotedDatabase, "legacy": LegacyDatabase}
    if len(arguments) != 2 or arguments[0] not in kinds:
        sys.exit(__doc__)
    database = kinds[arguments[0]](arguments[1])
    for line in sys.stdin:
        print(json.dumps(answer(database, line)), flush=True)
    database.close()


if __name__ == "__main__":
    main(sys.argv[1:])

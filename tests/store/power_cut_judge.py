"""Says of each hoard that a line of the input names what Python's SQLite finds in it: a line with
what is wrong with the file, or else "ok" and its rows, as the test writes them too."""

import contextlib
import os
import sqlite3
import sys


def judged(path):
    if not os.path.exists(path):
        return "ok none"
    with contextlib.closing(sqlite3.connect(path)) as hoard:
        check = hoard.execute("PRAGMA integrity_check").fetchone()[0]
        if check != "ok":
            return check
        if not hoard.execute("SELECT 1 FROM sqlite_master WHERE name = 'notifications'").fetchone():
            return "ok none"
        rows = hoard.execute("SELECT id, app_name, LENGTH(body), pinned FROM notifications "
                             "ORDER BY id")
        return "ok" + "".join(f" {row[0]}:{row[1]}:{row[2]}:{row[3]}" for row in rows)


for line in sys.stdin:
    try:
        answer = judged(line.rstrip("\n"))
    except sqlite3.Error as error:
        answer = f"not to be read: {error}"
    print(answer.replace("\n", " "), flush=True)

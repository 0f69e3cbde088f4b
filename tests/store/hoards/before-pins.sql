-- A hoard from before rows could be pinned, without that column. Each version since has added it.
CREATE TABLE notifications (
    id             INTEGER PRIMARY KEY AUTOINCREMENT,
    system_note_id INTEGER UNIQUE,
    bundle_id      TEXT,
    app_name       TEXT,
    title          TEXT,
    body           TEXT,
    timestamp      REAL,
    captured_at    REAL DEFAULT (strftime('%s','now'))
);
CREATE INDEX idx_timestamp ON notifications(timestamp DESC);
CREATE INDEX idx_bundle ON notifications(bundle_id);
INSERT INTO notifications (system_note_id, bundle_id, app_name, title, body, timestamp, captured_at)
VALUES (5, 'com.example.mail', 'Mail', 'first', 'a', 500000000.5, 1478307201.0),
       (6, 'com.example.mail', 'Mail', 'second', 'b', 500000001.5, 1478307202.0);

-- A hoard as the first version that captured wrote it (fc1a7a9), by its statements, and as each
-- version since has kept it: schema and columns have not changed.
PRAGMA journal_mode=WAL;
CREATE TABLE IF NOT EXISTS notifications (
    id             INTEGER PRIMARY KEY AUTOINCREMENT,
    system_note_id INTEGER UNIQUE,
    bundle_id      TEXT,
    app_name       TEXT,
    title          TEXT,
    body           TEXT,
    timestamp      REAL,
    captured_at    REAL DEFAULT (strftime('%s','now')),
    pinned         INTEGER NOT NULL DEFAULT 0
);
CREATE INDEX IF NOT EXISTS idx_timestamp ON notifications(timestamp DESC);
CREATE INDEX IF NOT EXISTS idx_bundle ON notifications(bundle_id);
INSERT OR IGNORE INTO notifications
    (system_note_id, bundle_id, app_name, title, body, timestamp)
VALUES (41, 'com.example.mail', 'Mail', 'Your parcel', 'It comes on Thursday', 700000001.25);
INSERT OR IGNORE INTO notifications
    (system_note_id, bundle_id, app_name, title, body, timestamp)
VALUES (42, 'com.example.mail', 'Mail', 'Grüße aus 東京 🎌', '', 700000003.5);
INSERT INTO notifications (system_note_id, bundle_id, app_name, title, body, timestamp)
VALUES (NULL, 'signal.desktop', 'Signal Desktop', 'Anna', 'Line one
line two', 700000002.75);
INSERT INTO notifications (system_note_id, bundle_id, app_name, title, body, timestamp)
VALUES (NULL, 'gone', 'Gone', 'Deleted by the user', '', 700000009.0);
INSERT OR IGNORE INTO notifications
    (system_note_id, bundle_id, app_name, title, body, timestamp)
VALUES (9223372036854775807, NULL, NULL, NULL, NULL, -1.0);
-- The last row but one went, and with it its number; the key of a removed row is free again.
DELETE FROM notifications WHERE id = 4;
UPDATE notifications SET captured_at = 1678300000.0 + id;

-- The same as it was left by the version that could pin and delete (06bdcbf), by its statements.
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
INSERT INTO notifications (system_note_id, bundle_id, app_name, title, body, timestamp)
VALUES (NULL, 'backup', 'Backup', 'oldest, pinned', 'done', 600000000.0);
INSERT INTO notifications (system_note_id, bundle_id, app_name, title, body, timestamp)
VALUES (NULL, 'backup', 'Backup', 'deleted', 'done', 600000001.0);
INSERT INTO notifications (system_note_id, bundle_id, app_name, title, body, timestamp)
VALUES (NULL, 'backup', 'Backup', 'newest', 'done', 600000002.0);
INSERT INTO notifications (system_note_id, bundle_id, app_name, title, body, timestamp)
VALUES (NULL, 'backup', 'Backup', 'pinned and unpinned', 'done', 600000001.5);
UPDATE notifications SET pinned = CASE WHEN pinned=1 THEN 0 ELSE 1 END WHERE id = 1;
UPDATE notifications SET pinned = CASE WHEN pinned=1 THEN 0 ELSE 1 END WHERE id = 4;
UPDATE notifications SET pinned = CASE WHEN pinned=1 THEN 0 ELSE 1 END WHERE id = 4;
DELETE FROM notifications WHERE id = 2;
UPDATE notifications SET captured_at = 1578307200.0 + id;

#include "store/HoardStore.h"

#include "platform/Platform.h"
#include "shared/Narrowing.h"
#include "shared/Text.h"
#include "store/Sqlite.h"

#include <QDir>

namespace tessarine {

namespace {

constexpr const char* schema = R"(CREATE TABLE IF NOT EXISTS notifications (
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
CREATE INDEX IF NOT EXISTS idx_bundle ON notifications(bundle_id);)";

constexpr const char* useWriteAheadLog = "PRAGMA journal_mode=WAL;";
constexpr const char* optimize = "PRAGMA optimize;";
constexpr const char* tableInfo = "PRAGMA table_info(notifications);";
constexpr const char* addPinned =
    "ALTER TABLE notifications ADD COLUMN pinned INTEGER NOT NULL DEFAULT 0;";

constexpr const char* insertWithKey = R"(INSERT OR IGNORE INTO notifications
    (system_note_id, bundle_id, app_name, title, body, timestamp)
VALUES (?, ?, ?, ?, ?, ?);)";

constexpr const char* countDuplicates = R"(SELECT COUNT(*) FROM notifications
WHERE bundle_id = ? AND title = ? AND body = ?
AND ABS(timestamp - ?) < 300;)";

constexpr const char* insertWithoutKey =
    R"(INSERT INTO notifications (system_note_id, bundle_id, app_name, title, body, timestamp)
VALUES (NULL, ?, ?, ?, ?, ?);)";

constexpr const char* selectRecent =
    R"(SELECT id, system_note_id, bundle_id, app_name, title, body, timestamp, pinned
FROM notifications
ORDER BY pinned DESC, timestamp DESC
LIMIT ?;)";

constexpr const char* selectDistinctApps = R"(SELECT DISTINCT bundle_id, app_name
FROM notifications
WHERE bundle_id IS NOT NULL AND bundle_id != ''
ORDER BY app_name COLLATE NOCASE ASC;)";

const QByteArray togglePinWhereId =
    "UPDATE notifications SET pinned = CASE WHEN pinned=1 THEN 0 ELSE 1 END WHERE id = ";

constexpr const char* selectMaxNoteId = "SELECT MAX(system_note_id) FROM notifications";
constexpr const char* selectTotalCount = "SELECT COUNT(*) FROM notifications";

const QString excludedBundleIdsKey = QStringLiteral("excludedBundleIds");
const QString recIdKey = QStringLiteral("lastSeenUsernotedRecId");
const QString recIdsKey = QStringLiteral("lastSeenUsernotedRecIds");
const QString timestampKey = QStringLiteral("lastSeenUsernotedTimestamp");
const QString noteIdKey = QStringLiteral("lastSeenSystemNoteId");

QString makeHoardPath(const FileSystem& fileSystem) {
    const QStringList folders = fileSystem.applicationSupportDirectories();
    if (folders.isEmpty())
        qFatal("The system names no folder for application data");
    const QString folder = folders.first() + QStringLiteral("/Tessarine");
    QDir().mkpath(folder); // where that fails, opening fails too
    return folder + QStringLiteral("/hoard.db");
}

} // namespace

HoardStore::HoardStore(const FileSystem& fileSystem, UserDefaults& defaults, const Scheduler& clock)
    : dbPath_(makeHoardPath(fileSystem))
    , queue_("com.zorvek.Tessarine.store")
    , fileSystem_(fileSystem)
    , defaults_(defaults)
    , clock_(clock) {
    open();
    createSchema();
}

HoardStore::~HoardStore() {
    sqlite3_close(db_);
}

HoardStore& HoardStore::shared() {
    const Platform& platform = Platform::shared();
    static HoardStore* const store =
        new HoardStore(*platform.fileSystem, *platform.userDefaults, *platform.scheduler);
    return *store;
}

void HoardStore::open() {
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_FULLMUTEX;
    if (sqlite3_open_v2(dbPath_.toUtf8().constData(), &db_, flags, nullptr) != SQLITE_OK)
        return; // the handle stays: every statement on it fails
    execute(useWriteAheadLog);
    fileSystem_.makePrivate(dbPath_);
}

void HoardStore::createSchema() {
    execute(schema);
    execute(optimize);
    if (!hasPinnedColumn())
        execute(addPinned);
}

// The column's presence is the schema's version: hoards from before pinning lack it.
bool HoardStore::hasPinnedColumn() {
    SqliteStatement columns(db_, tableInfo);
    while (columns.stepsToRow()) {
        if (columns.text(1) == QStringLiteral("pinned"))
            return true;
    }
    return false;
}

void HoardStore::execute(const char* script) {
    sqlite3_exec(db_, script, nullptr, nullptr, nullptr);
}

bool HoardStore::insert(const CapturedNotification& notification) {
    if (isExcluded(notification.appBundleId))
        return false;
    return queue_.sync([&] {
        SqliteStatement statement(db_, insertWithKey);
        if (!statement.isReady())
            return false;
        statement.bindInt32(1, narrowToInt32(notification.noteId));
        statement.bind(2, storedUtf8(notification.appBundleId));
        statement.bind(3, storedUtf8(notification.appName));
        statement.bind(4, storedUtf8(notification.title));
        statement.bind(5, storedUtf8(notification.body));
        statement.bind(6, notification.timestamp);
        return statement.stepsToDone() && sqlite3_changes(db_) > 0;
    });
}

bool HoardStore::insertDeduplicated(const CapturedNotification& notification) {
    if (isExcluded(notification.appBundleId))
        return false;
    return queue_.sync([&] {
        if (isDuplicate(notification))
            return false;
        SqliteStatement statement(db_, insertWithoutKey);
        if (!statement.isReady())
            return false;
        statement.bind(1, storedUtf8(notification.appBundleId));
        statement.bind(2, storedUtf8(notification.appName));
        statement.bind(3, storedUtf8(notification.title));
        statement.bind(4, storedUtf8(notification.body));
        statement.bind(5, notification.timestamp);
        return statement.stepsToDone();
    });
}

// A probe that fails answers no: it must never lose a notification.
bool HoardStore::isDuplicate(const CapturedNotification& notification) {
    SqliteStatement probe(db_, countDuplicates);
    if (!probe.isReady())
        return false;
    probe.bind(1, storedUtf8(notification.appBundleId));
    probe.bind(2, storedUtf8(notification.title));
    probe.bind(3, storedUtf8(notification.body));
    probe.bind(4, notification.timestamp);
    return probe.stepsToRow() && probe.int32(0) > 0;
}

// Read from the defaults on the caller's thread: the preferences object belongs to the main one.
bool HoardStore::isExcluded(const QString& bundleId) const {
    return defaults_.textList(excludedBundleIdsKey).contains(bundleId);
}

NotificationList HoardStore::fetchRecent(qint64 limit) {
    return queue_.sync([&] {
        NotificationList rows;
        SqliteStatement statement(db_, selectRecent);
        if (!statement.isReady())
            return rows;
        statement.bindInt32(1, narrowToInt32(limit));
        while (statement.stepsToRow()) {
            CapturedNotification& row = rows.emplace_back();
            row.dbId = statement.int32(0);
            row.noteId = statement.int32(1);
            row.appBundleId = statement.text(2);
            row.appName = statement.text(3);
            row.title = statement.text(4);
            row.body = statement.text(5);
            row.timestamp = statement.real(6);
            row.pinned = statement.int32(7) != 0;
        }
        return rows;
    });
}

qint64 HoardStore::totalCount() {
    return queue_.sync([&] { return singleInteger(selectTotalCount); });
}

qint64 HoardStore::maxSystemNoteId() {
    return queue_.sync([&] { return singleInteger(selectMaxNoteId); });
}

qint64 HoardStore::singleInteger(const char* query) {
    SqliteStatement statement(db_, query);
    return statement.stepsToRow() ? statement.int32(0) : 0;
}

DistinctAppList HoardStore::distinctApps() {
    return queue_.sync([&] {
        DistinctAppList apps;
        SqliteStatement statement(db_, selectDistinctApps);
        while (statement.stepsToRow())
            apps.push_back({statement.text(0), statement.text(1)});
        return apps;
    });
}

// The id is a number and stands in the text.
void HoardStore::togglePin(qint64 id) {
    const QByteArray statement = togglePinWhereId + QByteArray::number(id) + ';';
    queue_.sync([&] { execute(statement.constData()); });
}

qint64 HoardStore::cursor(const QString& key) {
    const qint64 stored = defaults_.integer(key);
    return stored > 0 ? stored : maxSystemNoteId();
}

void HoardStore::raiseCursor(const QString& key, qint64 value) {
    if (defaults_.integer(key) < value)
        defaults_.setInteger(key, value);
}

qint64 HoardStore::lastSeenUsernotedRecId() {
    return cursor(recIdKey);
}

void HoardStore::saveLastSeenUsernotedRecId(qint64 value) {
    raiseCursor(recIdKey, value);
}

double HoardStore::lastSeenUsernotedTimestamp() const {
    return defaults_.real(timestampKey);
}

std::set<qint64> HoardStore::lastSeenUsernotedRecIds() const {
    const std::vector<qint64> stored = defaults_.integerList(recIdsKey);
    return {stored.begin(), stored.end()};
}

// The ids go first: a crash in between leaves the old time with ids that the next reading takes
// again and finds stored.
void HoardStore::saveLastSeenUsernotedState(const std::set<qint64>& recIds, double timestamp) {
    if (lastSeenUsernotedTimestamp() > timestamp)
        return;
    defaults_.setIntegerList(recIdsKey, {recIds.begin(), recIds.end()});
    defaults_.setReal(timestampKey, timestamp);
}

qint64 HoardStore::lastSeenSystemNoteId() {
    return cursor(noteIdKey);
}

void HoardStore::saveLastSeenSystemNoteId(qint64 value) {
    raiseCursor(noteIdKey, value);
}

} // namespace tessarine

#include "store/HoardStore.h"

#include "platform/DefaultsKeys.h"
#include "store/Sqlite.h"

#include <QDir>
#include <QFileInfo>

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

constexpr const char* selectDistinctApps = R"(SELECT DISTINCT bundle_id, app_name
FROM notifications
WHERE bundle_id IS NOT NULL AND bundle_id != ''
ORDER BY app_name COLLATE NOCASE ASC;)";

constexpr const char* selectMaxNoteId = "SELECT MAX(system_note_id) FROM notifications";
constexpr const char* selectTotalCount = "SELECT COUNT(*) FROM notifications";

// The path, after making its folder. Where that fails, opening the file fails too.
QString madeFolderOf(const QString& path) {
    QDir().mkpath(QFileInfo(path).path());
    return path;
}

} // namespace

QString hoardPath(const FileSystem& fileSystem) {
    const QStringList folders = fileSystem.applicationSupportDirectories();
    if (folders.isEmpty())
        qFatal("The system names no folder for application data");
    return folders.first() + QStringLiteral("/Tessarine/hoard.db");
}

HoardStore::HoardStore(const FileSystem& fileSystem, UserDefaults& defaults, const Scheduler& clock)
    : dbPath_(hoardPath(fileSystem))
    , queue_("com.zorvek.Tessarine.store")
    , maintenance_("com.zorvek.Tessarine.store.maintenance")
    , fileSystem_(fileSystem)
    , defaults_(defaults)
    , clock_(clock) {}

HoardStore::~HoardStore() = default;

void HoardStore::open() {
    onQueue([] {});
}

void HoardStore::openOnce() {
    if (connection_)
        return;
    connection_.emplace(madeFolderOf(dbPath_), SqliteConnection::Mode::ownFile);
    setUpFile();
    createSchema();
}

bool HoardStore::isUsable() {
    return onQueue([this] { return hasPinnedColumn(); });
}

void HoardStore::setUpFile() {
    if (!db().isOpen())
        return; // every statement on it fails
    db().setLockTimeout(lockTimeout);
    db().execute(useWriteAheadLog);
    fileSystem_.makePrivate(dbPath_);
}

void HoardStore::createSchema() {
    db().execute(schema);
    db().execute(optimize);
    if (!hasPinnedColumn())
        db().execute(addPinned);
}

// The schema has no version number: hoards made before rows could be pinned lack the column.
bool HoardStore::hasPinnedColumn() const {
    SqliteStatement columns(db(), tableInfo);
    while (columns.stepsToRow()) {
        if (columns.text(1) == QStringLiteral("pinned"))
            return true;
    }
    return false;
}

qint64 HoardStore::totalCount() {
    return onQueue([&] { return singleInteger(selectTotalCount); });
}

qint64 HoardStore::maxSystemNoteId() {
    return onQueue([&] { return singleInteger(selectMaxNoteId); });
}

qint64 HoardStore::singleInteger(const char* query) const {
    SqliteStatement statement(db(), query);
    return statement.stepsToRow() ? statement.int32(0) : 0;
}

DistinctAppList HoardStore::distinctApps() {
    return onQueue([&] {
        DistinctAppList apps;
        SqliteStatement statement(db(), selectDistinctApps);
        while (statement.stepsToRow())
            apps.push_back({statement.text(0), statement.text(1)});
        return apps;
    });
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
    return cursor(defaultsKeys::lastSeenUsernotedRecId);
}

void HoardStore::saveLastSeenUsernotedRecId(qint64 value) {
    raiseCursor(defaultsKeys::lastSeenUsernotedRecId, value);
}

double HoardStore::lastSeenUsernotedTimestamp() const {
    return defaults_.real(defaultsKeys::lastSeenUsernotedTimestamp);
}

std::set<qint64> HoardStore::lastSeenUsernotedRecIds() const {
    const std::vector<qint64> stored = defaults_.integerList(defaultsKeys::lastSeenUsernotedRecIds);
    return {stored.begin(), stored.end()};
}

// The ids are written first: after a crash in between, the next reading goes back to the old time
// and finds the rows with these ids stored already.
void HoardStore::saveLastSeenUsernotedState(const std::set<qint64>& recIds, double timestamp) {
    if (lastSeenUsernotedTimestamp() > timestamp)
        return;
    defaults_.setIntegerList(defaultsKeys::lastSeenUsernotedRecIds, {recIds.begin(), recIds.end()});
    defaults_.setReal(defaultsKeys::lastSeenUsernotedTimestamp, timestamp);
}

qint64 HoardStore::lastSeenSystemNoteId() {
    return cursor(defaultsKeys::lastSeenSystemNoteId);
}

void HoardStore::saveLastSeenSystemNoteId(qint64 value) {
    raiseCursor(defaultsKeys::lastSeenSystemNoteId, value);
}

} // namespace tessarine

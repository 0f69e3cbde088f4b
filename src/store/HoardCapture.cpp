// The two operations that store captures.

#include "platform/DefaultsKeys.h"
#include "shared/Narrowing.h"
#include "shared/Text.h"
#include "store/HoardStore.h"
#include "store/Sqlite.h"

#include <algorithm>
#include <cmath>

namespace tessarine {

namespace {

constexpr const char* insertWithKey = R"(INSERT OR IGNORE INTO notifications
    (system_note_id, bundle_id, app_name, title, body, timestamp)
VALUES (?, ?, ?, ?, ?, ?);)";

constexpr const char* countDuplicates = R"(SELECT COUNT(*) FROM notifications
WHERE bundle_id = ? AND title = ? AND body = ?
AND ABS(timestamp - ?) < 300;)";

constexpr const char* insertWithoutKey =
    R"(INSERT INTO notifications (system_note_id, bundle_id, app_name, title, body, timestamp)
VALUES (NULL, ?, ?, ?, ?, ?);)";

// The same comparison for one row.
constexpr const char* compareWithRow = R"(SELECT 1 FROM notifications
WHERE id = ? AND bundle_id = ? AND title = ? AND body = ?
AND ABS(timestamp - ?) < 300;)";

constexpr const char* selectAround =
    R"(SELECT id, bundle_id, title, body, timestamp FROM notifications
WHERE timestamp > ? AND timestamp < ?;)";

// In SQLite's order texts and blobs come after all numbers.
constexpr const char* selectTimestampThatIsNoNumber =
    "SELECT 1 FROM notifications WHERE timestamp >= '' LIMIT 1;";

// Once a capture has waited for another program's lock in vain, the next ones wait only this long
// for it: they come on the main thread.
constexpr int lockTimeoutWhileHeld = 50; // milliseconds

// As far as a text is stored: up to its first NUL.
QByteArray storedPart(const QString& text) {
    QByteArray utf8 = storedUtf8(text);
    if (const qsizetype nul = utf8.indexOf('\0'); nul >= 0)
        utf8.truncate(nul);
    return utf8;
}

ProbedTexts probedTexts(const CapturedNotification& notification) {
    return {storedPart(notification.appBundleId), storedPart(notification.title),
            storedPart(notification.body)};
}

void bindTexts(SqliteStatement& statement, int first, const ProbedTexts& texts) {
    statement.bind(first, texts.bundleId);
    statement.bind(first + 1, texts.title);
    statement.bind(first + 2, texts.body);
}

} // namespace

bool HoardStore::insert(const CapturedNotification& notification) {
    return tryInsert(notification) == Insertion::stored;
}

bool HoardStore::insertDeduplicated(const CapturedNotification& notification) {
    return tryInsertDeduplicated(notification) == Insertion::stored;
}

Insertion HoardStore::tryInsert(const CapturedNotification& notification) {
    if (isExcluded(notification.appBundleId))
        return Insertion::refused;
    return onQueue([&] {
        SqliteStatement statement(db(), insertWithKey);
        if (!statement.isReady())
            return failure();
        statement.bindInt32(1, narrowToInt32(notification.noteId));
        statement.bind(2, storedUtf8(notification.appBundleId));
        statement.bind(3, storedUtf8(notification.appName));
        statement.bind(4, storedUtf8(notification.title));
        statement.bind(5, storedUtf8(notification.body));
        statement.bind(6, notification.timestamp);
        const Insertion result = runInsertion(statement);
        return result == Insertion::stored && db().changes() == 0 ? Insertion::refused : result;
    });
}

Insertion HoardStore::tryInsertDeduplicated(const CapturedNotification& notification) {
    if (isExcluded(notification.appBundleId))
        return Insertion::refused;
    const ProbedTexts texts = probedTexts(notification);
    return onQueue([&] {
        if (isDuplicate(texts, notification.timestamp))
            return Insertion::refused;
        SqliteStatement statement(db(), insertWithoutKey);
        if (!statement.isReady())
            return failure();
        statement.bind(1, texts.bundleId);
        statement.bind(2, storedUtf8(notification.appName));
        statement.bind(3, texts.title);
        statement.bind(4, texts.body);
        statement.bind(5, notification.timestamp);
        return runInsertion(statement);
    });
}

// Read from the defaults on the caller's thread: the preferences object belongs to the main one.
bool HoardStore::isExcluded(const QString& bundleId) const {
    return defaults_.textList(defaultsKeys::excludedBundleIds).contains(bundleId);
}

Insertion HoardStore::runInsertion(SqliteStatement& statement) {
    if (isLockHeld_)
        db().setLockTimeout(lockTimeoutWhileHeld);
    const std::optional<int> changes = changesBy([&] { return statement.stepsToDone(); });
    const Insertion result = changes ? Insertion::stored : failure();
    isLockHeld_ = result == Insertion::locked;
    db().setLockTimeout(lockTimeout);
    if (!changes)
        clearCaches();
    else if (*changes > 0 && (recent_.isKnown() || duplicates_.isKnown()))
        cacheStoredRow(*changes);
    return result;
}

// Why the last statement failed.
Insertion HoardStore::failure() const {
    return db().wasLocked() ? Insertion::locked : Insertion::failed;
}

// More than one change means that a trigger has written too: then the caches are of no use.
void HoardStore::cacheStoredRow(int changes) {
    std::optional<HoardRow> row = changes == 1 ? readRow(db().lastInsertRowId()) : std::nullopt;
    if (!row)
        return clearCaches();
    if (row->timestamp)
        duplicates_.rowStored({row->rowId, probedTexts(row->notification), *row->timestamp});
    recent_.rowStored(std::move(*row));
}

void HoardStore::clearCaches() {
    recent_.clear();
    duplicates_.clear();
}

// A search that fails finds no duplicate: it must never lose a notification. The index usually
// covers the rows that matter; the statement reads every row that the application ever sent.
bool HoardStore::isDuplicate(const ProbedTexts& texts, double timestamp) {
    const int version = db().dataVersion();
    if (!duplicates_.covers(timestamp, version) && !duplicates_.isUnusable(version))
        fillDuplicateIndex(timestamp, version);
    if (!duplicates_.covers(timestamp, version))
        return probeWholeHoard(texts, timestamp);
    const std::vector<qint64> candidates = duplicates_.candidates(texts, timestamp);
    return std::any_of(candidates.begin(), candidates.end(),
                       [&](qint64 rowId) { return isDuplicateOfRow(rowId, texts, timestamp); });
}

bool HoardStore::probeWholeHoard(const ProbedTexts& texts, double timestamp) const {
    SqliteStatement probe(db(), countDuplicates);
    if (!probe.isReady())
        return false;
    bindTexts(probe, 1, texts);
    probe.bind(4, timestamp);
    return probe.stepsToRow() && probe.int32(0) > 0;
}

bool HoardStore::isDuplicateOfRow(qint64 rowId, const ProbedTexts& texts, double timestamp) const {
    SqliteStatement comparison(db(), compareWithRow);
    if (!comparison.isReady())
        return false;
    comparison.bindInt64(1, rowId);
    bindTexts(comparison, 2, texts);
    comparison.bind(5, timestamp);
    return comparison.stepsToRow();
}

// Values that are no text never equal one. But the statement's arithmetic takes a timestamp that is
// no number for one, so that a hoard with such a row can't be indexed.
void HoardStore::fillDuplicateIndex(double timestamp, int version) {
    if (version < 0 || !std::isfinite(timestamp))
        return;
    const double since = timestamp - DuplicateIndex::secondsBack;
    const double until = timestamp + DuplicateIndex::secondsOn;
    SqliteStatement rows(db(), selectAround);
    SqliteStatement otherTimestamp(db(), selectTimestampThatIsNoNumber);
    if (!rows.isReady() || !otherTimestamp.isReady())
        return;
    if (otherTimestamp.stepsToRow())
        return duplicates_.markUnusable(version);
    rows.bind(1, since);
    rows.bind(2, until);
    std::vector<DuplicateIndex::Row> found;
    while (rows.stepsToRow()) {
        if (rows.type(1) == SqliteType::text && rows.type(2) == SqliteType::text &&
            rows.type(3) == SqliteType::text)
            found.push_back(
                {rows.int64(0),
                 {storedPart(rows.text(1)), storedPart(rows.text(2)), storedPart(rows.text(3))},
                 rows.real(4)});
    }
    duplicates_.fill(found, since, until, version);
}

} // namespace tessarine

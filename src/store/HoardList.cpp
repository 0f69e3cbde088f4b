// The list of the hoard's rows, and the cache of its beginning.

#include "shared/Narrowing.h"
#include "store/HoardStore.h"
#include "store/Sqlite.h"

#include <limits>
#include <utility>

namespace tessarine {

namespace {

constexpr const char* selectRecent =
    R"(SELECT id, system_note_id, bundle_id, app_name, title, body, timestamp, pinned
FROM notifications
ORDER BY pinned DESC, timestamp DESC
LIMIT ?;)";

constexpr const char* selectRow =
    R"(SELECT id, system_note_id, bundle_id, app_name, title, body, timestamp, pinned
FROM notifications
WHERE id = ?;)";

constexpr const char* selectExistence = "SELECT 1 FROM notifications WHERE id = ?;";

const QByteArray togglePinWhereId =
    "UPDATE notifications SET pinned = CASE WHEN pinned=1 THEN 0 ELSE 1 END WHERE id = ";

// Rows that are read beyond those that were asked for, so that neither deletions nor a list that
// grows a little sort the whole table again.
constexpr int rowsInReserve = 500;

int withReserve(int limit) {
    constexpr int most = std::numeric_limits<int>::max() - rowsInReserve;
    return limit > 0 && limit <= most ? limit + rowsInReserve : limit;
}

HoardRow rowAt(const SqliteStatement& statement) {
    HoardRow row;
    row.rowId = statement.int64(0);
    row.pinned = statement.int64(7);
    if (statement.type(6) != SqliteType::null)
        row.timestamp = statement.real(6);
    CapturedNotification& notification = row.notification;
    notification.dbId = statement.int32(0);
    notification.noteId = statement.int32(1);
    notification.appBundleId = statement.text(2);
    notification.appName = statement.text(3);
    notification.title = statement.text(4);
    notification.body = statement.text(5);
    notification.timestamp = statement.real(6);
    notification.pinned = statement.int32(7) != 0;
    return row;
}

// Whether the row's place follows from its numbers. Only SQLite knows how it orders other values.
bool hasOrderedValues(const SqliteStatement& statement) {
    const SqliteType timestamp = statement.type(6);
    return (timestamp == SqliteType::real || timestamp == SqliteType::null) &&
           statement.type(7) == SqliteType::integer;
}

} // namespace

NotificationList HoardStore::fetchRecent(qint64 limit) {
    return onQueue([&] {
        return cacheRecent(limit) ? recent_.first(static_cast<int>(limit)) : readRecent(limit);
    });
}

ReadingAhead HoardStore::readAhead(qint64 limit) {
    struct Interruption {
        const SerialQueue& queue;
        bool happened = false;
    };
    const auto interruptIfWaitedFor = [](void* context) {
        auto* const interruption = static_cast<Interruption*>(context);
        interruption->happened = interruption->queue.isWaitedFor();
        return interruption->happened ? 1 : 0;
    };
    return onQueue([&] {
        Interruption interruption{queue_};
        db().setInterruptTest(interruptIfWaitedFor, &interruption);
        const bool isCached = cacheRecent(limit);
        db().setInterruptTest(nullptr, nullptr);
        if (isCached)
            return ReadingAhead::done;
        return interruption.happened ? ReadingAhead::gaveWay : ReadingAhead::impossible;
    });
}

// Fills the cache up to this limit, if it doesn't cover it. False when that is impossible: the
// hoard can't be read to the end, or holds values that only SQLite can put into order.
bool HoardStore::cacheRecent(qint64 limit) {
    const int version = db().dataVersion();
    if (std::in_range<int>(limit) && recent_.covers(static_cast<int>(limit), version))
        return true;
    recent_.clear();
    SqliteStatement statement(db(), selectRecent);
    if (!statement.isReady() || version < 0)
        return false;
    const int bound = withReserve(narrowToInt32(limit));
    statement.bindInt32(1, bound);
    std::vector<HoardRow> rows;
    while (statement.stepsToRow()) {
        if (!hasOrderedValues(statement))
            return false;
        rows.push_back(rowAt(statement));
    }
    if (!statement.isAtEnd())
        return false;
    recent_.fill(std::move(rows), bound, version);
    return true;
}

// Without the cache.
NotificationList HoardStore::readRecent(qint64 limit) const {
    NotificationList rows;
    SqliteStatement statement(db(), selectRecent);
    if (!statement.isReady())
        return rows;
    statement.bindInt32(1, narrowToInt32(limit));
    while (statement.stepsToRow()) {
        rows.push_back(rowAt(statement).notification);
        rows.back().id = freshId();
    }
    return rows;
}

std::optional<HoardRow> HoardStore::readRow(qint64 rowId) const {
    SqliteStatement statement(db(), selectRow);
    if (!statement.isReady())
        return std::nullopt;
    statement.bindInt64(1, rowId);
    if (!statement.stepsToRow() || !hasOrderedValues(statement))
        return std::nullopt;
    return rowAt(statement);
}

// The id is a number, so it may be part of the statement's text.
void HoardStore::togglePin(qint64 id) {
    const QByteArray statement = togglePinWhereId + QByteArray::number(id) + ';';
    onQueue([&] {
        const auto changes = changesBy([&] { return db().execute(statement.constData()); });
        if (changes == 0)
            return;
        std::optional<HoardRow> row = changes == 1 ? readRow(id) : std::nullopt;
        if (row)
            recent_.rowChanged(std::move(*row));
        else
            clearCaches();
    });
}

// After a deletion of many rows. Looking each one up is faster than sorting the table.
void HoardStore::removeDeletedFromCache() {
    SqliteStatement existence(db(), selectExistence);
    if (!existence.isReady())
        return recent_.clear();
    recent_.removeUnless([&](qint64 rowId) {
        existence.reset();
        existence.bindInt64(1, rowId);
        return existence.stepsToRow();
    });
}

} // namespace tessarine

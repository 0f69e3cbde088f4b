#include "capture/UsernotedDatabase.h"

#include "shared/BundleId.h"
#include "store/Sqlite.h"

#include <cmath>

namespace tessarine {

namespace {

constexpr const char* selectNewRecords =
    "SELECT rec_id, app_id, data, delivered_date FROM record WHERE delivered_date > ? ORDER BY "
    "delivered_date ASC";
constexpr const char* selectIdentifier = "SELECT identifier FROM app WHERE app_id = ? LIMIT 1";

constexpr double overlap = 2.0; // seconds

QString resolveBundleId(qint64 appId, const SqliteConnection& connection) {
    SqliteStatement statement(connection, selectIdentifier);
    if (statement.isReady()) {
        statement.bindInt64(1, appId);
        if (statement.stepsToRow() && !statement.isNull(0))
            return statement.text(0);
    }
    return unresolvedBundleId(appId);
}

// An infinite date as the cursor would hide every later row, so it never becomes one.
void advance(UsernotedCursor& newest, double date, qint64 recId) {
    if (!std::isfinite(date) || date < newest.timestamp)
        return;
    if (date > newest.timestamp)
        newest = {date, {}};
    newest.recIds.insert(recId);
}

} // namespace

UsernotedReading readUsernotedDatabase(const QString& path, const UsernotedCursor& cursor,
                                       DecoderVariant variant,
                                       const std::function<QString(const QString&)>& nameOf) {
    UsernotedReading reading{{}, {cursor.timestamp, {}}};
    const SqliteConnection database(path, SqliteConnection::Mode::foreignFile);
    if (!database.isOpen())
        return reading;
    SqliteStatement rows(database, selectNewRecords);
    if (!rows.isReady())
        return reading;
    rows.bind(1, cursor.timestamp > 0 ? cursor.timestamp - overlap : 0.0);
    while (rows.stepsToRow()) {
        const qint64 recId = rows.int64(0);
        const double date = rows.real(3);
        if (date == cursor.timestamp && cursor.recIds.contains(recId))
            continue;
        advance(reading.newest, date, recId);
        const DecodedTexts texts = decodeUsernotedRecord(rows.blob(2), variant);
        if (texts.isEmpty())
            continue;
        CapturedNotification& record = reading.records.emplace_back();
        record.noteId = recId;
        record.appBundleId = resolveBundleId(rows.int64(1), database);
        record.appName = nameOf(record.appBundleId);
        record.title = texts.title;
        record.body = texts.body;
        record.timestamp = date;
    }
    return reading;
}

} // namespace tessarine

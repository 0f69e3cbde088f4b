#include "capture/LegacyDatabase.h"

#include "capture/LegacyDecoding.h"
#include "shared/BundleId.h"
#include "shared/Narrowing.h"
#include "store/Sqlite.h"

#include <QDir>

namespace tessarine {

namespace {

constexpr const char* selectAppInfo = "SELECT app_id, bundleid FROM app_info";
constexpr const char* selectNewNotes =
    "SELECT note_id, app_id, encoded_data FROM notifications WHERE note_id > ? ORDER BY note_id "
    "ASC";

QString bundleIdOf(qint64 appId, const LegacyAppNames& names) {
    const auto found = names.find(appId);
    return found != names.end() ? found->second : unresolvedBundleId(appId);
}

} // namespace

QString findLegacyDatabase(const QString& folder) {
    const QStringList entries = QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Unsorted);
    for (const QString& name : entries) {
        if (name.endsWith(u".db"))
            return folder + u'/' + name;
    }
    return folder;
}

LegacyAppNames readLegacyAppNames(const QString& path, NullBundleId onNull) {
    LegacyAppNames names;
    const SqliteConnection database(path, SqliteConnection::Mode::foreignFile);
    if (!database.isOpen())
        return names;
    SqliteStatement rows(database, selectAppInfo);
    while (rows.stepsToRow()) {
        if (!rows.isNull(1))
            names.insert_or_assign(rows.int32(0), rows.text(1));
        else if (onNull == NullBundleId::fatal)
            qFatal("The legacy database has an application without a bundle id");
    }
    return names;
}

NotificationList readLegacyDatabase(const QString& path, qint64 lastNoteId,
                                    const LegacyAppNames& names, double now,
                                    const std::function<QString(const QString&)>& appNameOf) {
    NotificationList records;
    const SqliteConnection database(path, SqliteConnection::Mode::foreignFile);
    if (!database.isOpen())
        return records;
    SqliteStatement rows(database, selectNewNotes);
    if (!rows.isReady())
        return records;
    rows.bindInt32(1, narrowToInt32(lastNoteId));
    while (rows.stepsToRow()) {
        const std::optional<LegacyTexts> texts =
            rows.isNull(2) ? std::nullopt : decodeLegacyPayload(rows.blob(2));
        if (!texts)
            continue;
        CapturedNotification& record = records.emplace_back();
        record.noteId = rows.int32(0);
        record.appBundleId = bundleIdOf(rows.int32(1), names);
        record.appName = appNameOf(record.appBundleId);
        record.title = texts->title;
        record.body = texts->body;
        record.timestamp = texts->date.value_or(now);
    }
    return records;
}

} // namespace tessarine

#pragma once

#include "shared/CapturedNotification.h"

#include <QString>

#include <functional>
#include <map>

namespace tessarine {

using LegacyAppNames = std::map<qint64, QString>; // app_id -> bundle id

// What a database row without a bundle id means to the reader of the names.
enum class NullBundleId { skipped, fatal };

// The first file in the folder whose name ends in ".db", or the folder itself when there is none.
QString findLegacyDatabase(const QString& folder);

// The applications that the database knows. Empty when it can't be read. A later row for the same
// id replaces an earlier one.
LegacyAppNames readLegacyAppNames(const QString& path, NullBundleId onNull);

// Reads the rows with a greater note_id, in its order; one whose payload is missing or says
// nothing is left out. A row without a date gets now. appNameOf gives the shown name. A cursor
// outside the signed 32-bit range ends the process. Any thread.
NotificationList readLegacyDatabase(const QString& path, qint64 lastNoteId,
                                    const LegacyAppNames& names, double now,
                                    const std::function<QString(const QString&)>& appNameOf);

} // namespace tessarine

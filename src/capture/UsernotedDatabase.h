#pragma once

#include "capture/RecordDecoding.h"
#include "shared/CapturedNotification.h"

#include <QString>

#include <functional>
#include <set>

namespace tessarine {

// How far a reading has come in the table of delivered notifications: the greatest date seen, and
// the keys seen at exactly that date. Dates in seconds since the reference date.
struct UsernotedCursor {
    double timestamp = 0;
    std::set<qint64> recIds;
};

// What a reading found: the records behind the cursor, oldest first, and the greatest date among
// all rows, also those without texts, with the keys at that date. The date is the cursor's own
// when no row lies beyond it; a date that is not finite is never taken.
struct UsernotedReading {
    NotificationList records;
    UsernotedCursor newest;
};

// Reads the rows after the cursor in the database of the system's notification daemon. It starts 2
// seconds before the cursor, so that a row which was committed late is not lost; the store refuses
// rows that it has already. nameOf gives an application's shown name.
//
// Opens the file again and closes it. A database that can't be opened or lacks a table gives an
// empty reading. Any thread.
UsernotedReading readUsernotedDatabase(const QString& path, const UsernotedCursor& cursor,
                                       DecoderVariant variant,
                                       const std::function<QString(const QString&)>& nameOf);

} // namespace tessarine

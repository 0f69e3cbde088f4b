#pragma once

#include "shared/DateFormatter.h"

namespace tessarine {

// The moment of a notification as the browser shows it: always a plain date and time in the user's
// medium style, or a day in the full one, never an age. Main thread.
class RowTimeFormatter {
public:
    enum class Style { dateAndTime, timeOnly, fullDate };

    // A locale by its ICU name ("de_DE"), a time zone by its Olson name; without one, the user's.
    RowTimeFormatter(Style style, const QByteArray& locale, const QString& timeZone = {});

    // Of a moment in seconds since the reference date. Nothing for one that is no finite number;
    // one outside the calendar's range reads as the range's end.
    QString text(double timestamp) const { return format_.text(timestamp); }

private:
    DateFormatter format_;
};

// In the user's locale and time zone as they are now; good until the next call.
const RowTimeFormatter& rowDateTimeFormatter();
const RowTimeFormatter& rowTimeFormatter();
const RowTimeFormatter& dayTitleFormatter();

} // namespace tessarine

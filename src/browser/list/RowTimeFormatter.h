#pragma once

#include "shared/DateFormatter.h"

namespace tessarine {

// The moment of a notification as the browser shows it: always a plain date and time in the user's
// medium style, or a day in the full one, never an age. Main thread.
class RowTimeFormatter {
public:
    enum class Style { dateAndTime, timeOnly, fullDate };

    // A locale by its ICU name ("de_DE").
    RowTimeFormatter(Style style, const QByteArray& locale);

    // As the user has set the system, when it is made.
    static RowTimeFormatter forUser(Style style);

    // Of a moment in seconds since the reference date, as DateFormatter does it.
    QString text(double timestamp) const { return format_.text(timestamp); }

private:
    explicit RowTimeFormatter(DateFormatter format);

    DateFormatter format_;
};

// In the user's locale as it is now; good until the next call.
const RowTimeFormatter& rowDateTimeFormatter();
const RowTimeFormatter& rowTimeFormatter();
const RowTimeFormatter& dayTitleFormatter();

} // namespace tessarine

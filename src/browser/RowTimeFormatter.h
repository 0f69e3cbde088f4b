#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

namespace tessarine {

// The moment of a notification as a row shows it: always a plain date and time in the user's
// medium style, never an age. Made once for a purpose, since making one is far dearer than using
// it. Main thread.
class RowTimeFormatter {
public:
    enum class Style { dateAndTime, timeOnly };

    // A locale by its ICU name ("de_DE"), a time zone by its Olson name; without one, the user's.
    RowTimeFormatter(Style style, const QByteArray& locale, const QString& timeZone = {});
    ~RowTimeFormatter();

    // Of a moment in seconds since the reference date. Nothing for one that is no finite number;
    // one outside the calendar's range reads as the range's end.
    QString text(double timestamp) const;

private:
    struct Format;
    std::unique_ptr<Format> format_;
};

// In the user's locale and time zone, made at their first use.
const RowTimeFormatter& rowDateTimeFormatter();
const RowTimeFormatter& rowTimeFormatter();

// The ICU name of the locale in which the user reads dates.
QByteArray userDateLocale();

} // namespace tessarine

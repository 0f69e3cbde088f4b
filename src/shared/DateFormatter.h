#pragma once

#include "shared/DateStyle.h"

#include <QByteArray>
#include <QString>

#include <memory>

namespace tessarine {

// Moments as text, by ICU: with the calendar, names and digits of a locale, as the user's clock
// shows them when the text is made. Patterns have no signs for fractions of a second and for time
// zones. Made once for a purpose, since making one is far dearer than using it. One thread at a
// time.
class DateFormatter {
public:
    using Style = DateStyle;

    // A Unicode date pattern ("yyyy-MM-dd"). A locale by its ICU name ("de_DE").
    static DateFormatter withPattern(const QString& pattern, const QByteArray& locale);

    // As the locale's readers are used to.
    static DateFormatter withStyles(Style date, Style time, const QByteArray& locale);

    // As the user has set the system, when it is made.
    static DateFormatter withUserStyles(Style date, Style time);

    DateFormatter(DateFormatter&& other) noexcept;
    DateFormatter& operator=(DateFormatter&& other) noexcept;
    ~DateFormatter();

    // Of a moment in seconds since the reference date. Nothing for what is no number; a moment
    // beyond the years 1 to 9999, also an infinite one, reads as the first or the last of them.
    QString text(double timestamp) const;

private:
    struct Format;
    explicit DateFormatter(std::unique_ptr<Format> format);

    std::unique_ptr<Format> format_;
};

} // namespace tessarine

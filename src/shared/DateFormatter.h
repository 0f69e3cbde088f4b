#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

namespace tessarine {

// Moments as text, by ICU: with the calendar, names and digits of a locale, in a time zone. Made
// once for a purpose, since making one is far dearer than using it. One thread at a time.
class DateFormatter {
public:
    enum class Style { none, medium, full };

    // A Unicode date pattern ("yyyy-MM-dd"). A locale by its ICU name ("de_DE"), a time zone by
    // its Olson name; without one, that which the user's clock shows as the formatter is made.
    static DateFormatter withPattern(const QString& pattern, const QByteArray& locale,
                                     const QString& timeZone = {});

    // As the locale's readers are used to.
    static DateFormatter withStyles(Style date, Style time, const QByteArray& locale,
                                    const QString& timeZone = {});

    DateFormatter(DateFormatter&& other) noexcept;
    DateFormatter& operator=(DateFormatter&& other) noexcept;
    ~DateFormatter();

    // Of a moment in seconds since the reference date. Nothing for one that is no finite number;
    // one outside the calendar's range reads as the range's end.
    QString text(double timestamp) const;

private:
    struct Format;
    explicit DateFormatter(std::unique_ptr<Format> format);

    std::unique_ptr<Format> format_;
};

} // namespace tessarine

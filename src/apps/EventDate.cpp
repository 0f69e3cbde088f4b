#include "apps/EventDate.h"

#include "shared/LocalZone.h"
#include "shared/ReferenceTime.h"
#include "shared/Text.h"

#include <QRegularExpression>

#include <limits>

namespace tessarine {

namespace {

// Digits of every script count as digits, letters of every script as letters.
QRegularExpression pattern(const QString& text) {
    return QRegularExpression(text, QRegularExpression::UseUnicodePropertiesOption);
}

// Nothing where the number doesn't fit.
std::optional<qint64> number(const QString& digits) {
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    qint64 value = 0;
    for (const uint character : digits.toUcs4()) {
        const qint64 digit = QChar::digitValue(character);
        if (value > (most - digit) / 10)
            return std::nullopt;
        value = value * 10 + digit;
    }
    return value;
}

std::optional<double> afterNow(const QString& text, const QRegularExpression& count, double seconds,
                               double now) {
    const auto match = count.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    return now + double(number(match.captured(1)).value_or(0)) * seconds;
}

// Outside: whether the rule applies. Inside: whether the calendar has the moment.
using Moment = std::optional<double>;

Moment onDayOf(double moment, const QString& hour, const QString& minute) {
    return clockTimeOnDayOf(moment, number(hour).value_or(0), number(minute).value_or(0));
}

std::optional<Moment> onNamedDay(const QString& text, double now) {
    static const QRegularExpression namedDay =
        pattern(QStringLiteral("(today|tomorrow) at (\\d{1,2}):(\\d{2})"));
    const auto match = namedDay.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const bool isTomorrow = match.captured(1) == QStringLiteral("tomorrow");
    return onDayOf(isTomorrow ? now + secondsPerDay : now, match.captured(2), match.captured(3));
}

std::optional<Moment> atClockTime(const QString& text, double now) {
    static const QRegularExpression clockTime =
        pattern(QStringLiteral("\\b(\\d{1,2}):(\\d{2})\\b"));
    const auto match = clockTime.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const Moment moment = onDayOf(now, match.captured(1), match.captured(2));
    return moment && *moment < now ? Moment(*moment + secondsPerDay) : moment;
}

Moment dateInTexts(const QString& body, const QString& title, double now) {
    static const QRegularExpression minutes = pattern(QStringLiteral("in (\\d+) minutes?"));
    static const QRegularExpression hours = pattern(QStringLiteral("in (\\d+) hours?"));
    // Halves of surrogate pairs, which patterns refuse, become characters of their own.
    const QString text = QString::fromUtf8(storedUtf8(body + u' ' + title)).toLower();
    if (const auto date = afterNow(text, minutes, secondsPerMinute, now))
        return date;
    if (const auto date = afterNow(text, hours, secondsPerHour, now))
        return date;
    if (const auto date = onNamedDay(text, now))
        return *date;
    return atClockTime(text, now).value_or(std::nullopt);
}

} // namespace

std::optional<double> eventDate(const QString& body, const QString& title, double timestamp,
                                double now) {
    const Moment named = dateInTexts(body, title, now);
    if (!named)
        return timestamp;
    return hasDate(*named) ? named : std::nullopt;
}

} // namespace tessarine

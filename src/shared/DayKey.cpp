#include "shared/DayKey.h"

#include "shared/LocalZone.h"
#include "shared/ReferenceTime.h"

#include <QDate>

#include <chrono>
#include <cmath>

namespace tessarine {

namespace {

constexpr qsizetype keyLength = 10;

constexpr std::chrono::sys_days referenceDay{std::chrono::year(2001) / 1 / 1};

void writeDigits(QChar* end, unsigned value, int count) {
    for (; count > 0; --count, value /= 10)
        *--end = QChar(static_cast<char16_t>(u'0' + value % 10));
}

QString keyText(std::chrono::sys_days day) {
    const std::chrono::year_month_day date(day);
    QString text(keyLength, u'-');
    writeDigits(text.data() + 4, static_cast<unsigned>(static_cast<int>(date.year())), 4);
    writeDigits(text.data() + 7, static_cast<unsigned>(date.month()), 2);
    writeDigits(text.data() + 10, static_cast<unsigned>(date.day()), 2);
    return text;
}

std::chrono::sys_days localDay(double timestamp) {
    const std::chrono::seconds time(wallTime(timestamp));
    return referenceDay + std::chrono::floor<std::chrono::days>(time);
}

} // namespace

QString dayKey(double timestamp) {
    return std::isnan(timestamp) ? QString() : keyText(localDay(timestamp));
}

std::optional<double> startOfDay(const QString& key) {
    const QDate date = QDate::fromString(key, Qt::ISODate);
    if (key.size() != keyLength || !date.isValid() || date.toString(Qt::ISODate) != key)
        return std::nullopt;
    const double start = firstMoment(QDate(2001, 1, 1).daysTo(date) * wholeSecondsPerDay);
    return dayKey(start) == key ? std::optional(start) : std::nullopt;
}

} // namespace tessarine

#include "shared/DayKey.h"

#include "shared/ReferenceTime.h"

#include <QDate>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <ctime>
#include <limits>

namespace tessarine {

namespace {

constexpr qint64 unixSeconds = static_cast<qint64>(unixSecondsAtReferenceDate);
constexpr qint64 daySeconds = static_cast<qint64>(secondsPerDay);

constexpr qsizetype keyLength = 10;

constexpr std::chrono::sys_days firstDay{std::chrono::year(1) / 1 / 1};
constexpr std::chrono::sys_days lastDay{std::chrono::year(9999) / 12 / 31};

qint64 floorDivided(qint64 value, qint64 divisor) {
    return value / divisor - (value % divisor < 0 ? 1 : 0);
}

// How far the local clock is ahead of UTC, in seconds, at a moment of Unix time.
qint64 askOffset(qint64 moment) {
    const std::time_t time = moment;
    std::tm local{};
    return localtime_r(&time, &local) ? local.tm_gmtoff : 0; // in the zone that tzset has found
}

// The local clock's offsets, remembered by days of UTC for a second: asking the system for each row
// of a list costs more than all else that is done with the row's date. A day in which the clock is
// changed is not remembered.
class LocalClock {
public:
    qint64 offset(qint64 moment) {
        followZone();
        const qint64 day = floorDivided(moment, daySeconds);
        Day& known = days_[static_cast<std::size_t>(day) % days_.size()];
        if (known.number == day)
            return known.offset;
        const qint64 atStart = askOffset(day * daySeconds);
        if (atStart != askOffset((day + 1) * daySeconds))
            return askOffset(moment);
        known = {day, atStart};
        return atStart;
    }

private:
    struct Day {
        qint64 number = std::numeric_limits<qint64>::min();
        qint64 offset = 0;
    };

    void followZone() {
        const auto now = std::chrono::steady_clock::now();
        QByteArray name = qgetenv("TZ");
        if (now < forgetsAt_ && name == zoneName_)
            return;
        tzset();
        days_.fill({});
        forgetsAt_ = now + std::chrono::seconds(1);
        zoneName_ = std::move(name);
    }

    std::array<Day, 1024> days_;
    std::chrono::steady_clock::time_point forgetsAt_;
    QByteArray zoneName_;
};

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
    // A day of slack on either side leaves the offset room; what lies beyond ends up outside.
    constexpr double first =
        static_cast<double>((firstDay.time_since_epoch().count() - 1) * daySeconds - unixSeconds);
    constexpr double last =
        static_cast<double>((lastDay.time_since_epoch().count() + 2) * daySeconds - unixSeconds);
    // Whole seconds first: the sum would round a moment just before midnight up to it.
    const double seconds = std::floor(std::clamp(timestamp, first, last));
    const qint64 moment = static_cast<qint64>(seconds) + unixSeconds;
    thread_local LocalClock clock;
    const qint64 day = floorDivided(moment + clock.offset(moment), daySeconds);
    return std::clamp(std::chrono::sys_days(std::chrono::days(day)), firstDay, lastDay);
}

// When the local clock first shows the midnight that it would be in UTC at this moment, or jumps
// over it.
qint64 firstInstant(qint64 midnight) {
    tzset();
    constexpr qint64 greatestOffset = 16 * 60 * 60;
    qint64 earlier = midnight - greatestOffset;
    qint64 later = midnight + greatestOffset;
    const qint64 before = askOffset(earlier);
    const qint64 after = askOffset(later);
    for (const qint64 offset : {before, after}) {
        if (askOffset(midnight - offset) == offset)
            return midnight - offset;
    }
    while (later - earlier > 1) {
        const qint64 middle = earlier + (later - earlier) / 2;
        (askOffset(middle) == before ? earlier : later) = middle;
    }
    return later;
}

} // namespace

QString dayKey(double timestamp) {
    return std::isfinite(timestamp) ? keyText(localDay(timestamp)) : QString();
}

std::optional<double> startOfDay(const QString& key) {
    const QDate date = QDate::fromString(key, Qt::ISODate);
    if (key.size() != keyLength || !date.isValid() || date.toString(Qt::ISODate) != key)
        return std::nullopt;
    const qint64 start = firstInstant(QDate(1970, 1, 1).daysTo(date) * daySeconds);
    const double timestamp = static_cast<double>(start - unixSeconds);
    return dayKey(timestamp) == key ? std::optional(timestamp) : std::nullopt;
}

} // namespace tessarine

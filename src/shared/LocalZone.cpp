#include "shared/LocalZone.h"

#include "shared/ReferenceTime.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cmath>
#include <ctime>
#include <limits>
#include <mutex>
#include <utility>

#include <sys/stat.h>

namespace tessarine {

namespace {

static_assert(sizeof(std::time_t) >= sizeof(qint64), "the C library counts beyond 2038");

constexpr qint64 unixSeconds = static_cast<qint64>(unixSecondsAtReferenceDate);

// No zone's clock is further from UTC than the C library lets a rule put it.
constexpr qint64 greatestOffset = 90'000; // seconds: 25 hours

// Says when it is time to look after the zone again: twice a second, and when the variable has
// another value. One thread at a time.
class Lookout {
public:
    bool isDue() {
        const auto now = std::chrono::steady_clock::now();
        QByteArray variable = qgetenv("TZ");
        if (now < nextTime_ && variable == variable_ && variable.isNull() == variable_.isNull())
            return false;
        nextTime_ = now + std::chrono::milliseconds(500);
        variable_ = std::move(variable);
        return true;
    }

    const QByteArray& variable() const { return variable_; } // null where there is none

private:
    std::chrono::steady_clock::time_point nextTime_;
    QByteArray variable_;
};

// What the C library takes the rules from: the variable, or the file where that isn't set. Of the
// file, what tells it from another one or an older one; the C library itself looks at less.
struct RuleSource {
    std::optional<QByteArray> variable;
    std::array<qint64, 5> file{}; // device, inode, size, last write, last change

    bool operator==(const RuleSource&) const = default;
};

RuleSource ruleSource(const QByteArray& variable) {
    if (!variable.isNull())
        return {variable};
    RuleSource source;
    struct stat file {};
    if (stat("/etc/localtime", &file) == 0)
        source.file = {static_cast<qint64>(file.st_dev), static_cast<qint64>(file.st_ino),
                       file.st_size, file.st_mtime, file.st_ctime};
    return source;
}

class ZoneWatch {
public:
    // Has the C library look after the zone, if it is time to.
    int look() {
        const std::lock_guard lock(mutex_);
        if (!lookout_.isDue())
            return number_;
        RuleSource source = ruleSource(lookout_.variable()); // first: later writes are seen later
        tzset();
        if (std::exchange(source_, source) != source)
            ++number_;
        return number_;
    }

    int lastNumber() const { return number_; }

private:
    std::mutex mutex_;
    Lookout lookout_;
    RuleSource source_;
    std::atomic<int> number_ = 1;
};

ZoneWatch& zoneWatch() {
    static ZoneWatch watch;
    return watch;
}

qint64 withinDates(qint64 wallTime) {
    return std::clamp(wallTime, static_cast<qint64>(firstSecond), static_cast<qint64>(lastSecond));
}

qint64 floorDivided(qint64 value, qint64 divisor) {
    return value / divisor - (value % divisor < 0 ? 1 : 0);
}

// How far the local clock is ahead of UTC, in seconds, by the rules that tzset has found.
qint64 askOffset(qint64 moment) {
    const std::time_t time = moment + unixSeconds;
    std::tm local{};
    return localtime_r(&time, &local) ? local.tm_gmtoff : 0;
}

// The local clock's offsets, remembered by days of UTC: asking the C library for each row of a list
// costs more than all else that is done with the row's date. A day in which the clock is changed is
// not remembered; the closest two changes that any zone has had are four days apart.
class LocalClock {
public:
    qint64 offset(qint64 moment) {
        followZone();
        const qint64 day = floorDivided(moment, wholeSecondsPerDay);
        Day& known = days_[static_cast<std::size_t>(day) % days_.size()];
        if (known.number == day)
            return known.offset;
        const qint64 atStart = askOffset(day * wholeSecondsPerDay);
        if (atStart != askOffset((day + 1) * wholeSecondsPerDay))
            return askOffset(moment);
        known = {day, atStart};
        return atStart;
    }

private:
    struct Day {
        qint64 number = std::numeric_limits<qint64>::min();
        qint64 offset = 0;
    };

    // Also when another thread has had the C library find another zone since.
    void followZone() {
        if (!lookout_.isDue() && zoneWatch_.lastNumber() == zone_)
            return;
        if (const int zone = zoneWatch_.look(); std::exchange(zone_, zone) != zone)
            days_.fill({});
    }

    ZoneWatch& zoneWatch_ = zoneWatch();
    Lookout lookout_; // one that no other thread waits for
    std::array<Day, 1024> days_;
    int zone_ = 0;
};

// The first moment, of those between the two, at which the clock has left the given offset.
qint64 clockChange(qint64 earlier, qint64 later, qint64 before) {
    while (later - earlier > 1) {
        const qint64 middle = earlier + (later - earlier) / 2;
        (askOffset(middle) == before ? earlier : later) = middle;
    }
    return later;
}

struct Moments {
    qint64 first;
    qint64 last;
};

// There is one change of the clock at most near a moment, so that only what holds before it and
// what holds after it can show the wall time.
Moments momentsOf(qint64 wallTime) {
    zoneWatch().look();
    const qint64 wall = withinDates(wallTime);
    const qint64 before = askOffset(wall - greatestOffset);
    const qint64 after = askOffset(wall + greatestOffset);
    const bool isShownBefore = askOffset(wall - before) == before;
    const bool isShownAfter = askOffset(wall - after) == after;
    if (isShownBefore || isShownAfter)
        return {wall - (isShownBefore ? before : after), wall - (isShownAfter ? after : before)};
    return {clockChange(wall - greatestOffset, wall + greatestOffset, before), wall - before};
}

} // namespace

qint64 wallTime(double timestamp) {
    // Some more on either side, so that the offset decides which moments lie within.
    constexpr double first = firstSecond - greatestOffset;
    constexpr double last = lastSecond + greatestOffset;
    const double known = std::isnan(timestamp) ? first : std::clamp(timestamp, first, last);
    // Whole seconds first: the sum would round a moment just before midnight up to it.
    const auto moment = static_cast<qint64>(std::floor(known));
    thread_local LocalClock clock;
    return withinDates(moment + clock.offset(moment));
}

double firstMoment(qint64 wallTime) {
    return static_cast<double>(momentsOf(wallTime).first);
}

double lastMoment(qint64 wallTime) {
    return static_cast<double>(momentsOf(wallTime).last);
}

std::optional<double> clockTimeOnDayOf(double moment, qint64 hour, qint64 minute) {
    constexpr qint64 most = std::numeric_limits<qint32>::max(); // more than there are in all dates
    if (std::clamp(hour, -most, most) != hour || std::clamp(minute, -most, most) != minute)
        return std::nullopt;
    const qint64 midnight = floorDivided(wallTime(moment), wholeSecondsPerDay) * wholeSecondsPerDay;
    const qint64 wall = midnight + hour * wholeSecondsPerHour + minute * wholeSecondsPerMinute;
    return hasDate(static_cast<double>(wall)) ? std::optional(lastMoment(wall)) : std::nullopt;
}

int localZoneNumber() {
    return zoneWatch().look();
}

} // namespace tessarine

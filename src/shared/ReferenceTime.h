#pragma once

#include <QtGlobal>

#include <cmath>
#include <limits>

namespace tessarine {

// Moments are counted in seconds since 2001-01-01 00:00:00 UTC, in the hoard, in the cursors and
// in the system's own databases. Unix time is this many seconds ahead.
inline constexpr double unixSecondsAtReferenceDate = 978307200.0;

inline constexpr double secondsPerMinute = 60.0;
inline constexpr double secondsPerHour = 3600.0;
inline constexpr double secondsPerDay = 86400.0;

// The same for counts of whole seconds.
inline constexpr qint64 wholeSecondsPerMinute = 60;
inline constexpr qint64 wholeSecondsPerHour = 3600;
inline constexpr qint64 wholeSecondsPerDay = 86400;

// The first and the last second that have a date: 0001-01-01 00:00:00 and 9999-12-31 23:59:59. With
// a year of four digits dates have their order as texts too.
inline constexpr double firstSecond = -730'485 * secondsPerDay;
inline constexpr double lastSecond = 2'921'574 * secondsPerDay - 1;

// False also for what is no number.
constexpr bool hasDate(double timestamp) {
    return timestamp >= firstSecond && timestamp < lastSecond + 1;
}

// The whole seconds of a moment since 1970, cut off towards it. What no count of seconds can hold
// gives the nearest one; what is no number, the lowest.
inline qint64 wholeUnixSeconds(double moment) {
    const double seconds = std::trunc(moment + unixSecondsAtReferenceDate);
    if (!(seconds > -0x1p63))
        return std::numeric_limits<qint64>::min();
    return seconds < 0x1p63 ? static_cast<qint64>(seconds) : std::numeric_limits<qint64>::max();
}

} // namespace tessarine

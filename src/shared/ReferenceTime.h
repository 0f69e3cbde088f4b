#pragma once

namespace tessarine {

// Moments are counted in seconds since 2001-01-01 00:00:00 UTC, in the hoard, in the cursors and
// in the system's own databases. Unix time is this many seconds ahead.
inline constexpr double unixSecondsAtReferenceDate = 978307200.0;

inline constexpr double secondsPerDay = 86400.0;

// The moments that have a date: 100 million days on either side of 1970, for which every calendar
// of ICU gives a sensible one.
inline constexpr double earliestMoment = -100'000'000 * secondsPerDay - unixSecondsAtReferenceDate;
inline constexpr double latestMoment = 100'000'000 * secondsPerDay - unixSecondsAtReferenceDate;

// False also for what is no number.
constexpr bool hasDate(double timestamp) {
    return timestamp >= earliestMoment && timestamp <= latestMoment;
}

} // namespace tessarine

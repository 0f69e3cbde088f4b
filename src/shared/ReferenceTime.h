#pragma once

namespace tessarine {

// Moments are counted in seconds since 2001-01-01 00:00:00 UTC, in the hoard, in the cursors and
// in the system's own databases. Unix time is this many seconds ahead.
inline constexpr double unixSecondsAtReferenceDate = 978307200.0;

inline constexpr double secondsPerDay = 86400.0;

} // namespace tessarine

#pragma once

#include <QtGlobal>

#include <optional>

// The user's time zone. The C library alone knows its rules, past and coming ones, from the
// variable TZ or /etc/localtime; ICU has a database of its own, often an older one, and is given
// wall time only: two sources of rules would disagree about a row's day. All of this on any thread,
// and following within a second when the clock is set to another zone.

namespace tessarine {

// What the user's clock shows, as the seconds since the reference date at which a clock in UTC
// would show the same date and time. Whole ones: any fraction of a second before midnight still is
// the day before. Where that is no date of the years 1 to 9999, for infinite moments too, it is the
// first or the last one; for what is no number the first.
qint64 wallTime(double timestamp);

// When the clock shows this wall time, in seconds since the reference date: the first or the last
// time, where it was set back and shows it twice. Where it jumps over it, the first moment is that
// of the jump, and the last one as far behind the jump as the time lies inside what is left out.
double firstMoment(qint64 wallTime);
double lastMoment(qint64 wallTime);

// The last moment at which the clock shows this time on the day of the given moment. Hours and
// minutes beyond those of a day run into the days around it. Nothing where that has no date.
std::optional<double> clockTimeOnDayOf(double moment, qint64 hour, qint64 minute);

// Another number when the clock has been set to another zone, for what is made for a zone and kept.
int localZoneNumber();

} // namespace tessarine

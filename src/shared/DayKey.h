#pragma once

#include <QString>

#include <optional>

namespace tessarine {

// The local calendar day of a moment in seconds since the reference date, as "yyyy-MM-dd": the
// Gregorian calendar, digits 0 to 9 whatever the user's language. Any fraction of a second before
// midnight still is the day before. A moment beyond the years 1 to 9999 reads as the first or the
// last day of them; nothing for one that is no finite number. Cheap enough for every row of a long
// list. Follows a change of the time zone. Any thread.
QString dayKey(double timestamp);

// When the day of such a key starts, in seconds since the reference date: at its first instant,
// which is midnight unless the clock jumps over it. Nothing for a text of any other form and for
// a day that the local calendar doesn't have.
std::optional<double> startOfDay(const QString& key);

} // namespace tessarine

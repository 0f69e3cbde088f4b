#pragma once

#include <QString>

namespace tessarine {

// The moment that a notification speaks of, in seconds since the reference date. Read in its texts
// in this order, whatever their case: "in 5 minutes", "in 2 hours", "tomorrow at 9:05", and any
// clock time, which is the next one of its kind. Reckoned from now in the user's calendar and time
// zone; the timestamp where the texts name no moment.
double eventDate(const QString& body, const QString& title, double timestamp, double now);

} // namespace tessarine

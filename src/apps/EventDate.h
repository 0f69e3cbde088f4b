#pragma once

#include <QString>

#include <optional>

namespace tessarine {

// The moment that a notification speaks of, in seconds since the reference date. Read in its texts
// in this order, whatever their case: "in 5 minutes", "in 2 hours", "tomorrow at 9:05", and any
// clock time, which is the next one of its kind. Computed from now in the user's time zone; the
// timestamp, whatever it is, where the texts name no moment. Nothing where they name one beyond the
// year 9999.
std::optional<double> eventDate(const QString& body, const QString& title, double timestamp,
                                double now);

} // namespace tessarine

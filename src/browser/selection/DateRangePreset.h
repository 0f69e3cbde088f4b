#pragma once

#include <QString>

#include <array>
#include <utility>

namespace tessarine {

// The named spans of days in the selection's date popover.
enum class DateRangePreset {
    today,
    yesterday,
    last7days,
    last30days,
    thisMonth,
    lastMonth,
    thisYear
};

inline constexpr std::array allDateRangePresets{
    DateRangePreset::today,      DateRangePreset::yesterday, DateRangePreset::last7days,
    DateRangePreset::last30days, DateRangePreset::thisMonth, DateRangePreset::lastMonth,
    DateRangePreset::thisYear};

QString rawValue(DateRangePreset preset);
QString label(DateRangePreset preset);      // what the user reads
QString symbolName(DateRangePreset preset); // the symbol beside it

// First and last moment, both inclusive, in seconds since the reference date, for a user who looks
// at this moment, by the user's calendar and time zone. Spans begin at the first instant of a day.
// Those that end at a midnight stop one second short of it.
std::pair<double, double> presetBounds(DateRangePreset preset, double now);

} // namespace tessarine

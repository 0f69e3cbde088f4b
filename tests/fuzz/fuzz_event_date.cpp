// Any title and body, at any moment and with any timestamp: the moment that they speak of is one
// that a calendar shows, or the timestamp itself.

#include "apps/EventDate.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include <fuzzer/FuzzedDataProvider.h>

namespace {

constexpr double endOfCalendar = 252423993600.0 + 86400.0; // the end of 9999, and a day for zones
constexpr double aCentury = 100 * 366 * 86400.0;

QString someText(FuzzedDataProvider& input) {
    return QString::fromStdString(input.ConsumeRandomLengthString(200));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const double now = input.ConsumeFloatingPointInRange<double>(-aCentury, aCentury);
    const double timestamp = input.ConsumeFloatingPoint<double>();
    const QString title = someText(input);
    const QString body = someText(input);
    const std::optional<double> date = tessarine::eventDate(body, title, timestamp, now);
    if (!date)
        return 0;
    const bool isTimestamp = *date == timestamp || (std::isnan(*date) && std::isnan(timestamp));
    if (!isTimestamp && !(*date >= now - 86400.0 && *date <= endOfCalendar))
        std::abort();
    return 0;
}

#include "shared/WallCalendar.h"

#include "shared/ReferenceTime.h"

#include <unicode/gregocal.h>
#include <unicode/timezone.h>

#include <cmath>
#include <mutex>

namespace tessarine {

namespace {

constexpr double millisecondsPerSecond = 1000;

} // namespace

UDate icuDate(qint64 wallTime) {
    return (static_cast<double>(wallTime) + unixSecondsAtReferenceDate) * millisecondsPerSecond;
}

qint64 wallTimeOf(UDate date) {
    return static_cast<qint64>(std::floor(date / millisecondsPerSecond) -
                               unixSecondsAtReferenceDate);
}

void useWallTime(icu::Calendar& calendar) {
    calendar.setTimeZone(*icu::TimeZone::getGMT());
    UErrorCode status = U_ZERO_ERROR;
    if (auto* const gregorian = dynamic_cast<icu::GregorianCalendar*>(&calendar))
        gregorian->setGregorianChange(icuDate(static_cast<qint64>(firstSecond)), status);
}

std::unique_ptr<icu::Calendar> wallCalendar(const QByteArray& locale) {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(
        *icu::TimeZone::getGMT(), icu::Locale(locale.constData()), status));
    if (U_FAILURE(status))
        return nullptr;
    useWallTime(*calendar);
    return calendar;
}

void keepIcuFromFindingTheZone() {
    static std::once_flag once;
    std::call_once(once, [] { icu::TimeZone::setDefault(*icu::TimeZone::getGMT()); });
}

} // namespace tessarine

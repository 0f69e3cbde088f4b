#include "browser/selection/DateRangePreset.h"

#include "shared/LocalZone.h"
#include "shared/UserLocale.h"
#include "shared/WallCalendar.h"

#include <QCoreApplication>

#include <memory>

namespace tessarine {

namespace {

// A day of the user's calendar, by its first instant: where the clock skips midnight, the day
// begins after the gap; where it strikes twice, at the first stroke.
class Day {
public:
    explicit Day(double moment)
        : status_(U_ZERO_ERROR)
        , calendar_(wallCalendar(userDateLocale())) {
        if (!calendar_)
            qFatal("The system has no calendar");
        calendar_->setTime(icuDate(wallTime(moment)), status_);
        for (const auto field : {UCAL_HOUR_OF_DAY, UCAL_MINUTE, UCAL_SECOND, UCAL_MILLISECOND})
            calendar_->set(field, 0);
    }

    Day& back(UCalendarDateFields field, int32_t amount) {
        calendar_->add(field, -amount, status_);
        return *this;
    }

    Day& toFirstOfMonth() {
        calendar_->set(UCAL_DATE, 1);
        return *this;
    }

    Day& toFirstOfYear() {
        calendar_->set(UCAL_MONTH, calendar_->getActualMinimum(UCAL_MONTH, status_));
        return toFirstOfMonth();
    }

    double start() { return firstMoment(wallTimeOf(calendar_->getTime(status_))); }

private:
    UErrorCode status_;
    std::unique_ptr<icu::Calendar> calendar_;
};

} // namespace

QString rawValue(DateRangePreset preset) {
    switch (preset) {
    case DateRangePreset::today:
        return QStringLiteral("today");
    case DateRangePreset::yesterday:
        return QStringLiteral("yesterday");
    case DateRangePreset::last7days:
        return QStringLiteral("last7days");
    case DateRangePreset::last30days:
        return QStringLiteral("last30days");
    case DateRangePreset::thisMonth:
        return QStringLiteral("thisMonth");
    case DateRangePreset::lastMonth:
        return QStringLiteral("lastMonth");
    case DateRangePreset::thisYear:
        return QStringLiteral("thisYear");
    }
    return {};
}

QString label(DateRangePreset preset) {
    switch (preset) {
    case DateRangePreset::today:
        return qtTrId("datePreset.today");
    case DateRangePreset::yesterday:
        return qtTrId("datePreset.yesterday");
    case DateRangePreset::last7days:
        return qtTrId("datePreset.last7days");
    case DateRangePreset::last30days:
        return qtTrId("datePreset.last30days");
    case DateRangePreset::thisMonth:
        return qtTrId("datePreset.thisMonth");
    case DateRangePreset::lastMonth:
        return qtTrId("datePreset.lastMonth");
    case DateRangePreset::thisYear:
        return qtTrId("datePreset.thisYear");
    }
    return {};
}

QString symbolName(DateRangePreset preset) {
    switch (preset) {
    case DateRangePreset::today:
        return QStringLiteral("sun.max");
    case DateRangePreset::yesterday:
        return QStringLiteral("moon");
    case DateRangePreset::last7days:
        return QStringLiteral("7.circle");
    case DateRangePreset::last30days:
        return QStringLiteral("30.circle");
    case DateRangePreset::thisMonth:
        return QStringLiteral("calendar");
    case DateRangePreset::lastMonth:
        return QStringLiteral("calendar.badge.minus");
    case DateRangePreset::thisYear:
        return QStringLiteral("calendar.badge.clock");
    }
    return {};
}

std::pair<double, double> presetBounds(DateRangePreset preset, double now) {
    Day day(now);
    switch (preset) {
    case DateRangePreset::today:
        return {day.start(), now};
    case DateRangePreset::yesterday: {
        const double end = day.start() - 1;
        return {day.back(UCAL_DATE, 1).start(), end};
    }
    case DateRangePreset::last7days:
        return {day.back(UCAL_DATE, 7).start(), now};
    case DateRangePreset::last30days:
        return {day.back(UCAL_DATE, 30).start(), now};
    case DateRangePreset::thisMonth:
        return {day.toFirstOfMonth().start(), now};
    case DateRangePreset::lastMonth: {
        const double end = day.toFirstOfMonth().start() - 1;
        return {day.back(UCAL_MONTH, 1).start(), end};
    }
    case DateRangePreset::thisYear:
        return {day.toFirstOfYear().start(), now};
    }
    return {now, now};
}

} // namespace tessarine

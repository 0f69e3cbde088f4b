#include "browser/selection/DateRangePreset.h"

#include "shared/LocalZone.h"
#include "shared/UserLocale.h"
#include "shared/WallCalendar.h"

#include <QCoreApplication>

#include <memory>

namespace tessarine {

namespace {

struct PresetTexts {
    const char16_t* rawValue;
    const char* labelId;
    const char16_t* symbolName;
};

constexpr std::array<PresetTexts, allDateRangePresets.size()> presetTexts{{
    {u"today", QT_TRID_NOOP("datePreset.today"), u"sun.max"},
    {u"yesterday", QT_TRID_NOOP("datePreset.yesterday"), u"moon"},
    {u"last7days", QT_TRID_NOOP("datePreset.last7days"), u"7.circle"},
    {u"last30days", QT_TRID_NOOP("datePreset.last30days"), u"30.circle"},
    {u"thisMonth", QT_TRID_NOOP("datePreset.thisMonth"), u"calendar"},
    {u"lastMonth", QT_TRID_NOOP("datePreset.lastMonth"), u"calendar.badge.minus"},
    {u"thisYear", QT_TRID_NOOP("datePreset.thisYear"), u"calendar.badge.clock"},
}};

const PresetTexts& texts(DateRangePreset preset) {
    return presetTexts.at(static_cast<std::size_t>(preset));
}

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
    return QString::fromUtf16(texts(preset).rawValue);
}

QString label(DateRangePreset preset) {
    return qtTrId(texts(preset).labelId);
}

QString symbolName(DateRangePreset preset) {
    return QString::fromUtf16(texts(preset).symbolName);
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

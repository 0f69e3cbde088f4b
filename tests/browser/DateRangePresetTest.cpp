#include "browser/selection/DateRangePreset.h"

#include "support/Printers.h"
#include "support/TimeZoneScope.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using Preset = DateRangePreset;
using testing::TimeZoneScope;

// Moments below were worked out with `date -d ... +%s`.
constexpr double unixToReference = 978307200;

constexpr double fromUnix(double seconds) {
    return seconds - unixToReference;
}

TEST(DatePresets, HaveTheirRawValuesSymbolsAndLabelsInOrder) {
    QStringList names;
    QStringList symbols;
    QStringList labels; // keys: the test loads no texts
    for (const Preset preset : allDateRangePresets) {
        names << rawValue(preset);
        symbols << symbolName(preset);
        labels << label(preset);
    }
    EXPECT_EQ(names, QStringList({u"today"_qs, u"yesterday"_qs, u"last7days"_qs, u"last30days"_qs,
                                  u"thisMonth"_qs, u"lastMonth"_qs, u"thisYear"_qs}));
    EXPECT_EQ(symbols, QStringList({u"sun.max"_qs, u"moon"_qs, u"7.circle"_qs, u"30.circle"_qs,
                                    u"calendar"_qs, u"calendar.badge.minus"_qs,
                                    u"calendar.badge.clock"_qs}));
    EXPECT_EQ(labels, QStringList({u"datePreset.today"_qs, u"datePreset.yesterday"_qs,
                                   u"datePreset.last7days"_qs, u"datePreset.last30days"_qs,
                                   u"datePreset.thisMonth"_qs, u"datePreset.lastMonth"_qs,
                                   u"datePreset.thisYear"_qs}));
}

// 2026-03-31 00:00:30 in universal time
constexpr double lateMarch = fromUnix(1774915230);

struct Span {
    Preset preset;
    double start;
    double end;
};

class LateMarchTest : public ::testing::TestWithParam<Span> {};

TEST_P(LateMarchTest, HasItsBounds) {
    const TimeZoneScope zone("UTC");
    const auto [start, end] = presetBounds(GetParam().preset, lateMarch);
    EXPECT_EQ(start, GetParam().start);
    EXPECT_EQ(end, GetParam().end);
}

INSTANTIATE_TEST_SUITE_P(
    Presets, LateMarchTest,
    ::testing::Values(Span{Preset::today, fromUnix(1774915200), lateMarch},
                      Span{Preset::yesterday, fromUnix(1774828800), fromUnix(1774915199)},
                      Span{Preset::last7days, fromUnix(1774310400), lateMarch},
                      Span{Preset::last30days, fromUnix(1772323200), lateMarch},
                      Span{Preset::thisMonth, fromUnix(1772323200), lateMarch},
                      Span{Preset::lastMonth, fromUnix(1769904000), fromUnix(1772323199)},
                      Span{Preset::thisYear, fromUnix(1767225600), lateMarch}));

TEST(DatePresets, CountCalendarDaysAcrossAClockChange) {
    const TimeZoneScope zone("Europe/Berlin");
    // 2026-04-02 12:00 there; the clock went forward on 29 March. Seven days back is a midnight of
    // winter time, 2026-03-26 00:00+01:00.
    const double now = fromUnix(1775124000);
    EXPECT_EQ(presetBounds(Preset::last7days, now).first, fromUnix(1774479600));
}

TEST(DatePresets, BeginADayWithoutMidnightAtItsFirstInstant) {
    const TimeZoneScope zone("America/Sao_Paulo");
    // 2018-11-04: the clock went from 00:00 to 01:00, which is 03:00 UTC.
    const double noon = fromUnix(1541340000);
    EXPECT_EQ(presetBounds(Preset::today, noon).first, fromUnix(1541300400));
    // And from the day after, that first instant is the start of yesterday.
    const auto [start, end] = presetBounds(Preset::yesterday, noon + 86400);
    EXPECT_EQ(start, fromUnix(1541300400));
    EXPECT_EQ(end, fromUnix(1541383199));
}

TEST(DatePresets, BeginADayOfTwoMidnightsAtTheFirst) {
    const TimeZoneScope zone("America/Havana");
    // 2026-11-01: at 01:00 summer time the clock goes back to 00:00. The day begins at 04:00 UTC.
    const double noon = fromUnix(1793552400);
    EXPECT_EQ(presetBounds(Preset::today, noon).first, fromUnix(1793505600));
}

TEST(DatePresets, OnTheFirstOfMarchInALeapYearLastMonthHas29Days) {
    const TimeZoneScope zone("UTC");
    const double now = fromUnix(1709287200); // 2024-03-01 10:00
    const auto [start, end] = presetBounds(Preset::lastMonth, now);
    EXPECT_EQ(start, fromUnix(1706745600));
    EXPECT_EQ(end, fromUnix(1709251199));
}

} // namespace
} // namespace tessarine

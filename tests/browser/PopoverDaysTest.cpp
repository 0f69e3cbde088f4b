#include "browser/selection/PopoverDays.h"

#include "support/Printers.h"
#include "support/TimeZoneScope.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

class PopoverDaysTest : public ::testing::Test {
    const testing::TimeZoneScope zone_{"Europe/Zurich"};
};

TEST_F(PopoverDaysTest, DayKeysOfferNoDays) {
    const QStringList keys{u"2026-06-02"_qs, u"2026-06-01"_qs, u"2026-05-31"_qs};
    EXPECT_TRUE(popoverMonths(keys, {{u"2026-06-02"_qs, 3}}).empty());
}

// 1 and 2 June 2026 are a Monday and a Tuesday.
TEST_F(PopoverDaysTest, DaysInTheLongFormComeByMonth) {
    const QString second = u"martedì 2 giugno 2026"_qs;
    const QString first = u"lunedì 1 giugno 2026"_qs;
    const QString before = u"domenica 31 maggio 2026"_qs;
    const auto months = popoverMonths({second, first, before}, {{second, 3}, {before, 1}});
    ASSERT_EQ(months.size(), 2U);
    EXPECT_EQ(months[0].title, u"Giugno 2026"_qs);
    ASSERT_EQ(months[0].days.size(), 2);
    EXPECT_EQ(months[0].days[0], (PopoverDay{second, u"Mar 2 Giu"_qs, 3}));
    EXPECT_EQ(months[0].days[1], (PopoverDay{first, u"Lun 1 Giu"_qs, std::nullopt}));
    EXPECT_EQ(months[1].title, u"Maggio 2026"_qs);
    EXPECT_EQ(months[1].days[0].badge, 1);
}

TEST_F(PopoverDaysTest, DaysWithoutMidnightAreDaysToo) {
    const testing::TimeZoneScope zone("America/Havana"); // where this day begins at one o'clock
    const QString day = u"domenica 8 marzo 2026"_qs;
    const auto months = popoverMonths({day}, {});
    ASSERT_EQ(months.size(), 1U);
    EXPECT_EQ(months[0].title, u"Marzo 2026"_qs);
    EXPECT_EQ(months[0].days[0], (PopoverDay{day, u"Dom 8 Mar"_qs, std::nullopt}));
}

TEST_F(PopoverDaysTest, WhatIsNoDayFallsOut) {
    const QString day = u"lunedì 1 giugno 2026"_qs;
    const auto months = popoverMonths({u""_qs, u"lunedì"_qs, day + u" e oltre"_qs, day,
                                       u"lunedì 31 giugno 2026"_qs, u"Monday 1 June 2026"_qs},
                                      {});
    ASSERT_EQ(months.size(), 1U);
    ASSERT_EQ(months[0].days.size(), 1);
    EXPECT_EQ(months[0].days[0].text, day);
}

} // namespace
} // namespace tessarine

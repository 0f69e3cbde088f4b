#include "browser/RowTimeFormatter.h"

#include "support/Printers.h"
#include "support/TimeZoneScope.h"

#include <gtest/gtest.h>

#include <limits>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using Style = RowTimeFormatter::Style;
using testing::TimeZoneScope;

// 2025-11-16 15:33:20 UTC, by date(1) of 785000000 + 978307200.
constexpr double afternoon = 785000000.0;

TEST(RowTime, IsInTheMediumStyleOfTheLocale) {
    EXPECT_EQ(RowTimeFormatter(Style::dateAndTime, "de_DE", u"UTC"_qs).text(afternoon),
              u"16.11.2025, 15:33:20"_qs);
    EXPECT_EQ(RowTimeFormatter(Style::dateAndTime, "en_US", u"UTC"_qs).text(afternoon),
              u"Nov 16, 2025, 3:33:20\u202fPM"_qs);
    EXPECT_EQ(RowTimeFormatter(Style::dateAndTime, "sv_SE", u"UTC"_qs).text(afternoon),
              u"16 nov. 2025 15:33:20"_qs);
    EXPECT_EQ(RowTimeFormatter(Style::timeOnly, "de_DE", u"UTC"_qs).text(afternoon),
              u"15:33:20"_qs);
}

TEST(RowTime, IsInTheTimeZone) {
    EXPECT_EQ(RowTimeFormatter(Style::timeOnly, "de_DE", u"Asia/Tokyo"_qs).text(afternoon),
              u"00:33:20"_qs);
    EXPECT_EQ(RowTimeFormatter(Style::dateAndTime, "de_DE", u"Asia/Tokyo"_qs).text(afternoon),
              u"17.11.2025, 00:33:20"_qs);
}

TEST(RowTime, FollowsTheUsersClockToAnotherZone) {
    const TimeZoneScope rome("Europe/Rome");
    EXPECT_TRUE(rowTimeFormatter().text(afternoon).contains(u":33:20"_qs));
    const QString inRome = rowDateTimeFormatter().text(afternoon);
    const QString dayInRome = dayTitleFormatter().text(afternoon);
    {
        const TimeZoneScope tokyo("Asia/Tokyo");
        EXPECT_NE(rowDateTimeFormatter().text(afternoon), inRome);
        EXPECT_NE(dayTitleFormatter().text(afternoon), dayInRome); // the next day there
    }
    EXPECT_EQ(rowDateTimeFormatter().text(afternoon), inRome);
    EXPECT_EQ(dayTitleFormatter().text(afternoon), dayInRome);
}

TEST(RowTime, DropsTheFractionOfASecond) {
    const RowTimeFormatter formatter(Style::timeOnly, "de_DE", u"UTC"_qs);
    EXPECT_EQ(formatter.text(afternoon + 0.999), u"15:33:20"_qs);
    EXPECT_EQ(formatter.text(-0.5), u"23:59:59"_qs); // before the reference date
}

TEST(RowTime, IsEmptyForWhatIsNoMoment) {
    const RowTimeFormatter formatter(Style::dateAndTime, "en_US", u"UTC"_qs);
    EXPECT_EQ(formatter.text(std::numeric_limits<double>::quiet_NaN()), QString());
    EXPECT_EQ(formatter.text(std::numeric_limits<double>::infinity()), QString());
    EXPECT_EQ(formatter.text(-std::numeric_limits<double>::infinity()), QString());
}

TEST(RowTime, TakesHugeMomentsAsTheEndsOfTheCalendar) {
    const RowTimeFormatter formatter(Style::dateAndTime, "de_DE", u"UTC"_qs);
    // 100 million days after 1970, as ECMAScript's greatest date has it.
    EXPECT_EQ(formatter.text(1e300), u"13.09.275760, 00:00:00"_qs);
    EXPECT_EQ(formatter.text(std::numeric_limits<double>::max()), formatter.text(1e300));
    EXPECT_FALSE(formatter.text(-1e300).isEmpty());
}

TEST(RowTime, AnUnknownLocaleStillGivesADate) {
    EXPECT_TRUE(RowTimeFormatter(Style::dateAndTime, "xx_YY", u"UTC"_qs)
                    .text(afternoon)
                    .contains(u"2025"_qs));
    EXPECT_TRUE(
        RowTimeFormatter(Style::dateAndTime, "C", u"UTC"_qs).text(afternoon).contains(u"2025"_qs));
}

} // namespace
} // namespace tessarine

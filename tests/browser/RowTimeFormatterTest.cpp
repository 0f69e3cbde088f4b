#include "browser/list/RowTimeFormatter.h"

#include "support/DateLocaleScope.h"
#include "support/Printers.h"
#include "support/TimeZoneScope.h"

#include <gtest/gtest.h>

#include <limits>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using Style = RowTimeFormatter::Style;
using testing::DateLocaleScope;
using testing::TimeZoneScope;

// 2025-11-16 15:33:20 UTC, by date(1) of 785000000 + 978307200.
constexpr double afternoon = 785000000.0;

QString text(Style style, const char* locale, double moment = afternoon) {
    return RowTimeFormatter(style, locale).text(moment);
}

class RowTimeTest : public ::testing::Test {
protected:
    const TimeZoneScope zone_{"UTC"};
};

TEST_F(RowTimeTest, IsInTheMediumStyleOfTheLocale) {
    EXPECT_EQ(text(Style::dateAndTime, "de_DE"), u"16.11.2025, 15:33:20"_qs);
    EXPECT_EQ(text(Style::dateAndTime, "en_US"), u"Nov 16, 2025, 3:33:20\u202fPM"_qs);
    EXPECT_EQ(text(Style::dateAndTime, "sv_SE"), u"16 nov. 2025 15:33:20"_qs);
    EXPECT_EQ(text(Style::timeOnly, "de_DE"), u"15:33:20"_qs);
}

TEST_F(RowTimeTest, HasADayInTheFullStyle) {
    EXPECT_EQ(text(Style::fullDate, "de_DE"), u"Sonntag, 16. November 2025"_qs);
}

TEST_F(RowTimeTest, IsInTheTimeZone) {
    const TimeZoneScope tokyo("Asia/Tokyo");
    EXPECT_EQ(text(Style::timeOnly, "de_DE"), u"00:33:20"_qs);
    EXPECT_EQ(text(Style::dateAndTime, "de_DE"), u"17.11.2025, 00:33:20"_qs);
}

TEST_F(RowTimeTest, OfTheUserFollowsTheClockToAnotherZone) {
    const DateLocaleScope german("de_DE.UTF-8");
    EXPECT_EQ(rowTimeFormatter().text(afternoon), u"15:33:20"_qs);
    EXPECT_EQ(dayTitleFormatter().text(afternoon), u"Sonntag, 16. November 2025"_qs);
    {
        const TimeZoneScope tokyo("Asia/Tokyo");
        EXPECT_EQ(rowTimeFormatter().text(afternoon), u"00:33:20"_qs);
        EXPECT_EQ(rowDateTimeFormatter().text(afternoon), u"17.11.2025, 00:33:20"_qs);
        EXPECT_EQ(dayTitleFormatter().text(afternoon), u"Montag, 17. November 2025"_qs);
    }
    EXPECT_EQ(rowDateTimeFormatter().text(afternoon), u"16.11.2025, 15:33:20"_qs);
}

TEST_F(RowTimeTest, OfTheUserFollowsTheLocale) {
    const DateLocaleScope german("de_DE.UTF-8");
    EXPECT_EQ(rowDateTimeFormatter().text(afternoon), u"16.11.2025, 15:33:20"_qs);
    const DateLocaleScope swedish("sv_SE.UTF-8");
    EXPECT_EQ(rowDateTimeFormatter().text(afternoon), u"16 nov. 2025 15:33:20"_qs);
    EXPECT_EQ(rowTimeFormatter().text(afternoon), u"15:33:20"_qs);
    EXPECT_EQ(dayTitleFormatter().text(afternoon), u"söndag 16 november 2025"_qs);
}

TEST_F(RowTimeTest, KeepsTheScriptOfTheLocale) {
    const DateLocaleScope latin("sr_RS.UTF-8@latin");
    EXPECT_EQ(dayTitleFormatter().text(afternoon), u"nedelja, 16. novembar 2025."_qs);
    const DateLocaleScope cyrillic("sr_RS.UTF-8");
    EXPECT_EQ(dayTitleFormatter().text(afternoon), u"недеља, 16. новембар 2025."_qs);
    const DateLocaleScope withoutNames("be_BY@latin"); // ICU has Belarusian in Cyrillic alone
    EXPECT_EQ(dayTitleFormatter().text(afternoon), u"Sunday, November 16, 2025"_qs);
}

TEST_F(RowTimeTest, DropsTheFractionOfASecond) {
    EXPECT_EQ(text(Style::timeOnly, "de_DE", afternoon + 0.999), u"15:33:20"_qs);
    EXPECT_EQ(text(Style::timeOnly, "de_DE", -0.5), u"23:59:59"_qs); // before the reference date
}

TEST_F(RowTimeTest, IsEmptyForWhatIsNoNumber) {
    EXPECT_EQ(text(Style::dateAndTime, "en_US", std::numeric_limits<double>::quiet_NaN()),
              QString());
}

TEST_F(RowTimeTest, TakesMomentsWithoutADateAsTheFirstOrTheLast) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double moment : {1e300, std::numeric_limits<double>::max(), infinity})
        EXPECT_EQ(text(Style::dateAndTime, "de_DE", moment), u"31.12.9999, 23:59:59"_qs);
    for (const double moment : {-1e300, std::numeric_limits<double>::lowest(), -infinity})
        EXPECT_EQ(text(Style::dateAndTime, "de_DE", moment), u"01.01.1, 00:00:00"_qs);
}

TEST_F(RowTimeTest, AnUnknownLocaleStillGivesADate) {
    EXPECT_TRUE(text(Style::dateAndTime, "xx_YY").contains(u"2025"_qs));
    EXPECT_TRUE(text(Style::dateAndTime, "C").contains(u"2025"_qs));
}

} // namespace
} // namespace tessarine

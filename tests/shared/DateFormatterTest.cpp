#include "shared/DateFormatter.h"

#include "support/DateLocaleScope.h"
#include "support/Numbers.h"
#include "support/Printers.h"
#include "support/TimeZoneScope.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::infinity;
using testing::TimeZoneScope;

// 2025-11-16 15:33:20 UTC, by date(1) of 785000000 + 978307200.
constexpr double afternoon = 785000000.0;

DateFormatter formatter(const QString& pattern, const char* locale = "en_US") {
    return DateFormatter::withPattern(pattern, locale);
}

class DateFormatterTest : public ::testing::Test {
protected:
    const TimeZoneScope zone_{"UTC"};
};

TEST_F(DateFormatterTest, FollowsItsPattern) {
    EXPECT_EQ(formatter(u"yyyy-MM-dd"_qs).text(afternoon), u"2025-11-16"_qs);
    EXPECT_EQ(formatter(u"d MMMM yyyy, HH:mm"_qs).text(afternoon), u"16 November 2025, 15:33"_qs);
}

TEST_F(DateFormatterTest, HasTheNamesDigitsAndCalendarOfTheLocale) {
    EXPECT_EQ(formatter(u"d MMMM"_qs, "de_DE").text(0), u"1 Januar"_qs);
    EXPECT_EQ(formatter(u"yyyy-MM-dd"_qs, "ar_EG").text(afternoon), u"٢٠٢٥-١١-١٦"_qs);
    EXPECT_EQ(formatter(u"yyyy-MM-dd"_qs, "th_TH").text(afternoon), u"2568-11-16"_qs); // 543 ahead
    EXPECT_EQ(formatter(u"yyyy-MM-dd"_qs, "C").text(afternoon), u"2025-11-16"_qs);
}

TEST_F(DateFormatterTest, ShowsWhatTheClockShowsWhenTheTextIsMade) {
    const DateFormatter made = formatter(u"d, HH:mm:ss"_qs);
    EXPECT_EQ(made.text(afternoon), u"16, 15:33:20"_qs);
    const TimeZoneScope tokyo("Asia/Tokyo");
    EXPECT_EQ(made.text(afternoon), u"17, 00:33:20"_qs);
}

TEST_F(DateFormatterTest, CutsFractionsOffAsDayKeysDo) {
    const DateFormatter made = formatter(u"yyyy-MM-dd HH:mm:ss"_qs);
    EXPECT_EQ(made.text(std::nextafter(0.0, -1.0)), u"2000-12-31 23:59:59"_qs);
    EXPECT_EQ(made.text(784944000 - 1e-7), u"2025-11-15 23:59:59"_qs);
}

TEST_F(DateFormatterTest, HasNoJulianDates) {
    const DateFormatter made = formatter(u"yyyy-MM-dd"_qs);
    EXPECT_EQ(made.text(-63113904000.0), u"0001-01-01"_qs); // Python's date(1, 1, 1)
    EXPECT_EQ(made.text(-13184985600.0), u"1583-03-10"_qs);
    EXPECT_EQ(made.text(-13216521600.0), u"1582-03-10"_qs);
}

TEST_F(DateFormatterTest, IsEmptyForWhatIsNoNumber) {
    EXPECT_EQ(formatter(u"yyyy"_qs).text(std::numeric_limits<double>::quiet_NaN()), QString());
}

TEST_F(DateFormatterTest, TakesMomentsWithoutADateAsTheFirstOrTheLast) {
    const DateFormatter made = formatter(u"G y-MM-dd HH:mm:ss"_qs);
    for (const double moment : {infinity, 1e300, 1e19, 252423993600.0})
        EXPECT_EQ(made.text(moment), u"AD 9999-12-31 23:59:59"_qs) << moment;
    for (const double moment : {-infinity, -1e300, -1e19, -63113904001.0})
        EXPECT_EQ(made.text(moment), u"AD 1-01-01 00:00:00"_qs) << moment;
}

TEST_F(DateFormatterTest, HasABriefStyle) {
    using Style = DateFormatter::Style;
    EXPECT_EQ(DateFormatter::withStyles(Style::brief, Style::none, "de_DE").text(afternoon),
              u"16.11.25"_qs);
    EXPECT_EQ(DateFormatter::withStyles(Style::medium, Style::brief, "de_DE").text(afternoon),
              u"16.11.2025, 15:33"_qs);
}

TEST_F(DateFormatterTest, HasTheUsersStyles) {
    const testing::DateLocaleScope german("de_DE.UTF-8");
    EXPECT_EQ(DateFormatter::withUserStyles(DateStyle::medium, DateStyle::brief).text(afternoon),
              u"16.11.2025, 15:33"_qs);
}

TEST_F(DateFormatterTest, CanBeHandedOn) {
    auto first = formatter(u"yyyy"_qs);
    const DateFormatter second = std::move(first);
    EXPECT_EQ(second.text(0), u"2001"_qs);
}

} // namespace
} // namespace tessarine

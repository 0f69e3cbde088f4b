#include "shared/DayKey.h"

#include "support/Numbers.h"
#include "support/TimeZoneScope.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>

// Moments and days are Python's, by zoneinfo.

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::day;
using testing::infinity;
using testing::TimeZoneScope;

// The text, so that a failed comparison can be read.
std::string key(double timestamp) {
    return dayKey(timestamp).toStdString();
}

TEST(DayKey, IsTheDateInUtcWhereThatIsTheZone) {
    const TimeZoneScope zone("UTC");
    EXPECT_EQ(key(0.0), "2001-01-01");
    EXPECT_EQ(key(785000000.0), "2025-11-16");
    EXPECT_EQ(key(730857600.0), "2024-02-29");
    EXPECT_EQ(key(730857600.0 + day), "2024-03-01");
    EXPECT_EQ(key(-1.0), "2000-12-31");
}

TEST(DayKey, IsTheDateOfTheLocalClock) {
    {
        const TimeZoneScope zone("Asia/Tokyo");
        EXPECT_EQ(key(785000000.0), "2025-11-17");
    }
    const TimeZoneScope zone("America/New_York");
    EXPECT_EQ(key(0.0), "2000-12-31");
}

TEST(DayKey, FollowsAChangeOfTheTimeZone) {
    const TimeZoneScope west("America/New_York");
    EXPECT_EQ(key(785000000.0), "2025-11-16");
    const TimeZoneScope east("Asia/Tokyo");
    EXPECT_EQ(key(785000000.0), "2025-11-17");
    const TimeZoneScope westAgain("America/New_York");
    EXPECT_EQ(key(785000000.0), "2025-11-16");
}

TEST(DayKey, ChangesAtMidnightAndNotBefore) {
    const TimeZoneScope zone("Europe/Berlin");
    const double midnight = 784940400.0; // 2025-11-16 00:00 CET
    EXPECT_EQ(key(midnight), "2025-11-16");
    EXPECT_EQ(key(midnight - 0.0004), "2025-11-15");
    EXPECT_EQ(key(midnight - 1e-7), "2025-11-15");
    EXPECT_EQ(key(midnight + day - 0.0004), "2025-11-16");
    EXPECT_EQ(key(midnight + day), "2025-11-17");
}

TEST(DayKey, IsTheDayBeforeJustBeforeTheReferenceDate) {
    const TimeZoneScope zone("UTC");
    EXPECT_EQ(key(-0.0004), "2000-12-31");
    EXPECT_EQ(key(std::nextafter(0.0, -1.0)), "2000-12-31");
    EXPECT_EQ(key(-0.0), "2001-01-01");
}

TEST(DayKey, HoldsOverTheDaysOfAClockChange) {
    const TimeZoneScope zone("Europe/Berlin");
    EXPECT_EQ(key(764982000.0), "2025-03-30"); // of 23 hours
    EXPECT_EQ(key(765064800.0 - 0.5), "2025-03-30");
    EXPECT_EQ(key(765064800.0), "2025-03-31");
    EXPECT_EQ(key(783122400.0), "2025-10-26"); // of 25 hours
    EXPECT_EQ(key(783212400.0 - 0.5), "2025-10-26");
    EXPECT_EQ(key(783212400.0), "2025-10-27");
}

TEST(DayKey, ReturnsToTheDayBeforeWhereTheClockIsSetBackOverMidnight) {
    const TimeZoneScope zone("America/St_Johns"); // at 00:01, by an hour
    EXPECT_EQ(key(310789800.0 - 1), "2010-11-06");
    EXPECT_EQ(key(310789800.0 + 59), "2010-11-07");
    EXPECT_EQ(key(310789800.0 + 60), "2010-11-06");
    EXPECT_EQ(key(310789800.0 + 3600), "2010-11-07");
}

TEST(DayKey, HasDigitsFromZeroToNineInEveryLanguage) {
    const TimeZoneScope zone("UTC");
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
    EXPECT_EQ(key(785000000.0), "2025-11-16");
    EXPECT_EQ(startOfDay(u"2025-11-16"_qs), 784944000.0);
    QLocale::setDefault(before);
}

TEST(DayKey, IsEmptyForWhatIsNoNumber) {
    EXPECT_TRUE(dayKey(std::numeric_limits<double>::quiet_NaN()).isEmpty());
}

class DayKeyFarAway : public ::testing::TestWithParam<const char*> {
protected:
    const TimeZoneScope zone_{GetParam()};
};

TEST_P(DayKeyFarAway, TakesMomentsOutsideFourDigitYearsAsTheEnds) {
    for (const double moment : {infinity, 1e300, 1e18, 9.3e18, 252423907200.0 + 2 * day})
        EXPECT_EQ(key(moment), "9999-12-31") << moment;
    for (const double moment : {-infinity, -1e300, -1e18, -9.3e18, -63113904000.0 - 2 * day})
        EXPECT_EQ(key(moment), "0001-01-01") << moment;
}

INSTANTIATE_TEST_SUITE_P(Zones, DayKeyFarAway,
                         ::testing::Values("UTC", "Pacific/Kiritimati", "Pacific/Midway"),
                         [](const auto& test) {
                             const std::string zone = test.param;
                             return zone.substr(zone.find('/') + 1);
                         });

TEST(DayKey, ReachesFromTheYearOneToTheYear9999) {
    const TimeZoneScope zone("UTC");
    EXPECT_EQ(key(252423907200.0), "9999-12-31");
    EXPECT_EQ(key(252423907200.0 - 0.5), "9999-12-30");
    EXPECT_EQ(key(-63113904000.0), "0001-01-01");
    EXPECT_EQ(key(-63113904000.0 + day), "0001-01-02");
}

// When a day starts

struct Start {
    const char* name;
    const char* zone;
    const char* key;
    double moment;
};

class StartOfDay : public ::testing::TestWithParam<Start> {};

TEST_P(StartOfDay, IsTheFirstInstantWithThatKey) {
    const TimeZoneScope zone(GetParam().zone);
    const std::optional<double> start = startOfDay(QString::fromLatin1(GetParam().key));
    ASSERT_TRUE(start);
    EXPECT_EQ(*start, GetParam().moment);
    EXPECT_EQ(key(*start), GetParam().key);
    EXPECT_NE(key(*start - 0.0004), GetParam().key);
}

INSTANTIATE_TEST_SUITE_P(
    Days, StartOfDay,
    ::testing::Values(Start{"Utc", "UTC", "2025-11-16", 784944000.0},
                      Start{"Reference", "UTC", "2001-01-01", 0.0},
                      Start{"LeapDay", "UTC", "2024-02-29", 730857600.0},
                      Start{"Berlin", "Europe/Berlin", "2025-11-16", 784940400.0},
                      Start{"Tokyo", "Asia/Tokyo", "2025-11-17", 784998000.0},
                      Start{"BeforeTheReference", "America/New_York", "2000-12-31", -68400.0},
                      Start{"SpringForward", "Europe/Berlin", "2025-03-30", 764982000.0},
                      Start{"AfterSpringForward", "Europe/Berlin", "2025-03-31", 765064800.0},
                      Start{"FallBack", "Europe/Berlin", "2025-10-26", 783122400.0},
                      Start{"AfterFallBack", "Europe/Berlin", "2025-10-27", 783212400.0},
                      Start{"NoMidnightInSaoPaulo", "America/Sao_Paulo", "2018-11-04", 562993200.0},
                      Start{"NoMidnightInCairo", "Africa/Cairo", "2023-04-28", 704325600.0},
                      Start{"TwoMidnightsInHavana", "America/Havana", "2018-11-04", 562996800.0},
                      Start{"TwoMidnightsInStJohns", "America/St_Johns", "2010-11-07", 310789800.0},
                      Start{"TheSecondOfAll", "UTC", "0001-01-02", -63113817600.0},
                      Start{"TheLast", "UTC", "9999-12-31", 252423907200.0}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(StartOfDay, OfTheFirstDayIsItsMidnight) {
    const TimeZoneScope zone("UTC");
    EXPECT_EQ(startOfDay(u"0001-01-01"_qs), -63113904000.0);
}

TEST(StartOfDay, FollowsAChangeOfTheTimeZone) {
    const TimeZoneScope west("UTC");
    EXPECT_EQ(startOfDay(u"2025-11-16"_qs), 784944000.0);
    const TimeZoneScope east("Europe/Berlin");
    EXPECT_EQ(startOfDay(u"2025-11-16"_qs), 784940400.0);
}

TEST(StartOfDay, IsNoneForADayThatTheCalendarLeftOut) {
    const TimeZoneScope zone("Pacific/Apia"); // which went from the 29th to the 31st
    EXPECT_EQ(startOfDay(u"2011-12-30"_qs), std::nullopt);
    EXPECT_NE(startOfDay(u"2011-12-31"_qs), std::nullopt);
}

struct NoKey {
    const char* name;
    const char16_t* text;
};

class NoDay : public ::testing::TestWithParam<NoKey> {};

TEST_P(NoDay, HasNoStart) {
    EXPECT_EQ(startOfDay(QString::fromUtf16(GetParam().text)), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, NoDay,
    ::testing::Values(NoKey{"Empty", u""}, NoKey{"Word", u"yesterday"},
                      NoKey{"NoSuchMonth", u"2025-13-01"}, NoKey{"NoSuchDay", u"2025-11-31"},
                      NoKey{"NoLeapYear", u"2025-02-29"}, NoKey{"MonthZero", u"2025-00-10"},
                      NoKey{"YearZero", u"0000-01-01"}, NoKey{"ShortYear", u"25-11-16"},
                      NoKey{"LongYear", u"12025-11-16"}, NoKey{"OneDigitMonth", u"2025-1-16"},
                      NoKey{"OneDigitDay", u"2025-11-6"}, NoKey{"Slashes", u"2025/11/16"},
                      NoKey{"Time", u"2025-11-16 00:00"}, NoKey{"BlankBefore", u" 2025-11-16"},
                      NoKey{"BlankAfter", u"2025-11-16 "}, NoKey{"LineAfter", u"2025-11-16\n"},
                      NoKey{"Negative", u"-2025-11-16"}, NoKey{"German", u"16.11.2025"},
                      NoKey{"ArabicDigits", u"\u0662\u0660\u0662\u0665-\u0661\u0661-\u0661\u0666"},
                      NoKey{"WideDigits", u"\uff12\uff10\uff12\uff15-11-16"}),
    [](const auto& test) { return std::string(test.param.name); });

} // namespace
} // namespace tessarine

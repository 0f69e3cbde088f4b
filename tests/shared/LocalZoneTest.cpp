#include "shared/LocalZone.h"

#include "shared/ReferenceTime.h"
#include "support/Numbers.h"
#include "support/Printers.h"
#include "support/TimeZoneScope.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

// Moments are Python's, by zoneinfo. Every zone of the system is judged beside this, in
// tests/zones.

namespace tessarine {
namespace {

using testing::infinity;
using testing::TimeZoneScope;

constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

// The number of a zone

TEST(LocalZoneNumber, IsAnotherInAnotherZone) {
    const TimeZoneScope rome("Europe/Rome");
    const int numberInRome = localZoneNumber();
    EXPECT_EQ(localZoneNumber(), numberInRome);
    const TimeZoneScope tokyo("Asia/Tokyo");
    EXPECT_NE(localZoneNumber(), numberInRome);
}

TEST(LocalZoneNumber, TellsZonesApartThatHaveTheSameHoursInJanuaryAndInJuly) {
    const TimeZoneScope march("CET-1CEST,M3.5.0,M10.5.0/3");
    const int number = localZoneNumber();
    const TimeZoneScope april("CET-1CEST,M4.1.0,M9.5.0/3");
    EXPECT_NE(localZoneNumber(), number);
}

TEST(LocalZoneNumber, TellsAnEmptyVariableFromNone) {
    const TimeZoneScope empty("");
    const int number = localZoneNumber();
    qunsetenv("TZ");
    EXPECT_NE(localZoneNumber(), number);
}

// From a moment to what the clock shows

struct Shown {
    const char* name;
    const char* zone;
    double moment;
    qint64 wall;
};

void PrintTo(const Shown& shown, std::ostream* out) {
    *out << shown.name;
}

TEST(WallTimeInChangingZones, IsThatOfTheZoneNowWhoeverFoundTheLast) {
    const TimeZoneScope utc("UTC");
    EXPECT_EQ(wallTime(0), 0);
    {
        const TimeZoneScope tokyo("Asia/Tokyo");
        localZoneNumber();
    }
    EXPECT_EQ(wallTime(0), 0);
    EXPECT_EQ(wallTime(86400), 86400);
}

class WallTime : public ::testing::TestWithParam<Shown> {};

TEST_P(WallTime, IsWhatTheClockShows) {
    const TimeZoneScope zone(GetParam().zone);
    EXPECT_EQ(wallTime(GetParam().moment), GetParam().wall);
}

INSTANTIATE_TEST_SUITE_P(
    Zones, WallTime,
    ::testing::Values(Shown{"Utc", "UTC", 0, 0}, Shown{"QuarterHours", "Asia/Kathmandu", 0, 20700},
                      Shown{"Seconds", "Africa/Monrovia", -1000000000, -1000002670},
                      Shown{"West", "America/New_York", 785000000, 784982000},
                      Shown{"FarEast", "Pacific/Kiritimati", 785000000, 785050400},
                      Shown{"FarWest", "Pacific/Niue", 785000000, 784960400},
                      Shown{"FractionsAreCutOff", "UTC", 59.999, 59},
                      Shown{"TowardsThePastBeforeTheReferenceDate", "UTC", -0.25, -1},
                      Shown{"NotRoundedUpByTheSum", "Asia/Kathmandu", -1e-300, 20699}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(WallTimeFarAway, IsThatOfTheFirstOrLastDate) {
    const TimeZoneScope zone("UTC");
    for (const double moment : {infinity, 1e300, 1e19, 252423993600.0, 252423993599.0})
        EXPECT_EQ(wallTime(moment), 252423993599) << moment;
    for (const double moment : {-infinity, -1e300, -1e19, -63113904001.0, -63113904000.0})
        EXPECT_EQ(wallTime(moment), -63113904000) << moment;
}

TEST(WallTimeFarAway, IsWithinTheDatesWhereTheClockShowsOne) {
    const TimeZoneScope kiritimati("Pacific/Kiritimati"); // 14 hours ahead; once 10:29:20 behind
    EXPECT_EQ(wallTime(252423993599.0), 252423993599);    // there is the year 10000 by then
    EXPECT_EQ(wallTime(252423993599.0 - 50400), 252423993599);
    EXPECT_EQ(wallTime(252423993598.0 - 50400), 252423993598);
    EXPECT_EQ(wallTime(-63113904000.0), -63113904000);
    EXPECT_EQ(wallTime(-63113904000.0 + 37760), -63113904000);
    EXPECT_EQ(wallTime(-63113904000.0 + 37761), -63113903999);
    const TimeZoneScope manila("Asia/Manila"); // eight hours ahead; once 15:56:08 behind
    EXPECT_EQ(wallTime(252423993599.0 - 28800), 252423993599);
    EXPECT_EQ(wallTime(-63113904000.0 + 57369), -63113903999);
}

TEST(WallTimeFarAway, TakesWhatIsNoNumberAsTheFirstDate) {
    const TimeZoneScope zone("UTC");
    EXPECT_EQ(wallTime(noNumber), wallTime(firstSecond));
}

TEST(WallTimeFarAway, IsComputedByTheRulesOfTheZone) {
    const TimeZoneScope zone("America/Nuuk");                   // two hours behind in winter
    EXPECT_EQ(wallTime(-63113000000.0) - -63113000000, -12416); // 3:26:56 behind in the year 1
    EXPECT_EQ(wallTime(252423000000.0) - 252423000000, -7200);  // in December 9999
}

// From what the clock shows to moments

struct Clock {
    const char* name;
    const char* zone;
    qint64 wall;
    double first;
    double last;
};

void PrintTo(const Clock& clock, std::ostream* out) {
    *out << clock.name;
}

class MomentsOfWallTime : public ::testing::TestWithParam<Clock> {};

TEST_P(MomentsOfWallTime, AreTheFirstAndTheLast) {
    const TimeZoneScope zone(GetParam().zone);
    EXPECT_EQ(firstMoment(GetParam().wall), GetParam().first);
    EXPECT_EQ(lastMoment(GetParam().wall), GetParam().last);
}

INSTANTIATE_TEST_SUITE_P(
    Zones, MomentsOfWallTime,
    ::testing::Values(
        Clock{"ShownOnce", "Europe/Rome", 790684200, 790680600, 790680600},
        Clock{"Skipped", "Europe/Rome", 796444200, 796438800, 796440600},
        Clock{"ShownTwice", "Europe/Rome", 814588200, 814581000, 814584600},
        Clock{"MidnightShownTwice", "America/Havana", 815185800, 815200200, 815203800},
        Clock{"MidnightSkipped", "Africa/Cairo", 798681600, 798674400, 798674400},
        Clock{"SkippedIntoNegativeSummerTime", "Europe/Dublin", 796440600, 796438800, 796440600},
        Clock{"ShownTwiceForNegativeSummerTime", "Europe/Dublin", 814584600, 814581000, 814584600},
        Clock{"DaySkippedOverTheDateLine", "Pacific/Apia", 346939200, 346932000, 346975200},
        Clock{"SkippedByUnevenSeconds", "Africa/Monrovia", -914715600, -914714130, -914712930},
        Clock{"TwoHoursSkipped", "Antarctica/Troll", 796442400, 796438800, 796442400},
        Clock{"HalfAnHourShownTwice", "Australia/Lord_Howe", 797046300, 797006700, 797008500},
        Clock{"SkippedBeforeMidnight", "America/Nuuk", 796433400, 796438800, 796440600},
        Clock{"ShownTwiceBeforeRamadan", "Africa/Casablanca", 792815400, 792811800, 792815400},
        Clock{"OfARule", "CET-1CEST,M3.5.0,M10.5.0/3", 796444200, 796438800, 796440600},
        Clock{"OfARuleFarAhead", "AAA-24BBB-23,M3.5.0,M10.5.0/3", 0, -86400, -86400}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(MomentsOfWallTimeFarAway, AreThoseOfTheFirstOrLastDate) {
    const TimeZoneScope zone("UTC");
    EXPECT_EQ(firstMoment(std::numeric_limits<qint64>::max()), 252423993599);
    EXPECT_EQ(lastMoment(std::numeric_limits<qint64>::max()), 252423993599);
    EXPECT_EQ(firstMoment(std::numeric_limits<qint64>::min()), -63113904000);
    EXPECT_EQ(lastMoment(std::numeric_limits<qint64>::min()), -63113904000);
}

// Clock times on a day

constexpr double noon = 785000000 - 12800; // 2025-11-16 12:00 UTC

TEST(ClockTime, IsOnTheDayOfTheMoment) {
    const TimeZoneScope zone("UTC");
    EXPECT_EQ(clockTimeOnDayOf(noon + 0.5, 10, 30), noon - 5400);
    EXPECT_EQ(clockTimeOnDayOf(noon, 0, 0), noon - 43200);
}

TEST(ClockTime, RunsIntoOtherDays) {
    const TimeZoneScope zone("UTC");
    EXPECT_EQ(clockTimeOnDayOf(noon, 25, 61), noon + 50460);
    EXPECT_EQ(clockTimeOnDayOf(noon, -1, -1), noon - 46860);
}

TEST(ClockTime, IsNoneWithoutADate) {
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    constexpr qint64 least = std::numeric_limits<qint64>::min();
    const TimeZoneScope zone("UTC");
    for (const qint64 number : {most, least, qint64(1) << 31, -(qint64(1) << 31), most / 3600}) {
        EXPECT_EQ(clockTimeOnDayOf(noon, number, 0), std::nullopt) << number;
        EXPECT_EQ(clockTimeOnDayOf(noon, 0, number), std::nullopt) << number;
    }
    EXPECT_EQ(clockTimeOnDayOf(infinity, 24, 0), std::nullopt);
    EXPECT_EQ(clockTimeOnDayOf(-infinity, 0, -1), std::nullopt);
    EXPECT_EQ(clockTimeOnDayOf(infinity, 23, 59), 252423993540);
    EXPECT_EQ(clockTimeOnDayOf(-infinity, 0, 0), -63113904000);
}

} // namespace
} // namespace tessarine

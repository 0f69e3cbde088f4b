#include "apps/EventDate.h"

#include "support/Printers.h"
#include "support/TimeZoneScope.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::TimeZoneScope;

// Moments of Europe/Rome in seconds since the reference date, worked out with Python's zoneinfo.
constexpr double eight = 790671600;            // 2026-01-21 08:00
constexpr double sevenToday = 790668000;       // 2026-01-21 07:00
constexpr double sevenTomorrow = 790754400;    // 2026-01-22 07:00
constexpr double halfPastTen = 790680600;      // 2026-01-21 10:30
constexpr double fiveNineTomorrow = 790761900; // 2026-01-22 09:05
constexpr double fourDaysLater = 791005140;    // 2026-01-25 04:39, 99:99 after 2026-01-21 00:00
constexpr double timestamp = 790000000;

class EventDateTest : public ::testing::Test {
protected:
    static std::optional<double> date(const QString& body, const QString& title = {},
                                      double now = eight) {
        return eventDate(body, title, timestamp, now);
    }

    TimeZoneScope zone{"Europe/Rome"};
};

TEST_F(EventDateTest, IsTheTimestampWhereTheTextsNameNoMoment) {
    EXPECT_EQ(date(u"Lunch"_qs, u"Reminder"_qs), timestamp);
    EXPECT_EQ(date({}, {}), timestamp);
}

TEST_F(EventDateTest, CountsMinutesFromNow) {
    EXPECT_EQ(date(u"Lunch in 5 minutes"_qs), eight + 300);
    EXPECT_EQ(date(u"Lunch in 1 minute"_qs), eight + 60);
    EXPECT_EQ(date(u"Lunch in 5 minutes"_qs, {}, eight + 0.25), eight + 300.25);
}

TEST_F(EventDateTest, CountsHoursFromNow) {
    EXPECT_EQ(date(u"Lunch in 2 hours"_qs), eight + 7200);
    EXPECT_EQ(date(u"Lunch in 1 hour"_qs), eight + 3600);
}

TEST_F(EventDateTest, ReadsTheTitleAfterTheBody) {
    EXPECT_EQ(date(u"Lunch"_qs, u"in 5 minutes"_qs), eight + 300);
    EXPECT_EQ(date(u"in 7 minutes"_qs, u"in 5 minutes"_qs), eight + 420);
    EXPECT_EQ(date(u"Lunch in"_qs, u"5 minutes"_qs), eight + 300);
}

TEST_F(EventDateTest, TakesNoNoticeOfCase) {
    EXPECT_EQ(date(u"LUNCH IN 5 MINUTES"_qs), eight + 300);
    EXPECT_EQ(date(u"Today at 10:30"_qs), halfPastTen);
}

TEST_F(EventDateTest, FindsAnIntervalInsideOtherWords) {
    EXPECT_EQ(date(u"We begin 5 minutes late"_qs), eight + 300);
    EXPECT_EQ(date(u"in 5 minutesworth"_qs), eight + 300);
}

TEST_F(EventDateTest, TakesTheFirstIntervalOfAKind) {
    EXPECT_EQ(date(u"in 3 minutes or in 9 minutes"_qs), eight + 180);
}

TEST_F(EventDateTest, PrefersRulesByTheirOrderNotByTheirPlace) {
    EXPECT_EQ(date(u"at 10:30, in 2 hours"_qs), eight + 7200);
    EXPECT_EQ(date(u"in 2 hours and in 5 minutes"_qs), eight + 300);
    EXPECT_EQ(date(u"12:00, that is today at 10:30"_qs), halfPastTen);
}

TEST_F(EventDateTest, TakesANumberThatFitsNoIntegerForZero) {
    EXPECT_EQ(date(u"in 9223372036854775808 minutes"_qs), eight);
    EXPECT_EQ(date(u"in 99999999999999999999999999 hours"_qs), eight);
}

// The year 9999 ends 253402300800 seconds after 1970 by Python's date, 251633322000 after that
// eight o'clock, which are 4193888700 minutes or 69898145 hours.
TEST_F(EventDateTest, ReachesToTheLastDate) {
    EXPECT_EQ(date(u"in 4193888699 minutes"_qs), eight + 4193888699.0 * 60);
    EXPECT_EQ(date(u"in 69898144 hours"_qs), eight + 69898144.0 * 3600);
    EXPECT_EQ(date(u"in 4193888700 minutes"_qs), std::nullopt);
    EXPECT_EQ(date(u"in 69898145 hours"_qs), std::nullopt);
}

TEST_F(EventDateTest, IsNoneForTheGreatestInteger) {
    EXPECT_EQ(date(u"in 9223372036854775807 minutes"_qs), std::nullopt);
    EXPECT_EQ(date(u"in 9223372036854775807 hours"_qs), std::nullopt);
}

TEST_F(EventDateTest, IsTheTimestampEvenWithoutADate) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double strange : {infinity, -infinity, 1e300})
        EXPECT_EQ(eventDate(u"Lunch"_qs, {}, strange, eight), strange);
}

TEST_F(EventDateTest, IsTakenFromTheTextsWhateverTheTimestamp) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(eventDate(u"in 5 minutes"_qs, {}, infinity, eight), eight + 300);
}

TEST_F(EventDateTest, ReadsDigitsOfOtherScripts) {
    EXPECT_EQ(date(u"in ٣ minutes"_qs), eight + 180);
}

TEST_F(EventDateTest, FindsATimeOfToday) {
    EXPECT_EQ(date(u"Meet today at 10:30"_qs), halfPastTen);
}

TEST_F(EventDateTest, FindsATimeOfTomorrow) {
    EXPECT_EQ(date(u"Meet tomorrow at 9:05"_qs), fiveNineTomorrow);
    EXPECT_EQ(date(u"Meet tomorrow at 09:05"_qs), fiveNineTomorrow);
}

TEST_F(EventDateTest, LeavesATimeOfTodayInThePast) {
    EXPECT_EQ(date(u"today at 07:00"_qs), sevenToday);
}

TEST_F(EventDateTest, MovesABareTimeInThePastToTheNextDay) {
    EXPECT_EQ(date(u"at 07:00"_qs), sevenTomorrow);
    EXPECT_EQ(date(u"at 10:30"_qs), halfPastTen);
}

TEST_F(EventDateTest, LeavesABareTimeThatIsNow) {
    EXPECT_EQ(date(u"8:00"_qs), eight);
    EXPECT_EQ(date(u"8:00"_qs, {}, eight + 0.5), eight + 86400);
}

TEST_F(EventDateTest, TakesAnyTokenThatLooksLikeAClock) {
    EXPECT_EQ(date(u"The score is 10:30."_qs), halfPastTen);
}

TEST_F(EventDateTest, TakesNoPartOfALongerToken) {
    EXPECT_EQ(date(u"110:30"_qs), timestamp);
    EXPECT_EQ(date(u"10:305"_qs), timestamp);
    EXPECT_EQ(date(u"a10:30"_qs), timestamp);
    EXPECT_EQ(date(u"é10:30"_qs), timestamp);
    EXPECT_EQ(date(u"10:3"_qs), timestamp);
}

TEST_F(EventDateTest, NamesNoDayWithoutAFullTime) {
    EXPECT_EQ(date(u"today at 9"_qs), timestamp);
    EXPECT_EQ(date(u"tomorrow 10:30"_qs), halfPastTen);  // the bare time alone
    EXPECT_EQ(date(u"today at 10:305"_qs), halfPastTen); // nothing says where it ends
}

TEST_F(EventDateTest, LetsTheCalendarReckonWithTimesThatThereAreNot) {
    EXPECT_EQ(date(u"today at 99:99"_qs), fourDaysLater);
    EXPECT_EQ(date(u"99:99"_qs), fourDaysLater);
}

TEST_F(EventDateTest, ReadsTextsWithHalvesOfCharacters) {
    EXPECT_EQ(date(u"in 5 minutes"_qs + QChar(0xd83d)), eight + 300);
}

TEST_F(EventDateTest, ReadsHugeTexts) {
    EXPECT_EQ(date(u"in 1"_qs + u"1"_qs.repeated(200000)), timestamp);
    EXPECT_EQ(date(u"in "_qs.repeated(200000) + u"5 minutes"_qs), eight + 300);
}

TEST_F(EventDateTest, FollowsTheTimeZone) {
    const TimeZoneScope other("America/New_York");
    EXPECT_EQ(date(u"today at 10:30"_qs), 790702200.0);
}

// Clock changes: in Rome 2026-03-29 has 23 hours, 2026-10-25 has 25.

TEST_F(EventDateTest, SkipsTheHourThatThereIsNot) {
    constexpr double halfPastMidnight = 796433400;                           // 2026-03-29 00:30
    EXPECT_EQ(date(u"today at 2:30"_qs, {}, halfPastMidnight), 796440600.0); // 03:30
    EXPECT_EQ(date(u"today at 10:00"_qs, {}, halfPastMidnight), 796464000.0);
}

TEST_F(EventDateTest, TakesTheSecondOfTwoHours) {
    constexpr double halfPastMidnight = 814573800; // 2026-10-25 00:30
    EXPECT_EQ(date(u"2:30"_qs, {}, halfPastMidnight), 814584600.0);
}

TEST_F(EventDateTest, TakesTomorrowForTheDayAfterTwentyFourHours) {
    constexpr double halfPastMidnight = 814573800; // 2026-10-25 00:30; a day later it is 23:30
    EXPECT_EQ(date(u"tomorrow at 9:00"_qs, {}, halfPastMidnight), 814608000.0); // on the 25th
    constexpr double noonBefore = 814528800;                                    // 2026-10-24 12:00
    EXPECT_EQ(date(u"tomorrow at 9:00"_qs, {}, noonBefore), 814608000.0);
}

TEST_F(EventDateTest, MovesABareTimeByTwentyFourHoursToo) {
    constexpr double noonBefore = 814528800; // 2026-10-24 12:00; 9:00 a day later is 8:00 by then
    EXPECT_EQ(date(u"9:00"_qs, {}, noonBefore), 814604400.0);
}

} // namespace
} // namespace tessarine

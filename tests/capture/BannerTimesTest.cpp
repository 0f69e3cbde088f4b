#include "capture/BannerParsing.h"
#include "support/Printers.h"
#include "support/TimeZoneScope.h"

#include <QElapsedTimer>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <vector>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

// A moment in UTC, in seconds since 2001.
constexpr double utc(int year, unsigned month, unsigned day, int hour, int minute,
                     double second = 0) {
    const auto date = std::chrono::sys_days(std::chrono::year(year) / std::chrono::month(month) /
                                            std::chrono::day(day));
    const auto reference =
        std::chrono::sys_days(std::chrono::year(2001) / std::chrono::January / std::chrono::day(1));
    return static_cast<double>((date - reference).count()) * 86400.0 + hour * 3600.0 +
           minute * 60.0 + second;
}

// The time of a token

struct Reading {
    const char* name;
    const char* zone;
    const char* token;
    double now;
    double expected;
};

void PrintTo(const Reading& reading, std::ostream* out) {
    *out << reading.name;
}

const auto nameOfReading = [](const ::testing::TestParamInfo<Reading>& info) {
    return std::string(info.param.name);
};

class InferredTime : public ::testing::TestWithParam<Reading> {};

TEST_P(InferredTime, IsThisMoment) {
    const Reading& reading = GetParam();
    const testing::TimeZoneScope zone(reading.zone);
    EXPECT_EQ(inferTimestamp(QString::fromUtf8(reading.token), reading.now), reading.expected);
}

constexpr double noon = utc(2025, 11, 16, 12, 0, 0.25);

// Read at noon, UTC.
constexpr Reading atNoon(const char* name, const char* token, double expected) {
    return {name, "UTC", token, noon, expected};
}

constexpr Reading isNow(const char* name, const char* token) {
    return {name, "UTC", token, noon, noon};
}

INSTANTIATE_TEST_SUITE_P(
    Ages, InferredTime,
    ::testing::Values(
        atNoon("Seconds", "59s ago", utc(2025, 11, 16, 11, 59, 1.25)),
        atNoon("FiveMinutes", "5m ago", utc(2025, 11, 16, 11, 55, 0.25)),
        atNoon("Hours", "13h ago", utc(2025, 11, 15, 23, 0, 0.25)),
        atNoon("Days", "16d ago", utc(2025, 10, 31, 12, 0, 0.25)), isNow("ZeroDays", "0d ago"),
        atNoon("BlanksAround", "\u00a0\t5m ago \u3000", utc(2025, 11, 16, 11, 55, 0.25)),
        isNow("Nothing", ""), isNow("OnlyBlanks", " \t\u3000"), isNow("JustNow", "Just now"),
        isNow("JustNowInBlanks", "\tJust now "), isNow("JustNowWithALineFeed", "Just now\n"),
        isNow("AnotherUnit", "5w ago"), isNow("ACapitalUnit", "5M ago"), isNow("NoUnit", "5 ago"),
        isNow("NoNumber", "m ago"), isNow("AgoAlone", " ago"), isNow("LineFeedAgo", "\n ago"),
        isNow("ABlankBeforeTheUnit", "5 m ago"), isNow("TwoBlanksBeforeAgo", "5m  ago"),
        isNow("ALineFeedBehind", "5m ago\n"), isNow("AgoTwice", "5m ago ago"),
        isNow("AFraction", "1.5h ago"), isNow("AnExponent", "1e3s ago"), isNow("Hex", "0x5m ago"),
        isNow("GroupedDigits", "1,000s ago"), isNow("TooGreat", "9223372036854775808s ago"),
        isNow("DigitsOfAnotherScript", "٥m ago"), isNow("WideDigits", "\uff15m ago"),
        isNow("AClockReadingAgo", "10:30 ago"), isNow("AnyText", "Hello")),
    nameOfReading);

INSTANTIATE_TEST_SUITE_P(
    ClockReadings, InferredTime,
    ::testing::Values(
        atNoon("EarlierToday", "10:30", utc(2025, 11, 16, 10, 30)),
        atNoon("ThisMinute", "12:00", utc(2025, 11, 16, 12, 0)),
        atNoon("LaterThanNow", "12:01", utc(2025, 11, 15, 12, 1)),
        Reading{"ExactlyNow", "UTC", "12:00", utc(2025, 11, 16, 12, 0), utc(2025, 11, 16, 12, 0)},
        Reading{"AQuarterSecondLaterThanNow", "UTC", "12:00", utc(2025, 11, 16, 11, 59, 59.75),
                utc(2025, 11, 15, 12, 0)},
        Reading{"YesterdayOfTheFirstOfMarch", "UTC", "13:00", utc(2024, 3, 1, 12, 0),
                utc(2024, 2, 29, 13, 0)},
        Reading{"YesterdayOfNewYear", "UTC", "13:00", utc(2026, 1, 1, 12, 0),
                utc(2025, 12, 31, 13, 0)},
        Reading{"MidnightAtMidnight", "UTC", "0:00", utc(2025, 11, 16, 0, 0),
                utc(2025, 11, 16, 0, 0)},
        Reading{"CarriedOverIsOneDayBackOnly", "UTC", "25:61", utc(2025, 11, 16, 1, 0),
                utc(2025, 11, 16, 2, 1)},
        atNoon("CarriedOver", "25:61", utc(2025, 11, 16, 2, 1)),
        atNoon("SixtyMinutes", "9:60", utc(2025, 11, 16, 10, 0)),
        atNoon("OneDigitEach", "9:5", utc(2025, 11, 16, 9, 5)),
        atNoon("ThreeDigits", "009:005", utc(2025, 11, 16, 9, 5)),
        atNoon("BlanksAround", " \u00a010:30\t", utc(2025, 11, 16, 10, 30)),
        atNoon("AnEmptyPieceBefore", ":10:30", utc(2025, 11, 16, 10, 30)),
        atNoon("AnEmptyPieceBetween", "10::30", utc(2025, 11, 16, 10, 30)),
        atNoon("AnEmptyPieceBehind", "10:30:", utc(2025, 11, 16, 10, 30)),
        isNow("ThreePieces", "10:30:15"), isNow("OnePiece", "10:"), isNow("NoPiece", ":"),
        isNow("NoColon", "1030"), isNow("ABlankBeforeTheColon", "9 :30"),
        isNow("ABlankBehindTheColon", "9: 30"), isNow("ALineFeedBehind", "10:30\n"),
        isNow("ALineFeedBefore", "\n10:30"), isNow("Letters", "ten:30"), isNow("Hex", "0x9:30"),
        isNow("AFraction", "9.0:30"), isNow("AnExponent", "1e1:30"),
        isNow("TooGreat", "9223372036854775808:30"), isNow("HalfADay", "9:30 AM"),
        isNow("DigitsOfAnotherScript", "١٠:٣٠"), isNow("ADayPhrase", "Today at 10:30")),
    nameOfReading);

INSTANTIATE_TEST_SUITE_P(
    TimeZones, InferredTime,
    ::testing::Values(Reading{"Berlin", "Europe/Berlin", "10:30", utc(2025, 11, 16, 12, 0),
                              utc(2025, 11, 16, 9, 30)},
                      Reading{"BerlinInSummer", "Europe/Berlin", "10:30", utc(2025, 7, 16, 12, 0),
                              utc(2025, 7, 16, 8, 30)},
                      Reading{"BerlinsNowInclusive", "Europe/Berlin", "13:00",
                              utc(2025, 11, 16, 12, 0), utc(2025, 11, 16, 12, 0)},
                      // Half past midnight in Berlin, on the day that has not begun in UTC.
                      Reading{"TheDayIsTheZones", "Europe/Berlin", "0:15",
                              utc(2025, 11, 16, 23, 30), utc(2025, 11, 16, 23, 15)},
                      Reading{"BeforeTheZonesMidnight", "Europe/Berlin", "23:45",
                              utc(2025, 11, 16, 23, 30), utc(2025, 11, 16, 22, 45)},
                      Reading{"NewYork", "America/New_York", "22:00", utc(2025, 11, 16, 2, 0),
                              utc(2025, 11, 15, 3, 0)},
                      Reading{"HalfAnHourOff", "Asia/Kolkata", "17:00", utc(2025, 11, 16, 12, 0),
                              utc(2025, 11, 16, 11, 30)},
                      Reading{"ThreeQuartersOff", "Asia/Kathmandu", "17:00",
                              utc(2025, 11, 16, 12, 0), utc(2025, 11, 16, 11, 15)},
                      Reading{"AheadByMoreThanHalfADay", "Pacific/Kiritimati", "1:00",
                              utc(2025, 11, 16, 12, 0), utc(2025, 11, 16, 11, 0)}),
    nameOfReading);

// In Berlin the clocks went forward on 2025-03-30 at 1:00 UTC, and back on 2025-10-26 at 1:00 UTC.
INSTANTIATE_TEST_SUITE_P(
    DaysOfClockChange, InferredTime,
    ::testing::Values(Reading{"BeforeTheClocksGoForward", "Europe/Berlin", "1:30",
                              utc(2025, 3, 30, 10, 0), utc(2025, 3, 30, 0, 30)},
                      Reading{"AfterTheClocksWentForward", "Europe/Berlin", "3:30",
                              utc(2025, 3, 30, 10, 0), utc(2025, 3, 30, 1, 30)},
                      Reading{"TheSkippedHourCarriesOver", "Europe/Berlin", "2:30",
                              utc(2025, 3, 30, 10, 0), utc(2025, 3, 30, 1, 30)},
                      Reading{"BeforeTheClocksGoBack", "Europe/Berlin", "1:30",
                              utc(2025, 10, 26, 11, 0), utc(2025, 10, 25, 23, 30)},
                      Reading{"TheSecondOfTheRepeatedHour", "Europe/Berlin", "2:30",
                              utc(2025, 10, 26, 11, 0), utc(2025, 10, 26, 1, 30)},
                      Reading{"AfterTheClocksWentBack", "Europe/Berlin", "3:30",
                              utc(2025, 10, 26, 11, 0), utc(2025, 10, 26, 2, 30)},
                      // 86400 seconds before 13:00, winter time, of the day on which they went
                      // back: 14:00, summer time, of the day before.
                      Reading{"YesterdayIsSecondsNotACalendarDay", "Europe/Berlin", "13:00",
                              utc(2025, 10, 26, 11, 0), utc(2025, 10, 25, 12, 0)},
                      // And 12:00, winter time, before 13:00, summer time.
                      Reading{"YesterdayInSpringToo", "Europe/Berlin", "13:00",
                              utc(2025, 3, 30, 10, 0), utc(2025, 3, 29, 11, 0)},
                      Reading{"ADayAgoIsSecondsToo", "Europe/Berlin", "1d ago",
                              utc(2025, 10, 26, 11, 0), utc(2025, 10, 25, 11, 0)}),
    nameOfReading);

// The ends of the years 1 to 9999.
constexpr double first = utc(1, 1, 1, 0, 0);
constexpr double last = utc(9999, 12, 31, 23, 59, 59);

INSTANTIATE_TEST_SUITE_P(
    Extremes, InferredTime,
    ::testing::Values(atNoon("GreatestSeconds", "9223372036854775807s ago", first),
                      atNoon("GreatestMinutes", "9223372036854775807m ago", first),
                      atNoon("GreatestHours", "9223372036854775807h ago", first),
                      atNoon("GreatestDays", "9223372036854775807d ago", first),
                      atNoon("LeastDays", "-9223372036854775808d ago", last),
                      atNoon("LeastSeconds", "-9223372036854775808s ago", last),
                      isNow("GreatestHour", "9223372036854775807:00"),
                      isNow("GreatestMinute", "00:9223372036854775807"),
                      isNow("LeastHour", "-9223372036854775808:00"),
                      isNow("BeyondThirtyTwoBits", "2147483648:00"),
                      isNow("BeyondTheYear9999",
                            "99999999:00"), // 11,415 years from the midnight before
                      isNow("BeforeTheYear1", "-99999999:00")),
    nameOfReading);

// Times inside a text

// The rule itself, by an engine that backtracks.
QString judged(QString text) {
    static const QRegularExpression pattern(
        QStringLiteral(R"(\s*\d{1,2}:\d{2}\s*|\s*\d+[smhd] ago\s*|\s*Just now\s*)"),
        QRegularExpression::UseUnicodePropertiesOption);
    return text.remove(pattern);
}

class RandomTexts : public ::testing::TestWithParam<unsigned> {
protected:
    // Mostly what times are made of, so that each text holds whole, half and touching times.
    QString text() {
        static const std::vector<QString> atoms{
            u"1"_qs,       u"2"_qs,    u"30"_qs,     u"٣"_qs,      u"𝟙"_qs,      u":"_qs,
            u":"_qs,       u"s"_qs,    u"m"_qs,      u"h"_qs,      u"d"_qs,      u"w"_qs,
            u" ago"_qs,    u" ago"_qs, u"ago"_qs,    u" "_qs,      u"  "_qs,     u"\n"_qs,
            u"\r\n"_qs,    u"\t"_qs,   u"\u00a0"_qs, u"\u2028"_qs, u"\u0085"_qs, u"Just now"_qs,
            u"Just no"_qs, u"Just"_qs, u" now"_qs,   u"x"_qs,      u"é"_qs,      u"10:30"_qs,
            u"5m ago"_qs,  u"𝟙𝟚:𝟛𝟘"_qs};
        const auto length = std::uniform_int_distribution<int>(0, 16)(random_);
        std::uniform_int_distribution<std::size_t> atom(0, atoms.size() - 1);
        QString made;
        for (int i = 0; i < length; ++i)
            made += atoms[atom(random_)];
        return made;
    }

    std::mt19937 random_{GetParam()};
};

TEST_P(RandomTexts, AreFreedOfTimesAsTheRuleSays) {
    int changed = 0;
    for (int i = 0; i < 1000; ++i) {
        const QString before = text();
        const QString after = withoutTimeTokens(before);
        ASSERT_EQ(after, judged(before)) << "from " << before.toStdString();
        changed += after != before ? 1 : 0;
    }
    EXPECT_GT(changed, 250); // or the texts would judge nothing
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomTexts, ::testing::Range(1U, 11U));

// A megabyte is done in no time; anything worse than linear would take many minutes to hours.
constexpr qint64 mostMilliseconds = 60000;

struct LongText {
    const char* name;
    QString text;
    qsizetype remaining; // characters that no time takes
};

void PrintTo(const LongText& text, std::ostream* out) {
    *out << text.name;
}

class LongTexts : public ::testing::TestWithParam<LongText> {};

TEST_P(LongTexts, AreFreedOfTimesInLinearTime) {
    QElapsedTimer timer;
    timer.start();
    const QString after = withoutTimeTokens(GetParam().text);
    EXPECT_LT(timer.elapsed(), mostMilliseconds);
    EXPECT_EQ(after.size(), GetParam().remaining);
}

TEST_P(LongTexts, AreParsedInLinearTime) {
    QElapsedTimer timer;
    timer.start();
    const auto record = parseBanner({u"Mail"_qs, {u"Title"_qs, GetParam().text}}, noon);
    EXPECT_LT(timer.elapsed(), mostMilliseconds);
    EXPECT_EQ(record->timestamp, noon);
}

constexpr qsizetype megabyte = 1'000'000;

INSTANTIATE_TEST_SUITE_P(
    OneMegabyte, LongTexts,
    ::testing::Values(
        LongText{"Blanks", QString(megabyte, u' '), megabyte},
        LongText{"LineFeeds", QString(megabyte, u'\n'), megabyte},
        LongText{"Digits", QString(megabyte, u'1'), megabyte},
        LongText{"OneAndColon", u"1:"_qs.repeated(megabyte / 2), megabyte},
        LongText{"BlankAndOne", u" 1"_qs.repeated(megabyte / 2), megabyte},
        LongText{"UnfinishedClockReadings", u"12:3 "_qs.repeated(megabyte / 5), megabyte},
        LongText{"UnfinishedAges", u"5m ag"_qs.repeated(megabyte / 5), megabyte},
        LongText{"UnfinishedJustNow", u"Just no"_qs.repeated(megabyte / 7), megabyte / 7 * 7},
        LongText{"ClockReadings", u"12:30"_qs.repeated(megabyte / 5), 0},
        LongText{"ClockReadingsInBlanks", u" 12:30 x"_qs.repeated(megabyte / 8), megabyte / 8},
        LongText{"ATimeBehindBlanks", QString(megabyte, u' ') + u"12:30"_qs, 0},
        LongText{"ATimeBehindDigits", QString(megabyte, u'1') + u":30"_qs, megabyte - 2}),
    [](const ::testing::TestParamInfo<LongText>& info) { return std::string(info.param.name); });

} // namespace
} // namespace tessarine

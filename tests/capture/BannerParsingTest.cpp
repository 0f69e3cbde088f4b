#include "capture/BannerParsing.h"

#include "support/Printers.h"
#include "support/TimeZoneScope.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

// All banners of the table are read at 2025-11-16 12:00:00.75 UTC, in that time zone.
constexpr double now = 784987200.75;
constexpr qint64 nowUnix = 1763294400;
constexpr double midnight = 784944000.0; // the beginning of that day
constexpr qint64 oneDay = 86400;
constexpr qint64 midnightUnix = 1763251200;

// A moment as the record holds it: exact in seconds since 2001, and whole since 1970.
struct Moment {
    double timestamp;
    qint64 unixSeconds;
};

constexpr Moment atScan{now, nowUnix};

constexpr Moment secondsAgo(qint64 seconds) {
    return {now - static_cast<double>(seconds), nowUnix - seconds};
}

constexpr Moment afterMidnight(qint64 seconds) {
    return {midnight + static_cast<double>(seconds), midnightUnix + seconds};
}

constexpr Moment today(qint64 hour, qint64 minute) {
    return afterMidnight(hour * 3600 + minute * 60);
}

constexpr Moment yesterday(qint64 hour, qint64 minute) {
    return afterMidnight(hour * 3600 + minute * 60 - oneDay);
}

struct Row {
    const char* name;
    const char* description;
    std::vector<const char*> texts;
    const char* appName;
    const char* appBundleId;
    const char* title;
    const char* body;
    Moment moment;
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name;
}

// A banner of an application called Mail.
Row mail(const char* name, std::vector<const char*> texts, const char* title, const char* body,
         Moment moment = atScan) {
    return {name, "Mail", std::move(texts), "Mail", "mail", title, body, moment};
}

// A banner whose body is this one text.
Row body(const char* name, const char* text, const char* expected, Moment moment = atScan) {
    return mail(name, {"Title", text}, "Title", expected, moment);
}

// A banner with this one text behind its body.
Row token(const char* name, const char* text, Moment moment) {
    return mail(name, {"Title", "Body", text}, "Title", "Body", moment);
}

Row application(const char* name, const char* description, const char* appName,
                const char* appBundleId) {
    return {name, description, {"Title", "Body"}, appName, appBundleId, "Title", "Body", atScan};
}

BannerTexts bannerOf(const Row& row) {
    BannerTexts banner{QString::fromUtf8(row.description), {}};
    for (const char* const text : row.texts)
        banner.texts.append(QString::fromUtf8(text));
    return banner;
}

class ParsedBanner : public ::testing::TestWithParam<Row> {
protected:
    testing::TimeZoneScope zone_{"UTC"};
};

TEST_P(ParsedBanner, IsThisRecord) {
    const Row& row = GetParam();
    const std::optional<CapturedNotification> record = parseBanner(bannerOf(row), now);
    ASSERT_TRUE(record.has_value());
    EXPECT_EQ(record->appName, QString::fromUtf8(row.appName));
    EXPECT_EQ(record->appBundleId, QString::fromUtf8(row.appBundleId));
    EXPECT_EQ(record->title, QString::fromUtf8(row.title));
    EXPECT_EQ(record->body, QString::fromUtf8(row.body));
    EXPECT_EQ(record->timestamp, row.moment.timestamp);
    EXPECT_EQ(record->noteId, row.moment.unixSeconds);
    EXPECT_EQ(record->dbId, 0);
    EXPECT_FALSE(record->pinned);
    EXPECT_FALSE(record->id.isNull());
}

const auto nameOfRow = [](const ::testing::TestParamInfo<Row>& info) {
    return std::string(info.param.name);
};

// Which text is the title and which are the body.
INSTANTIATE_TEST_SUITE_P(
    Texts, ParsedBanner,
    ::testing::Values(
        mail("OneTextIsATitle", {"Hello"}, "Hello", ""),
        mail("TheSecondTextIsTheBody", {"Hello", "World"}, "Hello", "World"),
        mail("FurtherTextsAreJoinedByABlank", {"a", "b", "c", "d"}, "a", "b c d"),
        mail("TheSameTextTwiceStaysTwice", {"a", "a", "b", "b"}, "a", "a b b"),
        mail("ATitleKeepsItsBlanks", {"  Hello\t", "x"}, "  Hello\t", "x"),
        mail("ATitleOfBlanksIsATitle", {"  ", "x"}, "  ", "x"),
        mail("ATitleKeepsTimesInIt", {"Standup 10:30 daily", "x"}, "Standup 10:30 daily", "x"),
        mail("ATitleThatIsAClockReading", {"10:30", "Body"}, "10:30", "Body"),
        mail("ATitleThatIsAnAgeAlone", {"5m ago"}, "5m ago", ""),
        mail("ATitleThatIsJustNow", {"Just now", "Body"}, "Just now", "Body"),
        mail("ATitleThatIsATimeBeforeATime", {"10:30", "5m ago"}, "10:30", "", secondsAgo(300)),
        mail("ATitleThatIsADayPhrase", {"Today at 10:30", "x"}, "Today at 10:30", "x")),
    nameOfRow);

INSTANTIATE_TEST_SUITE_P(
    Trimming, ParsedBanner,
    ::testing::Values(
        body("BlanksAndTabs", " \t a \t ", "a"), body("BlanksInsideStay", "a  \t b", "a  \t b"),
        body(
            "BlanksOfOtherScripts",
            "\u00a0\u1680\u2000\u2003\u200a\u202f\u205f\u3000a\u3000\u205f\u202f\u2009\u1680\u00a0",
            "a"),
        body("ABodyOfBlanks", " \t\u3000", ""),
        mail("PiecesOfBlanksAreDropped", {"T", "a", "  ", "\t", "b"}, "T", "a b"),
        body("ALineFeedAtTheEndStays", "a\n", "a\n"),
        body("ALineFeedAtTheBeginningStays", "\na", "\na"),
        body("BlanksBeforeALastLineFeedStay", "a  \n", "a  \n"),
        body("BlanksBehindALastLineFeedGo", "a\n  ", "a\n"),
        body("ALineFeedAloneIsABody", "\n", "\n"),
        body("ALineFeedBetweenBlanksIsABody", "  \n\t", "\n"),
        mail("APieceOfALineFeedIsJoined", {"T", "a", "\n", "b"}, "T", "a \n b"),
        body("CarriageReturnsStay", "\r\na\r\n", "\r\na\r\n"),
        body("LineAndParagraphSeparatorsStay", "\u2028a\u2029", "\u2028a\u2029"),
        body("VerticalTabAndFormFeedStay", "\va\f", "\va\f"),
        body("TheNextLineCharacterStays", "a\u0085", "a\u0085")),
    nameOfRow);

INSTANTIATE_TEST_SUITE_P(
    Tokens, ParsedBanner,
    ::testing::Values(
        token("AClockReading", "10:30", today(10, 30)),
        token("AnHourOfOneDigit", "9:05", today(9, 5)), token("Midnight", "0:00", today(0, 0)),
        token("MidnightInFourDigits", "00:00", today(0, 0)),
        token("TheMinuteThatHasJustBegun", "12:00", today(12, 0)),
        token("TheNextMinuteWasYesterday", "12:01", yesterday(12, 1)),
        token("TheLastMinuteWasYesterday", "23:59", yesterday(23, 59)),
        token("TwentyFourHoursIsMidnightOfTheNextDay", "24:00", today(0, 0)),
        token("TwentyFiveSixtyOneCarriesOver", "25:61", today(2, 1)),
        token("NinetyNineMinutesCarryOver", "10:99", today(11, 39)),
        // 99 hours and 99 minutes after midnight, less one day: still to come.
        token("FourDaysCarriedOverMinusOneDay", "99:99", afterMidnight(362340 - oneDay)),
        token("JustNow", "Just now", atScan), token("Seconds", "30s ago", secondsAgo(30)),
        token("Minutes", "5m ago", secondsAgo(300)), token("Hours", "3h ago", secondsAgo(10800)),
        token("Days", "2d ago", secondsAgo(172800)), token("ZeroSeconds", "0s ago", atScan),
        token("LeadingZeros", "007m ago", secondsAgo(420)),
        token("ManySeconds", "1000000s ago", secondsAgo(1000000)),
        token("MoreSecondsThanSince1970AreTruncatedTowardsZero", "1763294401s ago",
              {now - 1763294401.0, 0}),
        token("ASecondMoreIsMinusOne", "1763294402s ago", {now - 1763294402.0, -1}),
        // The year 1 begins this much before the reference date and before 1970, by Python's date.
        token("MoreDaysThanThereAreDates", "9223372036854775807d ago",
              {-63113904000.0, -62135596800}),
        token("MoreDaysThanANumberHolds", "9223372036854775808d ago", atScan),
        token("DigitsOfAnotherScriptAreATokenButNoNumber", "٥m ago", atScan),
        token("AClockReadingInAnotherScriptToo", "١٠:٣٠", atScan),
        token("DigitsBeyondTheBasicPlaneToo", "𝟙𝟘:𝟛𝟘", atScan)),
    nameOfRow);

INSTANTIATE_TEST_SUITE_P(
    SeveralTokens, ParsedBanner,
    ::testing::Values(
        mail("TheFirstCounts", {"T", "10:30", "5m ago"}, "T", "", today(10, 30)),
        mail("TheFirstCountsInTheOtherOrderToo", {"T", "5m ago", "10:30"}, "T", "",
             secondsAgo(300)),
        mail("JustNowFirst", {"T", "Just now", "5m ago"}, "T", ""),
        mail("TheSameTwice", {"T", "5m ago", "5m ago"}, "T", "", secondsAgo(300)),
        mail("BetweenBodies", {"T", "a", "2h ago", "b"}, "T", "a b", secondsAgo(7200)),
        mail("AllAreTakenOut", {"T", "a", "2h ago", "b", "11:00", "Just now", "c"}, "T", "a b c",
             secondsAgo(7200)),
        mail("AnUnreadableFirstOneCountsToo", {"T", "٥m ago", "5m ago"}, "T", ""),
        // With a line feed these are no tokens, so that the next one counts.
        mail("BehindAClockReadingWithALineFeed", {"T", "10:30\n", "5m ago"}, "T", "",
             secondsAgo(300)),
        mail("BehindAnAgeWithALineFeed", {"T", "2h ago\n", "5m ago"}, "T", "", secondsAgo(300)),
        mail("BehindJustNowWithALineFeed", {"T", "Just now\n", "5m ago"}, "T", "", secondsAgo(300)),
        mail("ATimeInATextIsNoToken", {"T", "at 9:00 x", "5m ago"}, "T", "atx", secondsAgo(300))),
    nameOfRow);

// What looks like a time but is none.
INSTANTIATE_TEST_SUITE_P(
    NoTokens, ParsedBanner,
    ::testing::Values(
        body("ALineFeedBehindAClockReading", "10:30\n", ""),
        body("ALineFeedBehindAnAge", "5m ago\n", ""),
        body("ALineFeedBehindJustNow", "Just now\n", ""),
        body("ALineFeedBeforeAClockReading", "\n10:30", ""),
        body("ABlankBehindAClockReading", "10:30 ", ""), body("ABlankBeforeAnAge", " 5m ago", ""),
        body("ABlankBeforeTheColon", "9 :30", "9 :30"),
        body("ABlankBehindTheColon", "9: 30", "9: 30"), body("NoColon", "1030", "1030"),
        body("APoint", "10.30", "10.30"), body("AWideColon", "10\uff1a30", "10\uff1a30"),
        body("MinutesOfOneDigit", "10:3", "10:3"), body("MinutesOfThreeDigits", "10:300", "0"),
        body("AnHourOfThreeDigits", "110:30", "1"), body("Seconds", "10:30:15", ":15"),
        body("Weeks", "5w ago", "5w ago"), body("ACapitalUnit", "5M ago", "5M ago"),
        body("ACapitalAgo", "5m Ago", "5m Ago"), body("NoUnit", "5 ago", "5 ago"),
        body("NoNumber", "m ago", "m ago"), body("ABlankBeforeTheUnit", "5 m ago", "5 m ago"),
        body("TwoBlanks", "5m  ago", "5m  ago"),
        body("ANoBreakBlank", "5m\u00a0ago", "5m\u00a0ago"),
        body("SmallJustNow", "just now", "just now"),
        body("CapitalJustNow", "Just Now", "Just Now"),
        body("AnotherLanguage", "vor 5 Minuten", "vor 5 Minuten"),
        body("AMinusSign", "-5m ago", "-"), body("AFraction", "1.5h ago", "1.")),
    nameOfRow);

INSTANTIATE_TEST_SUITE_P(
    TimesInsideATextAreCut, ParsedBanner,
    ::testing::Values(
        body("LineFeedsAroundAClockReading", "Meet\n10:30\nRoom", "MeetRoom"),
        body("LineBreaksOfTwoCharacters", "Meet\r\n10:30\r\nRoom", "MeetRoom"),
        body("SecondsStay", "at 12:30:45 x", "at:45 x"),
        body("WordsRunTogether", "See you at 10:30 in the hall", "See you atin the hall"),
        body("AnAge", "Sent 5m ago by Ann", "Sentby Ann"),
        body("JustNow", "Posted Just now by Ann", "Postedby Ann"),
        body("JustNowInsideAWord", "Just nowhere", "here"),
        body("AnAgeInsideAWord", "15m agony", "ny"),
        body("AClockReadingInsideAWord", "a10:30b", "ab"),
        body("AtTheBeginning", "10:30 lunch", "lunch"), body("AtTheEnd", "lunch 10:30", "lunch"),
        body("AtTheEndWithALineFeed", "lunch 10:30\n", "lunch"),
        body("Several", "from 10:30 to 11:45 or 5m ago", "fromtoor"),
        body("NextToEachOther", "10:30 11:45", ""), body("WithNothingBetween", "10:3011:45", ""),
        body("AgesWithNothingBetween", "x5m ago5m agoy", "xy"),
        body("TheLastTwoDigitsBeforeTheColon", "1230:45", "12"),
        body("TheFirstTwoDigitsBehindTheColon", "12:345", "5"),
        body("AClockReadingBeforeAnAge", "12:345s ago", ""),
        body("ARatio", "odds 4:15:30", "odds:30"), body("NoClockReading", "3:2 won", "3:2 won"),
        body("BlanksOfOtherScripts", "a\u3000\u00a010:30\u2003b", "ab"),
        body("SeparatorsOfLinesAndParagraphs", "a\u202810:30\u2029b", "ab"),
        body("BlanksAwayFromTheTimeStay", "a  b 10:30 c  d", "a  bc  d"),
        body("DigitsOfAnotherScript", "um ١٠:٣٠ da", "umda"),
        body("DigitsBeyondTheBasicPlane", "um 𝟙𝟘:𝟛𝟘 da", "umda"),
        body("AnAgeBeyondTheBasicPlane", "um 𝟙𝟘m ago da", "umda"),
        mail("APieceThatWasOnlyTimesIsDropped", {"T", "a", "10:30 11:30", "b"}, "T", "a b"),
        mail("EachPieceByItself", {"T", "a 10:30", "11:30 b"}, "T", "a b")),
    nameOfRow);

INSTANTIATE_TEST_SUITE_P(
    DayPhrases, ParsedBanner,
    ::testing::Values(body("Today", "Today at 10:30", "Today at 10:30"),
                      body("Tomorrow", "Tomorrow at 9:05", "Tomorrow at 9:05"),
                      body("Yesterday", "Yesterday at 23:59", "Yesterday at 23:59"),
                      body("AnyTwoDigits", "Today at 99:99", "Today at 99:99"),
                      body("DigitsOfAnotherScript", "Today at ١٠:٣٠", "Today at ١٠:٣٠"),
                      mail("BesideAToken", {"T", "Today at 10:30", "5m ago"}, "T", "Today at 10:30",
                           secondsAgo(300)),
                      mail("BesideABody", {"T", "Call Ann", "Tomorrow at 8:00"}, "T",
                           "Call Ann Tomorrow at 8:00"),
                      body("WithMoreBehindIt", "Today at 10:30 in room 5", "Today atin room 5"),
                      body("WithMoreBeforeIt", "Meet Today at 10:30", "Meet Today at"),
                      body("WithABlankBeforeIt", " Today at 10:30", "Today at"),
                      body("WithALineFeedBehindIt", "Today at 10:30\n", "Today at"),
                      body("InSmallLetters", "today at 10:30", "today at"),
                      body("AnotherDay", "Monday at 10:30", "Monday at"),
                      body("TwoBlanks", "Today  at 10:30", "Today  at"),
                      body("AnHourOfThreeDigits", "Today at 110:30", "Today at 1")),
    nameOfRow);

INSTANTIATE_TEST_SUITE_P(
    Descriptions, ParsedBanner,
    ::testing::Values(
        application("TheNameAlone", "Mail", "Mail", "mail"),
        application("TheFirstPiece", "Mail, Hello, World", "Mail", "mail"),
        application("ACommaWithoutABlank", "Mail,Hello", "Mail,Hello", "mail,hello"),
        application("ACommaWithATab", "Mail,\tHello", "Mail,\tHello", "mail,\thello"),
        application("CommaAndBlankAtTheEnd", "Mail, ", "Mail", "mail"),
        application("CommaAndTwoBlanks", "Mail,  Hello", "Mail", "mail"),
        application("TwoCommas", "Mail,, Hello", "Mail,", "mail,"),
        application("ABlankBeforeTheComma", "Mail , Hello", "Mail ", "mail."),
        application("NothingBeforeTheComma", ", Hello", "", ""), application("Empty", "", "", ""),
        application("NamesWithBlanks", "Visual Studio Code", "Visual Studio Code",
                    "visual.studio.code"),
        application("EachBlankBecomesADot", " My  App", " My  App", ".my..app"),
        application("OnlyTheBlankU0020", "A\tB\u00a0C\u3000D\nE", "A\tB\u00a0C\u3000D\nE",
                    "a\tb\u00a0c\u3000d\ne"),
        application("ARealBundleId", "com.Example.Mail", "com.Example.Mail", "com.example.mail"),
        application("LettersOfOtherScripts", "ÀÉÎ ЖЯ ΑΒΓ", "ÀÉÎ ЖЯ ΑΒΓ", "àéî.жя.αβγ"),
        application("ADottedCapitalI", "İstanbul", "İstanbul", "i\u0307stanbul"),
        application("ASharpS", "STRAẞE", "STRAẞE", "straße"),
        application("LettersBeyondTheBasicPlane", "𐐀 App", "𐐀 App", "𐐨.app"),
        application("AnEmoji", "📬 Post", "📬 Post", "📬.post"),
        application("AnApplicationNamedLikeATime", "10:30", "10:30", "10:30")),
    nameOfRow);

TEST(BannerParsing, ABannerWithoutTextsIsNothing) {
    EXPECT_EQ(parseBanner({u"Mail, Hello"_qs, {}}, now), std::nullopt);
}

TEST(BannerParsing, EachRecordHasAnIdOfItsOwn) {
    const BannerTexts banner{u"Mail"_qs, {u"Hello"_qs}};
    EXPECT_NE(parseBanner(banner, now)->id, parseBanner(banner, now)->id);
}

TEST(BannerParsing, TheDerivedIdKnowsNoLocale) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Turkish, QLocale::Turkey));
    const auto record = parseBanner({u"INBOX I"_qs, {u"Hello"_qs}}, now);
    QLocale::setDefault(before);
    EXPECT_EQ(record->appBundleId, u"inbox.i"_qs);
}

} // namespace
} // namespace tessarine

#include "shared/Text.h"

#include "support/Numbers.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::infinity;

struct Decimal {
    const char* name;
    double value;
    const char* text;
};

class DecimalText : public ::testing::TestWithParam<Decimal> {};

TEST_P(DecimalText, IsTheShortestWithAFraction) {
    EXPECT_EQ(decimalText(GetParam().value).toStdString(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Values, DecimalText,
    ::testing::Values(
        Decimal{"Zero", 0.0, "0.0"}, Decimal{"MinusZero", -0.0, "-0.0"}, Decimal{"One", 1.0, "1.0"},
        Decimal{"MinusOne", -1.0, "-1.0"}, Decimal{"Ten", 10.0, "10.0"},
        Decimal{"AMoment", 778912345.5, "778912345.5"},
        Decimal{"AMomentToTheMicrosecond", 778912345.123456, "778912345.123456"},
        Decimal{"AWholeMoment", 785000000.0, "785000000.0"}, Decimal{"ATenth", 0.1, "0.1"},
        Decimal{"ASumThatIsNotThreeTenths", 0.1 + 0.2, "0.30000000000000004"},
        Decimal{"AThird", 1.0 / 3.0, "0.3333333333333333"},
        Decimal{"TheSmallestWithoutExponent", 0.0001, "0.0001"},
        Decimal{"TheFirstSmallWithExponent", 0.00009, "9e-05"},
        Decimal{"SmallNegative", -0.000012345, "-1.2345e-05"},
        Decimal{"TenToTheSixteen", 1e16, "10000000000000000.0"},
        Decimal{"TheLastBelowTwoToTheFiftyFour", 18014398509481982.0, "18014398509481982.0"},
        Decimal{"BeyondTwoToTheFiftyFour", 2e16, "2e+16"},
        Decimal{"BeyondWithDigits", -1.2345e20, "-1.2345e+20"}, Decimal{"Googol", 1e100, "1e+100"},
        Decimal{"TheLargest", std::numeric_limits<double>::max(), "1.7976931348623157e+308"},
        Decimal{"TheSmallest", std::numeric_limits<double>::denorm_min(), "5e-324"},
        Decimal{"Infinity", infinity, "inf"}, Decimal{"MinusInfinity", -infinity, "-inf"},
        Decimal{"NotANumber", std::numeric_limits<double>::quiet_NaN(), "nan"}),
    [](const auto& test) { return std::string(test.param.name); });

struct Count {
    const char* name;
    const char16_t* text;
    int characters;
};

class CharacterCount : public ::testing::TestWithParam<Count> {};

TEST_P(CharacterCount, CountsWhatAReaderSees) {
    EXPECT_EQ(characterCount(QString::fromUtf16(GetParam().text)), GetParam().characters);
}

TEST_P(CharacterCount, IsWhereTheLastOfThemEnds) {
    const QString text = QString::fromUtf16(GetParam().text);
    const qsizetype count = GetParam().characters;
    EXPECT_EQ(endOfCharacters(text, count), text.size());
    EXPECT_EQ(endOfCharacters(text, count + 1), text.size());
    EXPECT_EQ(endOfCharacters(text + u'x', count), text.size());
    EXPECT_EQ(endOfCharacters(text, 0), 0);
    const qsizetype less = std::max<qsizetype>(count - 1, 0);
    EXPECT_EQ(characterCount(QStringView(text).first(endOfCharacters(text, less))), less);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CharacterCount,
    ::testing::Values(
        Count{"Empty", u"", 0}, Count{"Ascii", u"Hello", 5}, Count{"Latin", u"Grüße", 5},
        Count{"CombiningAcute", u"e\u0301", 1}, Count{"CombiningMarksInARow", u"a\u0323\u0302b", 2},
        Count{"LeadingCombiningMark", u"\u0301a", 2}, Count{"CarriageReturnLineFeed", u"a\r\nb", 3},
        Count{"LineFeedCarriageReturn", u"\n\r", 2}, Count{"CarriageReturns", u"\r\r\n", 2},
        Count{"OneEmoji", u"😀", 1}, Count{"EmojiAndFlag", u"😀🇮🇹", 2},
        Count{"FourFlags", u"🇮🇹🇩🇪🇫🇷🇬🇧", 4}, Count{"ThreeRegionalIndicators", u"🇮🇹🇩", 2},
        Count{"FamilyJoinedByZeroWidthJoiners", u"👨‍👩‍👧‍👦", 1},
        Count{"SkinTone", u"👍🏽", 1}, Count{"Keycap", u"1️⃣", 1},
        Count{"HeartWithVariationSelector", u"❤️", 1},
        Count{"FlagOfScotlandByTags", u"🏴󠁧󠁢󠁳󠁣󠁴󠁿", 1},
        Count{"HangulSyllables", u"한글", 2}, Count{"HangulJamo", u"\u1112\u1161\u11AB", 1},
        Count{"DevanagariVowelSign", u"\u0915\u093F", 1},
        Count{"TamilVowelSign", u"\u0BA8\u0BBF", 1}, Count{"ThaiWithSaraAm", u"\u0E01\u0E33", 1},
        Count{"Cjk", u"漢字仮名", 4}, Count{"Arabic", u"مرحبا", 5},
        Count{"ZeroWidthSpaceStandsAlone", u"a\u200Bb", 3},
        Count{"SoftHyphenStandsAlone", u"a\u00ADb", 3}, Count{"Copyright", u"©®", 2},
        Count{"LongAscii", u"0123456789 0123456789 0123456789", 32}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(CharacterCountOfOddTexts, CountsHalfASurrogatePairAsOne) {
    const char16_t texts[] = {u'a', char16_t(0xD83D), u'b', char16_t(0xDE00)};
    EXPECT_EQ(characterCount(QStringView(texts, 4)), 4);
}

TEST(CharacterCountOfOddTexts, CountsANul) {
    EXPECT_EQ(characterCount(QStringView(u"a\0b", 3)), 3);
}

TEST(CharacterCountOfOddTexts, CountsAPartOfALongerText) {
    const QString text = u"x😀🇮🇹y"_qs;
    EXPECT_EQ(characterCount(QStringView(text).sliced(1, 6)), 2);
}

TEST(EndOfCharacters, TakesAMarkBehindPlainLettersAlong) {
    EXPECT_EQ(endOfCharacters(u"abe\u0301f", 3), 4);
    EXPECT_EQ(endOfCharacters(u"abe\u0301f", 2), 2);
    EXPECT_EQ(endOfCharacters(u"ab\r\nf", 3), 4);
}

TEST(FirstCharacters, AreWhatAReaderSeesFirst) {
    EXPECT_EQ(firstCharacters(u"abc", 2).toString(), u"ab"_qs);
    EXPECT_EQ(firstCharacters(u"e\u0301x", 1).toString(), u"e\u0301"_qs);
    EXPECT_EQ(firstCharacters(u"🇮🇹🇩🇪x", 2).toString(), u"🇮🇹🇩🇪"_qs);
    EXPECT_EQ(firstCharacters(u"a", 2).toString(), u"a"_qs);
    EXPECT_EQ(firstCharacters(u"", 2).toString(), QString());
}

TEST(TrimmedBlanks, LosesBlanksAndTabsAtBothEnds) {
    EXPECT_EQ(trimmedBlanks(u" \t a b\t ").toString(), u"a b"_qs);
}

TEST(TrimmedBlanks, LosesBlanksOfAnyScript) {
    EXPECT_EQ(trimmedBlanks(u"\u00A0\u3000\u2009a\u202F").toString(), u"a"_qs);
}

TEST(TrimmedBlanks, KeepsLineBreaks) {
    EXPECT_EQ(trimmedBlanks(u" \n a \r").toString(), u"\n a \r"_qs);
    EXPECT_EQ(trimmedBlanks(u"\u2028a").toString(), u"\u2028a"_qs);
}

TEST(TrimmedBlanks, IsEmptyForBlanksAlone) {
    EXPECT_TRUE(trimmedBlanks(u" \t ").isEmpty());
    EXPECT_TRUE(trimmedBlanks(u"").isEmpty());
}

TEST(StoredUtf8, IsPlainUtf8ForWellFormedText) {
    EXPECT_EQ(storedUtf8(u"aé€😀"_qs), QByteArray("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"));
}

TEST(StoredUtf8, IsEmptyForTheEmptyText) {
    EXPECT_EQ(storedUtf8(QString()), QByteArray());
}

const QByteArray replacement("\xEF\xBF\xBD");

QString units(std::initializer_list<char16_t> list) {
    QString text;
    for (const char16_t unit : list)
        text += QChar(unit);
    return text;
}

TEST(StoredUtf8, ReplacesALoneHighHalf) {
    EXPECT_EQ(storedUtf8(units({u'a', 0xD83D, u'b'})), "a" + replacement + "b");
}

TEST(StoredUtf8, ReplacesALoneLowHalf) {
    EXPECT_EQ(storedUtf8(units({u'a', 0xDE00, u'b'})), "a" + replacement + "b");
}

TEST(StoredUtf8, ReplacesAHighHalfAtTheEnd) {
    EXPECT_EQ(storedUtf8(units({u'a', 0xD83D})), "a" + replacement);
}

TEST(StoredUtf8, ReplacesBothHalvesInTheWrongOrder) {
    EXPECT_EQ(storedUtf8(units({0xDE00, 0xD83D})), replacement + replacement);
}

TEST(StoredUtf8, KeepsThePairAfterALoneHighHalf) {
    EXPECT_EQ(storedUtf8(units({0xD83D, 0xD83D, 0xDE00})), replacement + "\xF0\x9F\x98\x80");
}

// As printf("%.1f") and printf("%.2f") write them.
TEST(FixedText, RoundsTheMiddleToTheEvenDigit) {
    EXPECT_EQ(fixedText(1.25, 1), u"1.2"_qs);
    EXPECT_EQ(fixedText(2.25, 1), u"2.2"_qs);
    EXPECT_EQ(fixedText(1.75, 1), u"1.8"_qs);
    EXPECT_EQ(fixedText(1.125, 2), u"1.12"_qs);
    EXPECT_EQ(fixedText(0.5, 0), u"0"_qs);
    EXPECT_EQ(fixedText(-3, 0), u"-3"_qs);
    EXPECT_EQ(fixedText(1e308, 2).size(), 309 + 3);
}

TEST(StoredUtf8, KeepsANul) {
    EXPECT_EQ(storedUtf8(units({u'a', 0, u'b'})), QByteArray("a\0b", 3));
}

// The caseless form: full mappings by CaseFolding.txt, composed.

TEST(CaselessForm, FoldsAWholeLetterIntoSeveral) {
    EXPECT_EQ(caselessForm(u"Größe"_qs), u"grösse"_qs);
    EXPECT_EQ(caselessForm(u"ŉ ﬃ"_qs), u"ʼn ffi"_qs);
}

TEST(CaselessForm, Composes) {
    EXPECT_EQ(caselessForm(u"O\u0308"_qs), u"\u00F6"_qs);
}

TEST(CaselessForm, KeepsWhatIsNoText) {
    const QString odd = QString(QChar(0xD800)) + QChar(u'\0') + QChar(0xDC00);
    EXPECT_EQ(caselessForm(odd), odd);
    EXPECT_EQ(caselessForm({}), QString());
}

} // namespace
} // namespace tessarine

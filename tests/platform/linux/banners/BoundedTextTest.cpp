#include "platform/linux/banners/BoundedText.h"

#include "support/Printers.h"
#include "support/ProcessorTime.h"

#include <gtest/gtest.h>

#include <chrono>

namespace tessarine {
namespace {

using namespace Qt::Literals::StringLiterals;

std::string repeated(std::string_view text, int count) {
    std::string all;
    all.reserve(text.size() * static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}

struct BoundCase {
    const char* name;
    std::string text;
    qsizetype limit;
    QString kept;
};

void PrintTo(const BoundCase& bound, std::ostream* out) {
    *out << bound.name;
}

class BoundedText : public ::testing::TestWithParam<BoundCase> {};

TEST_P(BoundedText, KeepsTheFirstCharacters) {
    EXPECT_EQ(boundedText(GetParam().text, GetParam().limit), GetParam().kept);
}

const BoundCase bounds[] = {
    {"Nothing", "", 5, u""_qs},
    {"Less", "abcd", 5, u"abcd"_qs},
    {"Exactly", "abcde", 5, u"abcde"_qs},
    {"OneMore", "abcdef", 5, u"abcde…"_qs},
    {"ManyMore", repeated("x", 1000), 5, u"xxxxx…"_qs},
    {"TwoBytesEach", "Größe", 5, u"Größe"_qs},
    {"TwoBytesEachAndMore", "Größen", 5, u"Größe…"_qs},
    {"FourBytesEach", "😀😀😀😀😀", 5, u"😀😀😀😀😀"_qs},
    {"FourBytesEachAndMore", "😀😀😀😀😀!", 5, u"😀😀😀😀😀…"_qs},
    {"FarMoreOfFourBytesEach", repeated("😀", 1000), 5, u"😀😀😀😀😀…"_qs},
    {"AMarkOnTheLast", "abcde\u0301", 5, u"abcde\u0301"_qs},
    {"AMarkOnTheLastAndMore", "abcde\u0301f", 5, u"abcde\u0301…"_qs},
    {"AMarkOnEach", repeated("e\u0301", 6), 5, QString(u"e\u0301"_qs).repeated(5) + u'…'},
    {"Families", repeated("👨\u200D👩\u200D👧\u200D👦", 3), 2,
     QString(u"👨\u200D👩\u200D👧\u200D👦"_qs).repeated(2) + u'…'},
    {"KissesOfManyColours", repeated("👩🏽\u200D❤️\u200D💋\u200D👨🏿", 5), 5,
     QString(u"👩🏽\u200D❤️\u200D💋\u200D👨🏿"_qs).repeated(5)},
    {"Flags", "🇩🇪🇫🇷🇮🇹", 2, u"🇩🇪🇫🇷…"_qs},
    {"LineEndings", "a\r\nb\r\nc", 4, u"a\r\nb\r\n…"_qs},
    {"BlanksAndLineFeeds", "  a \n ", 6, u"  a \n "_qs},
    {"MarkOfTheEncoding", "\uFEFFabc", 2, u"\uFEFFa…"_qs},
    {"MarkOfTheEncodingAlone", "\uFEFF", 5, u"\uFEFF"_qs},
};
INSTANTIATE_TEST_SUITE_P(Texts, BoundedText, ::testing::ValuesIn(bounds),
                         [](const auto& info) { return info.param.name; });

// What no reader sees as sixteen units for each character.
const BoundCase pathological[] = {
    {"OneLetterWithMarks", "a" + repeated("\u0301", 1000), 5,
     u"a"_qs + QString(79, u'\u0301') + u'…'},
    {"WordsBeforeALetterWithMarks", "abca" + repeated("\u0301", 1000), 5, u"abc…"_qs},
    {"LettersWithManyMarks", repeated("a" + repeated("\u0301", 29), 5), 5,
     QString(u"a"_qs + QString(29, u'\u0301')).repeated(2) + u'…'},
    {"JoinedForEver", repeated("👨\u200D", 1000), 5, QString(u"👨\u200D"_qs).repeated(26) + u"👨…"_qs},
    {"FewMarksInAShortText", "a" + repeated("\u0301", 79), 5, u"a"_qs + QString(79, u'\u0301')},
};
INSTANTIATE_TEST_SUITE_P(PathologicalTexts, BoundedText, ::testing::ValuesIn(pathological),
                         [](const auto& info) { return info.param.name; });

// Whoever reads all of these needs seconds for each, and minutes to look for characters in them.
class HugeText : public ::testing::TestWithParam<BoundCase> {};

TEST_P(HugeText, IsReadNoFurtherThanItIsKept) {
    const std::string text = repeated(GetParam().text, 20000000 / int(GetParam().text.size()));
    const auto start = testing::processorTime();
    for (int i = 0; i < 20; ++i) {
        const QString kept = boundedText(text, 200);
        EXPECT_LE(kept.size(), 200 * 16 + 1);
        EXPECT_TRUE(kept.endsWith(u'…'));
    }
    EXPECT_LT(testing::processorTime() - start, std::chrono::seconds(20));
}

const BoundCase huge[] = {
    {"Letters", "x", 0, {}},       {"Umlauts", "ü", 0, {}},    {"Marks", "\u0301", 0, {}},
    {"Joiners", "👨\u200D", 0, {}}, {"Indicators", "🇩", 0, {}}, {"LineEndings", "\r\n", 0, {}},
};
INSTANTIATE_TEST_SUITE_P(Texts, HugeText, ::testing::ValuesIn(huge),
                         [](const auto& info) { return info.param.name; });

TEST(BoundedTextOfQt, IsKeptLikewise) {
    EXPECT_EQ(boundedText(u"Grüße"_qs, 5), u"Grüße"_qs);
    EXPECT_EQ(boundedText(u"Grüße!"_qs, 5), u"Grüße…"_qs);
    EXPECT_EQ(boundedText(u"e\u0301e\u0301"_qs, 2), u"e\u0301e\u0301"_qs);
}

} // namespace
} // namespace tessarine

#include "apps/AppPlaceholder.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <utility>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

struct Name {
    const char16_t* name;
    const char16_t* initials;
};

class InitialsTest : public ::testing::TestWithParam<Name> {};

TEST_P(InitialsTest, ComeFromTheNamesFirstTwoParts) {
    EXPECT_EQ(placeholderInitials(QString::fromUtf16(GetParam().name)),
              QString::fromUtf16(GetParam().initials));
}

INSTANTIATE_TEST_SUITE_P(
    Names, InitialsTest,
    ::testing::Values(Name{u"Mail", u"MA"}, Name{u"Software Update", u"SU"},
                      Name{u"one two three", u"OT"}, Name{u"x", u"X"}, Name{u"", u""},
                      Name{u"  a \t b\n", u"AB"}, Name{u"   ", u"  "}, Name{u"straße", u"ST"},
                      Name{u"ß", u"SS"}, Name{u"🇮🇹🇯🇵🇩🇪", u"🇮🇹🇯🇵"},
                      Name{u"👨‍👩‍👧 family", u"👨‍👩‍👧F"},
                      Name{u"e\u0301te\u0301", u"E\u0301T"}, Name{u"信息", u"信息"}));

// The sum of the name's scalar values, modulo eight, worked out by hand.
TEST(PlaceholderColor, FollowsFromTheSumOfTheScalarValues) {
    const auto index = [](char16_t sum) { return placeholderColor(QString(QChar(sum))); };
    EXPECT_EQ(placeholderColor({}), index(8));          // 0
    EXPECT_EQ(placeholderColor(u"ab"_qs), index(3));    // 97 + 98 = 195
    EXPECT_EQ(placeholderColor(u"Mail"_qs), index(3));  // 77 + 97 + 105 + 108 = 387
    EXPECT_EQ(placeholderColor(u"😀"_qs), index(8));     // 0x1F600, a multiple of eight
    EXPECT_EQ(placeholderColor(u"😀é"_qs), index(0xe9)); // and 233
    EXPECT_NE(placeholderColor(u"a"_qs), placeholderColor(u"b"_qs));
}

TEST(PlaceholderColor, HasEightColours) {
    std::set<QRgb> colours;
    for (char16_t sum = 8; sum < 24; ++sum)
        colours.insert(placeholderColor(QString(QChar(sum))).rgb());
    EXPECT_EQ(colours.size(), 8U);
}

// Degrees on the colour circle, by the names of the colours.
TEST(PlaceholderColor, HasBluePurplePinkOrangeGreenTealIndigoCyanInThisOrder) {
    constexpr std::array<std::pair<int, int>, 8> hues{{{205, 230},
                                                       {270, 300},
                                                       {320, 350},
                                                       {20, 40},
                                                       {100, 150},
                                                       {170, 185},
                                                       {235, 260},
                                                       {186, 204}}};
    for (char16_t i = 0; i < 8; ++i) {
        const int hue = placeholderColor(QString(QChar(char16_t(8 + i)))).hue();
        EXPECT_GE(hue, hues[i].first) << int(i);
        EXPECT_LE(hue, hues[i].second) << int(i);
    }
}

} // namespace
} // namespace tessarine

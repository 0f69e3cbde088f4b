#include "shared/Colour.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

#include <ostream>

namespace tessarine {

void PrintTo(const Colour& colour, std::ostream* out) {
    *out << colour.red << ' ' << colour.green << ' ' << colour.blue;
}

namespace {

Colour bytes(int red, int green, int blue) {
    return {red / 255.0, green / 255.0, blue / 255.0};
}

TEST(ColourFromHex, SplitsSixDigitsIntoThreeBytes) {
    EXPECT_EQ(colourFromHex(u"4FC3F7"), bytes(79, 195, 247));
}

TEST(ColourFromHex, ReachesBothEndsOfTheRange) {
    EXPECT_EQ(colourFromHex(u"000000"), (Colour{0.0, 0.0, 0.0}));
    EXPECT_EQ(colourFromHex(u"FFFFFF"), (Colour{1.0, 1.0, 1.0}));
}

TEST(ColourFromHex, KeepsTheComponentsApart) {
    EXPECT_EQ(colourFromHex(u"FF0000"), (Colour{1.0, 0.0, 0.0}));
    EXPECT_EQ(colourFromHex(u"00FF00"), (Colour{0.0, 1.0, 0.0}));
    EXPECT_EQ(colourFromHex(u"0000FF"), (Colour{0.0, 0.0, 1.0}));
}

TEST(ColourFromHex, TakesSmallLettersToo) {
    EXPECT_EQ(colourFromHex(u"ce93d8"), bytes(206, 147, 216));
}

TEST(ColourFromHex, CutsWhatIsNeitherLetterNorDigitFromBothEnds) {
    EXPECT_EQ(colourFromHex(u"  #90A4AE;\n"), bytes(144, 164, 174));
}

TEST(ColourFromHex, PassesOverTheSignOfAHexadecimalNumber) {
    EXPECT_EQ(colourFromHex(u"0xFFB74D"), bytes(255, 183, 77));
    EXPECT_EQ(colourFromHex(u"#0XFFB74D"), bytes(255, 183, 77));
}

TEST(ColourFromHex, ReadsUpToTheFirstCharacterThatIsNoDigit) {
    EXPECT_EQ(colourFromHex(u"12-3456"), bytes(0, 0, 0x12));
    EXPECT_EQ(colourFromHex(u"12G456"), bytes(0, 0, 0x12));
}

TEST(ColourFromHex, FillsAShortTextUpFromTheLeft) {
    EXPECT_EQ(colourFromHex(u"F7"), bytes(0, 0, 247));
    EXPECT_EQ(colourFromHex(u"C3F7"), bytes(0, 195, 247));
}

TEST(ColourFromHex, TakesTheLastThreeBytesOfALongText) {
    EXPECT_EQ(colourFromHex(u"804FC3F7"), bytes(79, 195, 247));
    EXPECT_EQ(colourFromHex(u"1122334455667788"), bytes(0x66, 0x77, 0x88));
}

TEST(ColourFromHex, SaturatesWhereTheNumberPassesSixtyFourBits) {
    EXPECT_EQ(colourFromHex(u"10000000000000000"), bytes(255, 255, 255));
}

TEST(ColourFromHex, IsBlackForATextWithoutDigits) {
    EXPECT_EQ(colourFromHex(u""), bytes(0, 0, 0));
    EXPECT_EQ(colourFromHex(u"#"), bytes(0, 0, 0));
    EXPECT_EQ(colourFromHex(u"nothing"), bytes(0, 0, 0));
    EXPECT_EQ(colourFromHex(u"0x"), bytes(0, 0, 0));
}

TEST(ColourFromHex, KnowsOnlyTheDigitsOfAscii) {
    EXPECT_EQ(colourFromHex(u"１２３４５６"), bytes(0, 0, 0));
}

} // namespace
} // namespace tessarine

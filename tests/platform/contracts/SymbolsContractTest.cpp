#include "platform/Symbols.h"
#include "platform/contracts/SymbolNames.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

// On whatever system the tests were built for.

namespace tessarine {
namespace {

const QColor tint(0x10, 0x80, 0xf0);

class SymbolContract : public ::testing::TestWithParam<QString> {};

TEST_P(SymbolContract, IsASquareWithSomethingInItsColour) {
    const QImage image = makeSymbols()->image(GetParam(), 64, tint);
    ASSERT_EQ(image.size(), QSize(64, 64));
    int tinted = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            tinted += image.pixelColor(x, y).rgb() == tint.rgb() ? 1 : 0;
    }
    EXPECT_GT(tinted, 60);
    EXPECT_LT(tinted, 64 * 64) << "a shape, and no square";
}

INSTANTIATE_TEST_SUITE_P(Each, SymbolContract, ::testing::ValuesIn(testing::shownSymbols()),
                         [](const auto& test) {
                             std::string name = test.param.toStdString();
                             std::replace(name.begin(), name.end(), '.', '_');
                             return name;
                         });

TEST(SymbolsContract, WhatIsNotKnownIsNone) {
    EXPECT_TRUE(makeSymbols()->image(QStringLiteral("no.such.symbol"), 64, tint).isNull());
    EXPECT_TRUE(makeSymbols()->image(QString(), 64, tint).isNull());
    EXPECT_TRUE(makeSymbols()->image(QStringLiteral("bell.fill"), 0, tint).isNull());
}

} // namespace
} // namespace tessarine

#include "platform/contracts/SymbolNames.h"
#include "platform/linux/desktop/LinuxSymbols.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

class SymbolTest : public ::testing::TestWithParam<std::string> {};

TEST_P(SymbolTest, IsDrawnInItsColourAtTheSizeAskedFor) {
    const QColor tint(10, 200, 30);
    const QImage image = LinuxSymbols().image(QString::fromStdString(GetParam()), 48, tint);
    ASSERT_EQ(image.size(), QSize(48, 48));
    int solid = 0;
    for (int y = 0; y < 48; ++y)
        for (int x = 0; x < 48; ++x)
            solid += image.pixelColor(x, y) == tint ? 1 : 0;
    EXPECT_GT(solid, 48 * 48 / 20);
    EXPECT_EQ(image.pixelColor(0, 47).alpha(), 0);
}

std::vector<std::string> allSymbols() {
    std::vector<std::string> names;
    for (const QString& name : LinuxSymbols().names())
        names.push_back(name.toStdString());
    return names;
}

std::string plainName(const ::testing::TestParamInfo<std::string>& info) {
    std::string name = info.param;
    std::erase(name, '.');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Table, SymbolTest, ::testing::ValuesIn(allSymbols()), plainName);

TEST(Symbols, AreThoseThatTheProgramShows) {
    EXPECT_EQ(LinuxSymbols().names(), testing::shownSymbols());
}

TEST(Symbols, AnUnknownNameHasNoPicture) {
    EXPECT_TRUE(LinuxSymbols().image(u"no.such.symbol"_qs, 16, Qt::black).isNull());
    EXPECT_TRUE(LinuxSymbols().image(u"bell.fill"_qs, 0, Qt::black).isNull());
    EXPECT_TRUE(LinuxSymbols().image(u"../bell.fill"_qs, 16, Qt::black).isNull());
}

} // namespace
} // namespace tessarine

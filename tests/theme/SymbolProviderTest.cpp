#include "theme/SymbolProvider.h"

#include "support/Printers.h"
#include "support/SimulatedApplicationIcons.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

TEST(SymbolAddress, NamesSymbolAndColour) {
    EXPECT_EQ(symbolAddress(u"bell.slash"_qs, QColor(0x84, 0x84, 0x8a)),
              u"image://symbols/bell.slash/#84848a"_qs);
}

TEST(SymbolAddress, NamesHowTranslucentTheColourIs) {
    EXPECT_EQ(symbolAddress(u"pin"_qs, QColor(1, 2, 3, 128)), u"image://symbols/pin/#80010203"_qs);
}

TEST(SymbolProvider, DrawsWhatAnAddressNames) {
    const testing::SimulatedSymbols symbols;
    SymbolProvider provider(symbols);
    const QString prefix = u"image://symbols/"_qs;
    const QString address = symbolAddress(u"gearshape.fill"_qs, QColor(10, 20, 30));
    QSize size;
    const QImage image = provider.requestImage(address.sliced(prefix.size()), &size, {8, 8});
    EXPECT_EQ(image.pixelColor(4, 4), QColor(10, 20, 30));
}

} // namespace
} // namespace tessarine

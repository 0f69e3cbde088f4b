#include "platform/linux/desktop/WidgetPalette.h"

#include "support/SimulatedDesktop.h"

#include <gtest/gtest.h>

namespace tessarine::testing {
namespace {

QColor colour(const SimulatedAppearance& appearance, QPalette::ColorRole role) {
    return widgetPalette(appearance).color(role);
}

TEST(WidgetPalette, HasTheDesktopsAccentInLightAndDark) {
    SimulatedAppearance appearance;
    for (const bool dark : {false, true}) {
        appearance.setDesktopIsDark(dark);
        appearance.setAccent(QColor(0x1c, 0x71, 0xd8));
        EXPECT_EQ(colour(appearance, QPalette::Highlight), QColor(0x1c, 0x71, 0xd8)) << dark;
        EXPECT_EQ(colour(appearance, QPalette::WindowText).lightnessF() > 0.5, dark);
        EXPECT_EQ(colour(appearance, QPalette::Window).lightnessF() < 0.5, dark);
    }
}

// Contrast with black and with white, worked out apart by the formula of WCAG: #3584e4 5.57
// and 3.77, #813d9c 3.08 and 6.82, #f5c211 12.61 and 1.67.
TEST(WidgetPalette, HasTheTextOnTheAccentThatCanBeReadBetter) {
    SimulatedAppearance appearance;
    const auto textOn = [&](QColor accent) {
        appearance.setAccent(accent);
        return colour(appearance, QPalette::HighlightedText);
    };
    EXPECT_EQ(textOn(QColor(0x35, 0x84, 0xe4)), QColor(Qt::black));
    EXPECT_EQ(textOn(QColor(0x81, 0x3d, 0x9c)), QColor(Qt::white));
    EXPECT_EQ(textOn(QColor(0xf5, 0xc2, 0x11)), QColor(Qt::black));
}

TEST(WidgetPalette, IsBlackAndWhiteWhereTheDesktopWantsContrast) {
    SimulatedAppearance appearance;
    appearance.setHighContrast(true);
    appearance.setDesktopIsDark(true);
    EXPECT_EQ(colour(appearance, QPalette::Window), QColor(Qt::black));
    EXPECT_EQ(colour(appearance, QPalette::Text), QColor(Qt::white));
    appearance.setDesktopIsDark(false);
    EXPECT_EQ(colour(appearance, QPalette::Window), QColor(Qt::white));
    EXPECT_EQ(colour(appearance, QPalette::Text), QColor(Qt::black));
}

} // namespace
} // namespace tessarine::testing

#include "ui/UiFixture.h"

#include <QSignalSpy>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class ThemeTest : public UiTest {};

TEST_F(ThemeTest, LightAndDarkAreFixedWhateverTheDesktopSays) {
    appearance.setDesktopIsDark(true);
    theme.applyAppearance(u"light"_qs);
    EXPECT_FALSE(theme.dark());
    appearance.setDesktopIsDark(false);
    theme.applyAppearance(u"dark"_qs);
    EXPECT_TRUE(theme.dark());
}

TEST_F(ThemeTest, AnyOtherModeFollowsTheDesktop) {
    for (const QString& mode : {u"auto"_qs, u""_qs, u"Dark"_qs}) {
        theme.applyAppearance(mode);
        appearance.setDesktopIsDark(true);
        EXPECT_TRUE(theme.dark()) << mode.toStdString();
        appearance.setDesktopIsDark(false);
        EXPECT_FALSE(theme.dark()) << mode.toStdString();
    }
}

TEST_F(ThemeTest, AWindowChangesItsColoursAtOnce) {
    makeWindow();
    show();
    const QColor light = window->window()->grabWindow().pixelColor(2, 2);
    appearance.setDesktopIsDark(true);
    const QColor dark = window->window()->grabWindow().pixelColor(2, 2);
    EXPECT_EQ(light, Palette::light().windowBackground);
    EXPECT_EQ(dark, Palette::dark().windowBackground);
}

// Relative luminance and contrast as the Web Content Accessibility Guidelines define them.
double luminance(const QColor& colour) {
    const auto linear = [](float part) {
        const double value = double(part);
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& left, const QColor& right) {
    const double a = luminance(left) + 0.05;
    const double b = luminance(right) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

TEST_F(ThemeTest, TextIsReadableOnBothBackgroundsOfBothAppearances) {
    for (const Palette& palette : {Palette::light(), Palette::dark()}) {
        for (const QColor& background : {palette.windowBackground, palette.controlBackground}) {
            EXPECT_GE(contrast(palette.label, background), 7.0);
            EXPECT_GE(contrast(palette.secondaryLabel, background), 4.5);
            EXPECT_GE(contrast(palette.tertiaryLabel, background), 3.0);
            EXPECT_GE(contrast(palette.accent, background), 3.0);
        }
    }
}

} // namespace
} // namespace tessarine::testing

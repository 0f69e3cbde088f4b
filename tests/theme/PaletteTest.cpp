#include "theme/Palette.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tessarine {
namespace {

// Relative luminance and contrast as the Web Content Accessibility Guidelines 2 define them.
double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(double(colour.redF())) + 0.7152 * linear(double(colour.greenF())) +
           0.0722 * linear(double(colour.blueF()));
}

double contrast(const QColor& left, const QColor& right) {
    const double a = luminance(left) + 0.05;
    const double b = luminance(right) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

// What is seen where a translucent colour lies over a full one.
QColor over(const QColor& cover, const QColor& ground) {
    const float share = cover.alphaF();
    const auto mix = [&](float above, float below) { return above * share + below * (1 - share); };
    return QColor::fromRgbF(mix(cover.redF(), ground.redF()), mix(cover.greenF(), ground.greenF()),
                            mix(cover.blueF(), ground.blueF()));
}

// One of the palettes, with its own accent or with one that a desktop may bring.
struct Case {
    std::string name;
    bool dark;
    bool highContrast;
    std::optional<QColor> accent;
};

Palette paletteOf(const Case& wanted) {
    const Palette& palette = Palette::of(wanted.dark, wanted.highContrast);
    return wanted.accent ? palette.withAccent(*wanted.accent) : palette;
}

std::vector<Case> allCases() {
    const std::vector<std::pair<std::string, std::optional<QColor>>> accents{
        {"", std::nullopt},
        {"Yellow", QColor(0xff, 0xd6, 0x0a)},
        {"Green", QColor(0x3a, 0x94, 0x4a)},
        {"Purple", QColor(0x91, 0x41, 0xac)},
        {"White", QColor(0xff, 0xff, 0xff)},
        {"Black", QColor(0x00, 0x00, 0x00)},
        {"Grey", QColor(0x6f, 0x83, 0x96)}};
    std::vector<Case> cases;
    for (const bool dark : {false, true})
        for (const bool highContrast : {false, true})
            for (const auto& [name, accent] : accents)
                cases.push_back({std::string(dark ? "Dark" : "Light") +
                                     (highContrast ? "HighContrast" : "") + name,
                                 dark, highContrast, accent});
    return cases;
}

class PaletteTest : public ::testing::TestWithParam<Case> {
protected:
    // As a card of the list lies on the window, while nothing happens to it.
    QColor restingCard() const {
        QColor cover = colours_.controlBackground;
        cover.setAlphaF(0.5F);
        return over(cover, colours_.windowBackground);
    }

    const Palette colours_ = paletteOf(GetParam());
    const QList<QColor> backgrounds_{colours_.windowBackground, colours_.controlBackground,
                                     colours_.panelBackground};
    const QList<QColor> texts_{
        colours_.label, colours_.secondaryLabel, colours_.accentLabel, colours_.placeholderLabel,
        colours_.red,   colours_.orange,         colours_.green,       colours_.yellow,
        colours_.blue,  colours_.purple};
    const double text_ = GetParam().highContrast ? 7.0 : 4.5;
    static constexpr double enough_ = 4.5; // on grounds that come and go
    const double shape_ = GetParam().highContrast ? 4.5 : 3.0;
};

TEST_P(PaletteTest, CardsCanBeToldFromTheWindow) {
    EXPECT_GE(contrast(restingCard(), colours_.windowBackground), 1.15);
    EXPECT_GE(contrast(colours_.controlBackground, colours_.windowBackground), 1.15);
    EXPECT_GE(contrast(colours_.controlBackground, restingCard()), 1.15); // under the pointer
}

TEST_P(PaletteTest, WhatIsUnderThePointerCanBeToldFromTheWindow) {
    EXPECT_GE(
        contrast(over(colours_.hoverFill, colours_.windowBackground), colours_.windowBackground),
        1.15);
}

TEST_P(PaletteTest, TheTimeOfARowCanBeRead) {
    QColor time = colours_.secondaryLabel;
    time.setAlphaF(0.7F);
    EXPECT_GE(contrast(over(time, restingCard()), restingCard()), 4.5);
}

TEST_P(PaletteTest, ContrastIsWhatTheGuidelinesSay) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21.0, 0.001);
    EXPECT_NEAR(contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.478, 0.001);
}

TEST_P(PaletteTest, EveryTextCanBeReadOnEveryBackground) {
    for (const QColor& text : texts_)
        for (const QColor& background : backgrounds_)
            EXPECT_GE(contrast(text, background), text_)
                << text.name().toStdString() << " on " << background.name().toStdString();
}

TEST_P(PaletteTest, TextCanBeReadUnderThePointer) {
    for (const QColor& background : backgrounds_)
        for (const QColor& text : {colours_.label, colours_.secondaryLabel, colours_.red})
            EXPECT_GE(contrast(text, over(colours_.hoverFill, background)), enough_)
                << text.name().toStdString() << " on " << background.name().toStdString();
}

TEST_P(PaletteTest, TheCurrentRowOfAMenuCanBeRead) {
    for (const QColor& text : {colours_.label, colours_.red})
        EXPECT_GE(contrast(text, over(colours_.pressedFill, colours_.panelBackground)), enough_)
            << text.name().toStdString();
}

TEST_P(PaletteTest, ATagCanBeReadOnEveryBackground) {
    for (const QColor& background : backgrounds_)
        EXPECT_GE(contrast(colours_.secondaryLabel, over(colours_.tagFill, background)), enough_);
}

TEST_P(PaletteTest, WhatIsWrittenOnFullFillsCanBeRead) {
    EXPECT_GE(contrast(colours_.onFill, colours_.accentFill), enough_);
    EXPECT_GE(contrast(colours_.onFill, colours_.redFill), enough_);
}

TEST_P(PaletteTest, ThePartsOfAGrooveCanBeRead) {
    for (const QColor& background : backgrounds_)
        for (const QColor& text : {colours_.secondaryLabel, colours_.accentLabel})
            EXPECT_GE(contrast(text, over(colours_.track, background)), enough_)
                << text.name().toStdString() << " on " << background.name().toStdString();
    EXPECT_GE(contrast(colours_.label, colours_.raised), enough_);
}

TEST_P(PaletteTest, SelectedTextCanBeRead) {
    EXPECT_GE(contrast(colours_.label, over(colours_.selection, colours_.controlBackground)),
              enough_);
}

TEST_P(PaletteTest, SymbolsRingsAndSwitchesCanBeSeen) {
    for (const QColor& background : backgrounds_)
        for (const QColor& shape : {colours_.tertiaryLabel, colours_.accent, colours_.focusRing,
                                    colours_.blue, colours_.yellow})
            EXPECT_GE(contrast(shape, background), shape_) << shape.name().toStdString();
    EXPECT_GE(contrast(colours_.switchThumb, colours_.switchOff), shape_);
    EXPECT_GE(contrast(colours_.switchThumb, colours_.accentFill), shape_);
}

INSTANTIATE_TEST_SUITE_P(Appearances, PaletteTest, ::testing::ValuesIn(allCases()),
                         [](const auto& info) { return info.param.name; });

TEST(PaletteWithAccent, KeepsAnAccentThatCanBeSeen) {
    const QColor purple(0x91, 0x41, 0xac);
    EXPECT_EQ(Palette::light().withAccent(purple).accent, purple);
    EXPECT_EQ(Palette::light().withAccent(purple).accentFill, purple);
    EXPECT_EQ(Palette::light().withAccent(purple).focusRing, purple);
}

TEST(PaletteWithAccent, DarkensABrightOneInLightAndKeepsItsHue) {
    const QColor yellow(0xff, 0xd6, 0x0a);
    const QColor accent = Palette::light().withAccent(yellow).accent;
    EXPECT_LT(accent.lightness(), yellow.lightness());
    EXPECT_NEAR(accent.hslHue(), yellow.hslHue(), 2);
    EXPECT_EQ(Palette::dark().withAccent(yellow).accent, yellow);
}

} // namespace
} // namespace tessarine

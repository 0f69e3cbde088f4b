#include "theme/Palette.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

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

class PaletteTest : public ::testing::TestWithParam<bool> {
protected:
    const Palette& colours_ = GetParam() ? Palette::dark() : Palette::light();
    const QList<QColor> backgrounds_{colours_.windowBackground, colours_.controlBackground,
                                     colours_.panelBackground};
    const QList<QColor> texts_{
        colours_.label, colours_.secondaryLabel, colours_.accentLabel, colours_.placeholderLabel,
        colours_.red,   colours_.orange,         colours_.green};
    static constexpr double text_ = 4.5;
    static constexpr double shape_ = 3.0;
};

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
            EXPECT_GE(contrast(text, over(colours_.hoverFill, background)), text_)
                << text.name().toStdString() << " on " << background.name().toStdString();
}

TEST_P(PaletteTest, TheCurrentRowOfAMenuCanBeRead) {
    for (const QColor& text : {colours_.label, colours_.red})
        EXPECT_GE(contrast(text, over(colours_.pressedFill, colours_.panelBackground)), text_)
            << text.name().toStdString();
}

TEST_P(PaletteTest, ATagCanBeReadOnEveryBackground) {
    for (const QColor& background : backgrounds_)
        EXPECT_GE(contrast(colours_.secondaryLabel, over(colours_.tagFill, background)), text_);
}

TEST_P(PaletteTest, WhatIsWrittenOnFullFillsCanBeRead) {
    EXPECT_GE(contrast(colours_.onFill, colours_.accentFill), text_);
    EXPECT_GE(contrast(colours_.onFill, colours_.redFill), text_);
}

TEST_P(PaletteTest, ThePartsOfAGrooveCanBeRead) {
    for (const QColor& background : backgrounds_)
        for (const QColor& text : {colours_.secondaryLabel, colours_.accentLabel})
            EXPECT_GE(contrast(text, over(colours_.track, background)), text_)
                << text.name().toStdString() << " on " << background.name().toStdString();
    EXPECT_GE(contrast(colours_.label, colours_.raised), text_);
}

TEST_P(PaletteTest, SelectedTextCanBeRead) {
    EXPECT_GE(contrast(colours_.label, over(colours_.selection, colours_.controlBackground)),
              text_);
}

TEST_P(PaletteTest, SymbolsRingsAndSwitchesCanBeSeen) {
    for (const QColor& background : backgrounds_)
        for (const QColor& shape : {colours_.tertiaryLabel, colours_.accent, colours_.focusRing})
            EXPECT_GE(contrast(shape, background), shape_) << shape.name().toStdString();
    EXPECT_GE(contrast(colours_.switchThumb, colours_.switchOff), shape_);
    EXPECT_GE(contrast(colours_.switchThumb, colours_.accentFill), shape_);
}

INSTANTIATE_TEST_SUITE_P(Appearances, PaletteTest, ::testing::Bool(),
                         [](const auto& info) { return info.param ? "Dark" : "Light"; });

} // namespace
} // namespace tessarine

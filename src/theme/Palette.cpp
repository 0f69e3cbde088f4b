#include "theme/Palette.h"

#include "theme/Contrast.h"

namespace tessarine {

namespace {

// High contrast asks for more, as the guidelines' stricter level does.
constexpr double readableTextEnhanced = 7.0;
constexpr double visibleShapeEnhanced = 4.5;

// What is seen where a translucent colour lies over a full one.
QColor overlaid(const QColor& cover, const QColor& ground) {
    const float share = cover.alphaF();
    const auto mix = [share](float above, float below) {
        return above * share + below * (1 - share);
    };
    return QColor::fromRgbF(mix(cover.redF(), ground.redF()), mix(cover.greenF(), ground.greenF()),
                            mix(cover.blueF(), ground.blueF()));
}

} // namespace

const Palette& Palette::light() {
    static const Palette palette{.label = QColor(0x11, 0x11, 0x13),
                                 .secondaryLabel = QColor(0x34, 0x34, 0x39),
                                 .placeholderLabel = QColor(0x5a, 0x5a, 0x60),
                                 .accentLabel = QColor(0x11, 0x50, 0xb0),
                                 .red = QColor(0xa8, 0x14, 0x1e),
                                 .orange = QColor(0x8a, 0x42, 0x00),
                                 .green = QColor(0x13, 0x5d, 0x27),
                                 .tertiaryLabel = QColor(0x76, 0x76, 0x7c),
                                 .accent = QColor(0x1f, 0x6f, 0xe5),
                                 .focusRing = QColor(0x1f, 0x6f, 0xe5),
                                 .blue = QColor(0x1f, 0x6f, 0xe5),
                                 .yellow = QColor(0x8a, 0x6a, 0x00),
                                 .windowBackground = QColor(0xde, 0xde, 0xdf),
                                 .controlBackground = QColor(0xff, 0xff, 0xff),
                                 .panelBackground = QColor(0xfa, 0xfa, 0xfb),
                                 .separator = QColor(0xc4, 0xc4, 0xc8),
                                 .controlBorder = QColor(0x00, 0x00, 0x00, 0x2b),
                                 .panelBorder = QColor(0xb4, 0xb4, 0xba),
                                 .track = QColor(0x00, 0x00, 0x00, 0x12),
                                 .raised = QColor(0xff, 0xff, 0xff),
                                 .hoverFill = QColor(0x00, 0x00, 0x00, 0x11),
                                 .pressedFill = QColor(0x00, 0x00, 0x00, 0x1f),
                                 .tagFill = QColor(0x34, 0x34, 0x39, 0x26),
                                 .selection = QColor(0x1f, 0x6f, 0xe5, 0x40),
                                 .dim = QColor(0x00, 0x00, 0x00, 0x4d),
                                 .scrollThumb = QColor(0x00, 0x00, 0x00, 0x80),
                                 .shadow = QColor(0x00, 0x00, 0x00, 0x48),
                                 .accentFill = QColor(0x1f, 0x6f, 0xe5),
                                 .redFill = QColor(0xc0, 0x1c, 0x28),
                                 .onFill = QColor(0xff, 0xff, 0xff),
                                 .switchOff = QColor(0x85, 0x85, 0x8b),
                                 .switchThumb = QColor(0xff, 0xff, 0xff)};
    return palette;
}

const Palette& Palette::dark() {
    static const Palette palette{.label = QColor(0xec, 0xec, 0xee),
                                 .secondaryLabel = QColor(0xbc, 0xbc, 0xc2),
                                 .placeholderLabel = QColor(0xa9, 0xa9, 0xb0),
                                 .accentLabel = QColor(0x93, 0xbf, 0xff),
                                 .red = QColor(0xff, 0xa4, 0x9d),
                                 .orange = QColor(0xff, 0xab, 0x4a),
                                 .green = QColor(0x57, 0xd0, 0x7a),
                                 .tertiaryLabel = QColor(0x8a, 0x8a, 0x91),
                                 .accent = QColor(0x4c, 0x93, 0xff),
                                 .focusRing = QColor(0x4c, 0x93, 0xff),
                                 .blue = QColor(0x4c, 0x93, 0xff),
                                 .yellow = QColor(0xff, 0xd5, 0x4a),
                                 .windowBackground = QColor(0x1b, 0x1b, 0x1d),
                                 .controlBackground = QColor(0x34, 0x34, 0x38),
                                 .panelBackground = QColor(0x33, 0x33, 0x37),
                                 .separator = QColor(0x4a, 0x4a, 0x50),
                                 .controlBorder = QColor(0xff, 0xff, 0xff, 0x26),
                                 .panelBorder = QColor(0x5c, 0x5c, 0x63),
                                 .track = QColor(0xff, 0xff, 0xff, 0x12),
                                 .raised = QColor(0x56, 0x56, 0x5c),
                                 .hoverFill = QColor(0xff, 0xff, 0xff, 0x10),
                                 .pressedFill = QColor(0xff, 0xff, 0xff, 0x1f),
                                 .tagFill = QColor(0xb4, 0xb4, 0xba, 0x26),
                                 .selection = QColor(0x4c, 0x93, 0xff, 0x60),
                                 .dim = QColor(0x00, 0x00, 0x00, 0x80),
                                 .scrollThumb = QColor(0xff, 0xff, 0xff, 0x80),
                                 .shadow = QColor(0x00, 0x00, 0x00, 0x90),
                                 .accentFill = QColor(0x2a, 0x6a, 0xd6),
                                 .redFill = QColor(0xc8, 0x34, 0x2f),
                                 .onFill = QColor(0xff, 0xff, 0xff),
                                 .switchOff = QColor(0x73, 0x73, 0x7a),
                                 .switchThumb = QColor(0xff, 0xff, 0xff)};
    return palette;
}

const Palette& Palette::highContrastLight() {
    static const Palette palette{.label = QColor(0x00, 0x00, 0x00),
                                 .secondaryLabel = QColor(0x18, 0x18, 0x1a),
                                 .placeholderLabel = QColor(0x33, 0x33, 0x38),
                                 .accentLabel = QColor(0x08, 0x3d, 0x92),
                                 .red = QColor(0x8c, 0x0d, 0x16),
                                 .orange = QColor(0x6b, 0x32, 0x00),
                                 .green = QColor(0x0c, 0x48, 0x1c),
                                 .tertiaryLabel = QColor(0x4a, 0x4a, 0x4e),
                                 .accent = QColor(0x0b, 0x4f, 0xb8),
                                 .focusRing = QColor(0x0b, 0x4f, 0xb8),
                                 .blue = QColor(0x0b, 0x4f, 0xb8),
                                 .yellow = QColor(0x6b, 0x52, 0x00),
                                 .windowBackground = QColor(0xdc, 0xdc, 0xde),
                                 .controlBackground = QColor(0xff, 0xff, 0xff),
                                 .panelBackground = QColor(0xff, 0xff, 0xff),
                                 .separator = QColor(0x5c, 0x5c, 0x60),
                                 .controlBorder = QColor(0x00, 0x00, 0x00, 0xa0),
                                 .panelBorder = QColor(0x3c, 0x3c, 0x40),
                                 .track = QColor(0x00, 0x00, 0x00, 0x1a),
                                 .raised = QColor(0xff, 0xff, 0xff),
                                 .hoverFill = QColor(0x00, 0x00, 0x00, 0x14),
                                 .pressedFill = QColor(0x00, 0x00, 0x00, 0x29),
                                 .tagFill = QColor(0x18, 0x18, 0x1a, 0x26),
                                 .selection = QColor(0x0b, 0x4f, 0xb8, 0x40),
                                 .dim = QColor(0x00, 0x00, 0x00, 0x80),
                                 .scrollThumb = QColor(0x00, 0x00, 0x00, 0xc0),
                                 .shadow = QColor(0x00, 0x00, 0x00, 0x48),
                                 .accentFill = QColor(0x0b, 0x4f, 0xb8),
                                 .redFill = QColor(0x8c, 0x0d, 0x16),
                                 .onFill = QColor(0xff, 0xff, 0xff),
                                 .switchOff = QColor(0x4a, 0x4a, 0x4e),
                                 .switchThumb = QColor(0xff, 0xff, 0xff),
                                 .isHighContrast = true};
    return palette;
}

const Palette& Palette::highContrastDark() {
    static const Palette palette{.label = QColor(0xff, 0xff, 0xff),
                                 .secondaryLabel = QColor(0xe6, 0xe6, 0xea),
                                 .placeholderLabel = QColor(0xd0, 0xd0, 0xd6),
                                 .accentLabel = QColor(0xb5, 0xd3, 0xff),
                                 .red = QColor(0xff, 0xc2, 0xbd),
                                 .orange = QColor(0xff, 0xc7, 0x80),
                                 .green = QColor(0x8a, 0xe8, 0xa5),
                                 .tertiaryLabel = QColor(0xb6, 0xb6, 0xbc),
                                 .accent = QColor(0x8c, 0xba, 0xff),
                                 .focusRing = QColor(0x8c, 0xba, 0xff),
                                 .blue = QColor(0x8c, 0xba, 0xff),
                                 .yellow = QColor(0xff, 0xe0, 0x8a),
                                 .windowBackground = QColor(0x00, 0x00, 0x00),
                                 .controlBackground = QColor(0x2a, 0x2a, 0x2d),
                                 .panelBackground = QColor(0x16, 0x16, 0x18),
                                 .separator = QColor(0x9a, 0x9a, 0xa0),
                                 .controlBorder = QColor(0xff, 0xff, 0xff, 0xa0),
                                 .panelBorder = QColor(0xb6, 0xb6, 0xbc),
                                 .track = QColor(0xff, 0xff, 0xff, 0x1a),
                                 .raised = QColor(0x4a, 0x4a, 0x50),
                                 .hoverFill = QColor(0xff, 0xff, 0xff, 0x1c),
                                 .pressedFill = QColor(0xff, 0xff, 0xff, 0x2e),
                                 .tagFill = QColor(0xe6, 0xe6, 0xea, 0x33),
                                 .selection = QColor(0x8c, 0xba, 0xff, 0x50),
                                 .dim = QColor(0x00, 0x00, 0x00, 0xb0),
                                 .scrollThumb = QColor(0xff, 0xff, 0xff, 0xc0),
                                 .shadow = QColor(0x00, 0x00, 0x00, 0xc0),
                                 .accentFill = QColor(0x1a, 0x56, 0xbd),
                                 .redFill = QColor(0xa8, 0x21, 0x1d),
                                 .onFill = QColor(0xff, 0xff, 0xff),
                                 .switchOff = QColor(0x5e, 0x5e, 0x64),
                                 .switchThumb = QColor(0xff, 0xff, 0xff),
                                 .isHighContrast = true};
    return palette;
}

const Palette& Palette::of(bool dark, bool highContrast) {
    if (highContrast)
        return dark ? highContrastDark() : highContrastLight();
    return dark ? Palette::dark() : light();
}

// Texts lie on grooves too, which are darker, or lighter, than what they are cut into.
Palette Palette::withAccent(const QColor& wanted) const {
    const double text = isHighContrast ? readableTextEnhanced : readableText;
    const double shape = isHighContrast ? visibleShapeEnhanced : visibleShape;
    const QColor opposite = label.lightness() > 127 ? Qt::white : Qt::black;
    const QList<QColor> grounds{windowBackground, controlBackground, panelBackground};
    QList<QColor> textGrounds = grounds;
    for (const QColor& ground : grounds)
        textGrounds << overlaid(track, ground);

    Palette palette = *this;
    palette.accent = shadeFor(wanted, grounds, shape, opposite);
    palette.focusRing = palette.accent;
    palette.accentLabel = shadeFor(wanted, textGrounds, text, opposite);
    palette.accentFill = shadeFor(wanted, {onFill}, text, Qt::black);
    palette.selection = palette.accentFill; // the text over it is the usual one
    palette.selection.setAlpha(selection.alpha());
    return palette;
}

} // namespace tessarine

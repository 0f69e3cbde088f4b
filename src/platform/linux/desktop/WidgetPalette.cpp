#include "platform/linux/desktop/WidgetPalette.h"

#include "platform/SystemAppearance.h"

#include <QGuiApplication>

#include <cmath>

namespace tessarine {

namespace {

// Of the three primaries, as sRGB defines it.
double luminance(const QColor& colour) {
    const auto linear = [](double share) {
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

// On a colour of this luminance black and white can be read equally well.
constexpr double middleLuminance = 0.179;

void setAccent(QPalette& palette, const QColor& accent) {
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText,
                     luminance(accent) > middleLuminance ? Qt::black : Qt::white);
}

QPalette plainPalette(const QColor& text, const QColor& background, const QColor& faint) {
    QPalette palette(background);
    palette.setColor(QPalette::Base, background);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    setAccent(palette, QColor(0x1f, 0x6f, 0xe5));
    return palette;
}

QPalette quietPalette(bool dark) {
    return dark ? plainPalette(QColor(0xec, 0xec, 0xee), QColor(0x2e, 0x2e, 0x31),
                               QColor(0x85, 0x85, 0x8c))
                : plainPalette(QColor(0x1c, 0x1c, 0x1e), QColor(0xfb, 0xfb, 0xfc),
                               QColor(0x84, 0x84, 0x8a));
}

QPalette strongPalette(bool dark) {
    return dark ? plainPalette(Qt::white, Qt::black, QColor(0xb6, 0xb6, 0xbc))
                : plainPalette(Qt::black, Qt::white, QColor(0x4a, 0x4a, 0x4e));
}

QPalette paletteFor(bool dark, bool highContrast) {
    if (highContrast)
        return strongPalette(dark);
    const QPalette desktop = QGuiApplication::palette();
    const bool isDark = desktop.color(QPalette::Window).lightnessF() <
                        desktop.color(QPalette::WindowText).lightnessF();
    return isDark == dark ? desktop : quietPalette(dark);
}

} // namespace

QPalette widgetPalette(const SystemAppearance& appearance) {
    QPalette palette = paletteFor(appearance.prefersDark(), appearance.prefersHighContrast());
    if (const std::optional<QColor> accent = appearance.accentColour())
        setAccent(palette, *accent);
    return palette;
}

} // namespace tessarine

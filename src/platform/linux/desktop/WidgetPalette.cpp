#include "platform/linux/desktop/WidgetPalette.h"

#include <QGuiApplication>

namespace tessarine {

namespace {

QPalette quietPalette(bool dark) {
    const QColor text = dark ? QColor(0xec, 0xec, 0xee) : QColor(0x1c, 0x1c, 0x1e);
    const QColor background = dark ? QColor(0x2e, 0x2e, 0x31) : QColor(0xfb, 0xfb, 0xfc);
    const QColor faint = dark ? QColor(0x85, 0x85, 0x8c) : QColor(0x84, 0x84, 0x8a);
    QPalette palette(background);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Base, background);
    palette.setColor(QPalette::Highlight, QColor(0x1f, 0x6f, 0xe5));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    return palette;
}

} // namespace

QPalette widgetPalette(bool dark) {
    const QPalette desktop = QGuiApplication::palette();
    const bool isDark = desktop.color(QPalette::Window).lightnessF() <
                        desktop.color(QPalette::WindowText).lightnessF();
    return isDark == dark ? desktop : quietPalette(dark);
}

} // namespace tessarine

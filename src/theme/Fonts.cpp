#include "theme/Fonts.h"

#include <QGuiApplication>
#include <QStringList>

namespace tessarine {

QFont textFont() {
    QFont font = QGuiApplication::font();
    font.setFamilies({QStringLiteral("Inter"), QStringLiteral("Noto Sans"),
                      QStringLiteral("Noto Sans CJK SC"), QStringLiteral("Noto Color Emoji")});
    return font;
}

QFont monospacedFont() {
    QFont font = textFont();
    font.setFamilies(QStringList(QStringLiteral("Noto Sans Mono")) + font.families());
    return font;
}

QString tabularDigitsFamily() {
    return QStringLiteral("Noto Sans");
}

} // namespace tessarine

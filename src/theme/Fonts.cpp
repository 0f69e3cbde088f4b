#include "theme/Fonts.h"

#include "platform/FontFamilies.h"

#include <QGuiApplication>
#include <QStringList>

namespace tessarine {

QFont textFont() {
    QFont font = QGuiApplication::font();
    font.setFamilies(systemFontFamilies().text);
    return font;
}

QFont monospacedFont() {
    QFont font = textFont();
    font.setFamilies(QStringList(systemFontFamilies().monospaced) + font.families());
    return font;
}

QString tabularDigitsFamily() {
    return systemFontFamilies().tabular;
}

} // namespace tessarine

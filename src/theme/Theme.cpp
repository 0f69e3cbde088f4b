#include "theme/Theme.h"

#include "theme/Fonts.h"
#include "theme/ViewEngine.h"

#include <QJSEngine>
#include <QQmlEngine>

namespace tessarine {

Theme::Theme(SystemAppearance& appearance)
    : appearance_(appearance) {
    connect(&appearance_, &SystemAppearance::changed, this, &Theme::changed);
}

Theme* Theme::create(QQmlEngine* engine, QJSEngine*) {
    Theme* theme = themeOf(*engine);
    QJSEngine::setObjectOwnership(theme, QJSEngine::CppOwnership);
    return theme;
}

const Palette& Theme::colours() const {
    return dark() ? Palette::dark() : Palette::light();
}

QFont Theme::textFont(int size) const {
    QFont font = tessarine::textFont();
    font.setPixelSize(size);
    return font;
}

QString Theme::tabularFamily() const {
    return tabularDigitsFamily();
}

void Theme::applyAppearance(const QString& mode) {
    if (mode == u"light")
        appearance_.setAppearance(Appearance::light);
    else if (mode == u"dark")
        appearance_.setAppearance(Appearance::dark);
    else
        appearance_.setAppearance(Appearance::system);
}

} // namespace tessarine

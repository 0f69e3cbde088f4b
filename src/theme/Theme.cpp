#include "theme/Theme.h"

#include "theme/Fonts.h"
#include "theme/SymbolProvider.h"

#include <QJSEngine>
#include <QQmlEngine>

namespace tessarine {

namespace {

constexpr char engineProperty[] = "tessarineTheme";

QFont sized(QFont font, int size) {
    font.setPixelSize(size);
    return font;
}

} // namespace

Theme::Theme(SystemAppearance& appearance)
    : appearance_(appearance) {
    connect(&appearance_, &SystemAppearance::changed, this, &Theme::takeAppearance);
    takeAppearance();
}

void Theme::takeAppearance() {
    const Palette& palette = Palette::of(dark(), appearance_.prefersHighContrast());
    const std::optional<QColor> accent = appearance_.accentColour();
    colours_ = accent ? palette.withAccent(*accent) : palette;
    Q_EMIT changed();
}

void Theme::installIn(QQmlEngine& engine) {
    engine.setProperty(engineProperty, QVariant::fromValue(this));
}

Theme* Theme::of(const QQmlEngine& engine) {
    return engine.property(engineProperty).value<Theme*>();
}

Theme* Theme::create(QQmlEngine* engine, QJSEngine*) {
    Theme* theme = of(*engine);
    QJSEngine::setObjectOwnership(theme, QJSEngine::CppOwnership);
    return theme;
}

QFont Theme::textFont(int size, int weight) const {
    QFont font = sized(tessarine::textFont(), size);
    font.setWeight(QFont::Weight(weight));
    return font;
}

QFont Theme::monospacedFont(int size) const {
    return sized(tessarine::monospacedFont(), size);
}

// Not composed in QML: in Qt 6.4 its compiled code may end the program while it turns a colour into
// a text.
QString Theme::symbolSource(const QString& name, const QColor& tint) const {
    return name.isEmpty() ? QString() : symbolAddress(name, tint);
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

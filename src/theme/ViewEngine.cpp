#include "theme/ViewEngine.h"

#include "theme/Fonts.h"
#include "theme/SymbolProvider.h"
#include "theme/Theme.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTranslator>

// In the sources that Qt makes for the module. Naming it keeps a static library's types from being
// left out of the program.
void qml_register_types_Tessarine_Theme();

namespace tessarine {

namespace {

constexpr char themeProperty[] = "tessarineTheme";

void installTexts() {
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (!translator->load(QStringLiteral(":/texts/tessarine_en.qm")))
        qFatal("The program was built without its texts");
    QCoreApplication::installTranslator(translator);
}

} // namespace

void registerUi() {
    [[maybe_unused]] const volatile auto types = &qml_register_types_Tessarine_Theme;
    installTexts();
    QGuiApplication::setFont(textFont());
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    // Small text is sharper when the system's rasteriser draws it.
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
}

std::unique_ptr<QQmlEngine> makeViewEngine(Theme& theme, const Symbols& symbols) {
    auto engine = std::make_unique<QQmlEngine>();
    engine->setProperty(themeProperty, QVariant::fromValue(&theme));
    engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine->addImageProvider(QStringLiteral("symbols"), new SymbolProvider(symbols));
    return engine;
}

Theme* themeOf(const QQmlEngine& engine) {
    return engine.property(themeProperty).value<Theme*>();
}

} // namespace tessarine

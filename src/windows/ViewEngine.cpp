#include "windows/ViewEngine.h"

#include "theme/Fonts.h"
#include "theme/ProgramIcon.h"
#include "theme/SymbolProvider.h"
#include "theme/Texts.h"
#include "theme/Theme.h"

#include <QGuiApplication>
#include <QLocale>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QQuickWindow>

// In the sources that Qt makes for the modules. Naming them keeps a static library's types from
// being left out of the program.
void qml_register_types_Tessarine_Controls();
void qml_register_types_Tessarine_Theme();

namespace tessarine {

void registerUi() {
    [[maybe_unused]] const volatile auto controls = &qml_register_types_Tessarine_Controls;
    [[maybe_unused]] const volatile auto theme = &qml_register_types_Tessarine_Theme;
    installTexts(QLocale().uiLanguages());
    QGuiApplication::setFont(textFont());
    QGuiApplication::setWindowIcon(programIcon());
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    // Small text is sharper when the system's rasteriser draws it.
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
}

std::unique_ptr<QQmlEngine> makeViewEngine(Theme& theme, const Symbols& symbols) {
    auto engine = std::make_unique<QQmlEngine>();
    theme.installIn(*engine);
    engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine->addImageProvider(QStringLiteral("symbols"), new SymbolProvider(symbols));
    return engine;
}

} // namespace tessarine

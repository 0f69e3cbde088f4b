#include "windows/ViewEngine.h"

#include "theme/Fonts.h"
#include "theme/ProgramIcon.h"
#include "theme/SymbolProvider.h"
#include "theme/Theme.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTranslator>

// In the sources that Qt makes for the modules. Naming them keeps a static library's types from
// being left out of the program.
void qml_register_types_Tessarine_Controls();
void qml_register_types_Tessarine_Theme();

namespace tessarine {

namespace {

void installTexts() {
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (!translator->load(QStringLiteral(":/texts/tessarine_en.qm")))
        qFatal("The program was built without its texts");
    QCoreApplication::installTranslator(translator);
}

} // namespace

void registerUi() {
    [[maybe_unused]] const volatile auto controls = &qml_register_types_Tessarine_Controls;
    [[maybe_unused]] const volatile auto theme = &qml_register_types_Tessarine_Theme;
    installTexts();
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

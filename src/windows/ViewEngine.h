#pragma once

#include <memory>

class QQmlEngine;

namespace tessarine {

class Symbols;
class Theme;

// Prepares the process for windows: texts, fonts, icon, style of controls. Once, after the
// application object and before the first engine.
void registerUi();

// An engine that finds the program's QML modules, its symbols and the theme, both of which outlive
// it. One engine serves all windows.
std::unique_ptr<QQmlEngine> makeViewEngine(Theme& theme, const Symbols& symbols);

} // namespace tessarine

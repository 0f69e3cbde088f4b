#include "settings/PreferencesWindow.h"

#include "theme/Theme.h"

#include <QQuickView>

// In the sources that Qt makes for the modules. Naming them keeps a static library's types from
// being left out of the program.
void qml_register_types_Tessarine_Apps();
void qml_register_types_Tessarine_Settings();

namespace tessarine {

namespace {

constexpr QSize firstPreferencesSize(480, 500);
constexpr int resizeTime = 180; // milliseconds

ViewWindow::Description description(PreferencesView& view) {
    [[maybe_unused]] const volatile auto icons = &qml_register_types_Tessarine_Apps;
    [[maybe_unused]] const volatile auto types = &qml_register_types_Tessarine_Settings;
    return {qtTrId("prefs.window.title"),
            QStringLiteral("Tessarine/Settings/PreferencesPane"),
            {{QStringLiteral("view"), QVariant::fromValue(&view)}},
            WindowFeature::closable,
            {}};
}

} // namespace

PreferencesWindow::PreferencesWindow(const PreferencesView::Services& services, QQmlEngine& engine)
    : engine_(engine)
    , view_(services)
    , window_(description(view_), engine) {
    window_.centre(firstPreferencesSize);
    QObject::connect(&window_, &ViewWindow::shown, &view_, &PreferencesView::appear);
    QObject::connect(&window_, &ViewWindow::hidden, &view_, &PreferencesView::disappear);
    QObject::connect(&view_, &PreferencesView::selectedTabChanged, &window_,
                     [this] { takeHeightOfTab(); });
    // The desktop's own settings may have switched the start at login meanwhile.
    QObject::connect(&window_.window(), &QWindow::activeChanged, view_.general(),
                     &GeneralSettings::refreshLaunchAtLogin);
}

void PreferencesWindow::takeHeightOfTab() {
    const bool moves = !Theme::of(engine_)->reducesMotion();
    window_.changeHeight(windowHeight(view_.selectedTab()), moves ? resizeTime : 0);
}

QQuickWindow* PreferencesWindow::window() const {
    return &window_.window();
}

} // namespace tessarine

#include "core/AppDelegate.h"

#include "diagnosticsview/DiagnosticsWindow.h"
#include "platform/DefaultsKeys.h"

#include <QCoreApplication>
#include <QQmlEngine>
#include <QQuickView>

namespace tessarine {

namespace {

constexpr double memoryDelay = 2.0; // seconds from the closing of the window

} // namespace

AppDelegate::AppDelegate(ViewServices& views)
    : views_(views)
    , launchFlow_(views.services) {}

AppDelegate::~AppDelegate() {
    // Going, the windows hide, which asks the guard whether this object lives.
    mainWindow_.reset();
    delete ViewWindow::titled(diagnosticsTitle());
}

void AppDelegate::applicationDidFinishLaunching() {
    Services& services = views_.services;
    UserDefaults& defaults = *services.platform.userDefaults;
    views_.desktop.application->useAccessoryPolicy();
    // The program starts silent: no system may bring its windows back after a quit.
    defaults.setBoolean(defaultsKeys::restoresWindows, false);
    applyAppearance(services.preferences.appearanceMode());
    launchAgent_ = std::make_unique<LaunchAgentManager>(*services.platform.loginItem,
                                                        *services.platform.fileSystem);
    menuBarController_ = std::make_unique<MenuBarController>(
        *views_.desktop.statusItem, services.listener, defaults, *launchAgent_,
        [this] { showMainWindow(); }, [] { QCoreApplication::quit(); });
    mainWindow_ = std::make_unique<MainWindow>(views_.browser(), defaults, *views_.engine);
    watchWindow(*mainWindow_->window());
    launchFlow_.begin();
}

// Once the renderer has let go of what it had for the window, on its thread and on this one.
void AppDelegate::watchWindow(const QWindow& window) {
    QObject::connect(&window, &QWindow::visibleChanged, &window, [this](bool visible) {
        if (visible)
            return;
        views_.services.platform.scheduler->onMainAfter(memoryDelay,
                                                        alive_.guard([this] { giveMemoryBack(); }));
    });
}

void AppDelegate::giveMemoryBack() {
    if (mainWindow_->isVisible())
        return;
    views_.engine->collectGarbage();
    views_.desktop.application->returnFreeMemory();
}

void AppDelegate::showMainWindow() {
    mainWindow_->showAndMakeKey();
    views_.desktop.application->activate(*mainWindow_->window());
    menuBarController_->markAllSeen();
}

void AppDelegate::showDiagnostics() {
    const bool isNew = !ViewWindow::titled(diagnosticsTitle());
    ViewWindow& window = diagnosticsWindow(views_.diagnostics(), *views_.engine);
    if (isNew)
        watchWindow(window.window());
    window.showAndMakeKey();
    views_.desktop.application->activate(window.window());
}

void AppDelegate::activate() {
    if (const ViewWindow* const diagnostics = ViewWindow::titled(diagnosticsTitle()))
        views_.desktop.application->activate(diagnostics->window());
    if (mainWindow_ && mainWindow_->isVisible())
        views_.desktop.application->activate(*mainWindow_->window());
}

void AppDelegate::applyAppearance(const QString& mode) {
    views_.theme.applyAppearance(mode);
}

} // namespace tessarine

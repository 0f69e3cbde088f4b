#include "core/AppDelegate.h"

#include "platform/DefaultsKeys.h"

#include <QCoreApplication>
#include <QQmlEngine>
#include <QQuickWindow>

namespace tessarine {

namespace {

constexpr double memoryDelay = 2.0; // seconds from the closing of the window

} // namespace

AppDelegate::AppDelegate(ViewServices& views)
    : views_(views)
    , launchFlow_(views.services) {}

AppDelegate::~AppDelegate() {
    // Going, the window hides, which asks the guard whether this object lives.
    preferencesWindow_.reset();
    mainWindow_.reset();
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
        MenuBarController::Actions{[this] { showMainWindow(); }, [this] { showPreferences(); },
                                   [] { QCoreApplication::quit(); }});
    mainWindow_ = std::make_unique<MainWindow>(views_.browser(), defaults, *views_.engine);
    watch(*mainWindow_->window());
    launchFlow_.begin();
}

// Once the renderer has let go of what it had for the window, on its thread and on this one.
void AppDelegate::watch(const QWindow& window) {
    QObject::connect(&window, &QWindow::visibleChanged, &window, [this](bool visible) {
        if (visible)
            return;
        views_.services.platform.scheduler->onMainAfter(memoryDelay,
                                                        alive_.guard([this] { giveMemoryBack(); }));
    });
}

void AppDelegate::giveMemoryBack() {
    if (mainWindow_->isVisible() || (preferencesWindow_ && preferencesWindow_->isVisible()))
        return;
    views_.engine->collectGarbage();
    views_.desktop.application->returnFreeMemory();
}

void AppDelegate::showMainWindow() {
    mainWindow_->showAndMakeKey();
    views_.desktop.application->activate(*mainWindow_->window());
    menuBarController_->markAllSeen();
}

void AppDelegate::showPreferences() {
    if (!preferencesWindow_) {
        preferencesWindow_ = makePreferencesWindow();
        watch(*preferencesWindow_->window());
    }
    preferencesWindow_->showAndMakeKey();
    views_.desktop.application->activate(*preferencesWindow_->window());
}

std::unique_ptr<PreferencesWindow> AppDelegate::makePreferencesWindow() {
    const LaunchAtLogin launchAtLogin{[this] { return launchAgent_->isEnabled(); },
                                      [this] { launchAgent_->registerMainApp(); },
                                      [this] { launchAgent_->unregisterMainApp(); }};
    Services& services = views_.services;
    return std::make_unique<PreferencesWindow>(
        PreferencesView::Services{
            services.preferences, services.listener, services.hoard, services.platform,
            *views_.desktop.savePanel, launchAtLogin,
            alive_.guard([this](const QString& mode) { applyAppearance(mode); })},
        *views_.engine);
}

void AppDelegate::activate() {
    if (preferencesWindow_ && preferencesWindow_->isVisible())
        views_.desktop.application->activate(*preferencesWindow_->window());
    if (mainWindow_ && mainWindow_->isVisible())
        views_.desktop.application->activate(*mainWindow_->window());
}

void AppDelegate::applyAppearance(const QString& mode) {
    views_.theme.applyAppearance(mode);
}

} // namespace tessarine

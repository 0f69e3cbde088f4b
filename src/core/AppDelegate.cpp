#include "core/AppDelegate.h"

#include "core/Retention.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QQuickWindow>

namespace tessarine {

namespace {

const QString restoreWindowsKey = QStringLiteral("NSQuitAlwaysKeepsWindows");

} // namespace

AppDelegate::AppDelegate(Services services)
    : services_(std::move(services))
    , listener_(NotificationListener::create(services_.capture))
    , launcher_(*services_.capture.platform.workspace, *services_.capture.platform.fileSystem,
                *services_.capture.platform.scheduler) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching() {
    Platform& platform = services_.capture.platform;
    services_.desktop.application->useAccessoryPolicy();
    // The program starts silent: no system may bring its windows back after a quit.
    platform.userDefaults->setBoolean(restoreWindowsKey, false);
    applyAppearance(services_.capture.preferences.appearanceMode());
    menuBarController_ = std::make_unique<MenuBarController>(
        *services_.desktop.statusItem, listener_, *platform.userDefaults,
        [this] { showMainWindow(); }, [] { QCoreApplication::quit(); });
    mainWindow_ =
        std::make_unique<MainWindow>(browserServices(), *platform.userDefaults, services_.views);
    beginLaunchFlow();
}

ContentView::Services AppDelegate::browserServices() {
    const NotificationListener::Services& capture = services_.capture;
    return {listener_,
            capture.hoard,
            capture.preferences,
            *capture.platform.scheduler,
            launcher_,
            [](const QString& text) { QGuiApplication::clipboard()->setText(text); },
            [](NotificationList list, std::function<void()> onDismiss) {
                return std::make_unique<ExportOptionsSheet>(std::move(list), std::move(onDismiss));
            }};
}

void AppDelegate::beginLaunchFlow() {
    finishStartup();
}

void AppDelegate::finishStartup() {
    applyRetention();
    listener_->start();
    fdaConfirmedAtLaunch_ =
        services_.capture.platform.fileSystem->grantsReading(listener_->usernotedDbPath());
}

void AppDelegate::applyRetention() {
    const NotificationListener::Services& capture = services_.capture;
    tessarine::applyRetention(capture.preferences, capture.hoard, capture.diagnostics);
}

void AppDelegate::showMainWindow() {
    mainWindow_->showAndMakeKey();
    services_.desktop.application->activate(*mainWindow_->window());
    menuBarController_->markAllSeen();
}

void AppDelegate::activate() {
    if (mainWindow_ && mainWindow_->isVisible())
        services_.desktop.application->activate(*mainWindow_->window());
}

void AppDelegate::applyAppearance(const QString& mode) {
    services_.theme.applyAppearance(mode);
}

} // namespace tessarine

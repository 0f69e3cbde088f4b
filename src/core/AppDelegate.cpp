#include "core/AppDelegate.h"

#include "help/HelpWindow.h"
#include "platform/DefaultsKeys.h"

#include <QCoreApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>

namespace tessarine {

namespace {

constexpr double memoryDelay = 2.0; // seconds from the closing of the window

// The root of the window for updates says how large it is.
ViewWindow::Description updateNotice() {
    return {qtTrId("updates.window.title"),
            QStringLiteral("Tessarine/Shell/UpdateNotice"),
            {{QStringLiteral("version"), QCoreApplication::applicationVersion()}},
            WindowFeature::closable};
}

} // namespace

AppDelegate::AppDelegate(ViewServices& views)
    : views_(views)
    , launchFlow_(views.services, [this] { permissionFlow_->runPermissionChecks(); }) {}

AppDelegate::~AppDelegate() {
    // Going, a window hides, which asks the guard whether this object lives.
    updateNotice_.reset();
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
    permissionFlow_ = std::make_unique<PermissionFlow>(views_, *launchAgent_);
    menuBarController_ = std::make_unique<MenuBarController>(
        *views_.desktop.statusItem, services.listener, defaults, *launchAgent_, menuActions());
    mainWindow_ = std::make_unique<MainWindow>(views_.browser(), defaults, *views_.engine);
    watchWindow(*mainWindow_->window());
    launchFlow_.begin();
}

MenuBarController::Actions AppDelegate::menuActions() {
    return {[this] { showMainWindow(); }, [this] { checkForUpdates(); },
            [] { QCoreApplication::quit(); }};
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
    if (!ViewWindow::allVisible().empty())
        return;
    views_.engine->collectGarbage();
    views_.desktop.application->returnFreeMemory();
}

void AppDelegate::showMainWindow() {
    mainWindow_->showAndMakeKey();
    views_.desktop.application->activate(*mainWindow_->window());
    menuBarController_->markAllSeen();
}

void AppDelegate::checkForUpdates() {
    if (!views_.desktop.updater->checkForUpdates())
        showUpdateNotice();
}

void AppDelegate::showUpdateNotice() {
    if (!updateNotice_) {
        updateNotice_ = std::make_unique<ViewWindow>(updateNotice(), *views_.engine);
        const QQuickItem& root = updateNotice_->root();
        updateNotice_->centre(QSizeF(root.implicitWidth(), root.implicitHeight()).toSize());
        watchWindow(updateNotice_->window());
    }
    updateNotice_->showAndMakeKey();
    views_.desktop.application->activate(updateNotice_->window());
}

void AppDelegate::showHelp() {
    ViewWindow& help =
        *makeHelpWindow({*views_.services.platform.scheduler, QString(), {}}, *views_.engine);
    watchWindow(help.window());
    help.showAndMakeKey();
    views_.desktop.application->activate(help.window());
}

void AppDelegate::activate() {
    for (const ViewWindow* window : ViewWindow::allVisible())
        views_.desktop.application->activate(window->window());
}

void AppDelegate::applyAppearance(const QString& mode) {
    views_.theme.applyAppearance(mode);
}

} // namespace tessarine

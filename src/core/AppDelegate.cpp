#include "core/AppDelegate.h"

#include "diagnosticsview/DiagnosticsWindow.h"
#include "help/HelpWindow.h"
#include "onboarding/Agreement.h"
#include "platform/DefaultsKeys.h"

#include <QCoreApplication>
#include <QLocale>
#include <QQuickItem>
#include <QQuickView>

namespace tessarine {

namespace {

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
    , launchFlow_(views.services,
                  {[this] { onboardingFlow_.showOnboarding(OnboardingFlow::Guide::firstRun, 0); },
                   [this] { permissionFlow_->runPermissionChecks(); }})
    , onboardingFlow_(views, {[this] { permissionFlow_->runPermissionChecks(); },
                              [this] { launchFlow_.finishStartup(); },
                              [] { QCoreApplication::quit(); }}) {}

AppDelegate::~AppDelegate() {
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
    permissionFlow_ = std::make_unique<PermissionFlow>(views_, *launchAgent_, [this] {
        onboardingFlow_.showOnboarding(OnboardingFlow::Guide::later, 1);
    });
    menuBarController_ = std::make_unique<MenuBarController>(
        *views_.desktop.statusItem, services.listener, defaults, *launchAgent_, menuActions());
    mainWindow_ = std::make_unique<MainWindow>(views_.browser(), defaults, *views_.engine);
    launchFlow_.beginLaunchFlow();
}

MenuBarController::Actions AppDelegate::menuActions() {
    MenuBarController::Actions actions;
    actions.openHoard = [this] { showMainWindow(); };
    actions.openPreferences = afterConsent([this] { showPreferences(); });
    actions.openDiagnostics = afterConsent([this] { showDiagnostics(); });
    actions.openHelp = [this] { showHelp(); };
    actions.openWelcomeGuide =
        afterConsent([this] { onboardingFlow_.showOnboarding(OnboardingFlow::Guide::later, 0); });
    actions.openFullDiskAccess =
        afterConsent([this] { permissionFlow_->showFullDiskAccessPromptAgain(); });
    actions.lacksFullDiskAccess = [this] { return permissionFlow_->lacksFullDiskAccess(); };
    actions.checkForUpdates = [this] { checkForUpdates(); };
    actions.quit = [] { QCoreApplication::quit(); };
    return actions;
}

// What would read the hoard, or stand in the way of the agreement, leads to that first.
MenuBarController::Action AppDelegate::afterConsent(MenuBarController::Action action) {
    return [this, action = std::move(action)] {
        if (views_.services.preferences.hasAcceptedEULA())
            action();
        else
            onboardingFlow_.raiseOnboarding();
    };
}

void AppDelegate::showMainWindow() {
    if (!views_.services.preferences.hasAcceptedEULA()) {
        onboardingFlow_.raiseOnboarding();
        return;
    }
    mainWindow_->showAndMakeKey();
    views_.bringToFront(*mainWindow_->window());
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
    }
    views_.bringToFront(*updateNotice_);
}

void AppDelegate::showDiagnostics() {
    views_.bringToFront(diagnosticsWindow(views_.diagnostics(), *views_.engine));
}

void AppDelegate::showPreferences() {
    if (!preferencesWindow_)
        preferencesWindow_ = makePreferencesWindow();
    preferencesWindow_->showAndMakeKey();
    views_.bringToFront(*preferencesWindow_->window());
}

std::unique_ptr<PreferencesWindow> AppDelegate::makePreferencesWindow() {
    const LaunchAtLogin launchAtLogin{[this] { return launchAgent_->isEnabled(); },
                                      [this] { launchAgent_->registerMainApp(); },
                                      [this] { launchAgent_->unregisterMainApp(); }};
    Services& services = views_.services;
    return std::make_unique<PreferencesWindow>(
        PreferencesView::Services{
            services.preferences,
            services.listener,
            services.hoard,
            services.platform,
            *views_.desktop.savePanel,
            launchAtLogin,
            alive_.guard([this](const QString& mode) { applyAppearance(mode); }),
            {[this] { onboardingFlow_.showPrivacyNotice(); },
             [this] { onboardingFlow_.showOnboarding(OnboardingFlow::Guide::later, 0); }}},
        *views_.engine);
}

void AppDelegate::showHelp() {
    ViewWindow& help = *makeHelpWindow(
        {*views_.services.platform.scheduler, agreementText(QLocale().uiLanguages()),
         alive_.guard([this] { onboardingFlow_.showPrivacyNotice(); })},
        *views_.engine);
    views_.bringToFront(help);
}

void AppDelegate::activate() {
    for (const ViewWindow* window : ViewWindow::allVisible())
        views_.desktop.application->activate(window->window());
}

void AppDelegate::applyAppearance(const QString& mode) {
    views_.theme.applyAppearance(mode);
}

} // namespace tessarine

#pragma once

#include "browser/MainWindow.h"
#include "core/LaunchFlow.h"
#include "core/OnboardingFlow.h"
#include "core/PermissionFlow.h"
#include "core/ViewServices.h"
#include "settings/PreferencesWindow.h"
#include "shared/AliveGuard.h"
#include "shell/LaunchAgentManager.h"
#include "shell/MenuBarController.h"
#include "windows/ViewWindow.h"

#include <memory>

namespace tessarine {

// The program's spine: owns the status item and the windows, and runs the launch steps in their
// order. There is no way back: nothing is flushed, closed or stopped at the end, since everything
// is on disk at each moment. Main thread.
class AppDelegate {
public:
    // The services of the views outlive the delegate.
    explicit AppDelegate(ViewServices& views);
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;
    ~AppDelegate();

    // The launch steps. Once, when the application runs.
    void applicationDidFinishLaunching();

    // Brings the main window to the front and takes all notifications as seen. Before the user has
    // agreed the guide comes instead, since a list would need the hoard.
    void showMainWindow();

    // The system's updater, or what there is to say where it has none.
    void checkForUpdates();

    // Brings the diagnostics window to the front. There is never a second one.
    void showDiagnostics();

    // Brings the preferences to the front. Their window is built at the first request. Not before
    // the launch steps.
    void showPreferences();

    // The manual, in a new window each time. A window that is closed goes.
    void showHelp();

    // What another start of the program asks for: the windows that are open come to the front. One
    // that is hidden stays hidden.
    void activate();

    // "light", "dark"; anything else follows the system.
    void applyAppearance(const QString& mode);

    const LaunchFlow& launchFlow() const { return launchFlow_; }
    OnboardingFlow& onboardingFlow() { return onboardingFlow_; }

    // Null until the launch steps have made it.
    const PermissionFlow* permissionFlow() const { return permissionFlow_.get(); }

    // Null until the launch steps have made it.
    MainWindow* mainWindow() const { return mainWindow_.get(); }

    // Null until they were asked for.
    PreferencesWindow* preferencesWindow() const { return preferencesWindow_.get(); }

private:
    MenuBarController::Actions menuActions();
    MenuBarController::Action afterConsent(MenuBarController::Action action);
    void showUpdateNotice();
    std::unique_ptr<PreferencesWindow> makePreferencesWindow();

    ViewServices& views_;
    LaunchFlow launchFlow_;
    std::unique_ptr<LaunchAgentManager> launchAgent_;
    OnboardingFlow onboardingFlow_;
    std::unique_ptr<PermissionFlow> permissionFlow_;
    std::unique_ptr<MenuBarController> menuBarController_;
    std::unique_ptr<MainWindow> mainWindow_;
    std::unique_ptr<ViewWindow> updateNotice_; // null until it was asked for
    std::unique_ptr<PreferencesWindow> preferencesWindow_;
    AliveGuard alive_;
};

} // namespace tessarine

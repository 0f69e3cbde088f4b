#pragma once

#include "browser/MainWindow.h"
#include "core/LaunchFlow.h"
#include "core/PermissionFlow.h"
#include "core/ViewServices.h"
#include "shared/AliveGuard.h"
#include "shell/LaunchAgentManager.h"
#include "shell/MenuBarController.h"
#include "windows/ViewWindow.h"

#include <memory>

class QWindow;

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

    // Brings the main window to the front and takes all notifications as seen.
    void showMainWindow();

    // The system's updater, or what there is to say where it has none.
    void checkForUpdates();

    // The manual, in a new window each time. A window that is closed goes.
    void showHelp();

    // What another start of the program asks for: the windows that are open come to the front. One
    // that is hidden stays hidden.
    void activate();

    // "light", "dark"; anything else follows the system.
    void applyAppearance(const QString& mode);

    const LaunchFlow& launchFlow() const { return launchFlow_; }

    // Null until the launch steps have made it.
    const PermissionFlow* permissionFlow() const { return permissionFlow_.get(); }

    // Null until the launch steps have made it.
    MainWindow* mainWindow() const { return mainWindow_.get(); }

private:
    MenuBarController::Actions menuActions();
    void showUpdateNotice();
    void watchWindow(const QWindow& window);
    void giveMemoryBack();

    ViewServices& views_;
    LaunchFlow launchFlow_;
    std::unique_ptr<LaunchAgentManager> launchAgent_;
    std::unique_ptr<PermissionFlow> permissionFlow_;
    std::unique_ptr<MenuBarController> menuBarController_;
    std::unique_ptr<MainWindow> mainWindow_;
    std::unique_ptr<ViewWindow> updateNotice_; // null until it was asked for
    AliveGuard alive_;
};

} // namespace tessarine

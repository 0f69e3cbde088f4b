#pragma once

#include "apps/AppLauncher.h"
#include "browser/MainWindow.h"
#include "capture/NotificationListener.h"
#include "platform/Desktop.h"
#include "platform/Platform.h"
#include "preferences/PreferencesStore.h"
#include "shell/MenuBarController.h"
#include "theme/Theme.h"

#include <QObject>

#include <memory>

class QQmlEngine;

namespace tessarine {

// The program's spine: owns the listener, the status item and the windows, and runs the launch
// steps in their order. There is no way back: nothing is flushed, closed or stopped at the end,
// since everything is on disk at each moment. Main thread.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    struct Services {
        NotificationListener::Services capture;
        Desktop& desktop;
        Theme& theme;
        QQmlEngine& views;
    };

    explicit AppDelegate(Services services);
    ~AppDelegate() override;

    // The launch steps. Once, when the application runs.
    void applicationDidFinishLaunching();

    // Brings the main window to the front and takes all notifications as seen.
    void showMainWindow();

    // What another start of the program asks for: the windows that are open come to the front. One
    // that is hidden stays hidden.
    void activate();

    // "light", "dark"; anything else follows the system.
    void applyAppearance(const QString& mode);

    // Whether the system database was readable at launch. Recorded; nothing decides by it.
    bool fdaConfirmedAtLaunch() const { return fdaConfirmedAtLaunch_; }

private:
    ContentView::Services browserServices();
    void beginLaunchFlow();
    void finishStartup();
    void applyRetention();

    Services services_;
    std::shared_ptr<NotificationListener> listener_;
    AppLauncher launcher_;
    std::unique_ptr<MenuBarController> menuBarController_;
    std::unique_ptr<MainWindow> mainWindow_;
    bool fdaConfirmedAtLaunch_ = false;
};

} // namespace tessarine

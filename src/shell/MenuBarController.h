#pragma once

#include "platform/StatusItem.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace tessarine {

class LaunchAgentManager;
class NotificationListener;
class UserDefaults;

// The status item: a bell, how many notifications came since the user last looked, and the menu.
// Main thread.
class MenuBarController : public QObject {
    Q_OBJECT

public:
    using Action = std::function<void()>;

    // What the entries of the menu do, and the click with Option.
    struct Actions {
        Action openHoard;
        Action openHelp;
        Action openWelcomeGuide;
        Action openPreferences;
        Action openFullDiskAccess;
        std::function<bool()> lacksFullDiskAccess; // asked each time that the menu opens
        Action checkForUpdates;
        Action openDiagnostics; // has no entry
        Action quit;
    };

    // Shows the item. Item, defaults and manager outlive the controller.
    MenuBarController(StatusItem& statusItem, std::shared_ptr<NotificationListener> listener,
                      UserDefaults& defaults, const LaunchAgentManager& launchAgent,
                      Actions actions);

    // The list as it stands counts as seen, in later processes too.
    void markAllSeen();

    qint64 lastSeenCount() const { return lastSeenCount_; }

    // The badge for a number of unseen notifications: "", " 5", from 100 on " 99+".
    static QString badge(qint64 count);

    // The same in words; empty without any.
    static QString tip(quint64 count);

private:
    qint64 listCount() const;
    void updateBadge();
    StatusMenu menu() const;
    StatusMenuItem launchAtLogin() const;

    StatusItem& statusItem_;
    std::shared_ptr<NotificationListener> listener_;
    UserDefaults& defaults_;
    const LaunchAgentManager& launchAgent_;
    Actions actions_;
    qint64 lastSeenCount_;
    std::optional<QString> shownTitle_;
};

} // namespace tessarine

#pragma once

#include "core/ViewServices.h"
#include "shared/AliveGuard.h"
#include "shell/LaunchAgentManager.h"
#include "windows/ViewWindow.h"

#include <QPointer>

#include <functional>

namespace tessarine {

// Asks the user for what the program could do more with, in a settled order. Main thread.
class PermissionFlow {
public:
    // How long after the checks the windows come, in seconds. The question about the login comes
    // over the one about the files.
    static constexpr double promptDelay = 0.6;
    static constexpr double fdaPromptDelay = 0.3;

    // Both outlive the flow. The guide leads to the permission without which nothing is seen.
    PermissionFlow(ViewServices& views, const LaunchAgentManager& launchAgent,
                   std::function<void()> showGuide);
    PermissionFlow(const PermissionFlow&) = delete;
    PermissionFlow& operator=(const PermissionFlow&) = delete;
    ~PermissionFlow(); // takes its windows with it

    // Once the program is at work, and again whenever something may have changed.
    void runPermissionChecks();

    // Asks soon whether to start at login, unless that is so, or the user wants no such question,
    // or it stands on the screen or has been closed without an answer.
    void scheduleLaunchAtLoginPrompt();

    // A new window in place of the one that may be there.
    void showFullDiskAccessPrompt();

    // The same for one who has skipped it before.
    void showFullDiskAccessPromptAgain();

    // Whether the system's database can't be read for want of a permission.
    bool lacksFullDiskAccess() const;

    // Null until they were shown, and after an answer. One that was closed by its frame stays.
    ViewWindow* launchPromptWindow() const { return launchPromptWindow_; }
    ViewWindow* permissionWindow() const { return permissionWindow_; }

    bool launchAtLoginPromptDismissedThisSession() const {
        return launchAtLoginPromptDismissedThisSession_;
    }
    bool fdaPromptDismissedThisSession() const { return fdaPromptDismissedThisSession_; }

private:
    void showLaunchAtLoginPrompt();
    void scheduleFullDiskAccessPrompt();
    void onFullDiskAccessEnabled();
    void onFullDiskAccessSkipped();
    QString fdaPath() const;

    ViewServices& views_;
    const LaunchAgentManager& launchAgent_;
    std::function<void()> showGuide_;
    QPointer<ViewWindow> launchPromptWindow_;
    QPointer<ViewWindow> permissionWindow_;
    bool launchAtLoginPromptDismissedThisSession_ = false;
    bool fdaPromptDismissedThisSession_ = false;
    AliveGuard alive_;
};

} // namespace tessarine

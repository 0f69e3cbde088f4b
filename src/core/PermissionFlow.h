#pragma once

#include "core/ViewServices.h"
#include "shared/AliveGuard.h"
#include "shell/LaunchAgentManager.h"
#include "windows/ViewWindow.h"

#include <QPointer>

namespace tessarine {

// Asks the user for what the program could do more with, in a settled order. Main thread.
class PermissionFlow {
public:
    // How long after the checks the question about the login comes, in seconds.
    static constexpr double promptDelay = 0.6;

    // Both outlive the flow.
    PermissionFlow(ViewServices& views, const LaunchAgentManager& launchAgent);
    PermissionFlow(const PermissionFlow&) = delete;
    PermissionFlow& operator=(const PermissionFlow&) = delete;
    ~PermissionFlow(); // takes its windows with it

    // Once the program is at work, and again whenever something may have changed.
    void runPermissionChecks();

    // Asks soon whether to start at login, unless that is so, or the user wants no such question,
    // or it stands on the screen or has been closed without an answer.
    void scheduleLaunchAtLoginPrompt();

    // Null until it was shown, and after an answer. One that was closed by its frame stays.
    ViewWindow* launchPromptWindow() const { return launchPromptWindow_; }
    bool launchAtLoginPromptDismissedThisSession() const {
        return launchAtLoginPromptDismissedThisSession_;
    }

private:
    void showLaunchAtLoginPrompt();
    void closeLaunchAtLoginPrompt();

    ViewServices& views_;
    const LaunchAgentManager& launchAgent_;
    QPointer<ViewWindow> launchPromptWindow_;
    bool launchAtLoginPromptDismissedThisSession_ = false;
    AliveGuard alive_;
};

} // namespace tessarine

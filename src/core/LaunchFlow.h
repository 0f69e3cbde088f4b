#pragma once

#include "core/Services.h"
#include "shared/AliveGuard.h"

#include <functional>
#include <utility>

namespace tessarine {

// The steps of a launch that need no window, in their order. Main thread.
class LaunchFlow {
public:
    // How long access to notifications may take to come, in seconds, before its lack is told.
    static constexpr double accessGrace = 5;

    // What follows once the program is at work: the checks of what it may do.
    using PermissionChecks = std::function<void()>;

    // The services outlive the flow.
    LaunchFlow(Services& services, PermissionChecks runPermissionChecks)
        : services_(services)
        , runPermissionChecks_(std::move(runPermissionChecks)) {}

    // What must not start before the user has agreed stands behind this. Leads to finishStartup.
    void begin();

    // Lets go what the user doesn't want to keep, then captures. What makes that impossible is told
    // in a line each on standard error, for whoever started the program from a terminal or reads
    // the session's log.
    void finishStartup();

    // Whether the system database was readable at launch. Recorded; nothing decides by it.
    bool fdaConfirmedAtLaunch() const { return fdaConfirmedAtLaunch_; }

private:
    void tellWhatIsMissing();

    Services& services_;
    PermissionChecks runPermissionChecks_;
    bool fdaConfirmedAtLaunch_ = false;
    AliveGuard alive_;
};

} // namespace tessarine

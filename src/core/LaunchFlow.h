#pragma once

#include "core/Services.h"
#include "shared/AliveGuard.h"

#include <functional>
#include <utility>

namespace tessarine {

// The steps of a launch in their order. Main thread.
class LaunchFlow {
public:
    // How long access to notifications may take to come, in seconds, before its lack is told.
    static constexpr double accessGrace = 5;

    // How long after the launch the guide of the first start comes, in seconds.
    static constexpr double firstRunDelay = 0.4;

    // What needs windows.
    struct Steps {
        std::function<void()> showFirstRun;        // leads to finishStartup once the user agrees
        std::function<void()> runPermissionChecks; // once the program is at work
    };

    // The services outlive the flow.
    LaunchFlow(Services& services, Steps steps)
        : services_(services)
        , steps_(std::move(steps)) {}

    // The gate: nothing is captured, read or deleted before the user has agreed.
    void beginLaunchFlow();

    // Lets go what the user doesn't want to keep, then captures. What makes that impossible is told
    // in a line each on standard error, for whoever started the program from a terminal or reads
    // the session's log.
    void finishStartup();

    // Whether the system database was readable at launch. Recorded; nothing decides by it.
    bool fdaConfirmedAtLaunch() const { return fdaConfirmedAtLaunch_; }

private:
    void tellWhatIsMissing();

    Services& services_;
    Steps steps_;
    bool fdaConfirmedAtLaunch_ = false;
    AliveGuard alive_;
};

} // namespace tessarine

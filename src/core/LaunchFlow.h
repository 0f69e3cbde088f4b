#pragma once

#include "core/Services.h"

namespace tessarine {

// The steps of a launch that need no window, in their order. Main thread.
class LaunchFlow {
public:
    // The services outlive the flow.
    explicit LaunchFlow(Services& services)
        : services_(services) {}

    // What must not start before the user has agreed stands behind this. Leads to finishStartup.
    void begin();

    // Lets go what the user doesn't want to keep, then captures.
    void finishStartup();

    // Whether the system database was readable at launch. Recorded; nothing decides by it.
    bool fdaConfirmedAtLaunch() const { return fdaConfirmedAtLaunch_; }

private:
    Services& services_;
    bool fdaConfirmedAtLaunch_ = false;
};

} // namespace tessarine

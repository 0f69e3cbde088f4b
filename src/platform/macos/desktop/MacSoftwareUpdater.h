#pragma once

#include "platform/SoftwareUpdater.h"

#include <memory>

namespace tessarine {

// Sparkle, where the program was built with it: it looks for new versions by itself from its
// construction on. Without it nothing does. The build chooses the source that defines this.
class MacSoftwareUpdater : public SoftwareUpdater {
public:
    MacSoftwareUpdater(); // after the application object
    ~MacSoftwareUpdater() override;

    bool checkForUpdates() override;

private:
    struct Controller;

    std::unique_ptr<Controller> controller_;
};

} // namespace tessarine

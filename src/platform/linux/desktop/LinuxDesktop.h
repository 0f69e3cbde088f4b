#pragma once

#include "platform/ApplicationControl.h"
#include "platform/SoftwareUpdater.h"

namespace tessarine {

class LinuxApplicationControl : public ApplicationControl {
public:
    // Nothing to do: a desktop lists windows, not programs.
    void useAccessoryPolicy() override {}

    // The window manager has the last word: it may only mark the window as wanting attention.
    void activate(QWindow& window) override;

    void returnFreeMemory() override;
};

// Here the package manager brings new versions.
class LinuxSoftwareUpdater : public SoftwareUpdater {
public:
    bool checkForUpdates() override { return false; }
};

} // namespace tessarine

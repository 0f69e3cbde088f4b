#pragma once

namespace tessarine {

// The way by which new versions of the program come. Main thread.
class SoftwareUpdater {
public:
    SoftwareUpdater() = default;
    SoftwareUpdater(const SoftwareUpdater&) = delete;
    SoftwareUpdater& operator=(const SoftwareUpdater&) = delete;
    virtual ~SoftwareUpdater() = default;

    // Asks for a newer version and tells the user of it in windows of its own. False where the
    // program has nothing to ask, since new versions come with those of all other programs.
    virtual bool checkForUpdates() = 0;
};

} // namespace tessarine

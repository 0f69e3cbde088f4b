#pragma once

namespace tessarine {

// The way by which new versions of the program come. Main thread.
class Updater {
public:
    Updater() = default;
    Updater(const Updater&) = delete;
    Updater& operator=(const Updater&) = delete;
    virtual ~Updater() = default;

    // Asks for a newer version and tells the user of it in windows of its own. False where the
    // program has nothing to ask, since new versions come with those of all other programs.
    virtual bool checkForUpdates() = 0;
};

} // namespace tessarine

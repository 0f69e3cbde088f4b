#pragma once

#include "platform/FileSystem.h"
#include "platform/LoginItem.h"

#include <functional>

namespace tessarine {

// Start at login, and the end of the mechanism that served for it before. Reports to nobody: what
// came of it stands on standard output, and in status(). Main thread.
class LaunchAgentManager {
public:
    using Print = std::function<void(const QString& line)>;

    // Removes the file of the older mechanism, if it is there. Item and file system outlive this.
    LaunchAgentManager(LoginItem& loginItem, const FileSystem& fileSystem,
                       Print print = printToStandardOutput);

    LoginItemStatus status() const { return loginItem_.status(); }
    bool isEnabled() const { return status() == LoginItemStatus::enabled; }

    void registerMainApp() const;
    void unregisterMainApp() const;

    // Off where it was on, else on.
    void toggle() const;

    static void printToStandardOutput(const QString& line);

private:
    void removeLegacyFile(const QString& path) const;

    LoginItem& loginItem_;
    Print print_;
};

} // namespace tessarine

#pragma once

#include "platform/SingleInstance.h"
#include "platform/linux/ActivationSocket.h"
#include "platform/posix/FileLock.h"

#include <QString>

#include <optional>

namespace tessarine {

// The claim is a lock on a file beside the one that is protected, never on that file itself: to
// close it once more would drop the locks that SQLite holds on it. Any spelling of the path, any
// link and any namespace that leads to the file leads to the same lock, and to the same first copy
// for its activation.
class LinuxSingleInstance : public SingleInstance {
public:
    // The path of the file that one copy may use.
    explicit LinuxSingleInstance(QString path);

    bool claim() override;
    void activateFirst() override;
    void onActivation(std::function<void()> handler) override;

private:
    FileLockState takeLock();

    const QString path_;
    FileLock lock_;
    std::optional<ActivationSocket> socket_;
};

} // namespace tessarine

#pragma once

#include "platform/SingleInstance.h"
#include "platform/linux/ActivationSocket.h"
#include "platform/linux/bus/ReturningService.h"
#include "platform/posix/FileLock.h"

#include <QString>

#include <memory>
#include <optional>

namespace tessarine {

// The claim is a lock on a file beside the one that is protected, never on that file itself: to
// close it once more would drop the locks that SQLite holds on it. Any spelling of the path, any
// link and any namespace that leads to the file leads to the same lock, and to the same first copy
// for its activation. A later copy asks by a socket, and the desktop by the session's bus.
class LinuxSingleInstance : public SingleInstance {
public:
    using Bus = ReturningService::Bus;

    // The path of the file that one copy may use, and how to get the session's bus once there is an
    // application object; without it the desktop can't ask.
    explicit LinuxSingleInstance(QString path, Bus bus = {});

    bool claim() override;
    void activateFirst() override;
    void onRequests(Requests requests) override;

private:
    FileLockState takeLock();

    const QString path_;
    const Bus bus_;
    FileLock lock_;
    QString token_; // of this process's own start
    std::optional<ActivationSocket> socket_;
    std::unique_ptr<ReturningService> service_;
};

} // namespace tessarine

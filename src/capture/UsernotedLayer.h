#pragma once

#include "capture/CaptureSink.h"
#include "capture/UsernotedDatabase.h"
#include "diagnostics/DiagnosticsStore.h"
#include "platform/FileWatcher.h"
#include "platform/Scheduler.h"
#include "platform/Workspace.h"
#include "shared/AliveGuard.h"
#include "store/HoardStore.h"

#include <QString>

#include <memory>

namespace tessarine {

// The layer that reads the database of the system's notification daemon: on each write of its
// write-ahead log, and every 30 seconds in case the watch sees nothing. Main thread, which a poll
// blocks for the length of a reading.
class UsernotedLayer {
public:
    struct Services {
        HoardStore& hoard;
        DiagnosticsStore& diagnostics;
        Scheduler& scheduler;
        FileWatcher& fileWatcher;
        const Workspace& workspace;
        CaptureSink& sink;
    };

    // The path need not exist.
    UsernotedLayer(QString path, const Services& services);

    // Sets up the watch and the timer. Once.
    void startWatcher();

    // Reads the rows after the cursor, moves and saves it, and stores them.
    void poll();

    const QString& path() const { return path_; }

    // The greatest date seen with the keys at it, and the greatest key taken.
    const UsernotedCursor& cursor() const { return cursor_; }
    qint64 lastSeenRecId() const { return lastSeenRecId_; }

    // Sets both, without saving them: for the recovery, which has read and saved them itself.
    void setCursor(const UsernotedCursor& cursor, qint64 lastSeenRecId);

private:
    NotificationList fetchNewRecords();
    void moveCursor(const UsernotedCursor& newest);
    void raiseLastSeenRecId(const NotificationList& records);

    const QString path_;
    Services services_;
    UsernotedCursor cursor_;
    qint64 lastSeenRecId_ = 0;
    std::unique_ptr<FileWatch> watchSource_;
    std::unique_ptr<RepeatingTimer> pollTimer_;
    AliveGuard alive_;
};

} // namespace tessarine

#pragma once

#include "capture/CaptureSink.h"
#include "capture/LegacyDatabase.h"
#include "platform/FileWatcher.h"
#include "platform/Scheduler.h"
#include "platform/Workspace.h"
#include "shared/AliveGuard.h"
#include "store/HoardStore.h"

#include <QString>

#include <memory>

namespace tessarine {

// The layer that reads the notification database of older systems, when there is one: whenever the
// file is written. It logs nothing but what it captured. Main thread, which a poll blocks for the
// length of a reading.
class LegacyLayer {
public:
    struct Services {
        HoardStore& hoard;
        Scheduler& scheduler;
        FileWatcher& fileWatcher;
        const Workspace& workspace;
        CaptureSink& sink;
    };

    // Finds the database in the folder and reads the names of its applications, once.
    LegacyLayer(const QString& folder, const Services& services);

    // Sets up the watch. Once.
    void startWatcher();

    // Reads the rows after the cursor, moves and saves it, and stores them.
    void poll();

    // The folder itself when there is no database in it.
    const QString& path() const { return path_; }

    // The greatest key taken. Setting it does not save it.
    qint64 lastSeenNoteId() const { return lastSeenNoteId_; }
    void setLastSeenNoteId(qint64 noteId) { lastSeenNoteId_ = noteId; }

private:
    NotificationList fetchNewRecords() const;

    const QString path_;
    const LegacyAppNames appNames_;
    Services services_;
    qint64 lastSeenNoteId_ = 0;
    std::unique_ptr<FileWatch> watchSource_;
    AliveGuard alive_;
};

} // namespace tessarine

#pragma once

#include "platform/Scheduler.h"

#include <QString>

#include <memory>

namespace tessarine {

// A running watch. Destroying it ends it. Main thread.
class FileWatch {
public:
    FileWatch() = default;
    FileWatch(const FileWatch&) = delete;
    FileWatch& operator=(const FileWatch&) = delete;
    virtual ~FileWatch() = default;
};

// Tells of writes to a file.
class FileWatcher {
public:
    FileWatcher() = default;
    FileWatcher(const FileWatcher&) = delete;
    FileWatcher& operator=(const FileWatcher&) = delete;
    virtual ~FileWatcher() = default;

    // Watches the file that is now at the path, until the watch is destroyed: one that takes its
    // place later goes unseen. For a folder, its entries coming and going. Null when there is
    // nothing to watch.
    //
    // The handler runs on the main thread. A write that happens before the call for an earlier
    // one has begun is merged into it; one that happens later leads to one more call. A system may
    // call once more when the writing has ended. ChangeMerger does all of this.
    virtual std::unique_ptr<FileWatch> watchWrites(const QString& path, Task handler) = 0;
};

} // namespace tessarine

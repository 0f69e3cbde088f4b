#pragma once

#include "platform/FileWatcher.h"

#include <dispatch/dispatch.h>

namespace tessarine {

// Watches by the kernel's events of a file, which follow the file and not its name. Opens the file
// for events alone: that is no opening that SQLite's locks would see.
class MacFileWatcher : public FileWatcher {
public:
    explicit MacFileWatcher(Scheduler& scheduler);

    std::unique_ptr<FileWatch> watchWrites(const QString& path, Task handler) override;

private:
    Scheduler& scheduler_;
    const dispatch_queue_t queue_; // of all watches
};

} // namespace tessarine

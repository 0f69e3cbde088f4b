#pragma once

#include "platform/posix/Descriptor.h"

#include <QString>

#include <optional>

#include <sys/types.h>

namespace tessarine {

// What a file is, whatever path leads to it.
struct FileIdentity {
    dev_t device = 0;
    ino_t inode = 0;

    bool operator==(const FileIdentity&) const = default;
};

enum class FileLockState {
    taken,
    takenByAnother,
    unavailable, // the file can't be made or opened, or its file system has no locks
};

// A lock that one process at a time can hold on a file, which exists for nothing else. It belongs
// to the file and not to its path, so every way that leads there meets the same lock. The kernel
// releases it when the process ends, however it ends.
class FileLock {
public:
    // Takes the lock without waiting for it. Makes the file, for its owner alone, if there is none,
    // and changes nothing of it while another holds the lock.
    FileLockState take(const QString& path);

    // Of the file. Nothing where the lock is unavailable because of it.
    std::optional<FileIdentity> identity() const;

private:
    Descriptor file_;
};

} // namespace tessarine

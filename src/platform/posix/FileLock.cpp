#include "platform/posix/FileLock.h"

#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace tessarine {

namespace {

// A file that may not be written, or lies where nothing may be, can be locked all the same. A pipe
// in its place must not be waited on.
Descriptor openOrMake(const QByteArray& path) {
    constexpr int flags = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    Descriptor file(open(path.constData(), O_RDWR | O_CREAT | flags, ownerOnly));
    return file.isOpen() ? std::move(file) : Descriptor(open(path.constData(), O_RDONLY | flags));
}

// A file that another user has put there, and may hold for ever, says nothing. To the system's
// administrator all files are open.
bool isTrusted(const struct stat& status) {
    return status.st_uid == geteuid() || geteuid() == 0;
}

FileLockState lock(const Descriptor& file) {
    while (flock(file.number(), LOCK_EX | LOCK_NB) != 0) {
        if (errno == EWOULDBLOCK)
            return FileLockState::takenByAnother;
        if (errno != EINTR)
            return FileLockState::unavailable;
    }
    return FileLockState::taken;
}

} // namespace

// The lock is one of the open file, not one of the process (fcntl's F_SETLK), which would go with
// the first descriptor of that file that anything in the process closes.
FileLockState FileLock::take(const QString& path) {
    file_ = openOrMake(QFile::encodeName(path));
    struct stat status {};
    if (!file_.isOpen() || fstat(file_.number(), &status) != 0 || !isTrusted(status)) {
        file_ = Descriptor();
        return FileLockState::unavailable;
    }
    const FileLockState state = lock(file_);
    // Whoever can open the file can hold it; and a umask must not shut its owner out.
    if (state == FileLockState::taken && (status.st_mode & ALLPERMS) != ownerOnly)
        static_cast<void>(fchmod(file_.number(), ownerOnly));
    return state;
}

std::optional<FileIdentity> FileLock::identity() const {
    struct stat status {};
    if (!file_.isOpen() || fstat(file_.number(), &status) != 0)
        return std::nullopt;
    return FileIdentity{status.st_dev, status.st_ino};
}

} // namespace tessarine

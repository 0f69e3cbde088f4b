#include "platform/posix/Paths.h"

#include "platform/posix/Descriptor.h"

#include <climits>

#include <sys/stat.h>

namespace tessarine {

namespace {

constexpr int mostLinks = 40; // as many as the system itself follows

// What a stranger puts into a folder that anyone can write to may be a trap.
bool mayBeFollowed(const QByteArray& path, const struct stat& link) {
    if (link.st_uid == geteuid())
        return true;
    struct stat folder {};
    const QByteArray name = folderOf(path) + '.';
    return stat(name.constData(), &folder) == 0 &&
           ((folder.st_mode & S_IWOTH) == 0 || folder.st_uid == link.st_uid);
}

} // namespace

QByteArray folderOf(const QByteArray& path) {
    return path.left(path.lastIndexOf('/') + 1);
}

std::error_code followLinks(QByteArray& path) {
    for (int links = 0; links <= mostLinks; ++links) {
        struct stat status {};
        if (lstat(path.constData(), &status) != 0 || !S_ISLNK(status.st_mode))
            return {}; // what else is wrong with the path shows when it is used
        if (!mayBeFollowed(path, status))
            return {EACCES, std::generic_category()};
        QByteArray target(PATH_MAX, '\0');
        const ssize_t size =
            readlink(path.constData(), target.data(), static_cast<std::size_t>(target.size()));
        if (size < 0)
            return lastError();
        target.truncate(size);
        path = target.startsWith('/') ? target : folderOf(path) + target;
    }
    return {ELOOP, std::generic_category()};
}

} // namespace tessarine

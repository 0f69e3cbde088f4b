#include "platform/PrivateFile.h"

#include "platform/posix/Descriptor.h"
#include "platform/posix/Paths.h"

#include <QFile>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>

namespace tessarine {

namespace {

std::error_code writeAll(const Descriptor& file, QByteArrayView bytes) {
    const char* next = bytes.data();
    auto left = static_cast<std::size_t>(bytes.size());
    while (left > 0) {
        const ssize_t written = write(file.number(), next, left);
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return lastError();
        next += written;
        left -= static_cast<std::size_t>(written);
    }
    return {};
}

// Devices and pipes keep the mode that others rely on.
bool isRegular(const Descriptor& file) {
    struct stat status {};
    return fstat(file.number(), &status) == 0 && S_ISREG(status.st_mode);
}

// Not an error where it fails: the file may belong to somebody else, the disk know no modes.
void narrow(const Descriptor& file) {
    static_cast<void>(fchmod(file.number(), ownerOnly));
}

std::error_code emptyOut(const Descriptor& file) {
    return ftruncate(file.number(), 0) == 0 ? std::error_code() : lastError();
}

std::error_code writeRegular(const Descriptor& file, const QByteArray& bytes) {
    narrow(file);
    if (const std::error_code error = emptyOut(file))
        return error;
    if (const std::error_code error = writeAll(file, bytes))
        return error;
    narrow(file); // whatever has happened to it meanwhile
    return {};
}

std::error_code writePatiently(const Descriptor& file, const QByteArray& bytes) {
    static_cast<void>(fcntl(file.number(), F_SETFL, 0));
    return writeAll(file, bytes);
}

// Pipes and devices have a place of their own for what is written to them; a file in their place
// would break whatever others use them for.
bool isPipeOrDevice(const QByteArray& path) {
    struct stat status {};
    return lstat(path.constData(), &status) == 0 && !S_ISREG(status.st_mode) &&
           !S_ISDIR(status.st_mode);
}

std::error_code fill(Descriptor& file, const QByteArray& bytes) {
    narrow(file); // whatever the process masks
    if (const std::error_code error = writeAll(file, bytes))
        return error;
    // On the disk before it takes the name, or a power cut may leave an empty file in its place.
    if (fsync(file.number()) != 0 && errno != EINVAL && errno != ENOTSUP)
        return lastError();
    return file.close();
}

std::error_code fillFrom(const ByteSource& next, Descriptor& file) {
    narrow(file); // whatever the process masks
    std::error_code error;
    for (QByteArrayView part = next(error); !error && !part.isEmpty(); part = next(error))
        error = writeAll(file, part);
    return error ? error : file.close();
}

// No error where nothing is.
std::error_code removeFileOrLink(const QByteArray& path) {
    struct stat status {};
    if (lstat(path.constData(), &status) != 0)
        return errno == ENOENT ? std::error_code() : lastError();
    if (S_ISDIR(status.st_mode))
        return {EISDIR, std::generic_category()};
    if (!S_ISREG(status.st_mode) && !S_ISLNK(status.st_mode))
        return {EOPNOTSUPP, std::generic_category()};
    return unlink(path.constData()) == 0 ? std::error_code() : lastError();
}

} // namespace

std::error_code writePrivately(const QString& path, const QByteArray& bytes) {
    // Not to be blocked by a pipe that nobody reads.
    Descriptor file(open(QFile::encodeName(path).constData(),
                         O_WRONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK, ownerOnly));
    if (!file.isOpen())
        return lastError();
    const std::error_code error =
        isRegular(file) ? writeRegular(file, bytes) : writePatiently(file, bytes);
    return error ? error : file.close();
}

std::error_code replacePrivately(const QString& path, const QByteArray& bytes) {
    QByteArray target = QFile::encodeName(path);
    if (const std::error_code refusal = followLinks(target))
        return refusal;
    if (isPipeOrDevice(target))
        return {EOPNOTSUPP, std::generic_category()};
    // Its name does not contain the target's, which may be as long as names can be.
    QByteArray temporary = folderOf(target) + ".tessarine-XXXXXX";
    Descriptor file(mkostemp(temporary.data(), O_CLOEXEC));
    if (!file.isOpen())
        return lastError();
    std::error_code error = fill(file, bytes);
    if (!error && rename(temporary.constData(), target.constData()) != 0)
        error = lastError();
    if (error)
        unlink(temporary.constData());
    return error;
}

std::error_code writeAnewPrivately(const QString& path, const ByteSource& next) {
    const QByteArray name = QFile::encodeName(path);
    if (const std::error_code refusal = removeFileOrLink(name))
        return refusal;
    Descriptor file(open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, ownerOnly));
    if (!file.isOpen())
        return lastError();
    const std::error_code error = fillFrom(next, file);
    if (error)
        unlink(name.constData());
    return error;
}

} // namespace tessarine

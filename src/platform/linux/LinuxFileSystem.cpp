#include "platform/linux/LinuxFileSystem.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace tessarine {

QStringList LinuxFileSystem::applicationSupportDirectories() const {
    return {QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)};
}

QString LinuxFileSystem::expandingTilde(const QString& path) const {
    if (path == u'~' || path.startsWith(QStringLiteral("~/")))
        return QDir::homePath() + path.sliced(1);
    return path;
}

QString LinuxFileSystem::abbreviatingWithTilde(const QString& path) const {
    const QString home = QDir::homePath();
    return path.startsWith(home + u'/') ? u'~' + path.sliced(home.size()) : path;
}

bool LinuxFileSystem::grantsReading(const QString& path) const {
    return access(QFile::encodeName(path).constData(), R_OK) == 0 || errno == ENOENT ||
           errno == ENOTDIR;
}

bool LinuxFileSystem::makePrivate(const QString& path) const {
    return chmod(QFile::encodeName(path).constData(), S_IRUSR | S_IWUSR) == 0;
}

} // namespace tessarine

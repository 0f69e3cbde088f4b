#pragma once

#include <QString>
#include <QStringList>

namespace tessarine {

// Where the user's folders are and who may read a file. Any thread.
class FileSystem {
public:
    FileSystem() = default;
    FileSystem(const FileSystem&) = delete;
    FileSystem& operator=(const FileSystem&) = delete;
    virtual ~FileSystem() = default;

    // The folders for application data of this user, best first. Absolute paths.
    virtual QStringList applicationSupportDirectories() const = 0;

    // The path with a leading "~" replaced by the user's home folder.
    virtual QString expandingTilde(const QString& path) const = 0;

    // The path with the user's home folder at its start replaced by "~", for a reader who shall not
    // learn the user's name. Other paths stay.
    virtual QString abbreviatingWithTilde(const QString& path) const = 0;

    // Whether the system lets this process read the system database at the path. Where the system
    // hides no files from the user, what is not there needs no permission. Opens nothing: closing
    // a file that SQLite has open elsewhere in the process would drop SQLite's locks.
    virtual bool grantsReading(const QString& path) const = 0;

    // Leaves the file readable and writable by its owner alone. Opens nothing. False on failure.
    virtual bool makePrivate(const QString& path) const = 0;
};

} // namespace tessarine

#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>

#include <sys/mount.h>

namespace tessarine::testing {

// A disk with room for 64 KiB, mounted on a folder as long as this lives. Only root may do that.
class SmallDisk {
public:
    explicit SmallDisk(const QString& path)
        : path_(QFile::encodeName(path)) {
        QDir().mkpath(path);
        mounted_ = mount("tmpfs", path_.constData(), "tmpfs", 0, "size=64k") == 0;
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    ~SmallDisk() {
        if (mounted_)
            umount(path_.constData());
    }

    bool isThere() const { return mounted_; }

    // Leaves no room on it.
    void fill() const {
        QFile filler(QFile::decodeName(path_) + QStringLiteral("/filler"));
        if (!filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            return;
        while (filler.write(QByteArray(4096, 'f')) > 0) {
        }
    }

private:
    QByteArray path_;
    bool mounted_;
};

} // namespace tessarine::testing

#pragma once

#include "platform/FileSystem.h"

namespace tessarine {

class LinuxFileSystem : public FileSystem {
public:
    QStringList applicationSupportDirectories() const override;
    QString expandingTilde(const QString& path) const override;
    QString abbreviatingWithTilde(const QString& path) const override;
    bool grantsReading(const QString& path) const override;
    bool makePrivate(const QString& path) const override;
};

} // namespace tessarine

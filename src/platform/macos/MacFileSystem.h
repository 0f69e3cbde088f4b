#pragma once

#include "platform/FileSystem.h"

namespace tessarine {

class MacFileSystem : public FileSystem {
public:
    QStringList applicationSupportDirectories() const override;
    QString expandingTilde(const QString& path) const override;
    QString abbreviatingWithTilde(const QString& path) const override;

    // The system hides files from programs: what can't be seen may be there.
    bool grantsReading(const QString& path) const override;

    bool makePrivate(const QString& path) const override;
};

} // namespace tessarine

#pragma once

#include "support/OrdinaryUser.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>

#include <sys/stat.h>
#include <unistd.h>

namespace tessarine::testing {

// Puts a symbolic link of this owner into a folder, which is made with this owner and mode. Only
// root can do that. False where it fails.
struct PlantedLink {
    mode_t folderMode;
    uid_t folderOwner;
    uid_t linkOwner;

    bool make(const QString& link, const QString& target) const {
        const QString folder = QDir::cleanPath(link + QStringLiteral("/.."));
        const QByteArray folderName = QFile::encodeName(folder);
        const QByteArray linkName = QFile::encodeName(link);
        return QDir().mkpath(folder) &&
               symlink(QFile::encodeName(target).constData(), linkName.constData()) == 0 &&
               lchown(linkName.constData(), linkOwner, linkOwner) == 0 &&
               chown(folderName.constData(), folderOwner, folderOwner) == 0 &&
               chmod(folderName.constData(), folderMode) == 0;
    }
};

// As anybody can do it in a folder for temporary files.
inline constexpr PlantedLink trap{01777, 0, nobody};

} // namespace tessarine::testing

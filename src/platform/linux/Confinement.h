#pragma once

#include <QFile>
#include <QString>

namespace tessarine {

// Whether the program runs in a sandbox that reaches the desktop by portals alone, by the file that
// Flatpak puts into each.
inline bool isConfined(const QString& mark = QStringLiteral("/.flatpak-info")) {
    return QFile::exists(mark);
}

} // namespace tessarine

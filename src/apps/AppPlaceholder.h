#pragma once

#include <QColor>
#include <QString>

namespace tessarine {

// What stands for an application's icon until there is one: a tile in a colour and up to two
// capital letters, both of which follow from its name alone.
QColor placeholderColor(const QString& appName);
QString placeholderInitials(const QString& appName);

} // namespace tessarine

#pragma once

#include "platform/linux/desktop/LinuxStatusPanel.h"

#include <QGuiApplication>
#include <QScreen>

namespace tessarine::testing {

// What the panel leaves free on the right and below, in points.
inline QPoint freeBeside(const LinuxStatusPanel& panel) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    return room.bottomRight() - panel.body().bottomRight();
}

} // namespace tessarine::testing

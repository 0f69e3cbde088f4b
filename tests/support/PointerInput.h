#pragma once

#include <QPoint>

class QQuickWindow;

namespace tessarine::testing {

// What a hand does to a window: it drags from one place to another in steps, by the mouse with its
// left button or by a finger, or turns the mouse's wheel, towards itself for negative degrees. Each
// step is worked off and drawn.
void dragByMouse(QQuickWindow& window, QPoint from, QPoint to);
void dragByFinger(QQuickWindow& window, QPoint from, QPoint to);
void turnWheel(QQuickWindow& window, QPoint place, int degrees);

} // namespace tessarine::testing

#include "controls/MenuKey.h"

#include <QKeyEvent>

namespace tessarine {

bool MenuKey::press(const QKeyEvent& event) {
    const bool isMenu = event.key() == Qt::Key_Menu && event.modifiers() == Qt::NoModifier;
    const bool isShiftF10 = event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier;
    if (!isMenu && !isShiftF10)
        return false;
    if (!event.isAutoRepeat())
        Q_EMIT asked();
    return true;
}

} // namespace tessarine

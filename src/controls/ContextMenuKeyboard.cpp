#include "controls/ContextMenuKeyboard.h"

#include <QKeyEvent>

namespace tessarine {

bool ContextMenuKeyboard::press(const QKeyEvent& event) {
    if (!menu_ || (event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    const int count = menu_->property("count").toInt();
    const int current = menu_->property("currentIndex").toInt();
    switch (event.key()) {
    case Qt::Key_Up:
        goOn(current < 0 ? count : current, -1);
        return true;
    case Qt::Key_Down:
        goOn(current, 1);
        return true;
    case Qt::Key_Home:
        goOn(-1, 1);
        return true;
    case Qt::Key_End:
        goOn(count, -1);
        return true;
    default:
        return false;
    }
}

void ContextMenuKeyboard::goOn(int from, int step) {
    const int count = menu_->property("count").toInt();
    for (int steps = 1; steps <= count; ++steps) {
        const int entry = (from + steps * step + 2 * count) % count;
        if (canBeChosen(entry)) {
            menu_->setProperty("currentIndex", entry);
            return;
        }
    }
}

bool ContextMenuKeyboard::canBeChosen(int entry) const {
    QQuickItem* item = nullptr;
    QMetaObject::invokeMethod(menu_, "itemAt", Q_RETURN_ARG(QQuickItem*, item), Q_ARG(int, entry));
    return item && item->isVisible() && item->isEnabled() && item->activeFocusOnTab();
}

} // namespace tessarine

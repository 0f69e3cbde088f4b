#include "browser/list/LineAccessible.h"

#include <QQuickWindow>

namespace tessarine {

QQuickItem& LineAccessible::item() const {
    return *static_cast<QQuickItem*>(object());
}

// The list: what is between them is nothing that a screen reader is told of.
QAccessibleInterface* LineAccessible::parent() const {
    for (QQuickItem* above = item().parentItem(); above; above = above->parentItem()) {
        QAccessibleInterface* const found = QAccessible::queryAccessibleInterface(above);
        if (found && found->role() == QAccessible::List)
            return found;
    }
    return nullptr;
}

QWindow* LineAccessible::window() const {
    return item().window();
}

QRect LineAccessible::rect() const {
    return {item().mapToGlobal(QPointF(0, 0)).toPoint(), item().size().toSize()};
}

QAccessible::State LineAccessible::state() const {
    const QWindow* const inWindow = window();
    QAccessible::State state;
    state.disabled = !item().isEnabled();
    state.invisible = !inWindow || !inWindow->isVisible() || !item().isVisible();
    if (const QAccessibleInterface* const list = parent())
        state.offscreen = !list->rect().intersects(rect());
    return state;
}

void* LineAccessible::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
}

} // namespace tessarine

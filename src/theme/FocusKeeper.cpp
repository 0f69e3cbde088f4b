#include "theme/FocusKeeper.h"

#include <QQuickWindow>

namespace tessarine {

void FocusKeeper::remember(QQuickItem* itemInWindow) {
    const QQuickWindow* window = itemInWindow ? itemInWindow->window() : nullptr;
    item_ = window ? window->activeFocusItem() : nullptr;
    // Only these reasons make a control show its ring.
    const bool ring = item_ && item_->property("visualFocus").toBool();
    reason_ = ring ? Qt::TabFocusReason : Qt::OtherFocusReason;
}

void FocusKeeper::restore(const QQuickItem* panel) {
    if (!item_ || !item_->window())
        return;
    const QQuickItem* now = item_->window()->activeFocusItem();
    const bool elsewhere = now && now != item_->window()->contentItem() && now != panel &&
                           !(panel && panel->isAncestorOf(now));
    if (!elsewhere)
        item_->forceActiveFocus(reason_);
    item_ = nullptr;
}

} // namespace tessarine

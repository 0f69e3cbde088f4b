#include "controls/FocusKeeper.h"

#include <QQuickWindow>

#include <utility>

namespace tessarine {

namespace {

// The scope in which a panel's items have the keyboard.
const QQuickItem* scopeOf(const QQuickItem* panel) {
    while (panel && !panel->isFocusScope())
        panel = panel->parentItem();
    return panel;
}

} // namespace

void FocusKeeper::remember(QQuickItem* itemInWindow) {
    const QQuickWindow* window = itemInWindow ? itemInWindow->window() : nullptr;
    item_ = window ? window->activeFocusItem() : nullptr;
    // Only these reasons make a control show its ring.
    const bool ring = item_ && item_->property("visualFocus").toBool();
    reason_ = ring ? Qt::TabFocusReason : Qt::OtherFocusReason;
}

void FocusKeeper::restore(const QQuickItem* panel) {
    const QPointer<QQuickItem> item = std::exchange(item_, nullptr);
    QQuickItem* const target = item && item->isVisible() ? item.get() : otherwise_.get();
    if (!target || !target->window())
        return;
    const QQuickItem* now = target->window()->activeFocusItem();
    const bool elsewhere = now && now != target->window()->contentItem() && now != panel &&
                           !(panel && panel->isAncestorOf(now));
    if (!elsewhere)
        target->forceActiveFocus(reason_);
}

void FocusKeeper::restoreLater(const QQuickItem* panel) {
    QMetaObject::invokeMethod(
        this, [this, panel = QPointer<const QQuickItem>(panel)] { restore(panel); },
        Qt::QueuedConnection);
}

void FocusKeeper::moveOn(const QQuickItem* leaving, QQuickItem* to) {
    if (item_ && leaving->isAncestorOf(item_))
        to->forceActiveFocus(reason_);
}

void FocusKeeper::beginIn(const QQuickItem* panel) {
    const QQuickItem* const scope = scopeOf(panel);
    QQuickItem* const last = scope ? scope->scopedFocusItem() : nullptr;
    if (!std::exchange(hasBegun_, true))
        first_ = last;
    else if (first_)
        first_->setFocus(true);
    else if (last)
        last->setFocus(false);
}

} // namespace tessarine

#include "controls/TipRules.h"

#include <QCursor>
#include <QMouseEvent>
#include <QQuickWindow>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tessarine {

namespace {

// A popup draws through an item in the overlay, whose owner it is.
bool isPopupOtherThanATip(const QQuickItem& item) {
    const QObject* const owner = item.parent();
    return item.isVisible() && owner && owner->inherits("QQuickPopup") &&
           !owner->inherits("QQuickToolTip");
}

} // namespace

void TipRules::setItem(QQuickItem* item) {
    if (item_ == item)
        return;
    item_ = item;
    Q_EMIT inputsChanged();
    update();
}

void TipRules::setOverlay(QQuickItem* overlay) {
    if (overlay_ == overlay)
        return;
    if (overlay_)
        overlay_->disconnect(this);
    overlay_ = overlay;
    if (overlay_)
        connect(overlay_, &QQuickItem::childrenChanged, this, &TipRules::update);
    Q_EMIT inputsChanged();
    update();
}

void TipRules::setHovered(bool hovered) {
    if (std::exchange(hovered_, hovered) == hovered)
        return;
    pressed_ = false;
    pointer_.reset();
    Q_EMIT inputsChanged();
    update();
}

void TipRules::watchWindow() {
    QQuickWindow* const window = hovered_ && item_ ? item_->window() : nullptr;
    if (window_ == window)
        return;
    if (window_)
        window_->removeEventFilter(this);
    window_ = window;
    if (window_)
        window_->installEventFilter(this);
}

bool TipRules::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseMove:
        pointer_ = static_cast<const QMouseEvent*>(event)->position();
        break;
    case QEvent::MouseButtonPress:
        pressed_ = true;
        update();
        break;
    default:
        break;
    }
    return false;
}

void TipRules::update() {
    watchWindow();
    const bool allowed = hovered_ && !pressed_ && !isCovered();
    if (std::exchange(allowed_, allowed) != allowed)
        Q_EMIT allowedChanged();
}

// The last of the popups lies over the others. What it shows itself may be explained.
bool TipRules::isCovered() const {
    if (!overlay_ || !item_)
        return false;
    const QList<QQuickItem*> above = overlay_->childItems();
    const auto top = std::find_if(above.rbegin(), above.rend(), [](const QQuickItem* item) {
        return isPopupOtherThanATip(*item);
    });
    return top != above.rend() && !(*top)->isAncestorOf(item_);
}

// Of the item where nobody knows better, as when the item came under a pointer that rests.
double TipRules::pointerX() const {
    const QRectF room = item_->mapRectToScene(item_->boundingRect());
    const QPointF resting = window_ ? window_->mapFromGlobal(QPointF(QCursor::pos())) : QPointF();
    const QPointF pointer = pointer_.value_or(resting);
    return room.contains(pointer) ? pointer.x() : room.center().x();
}

QPointF TipRules::place(const QSizeF& tip, double gap, double margin) const {
    if (!item_ || !item_->window())
        return {};
    const QSizeF window = item_->window()->size();
    const QRectF room = item_->mapRectToScene(item_->boundingRect());
    const double furthest = std::max(margin, window.width() - margin - tip.width());
    const double x = std::clamp(pointerX() - tip.width() / 2, margin, furthest);
    const bool fitsBelow = room.bottom() + gap + tip.height() + margin <= window.height();
    const double y = fitsBelow ? room.bottom() + gap : room.top() - gap - tip.height();
    return item_->mapFromScene(QPointF(std::round(x), std::round(y)));
}

} // namespace tessarine

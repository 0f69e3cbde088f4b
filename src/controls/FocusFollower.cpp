#include "controls/FocusFollower.h"

#include "controls/ScrollRange.h"

namespace tessarine {

void FocusFollower::setView(QQuickItem* view) {
    if (view_ == view)
        return;
    if (view_)
        view_->disconnect(this);
    view_ = view;
    if (view_)
        connect(view_, &QQuickItem::windowChanged, this, &FocusFollower::watch);
    watch(view_ ? view_->window() : nullptr);
    Q_EMIT viewChanged();
}

void FocusFollower::watch(QQuickWindow* window) {
    if (window_)
        window_->disconnect(this);
    window_ = window;
    if (window_)
        connect(window_, &QQuickWindow::activeFocusItemChanged, this, &FocusFollower::follow);
}

void FocusFollower::follow() {
    const QQuickItem* const focused = window_->activeFocusItem();
    const auto* const content = view_->property("contentItem").value<QQuickItem*>();
    if (!focused || !content || focused == content || !content->isAncestorOf(focused))
        return;
    const QRectF place = focused->mapRectToItem(view_, focused->boundingRect());
    show(place.top() - room_, place.bottom() + room_);
}

void FocusFollower::show(double top, double bottom) {
    const double end = view_->height();
    double distance = 0;
    if (bottom - top > end - covered_)
        distance = bottom < covered_ || top > end ? top - covered_ : 0;
    else if (top < covered_)
        distance = top - covered_;
    else if (bottom > end)
        distance = bottom - end;
    if (distance != 0)
        scrollBy(*view_, distance);
}

} // namespace tessarine

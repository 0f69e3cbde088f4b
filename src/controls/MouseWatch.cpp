#include "controls/MouseWatch.h"

#include <QMouseEvent>
#include <QQuickWindow>
#include <QWheelEvent>

#include <utility>

namespace tessarine {

void MouseWatch::setItem(QQuickItem* item) {
    if (item_ == item)
        return;
    if (item_)
        item_->disconnect(this);
    item_ = item;
    if (item_)
        connect(item_, &QQuickItem::windowChanged, this, &MouseWatch::watch);
    watch(item_ ? item_->window() : nullptr);
    Q_EMIT itemChanged();
}

void MouseWatch::watch(QQuickWindow* window) {
    if (window_)
        window_->removeEventFilter(this);
    window_ = window;
    if (window_)
        window_->installEventFilter(this);
    lastPlace_.reset();
    setDown(false);
}

void MouseWatch::setAwaitsMove(bool awaits) {
    if (std::exchange(awaitsMove_, awaits) == awaits)
        return;
    setMoved(false);
    Q_EMIT awaitsMoveChanged();
}

// A release may be lost, when another window opens in between, so every event of the mouse counts.
bool MouseWatch::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove: {
        const auto& mouse = static_cast<const QMouseEvent&>(*event);
        if (mouse.source() == Qt::MouseEventNotSynthesized)
            note(mouse.buttons(), mouse.position());
        break;
    }
    case QEvent::Wheel: {
        const auto& wheel = static_cast<const QWheelEvent&>(*event);
        note(wheel.buttons(), wheel.position());
        break;
    }
    default:
        break;
    }
    return false;
}

void MouseWatch::note(Qt::MouseButtons buttons, QPointF place) {
    const std::optional<QPointF> before = std::exchange(lastPlace_, place);
    if (awaitsMove_ && before && *before != place)
        setMoved(true);
    setDown(buttons != Qt::NoButton);
}

void MouseWatch::setDown(bool down) {
    if (std::exchange(down_, down) != down)
        Q_EMIT downChanged();
}

void MouseWatch::setMoved(bool moved) {
    if (std::exchange(moved_, moved) != moved)
        Q_EMIT movedChanged();
}

} // namespace tessarine

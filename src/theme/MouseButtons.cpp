#include "theme/MouseButtons.h"

#include <QMouseEvent>
#include <QQuickWindow>
#include <QWheelEvent>

#include <optional>
#include <utility>

namespace tessarine {

namespace {

// The buttons of the mouse that are down at an event of the mouse. A release may be lost, when
// another window opens in between, so every event of the mouse counts.
std::optional<Qt::MouseButtons> buttonsAt(const QEvent& event) {
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove: {
        const auto& mouse = static_cast<const QMouseEvent&>(event);
        return mouse.source() == Qt::MouseEventNotSynthesized ? std::optional(mouse.buttons())
                                                              : std::nullopt;
    }
    case QEvent::Wheel:
        return static_cast<const QWheelEvent&>(event).buttons();
    default:
        return std::nullopt;
    }
}

} // namespace

void MouseButtons::setItem(QQuickItem* item) {
    if (item_ == item)
        return;
    if (item_)
        item_->disconnect(this);
    item_ = item;
    if (item_)
        connect(item_, &QQuickItem::windowChanged, this, &MouseButtons::watch);
    watch(item_ ? item_->window() : nullptr);
    Q_EMIT itemChanged();
}

void MouseButtons::watch(QQuickWindow* window) {
    if (window_)
        window_->removeEventFilter(this);
    window_ = window;
    if (window_)
        window_->installEventFilter(this);
    setDown(false);
}

bool MouseButtons::eventFilter(QObject*, QEvent* event) {
    if (const auto buttons = buttonsAt(*event))
        setDown(*buttons != Qt::NoButton);
    return false;
}

void MouseButtons::setDown(bool down) {
    if (std::exchange(down_, down) != down)
        Q_EMIT downChanged();
}

} // namespace tessarine

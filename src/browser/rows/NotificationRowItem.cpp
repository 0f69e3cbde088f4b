#include "browser/rows/NotificationRowItem.h"

#include <QCursor>
#include <QHoverEvent>
#include <QMouseEvent>

#include <utility>

namespace tessarine {

NotificationRowItem::NotificationRowItem(QQuickItem* parent)
    : QQuickItem(parent) {
    setAcceptHoverEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
    showCursor();
    connect(&reactions_, &NotificationRow::maskedChanged, this,
            &NotificationRowItem::maskedChanged);
    connect(&reactions_, &NotificationRow::revealed, this, &NotificationRowItem::revealed);
    connect(&reactions_, &NotificationRow::singleTap, this, &NotificationRowItem::singleTap);
    connect(&reactions_, &NotificationRow::doubleTap, this, &NotificationRowItem::doubleTap);
    connect(&reactions_, &NotificationRow::toggleSelection, this,
            &NotificationRowItem::toggleSelection);
}

void NotificationRowItem::setNotificationId(const QUuid& id) {
    if (notificationId() == id)
        return;
    reactions_.setNotificationId(id);
    Q_EMIT notificationIdChanged();
}

void NotificationRowItem::setSelectionMode(bool selectionMode) {
    if (this->selectionMode() == selectionMode)
        return;
    reactions_.setSelectionMode(selectionMode);
    showCursor();
    Q_EMIT selectionModeChanged();
}

void NotificationRowItem::showCursor() {
    setCursor(selectionMode() ? Qt::ArrowCursor : Qt::PointingHandCursor);
}

// Hover. Nobody below is kept from it.

void NotificationRowItem::hoverEnterEvent(QHoverEvent* event) {
    setHovered(true);
    event->ignore();
}

void NotificationRowItem::hoverMoveEvent(QHoverEvent* event) {
    event->ignore();
}

void NotificationRowItem::hoverLeaveEvent(QHoverEvent* event) {
    setHovered(false);
    event->ignore();
}

void NotificationRowItem::setHovered(bool hovered) {
    if (std::exchange(hovered_, hovered) == hovered)
        return;
    wasHovered_ = true;
    Q_EMIT hoveredChanged();
}

void NotificationRowItem::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange && !data.window)
        setHovered(false);
}

// Presses

bool NotificationRowItem::takes(const QMouseEvent& event) const {
    const double margin = event.button() == Qt::LeftButton ? cardMargin_ : 0;
    return boundingRect().adjusted(margin, 0, -margin, 0).contains(event.position());
}

void NotificationRowItem::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(takes(*event));
    if (!event->isAccepted() || pressedButton_ != Qt::NoButton)
        return;
    pressedButton_ = event->button();
    doubleClicked_ = false;
    if (pressedButton_ != Qt::LeftButton)
        return;
    Q_EMIT pressed();
    reactions_.press();
}

void NotificationRowItem::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
}

void NotificationRowItem::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != pressedButton_)
        return;
    const Qt::MouseButton button = std::exchange(pressedButton_, Qt::NoButton);
    if (doubleClicked_ || !takes(*event))
        return;
    if (button == Qt::LeftButton)
        click();
    else
        Q_EMIT menuRequested(notificationId(), mapToScene(event->position()));
}

void NotificationRowItem::askForMenu() {
    Q_EMIT menuRequested(notificationId(), mapToScene(menuPlace_));
}

void NotificationRowItem::mouseDoubleClickEvent(QMouseEvent* event) {
    event->setAccepted(takes(*event));
    if (!event->isAccepted() || event->button() != Qt::LeftButton)
        return;
    doubleClicked_ = true; // the release is no click
    reactions_.doubleClick();
}

void NotificationRowItem::mouseUngrabEvent() {
    pressedButton_ = Qt::NoButton;
}

// Fades

void NotificationRowItem::componentComplete() {
    QQuickItem::componentComplete();
    if (isArriving_ || isLeaving_)
        setOpacity(0);
    if (isArriving_ && !isLeaving_)
        Q_EMIT fadeRequested();
}

void NotificationRowItem::setLeaving(bool leaving) {
    if (std::exchange(isLeaving_, leaving) == leaving)
        return;
    setEnabled(!leaving);
    Q_EMIT isLeavingChanged();
    if (isComponentComplete())
        Q_EMIT fadeRequested();
}

} // namespace tessarine

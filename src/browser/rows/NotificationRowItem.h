#pragma once

#include "browser/rows/NotificationRow.h"

#include <QQuickItem>
#include <QUuid>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The item of a row, in which a view draws it: it hands on to `NotificationRow` what the pointer
// does, and knows when the row fades. Each capture makes a row, so this is one object in place of
// several pointer handlers. Main thread.
class NotificationRowItem : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QUuid notificationId READ notificationId WRITE setNotificationId NOTIFY
                   notificationIdChanged REQUIRED)
    Q_PROPERTY(bool isPrivate READ isPrivate WRITE setPrivate NOTIFY maskedChanged REQUIRED)
    Q_PROPERTY(
        bool selectionMode READ selectionMode WRITE setSelectionMode NOTIFY selectionModeChanged)
    Q_PROPERTY(bool masked READ isMasked NOTIFY maskedChanged)

    // A row that arrives or leaves fades, and one that leaves takes no input. Whether it arrives is
    // read when it is complete: what is only scrolled into sight is there at once.
    Q_PROPERTY(bool isArriving MEMBER isArriving_ NOTIFY isArrivingChanged REQUIRED)
    Q_PROPERTY(bool isLeaving READ isLeaving WRITE setLeaving NOTIFY isLeavingChanged REQUIRED)

    Q_PROPERTY(bool isSelected MEMBER isSelected_ NOTIFY isSelectedChanged REQUIRED)
    Q_PROPERTY(bool isFocused MEMBER isFocused_ NOTIFY isFocusedChanged REQUIRED)

    // What a screen reader says of the row, and while its content is hidden.
    Q_PROPERTY(QString spokenText MEMBER spokenText_ NOTIFY spokenTextChanged REQUIRED)
    Q_PROPERTY(QString spokenMask MEMBER spokenMask_ NOTIFY spokenMaskChanged REQUIRED)

    // Where its menu opens that no pointer asks for, in the row.
    Q_PROPERTY(QPointF menuPlace MEMBER menuPlace_ NOTIFY menuPlaceChanged)

    // The left button works on the card, which leaves this much on each side of the row.
    Q_PROPERTY(double cardMargin MEMBER cardMargin_ NOTIFY cardMarginChanged)
    Q_PROPERTY(bool hovered READ isHovered NOTIFY hoveredChanged)
    Q_PROPERTY(bool wasHovered READ wasHovered NOTIFY hoveredChanged) // now or ever

public:
    explicit NotificationRowItem(QQuickItem* parent = nullptr);

    const QUuid& notificationId() const { return reactions_.notificationId(); }
    void setNotificationId(const QUuid& id);
    bool isPrivate() const { return reactions_.isPrivate(); }
    void setPrivate(bool isPrivate) { reactions_.setPrivate(isPrivate); }
    bool selectionMode() const { return reactions_.selectionMode(); }
    void setSelectionMode(bool selectionMode);
    bool isMasked() const { return reactions_.isMasked(); }

    bool isLeaving() const { return isLeaving_; }
    void setLeaving(bool leaving);
    bool isSelected() const { return isSelected_; }
    bool isFocused() const { return isFocused_; }
    const QString& accessibleName() const { return isMasked() ? spokenMask_ : spokenText_; }
    bool isHovered() const { return hovered_; }
    bool wasHovered() const { return wasHovered_; }

    // What a click on the card does.
    Q_INVOKABLE void click() { reactions_.click(); }

    // As the menu key does, and a screen reader for its user.
    Q_INVOKABLE void askForMenu();
    void askForPreview() { Q_EMIT previewRequested(notificationId()); }

    // After a press: the time in which a second one would make it a double click is over, or
    // another row was pressed, so that a double click here would have begun elsewhere.
    Q_INVOKABLE void endGesture() { reactions_.endGesture(); }
    Q_INVOKABLE void forgetPress() { reactions_.forgetPress(); }

Q_SIGNALS:
    void notificationIdChanged();
    void selectionModeChanged();
    void maskedChanged();
    void isArrivingChanged();
    void isLeavingChanged();
    void isSelectedChanged();
    void isFocusedChanged();
    void spokenTextChanged();
    void spokenMaskChanged();
    void menuPlaceChanged();
    void cardMarginChanged();
    void hoveredChanged();

    void fadeRequested(); // from the present opacity to 0 for a row that leaves, else to 1
    void revealed();      // by a click; masked has changed before
    void pressed();       // the card, by the left button
    void singleTap(const QUuid& id);
    void doubleTap(const QUuid& id);
    void toggleSelection(const QUuid& id);
    void menuRequested(const QUuid& id, QPointF place); // in the window
    void previewRequested(const QUuid& id);

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void hoverEnterEvent(QHoverEvent* event) override;
    void hoverMoveEvent(QHoverEvent* event) override;
    void hoverLeaveEvent(QHoverEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;

private:
    bool takes(const QMouseEvent& event) const;
    void showCursor();
    void setHovered(bool hovered);

    NotificationRow reactions_;
    bool isArriving_ = false;
    bool isLeaving_ = false;
    bool isSelected_ = false;
    bool isFocused_ = false;
    QString spokenText_;
    QString spokenMask_;
    QPointF menuPlace_;
    bool hovered_ = false;
    bool wasHovered_ = false;
    bool doubleClicked_ = false; // by the press that lasts
    Qt::MouseButton pressedButton_ = Qt::NoButton;
    double cardMargin_ = 0;
};

} // namespace tessarine

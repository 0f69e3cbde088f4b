#pragma once

#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QQuickItem>
#include <QRectF>
#include <QSizeF>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace tessarine {

// When a tip may be seen, and where. It may while the pointer is over what it explains, until a
// button is pressed there, and not while a menu, a popover or a sheet lies over that. Its place is
// near the pointer and beside what it explains. Main thread.
class TipRules : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* item READ item WRITE setItem NOTIFY inputsChanged REQUIRED)
    Q_PROPERTY(QQuickItem* overlay READ overlay WRITE setOverlay NOTIFY inputsChanged REQUIRED)
    Q_PROPERTY(bool hovered READ isHovered WRITE setHovered NOTIFY inputsChanged REQUIRED)
    Q_PROPERTY(bool allowed READ isAllowed NOTIFY allowedChanged)

public:
    // What is explained.
    QQuickItem* item() const { return item_; }
    void setItem(QQuickItem* item);

    // In which the window's popups are; null in no window.
    QQuickItem* overlay() const { return overlay_; }
    void setOverlay(QQuickItem* overlay);

    bool isHovered() const { return hovered_; }
    void setHovered(bool hovered);

    bool isAllowed() const { return allowed_; }

    // The corner of a tip of this size, in the item's coordinates: `gap` below the item, or above
    // it where the window ends, with its middle at the pointer as far as the window has room
    // within `margin`.
    Q_INVOKABLE QPointF place(const QSizeF& tip, double gap, double margin) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void inputsChanged();
    void allowedChanged();

private:
    void update();
    void watchWindow();
    bool isCovered() const;
    double pointerX() const;

    QPointer<QQuickItem> item_;
    QPointer<QQuickItem> overlay_;
    QPointer<QQuickWindow> window_; // watched, while the pointer is over the item
    bool hovered_ = false;
    bool pressed_ = false; // since the pointer came
    bool allowed_ = false;
    std::optional<QPointF> pointer_; // in the window
};

} // namespace tessarine

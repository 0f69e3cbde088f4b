#pragma once

#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace tessarine {

// What the mouse does in the window of an item, known before anything in the window learns of it. A
// finger on the screen is no mouse. Main thread.
class MouseWatch : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* item READ item WRITE setItem NOTIFY itemChanged REQUIRED)
    Q_PROPERTY(bool down READ isDown NOTIFY downChanged)
    Q_PROPERTY(bool awaitsMove READ awaitsMove WRITE setAwaitsMove NOTIFY awaitsMoveChanged)
    Q_PROPERTY(bool moved READ hasMoved NOTIFY movedChanged)

public:
    QQuickItem* item() const { return item_; }
    void setItem(QQuickItem* item);

    // Whether any of its buttons is down. Views that scroll take no drags then: a mouse scrolls by
    // its wheel and the scroll bar.
    bool isDown() const { return down_; }

    // Whether it has moved since this was set. A menu may open under a pointer that rests: nobody
    // has aimed at the entry there, and a key must not run it.
    bool awaitsMove() const { return awaitsMove_; }
    void setAwaitsMove(bool awaits);
    bool hasMoved() const { return moved_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void itemChanged();
    void downChanged();
    void awaitsMoveChanged();
    void movedChanged();

private:
    void watch(QQuickWindow* window);
    void note(Qt::MouseButtons buttons, QPointF place);
    void setDown(bool down);
    void setMoved(bool moved);

    QPointer<QQuickItem> item_;
    QPointer<QQuickWindow> window_;
    bool down_ = false;
    bool awaitsMove_ = false;
    bool moved_ = false;
    std::optional<QPointF> lastPlace_; // in the window
};

} // namespace tessarine

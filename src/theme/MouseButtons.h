#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// Says whether a button of the mouse is down in the window of an item, and says so before anything
// in the window learns of it. A finger on the screen is no mouse. Views that scroll take no drags
// while `down`: a mouse scrolls by its wheel and the scroll bar. Main thread.
class MouseButtons : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* item READ item WRITE setItem NOTIFY itemChanged REQUIRED)
    Q_PROPERTY(bool down READ isDown NOTIFY downChanged)

public:
    QQuickItem* item() const { return item_; }
    void setItem(QQuickItem* item);
    bool isDown() const { return down_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void itemChanged();
    void downChanged();

private:
    void watch(QQuickWindow* window);
    void setDown(bool down);

    QPointer<QQuickItem> item_;
    QPointer<QQuickWindow> window_;
    bool down_ = false;
};

} // namespace tessarine

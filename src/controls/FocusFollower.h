#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// Scrolls what gets the keyboard into the sight of a list or another flickable view that it is in,
// by as little as needed. What is higher than the view, and in sight with a part, stays as it is.
// Main thread.
class FocusFollower : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* view READ view WRITE setView NOTIFY viewChanged REQUIRED)
    Q_PROPERTY(double covered MEMBER covered_ NOTIFY coveredChanged)
    Q_PROPERTY(double room MEMBER room_ NOTIFY roomChanged)

public:
    QQuickItem* view() const { return view_; }
    void setView(QQuickItem* view);

Q_SIGNALS:
    void viewChanged();
    void coveredChanged(); // how much of the view's top something else lies over, in points
    void roomChanged();    // that stays around what has the keyboard, for its ring, in points

private:
    void watch(QQuickWindow* window);
    void follow();
    void show(double top, double bottom);

    QPointer<QQuickItem> view_;
    QPointer<QQuickWindow> window_;
    double covered_ = 0;
    double room_ = 4;
};

} // namespace tessarine

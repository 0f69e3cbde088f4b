#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// Remembers who had the keyboard while something lies over the window, and gives it back. An item
// that showed its focus ring shows it again. Nothing is taken away from whoever got the keyboard in
// the meantime; instead of an item that has gone or can't be seen, `otherwise` gets it, if there is
// one. Main thread.
class FocusKeeper : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* otherwise MEMBER otherwise_ NOTIFY otherwiseChanged)

public:
    // Remembers the focus of the window in which the item is.
    Q_INVOKABLE void remember(QQuickItem* itemInWindow);

    // Gives the focus back, unless it is outside `panel` by now.
    Q_INVOKABLE void restore(const QQuickItem* panel);

    // Does so in the next turn of the event loop, when what had the focus may be visible again.
    Q_INVOKABLE void restoreLater(const QQuickItem* panel);

    // If the focus that was remembered is inside what is about to leave, it goes on to another item
    // until it is given back.
    Q_INVOKABLE void moveOn(const QQuickItem* leaving, QQuickItem* to);

    // A panel that is opened again begins where it began the first time, and not where the keyboard
    // left it: a key that chooses must not find what was aimed at long ago. To be called each time
    // that the panel is about to show.
    Q_INVOKABLE void beginIn(const QQuickItem* panel);

Q_SIGNALS:
    void otherwiseChanged();

private:
    QPointer<QQuickItem> item_;
    Qt::FocusReason reason_ = Qt::OtherFocusReason;
    QPointer<QQuickItem> otherwise_;
    QPointer<QQuickItem> first_; // that the panel gave the keyboard by itself
    bool hasBegun_ = false;
};

} // namespace tessarine

#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// Remembers who had the keyboard while something lies over the window, and gives it back. An item
// that showed its focus ring shows it again. Nothing is taken away from whoever got the keyboard in
// the meantime, or given to an item that has gone. Main thread.
class FocusKeeper : public QObject {
    Q_OBJECT
    QML_ELEMENT

public:
    // Remembers the focus of the window in which the item is.
    Q_INVOKABLE void remember(QQuickItem* itemInWindow);

    // Gives the focus back, unless it is outside `panel` by now.
    Q_INVOKABLE void restore(const QQuickItem* panel);

private:
    QPointer<QQuickItem> item_;
    Qt::FocusReason reason_ = Qt::OtherFocusReason;
};

} // namespace tessarine

#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// Whether an item has the keyboard and got it by the keyboard, so that a ring shall show where it
// is. Qt's controls know that of themselves; this is for what is none, as a list. Main thread.
class VisualFocus : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* item READ item WRITE setItem NOTIFY itemChanged REQUIRED)
    Q_PROPERTY(bool visual READ isVisual NOTIFY visualChanged)

public:
    QQuickItem* item() const { return item_; }
    void setItem(QQuickItem* item);

    bool isVisual() const { return visual_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

    // Whether a focus that came for this reason came by the keyboard.
    static bool isByKeyboard(Qt::FocusReason reason);

Q_SIGNALS:
    void itemChanged();
    void visualChanged();

private:
    void setVisual(bool visual);

    QPointer<QQuickItem> item_;
    bool visual_ = false;
};

} // namespace tessarine

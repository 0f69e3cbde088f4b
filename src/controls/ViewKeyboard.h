#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

class QKeyEvent;

namespace tessarine {

// What takes the keys of a view that has the focus, before the view itself does. Main thread.
class ViewKeyboard : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QQuickItem* view READ view WRITE setView NOTIFY viewChanged REQUIRED)

public:
    QQuickItem* view() const { return view_; }
    void setView(QQuickItem* view);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void viewChanged();

private:
    // A key press while there is a view. False leaves the key to the view.
    virtual bool press(const QKeyEvent& event) = 0;

    QPointer<QQuickItem> view_;
};

} // namespace tessarine

#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

class QKeyEvent;

namespace tessarine {

// Lets the keyboard scroll a list or another flickable view that has the focus: arrows by a line,
// Page Up, Page Down and Space by a page, Home and End all the way. Keys with a modifier (beside
// Shift for Space) stay with the view. Main thread.
class KeyboardScroller : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* view READ view WRITE setView NOTIFY viewChanged REQUIRED)

public:
    QQuickItem* view() const { return view_; }
    void setView(QQuickItem* view);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void viewChanged();

private:
    bool scroll(const QKeyEvent& event);
    void scrollBy(double distance);
    void scrollTo(double contentY);

    QPointer<QQuickItem> view_;
};

} // namespace tessarine

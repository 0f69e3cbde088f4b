#pragma once

#include "theme/TypeAhead.h"

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

class QKeyEvent;

namespace tessarine {

// Lets the keyboard move through a list view that stands for a menu: arrows, Page Up and Page Down,
// Home, End, and the first letters of a row's text. Return, Enter and Space choose the current row.
// Keys with a modifier stay with the view. Main thread.
class MenuKeyboard : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* view READ view WRITE setView NOTIFY viewChanged REQUIRED)
    Q_PROPERTY(QStringList texts MEMBER texts_ NOTIFY textsChanged REQUIRED)

public:
    QQuickItem* view() const { return view_; }
    void setView(QQuickItem* view);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void viewChanged();
    void textsChanged();
    void chosen(int row);

private:
    bool press(const QKeyEvent& event);
    bool search(const QKeyEvent& event);
    void goTo(int row);

    QPointer<QQuickItem> view_;
    QStringList texts_;
    TypeAhead typeAhead_;
};

} // namespace tessarine

#pragma once

#include "controls/TypeAhead.h"
#include "controls/ViewKeyboard.h"

#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// Lets the keyboard move through a list view that stands for a menu: arrows, Page Up and Page Down,
// Home, End, and the first letters of a row's text. Return, Enter and Space choose the current row.
// Keys with a modifier stay with the view. Main thread.
// qmllint finds the base by its whole name only.
class MenuKeyboard : public tessarine::ViewKeyboard {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<QString> texts MEMBER texts_ NOTIFY textsChanged REQUIRED)

Q_SIGNALS:
    void textsChanged();
    void chosen(int row);

private:
    bool press(const QKeyEvent& event) override;
    bool search(const QKeyEvent& event);
    void goTo(int row);

    QStringList texts_;
    TypeAhead typeAhead_;
};

} // namespace tessarine

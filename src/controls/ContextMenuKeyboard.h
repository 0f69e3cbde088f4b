#pragma once

#include "controls/ViewKeyboard.h"

#include <QtQml/qqmlregistration.h>

namespace tessarine {

// Takes the arrows in an open context menu from entry to entry, from the last on to the first and
// back, and Home and End to the two. Entries that can't be chosen are passed. The view is the item
// in which the menu's entries are, and the menu a T.Menu. Main thread.
// qmllint finds the base by its whole name only.
class ContextMenuKeyboard : public tessarine::ViewKeyboard {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QObject* menu MEMBER menu_ NOTIFY menuChanged REQUIRED)

Q_SIGNALS:
    void menuChanged();

private:
    bool press(const QKeyEvent& event) override;
    void goOn(int from, int step);
    bool canBeChosen(int entry) const;

    QPointer<QObject> menu_;
};

} // namespace tessarine

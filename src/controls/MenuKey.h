#pragma once

#include "controls/ViewKeyboard.h"

#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The keys that ask for a context menu where the keyboard is: the menu key, and Shift-F10 on
// keyboards without one. Also seen while something inside the view has the focus. Main thread.
// qmllint finds the base by its whole name only.
class MenuKey : public tessarine::ViewKeyboard {
    Q_OBJECT
    QML_ELEMENT

Q_SIGNALS:
    void asked();

private:
    bool press(const QKeyEvent& event) override;
};

} // namespace tessarine

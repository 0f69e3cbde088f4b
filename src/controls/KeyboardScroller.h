#pragma once

#include "controls/ViewKeyboard.h"

#include <QtQml/qqmlregistration.h>

namespace tessarine {

// Lets the keyboard scroll a list or another flickable view that has the focus: arrows by a line,
// Page Up, Page Down and Space by a page, Home and End all the way. Keys with a modifier (beside
// Shift for Space) stay with the view. Main thread.
// qmllint finds the base by its whole name only.
class KeyboardScroller : public tessarine::ViewKeyboard {
    Q_OBJECT
    QML_ELEMENT

private:
    bool press(const QKeyEvent& event) override;
    void scrollBy(double distance);
    void scrollTo(double contentY);
};

} // namespace tessarine

#pragma once

#include "controls/ViewKeyboard.h"

#include <QtQml/qqmlregistration.h>

namespace tessarine {

// Lets the keyboard scroll a list or another flickable view: arrows by a line, Page Up, Page Down
// and Space by a page, Home and End all the way. Keys with a modifier (beside Shift for Space) stay
// with the view. It takes the keys that reach its view, and scrolls the view itself unless another
// is to be `scrolled`. Main thread. qmllint finds the base by its whole name only.
class KeyboardScroller : public tessarine::ViewKeyboard {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* scrolled MEMBER scrolled_ NOTIFY scrolledChanged)

Q_SIGNALS:
    void scrolledChanged();

private:
    bool press(const QKeyEvent& event) override;

    QPointer<QQuickItem> scrolled_;
};

} // namespace tessarine

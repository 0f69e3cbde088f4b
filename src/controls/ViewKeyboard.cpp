#include "controls/ViewKeyboard.h"

#include <QKeyEvent>

namespace tessarine {

void ViewKeyboard::setView(QQuickItem* view) {
    if (view_ == view)
        return;
    if (view_)
        view_->removeEventFilter(this);
    view_ = view;
    if (view_)
        view_->installEventFilter(this);
    Q_EMIT viewChanged();
}

bool ViewKeyboard::eventFilter(QObject* watched, QEvent* event) {
    if (watched != view_ || event->type() != QEvent::KeyPress)
        return false;
    return press(*static_cast<QKeyEvent*>(event));
}

} // namespace tessarine

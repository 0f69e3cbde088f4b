#include "controls/VisualFocus.h"

#include <QFocusEvent>

#include <utility>

namespace tessarine {

bool VisualFocus::isByKeyboard(Qt::FocusReason reason) {
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

void VisualFocus::setItem(QQuickItem* item) {
    if (item_ == item)
        return;
    if (item_)
        item_->removeEventFilter(this);
    item_ = item;
    if (item_)
        item_->installEventFilter(this);
    setVisual(false);
    Q_EMIT itemChanged();
}

bool VisualFocus::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::FocusIn)
        setVisual(isByKeyboard(static_cast<const QFocusEvent*>(event)->reason()));
    else if (event->type() == QEvent::FocusOut)
        setVisual(false);
    return false;
}

void VisualFocus::setVisual(bool visual) {
    if (std::exchange(visual_, visual) != visual)
        Q_EMIT visualChanged();
}

} // namespace tessarine

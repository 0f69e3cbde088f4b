#include "controls/FocusableItem.h"

#include "controls/VisualFocus.h"

#include <QFocusEvent>
#include <QKeyEvent>

namespace tessarine {

namespace {

bool isPressKey(const QKeyEvent& event) {
    const bool key = event.key() == Qt::Key_Space || event.key() == Qt::Key_Return ||
                     event.key() == Qt::Key_Enter;
    return key && (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

} // namespace

FocusableItem::FocusableItem(QQuickItem* parent)
    : QQuickItem(parent) {
    setActiveFocusOnTab(true);
}

void FocusableItem::focusInEvent(QFocusEvent* event) {
    QQuickItem::focusInEvent(event);
    setVisualFocus(VisualFocus::isByKeyboard(event->reason()));
}

void FocusableItem::focusOutEvent(QFocusEvent* event) {
    QQuickItem::focusOutEvent(event);
    setVisualFocus(false);
}

void FocusableItem::keyPressEvent(QKeyEvent* event) {
    event->setAccepted(isPressKey(*event));
    if (event->isAccepted() && !event->isAutoRepeat())
        Q_EMIT keyPressed();
}

void FocusableItem::setVisualFocus(bool visual) {
    if (visualFocus_ == visual)
        return;
    visualFocus_ = visual;
    Q_EMIT visualFocusChanged();
}

} // namespace tessarine

#include "browser/rows/NotificationRow.h"

#include <utility>

namespace tessarine {

// What the user sees between the two presses of a double click stays.
void NotificationRow::setNotificationId(const QUuid& id) {
    if (std::exchange(id_, id) == id)
        return;
    if (gestureRuns_ && revealed_)
        masksAfterGesture_ = true;
    else if (std::exchange(revealed_, false))
        Q_EMIT maskedChanged();
}

// Privacy switched on masks what was revealed before.
void NotificationRow::setPrivate(bool isPrivate) {
    if (std::exchange(isPrivate_, isPrivate) == isPrivate)
        return;
    if (isPrivate)
        revealed_ = false;
    Q_EMIT maskedChanged();
}

void NotificationRow::setSelectionMode(bool selectionMode) {
    if (std::exchange(selectionMode_, selectionMode) != selectionMode)
        Q_EMIT maskedChanged();
}

void NotificationRow::press() {
    pressBefore_ = std::exchange(lastPress_, Press{isMasked()});
    gestureRuns_ = true;
}

void NotificationRow::endGesture() {
    gestureRuns_ = false;
    if (!std::exchange(masksAfterGesture_, false))
        return;
    revealed_ = false;
    Q_EMIT maskedChanged();
}

void NotificationRow::forgetPress() {
    lastPress_.reset();
    endGesture();
}

void NotificationRow::click() {
    if (selectionMode_)
        Q_EMIT toggleSelection(id_);
    else if (asksForReveal())
        reveal();
    else
        Q_EMIT singleTap(id_);
}

// The second click counts as a click too. When the first one revealed the row, both belong to the
// reveal: nobody wants a thing opened that they have not seen. When the first one was on another
// row, which a new notification has pushed away, this one was not meant.
void NotificationRow::doubleClick() {
    if (!pressBefore_)
        return;
    if (pressBefore_->wasMasked)
        reveal();
    else if (selectionMode_)
        click();
    else
        Q_EMIT doubleTap(id_);
    endGesture();
}

// A reload that came before this click has no say in it.
void NotificationRow::reveal() {
    masksAfterGesture_ = false;
    if (std::exchange(revealed_, true))
        return;
    Q_EMIT maskedChanged();
    Q_EMIT revealed();
}

} // namespace tessarine

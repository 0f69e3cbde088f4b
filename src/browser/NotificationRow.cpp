#include "browser/NotificationRow.h"

#include <utility>

namespace tessarine {

void NotificationRow::setNotificationId(const QUuid& id) {
    if (std::exchange(id_, id) == id)
        return;
    revealed_ = false;
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
    maskedAtPressBefore_ = std::exchange(maskedAtPress_, isMasked());
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
// reveal: nobody wants a thing opened that they have not seen.
void NotificationRow::doubleClick() {
    if (maskedAtPressBefore_)
        return;
    click();
    if (!selectionMode_)
        Q_EMIT doubleTap(id_);
}

void NotificationRow::reveal() {
    revealed_ = true;
    Q_EMIT maskedChanged();
    Q_EMIT revealed();
}

} // namespace tessarine

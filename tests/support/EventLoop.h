#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>

namespace tessarine::testing {

// Turns the event loop until the condition holds. False when it doesn't within the patience, which
// is long: only a failing test uses it up.
template <typename Condition>
bool turnsUntil(const Condition& condition, int patienceMs = 10000) {
    const QDeadlineTimer deadline(patienceMs);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    return true;
}

// Turns the event loop for this long, so that what must not come has had its chance to.
inline void turnFor(int milliseconds) {
    turnsUntil([] { return false; }, milliseconds);
}

} // namespace tessarine::testing

#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <chrono>
#include <thread>

namespace tessarine::testing {

// Milliseconds to wait for what has to come. Only a failing test uses them up, so they are many.
inline constexpr int patienceMs = 60000;

// Turns the event loop until the condition holds. False when it doesn't within the time.
template <typename Condition>
bool turnsUntil(const Condition& condition, int milliseconds = patienceMs) {
    const QDeadlineTimer deadline(milliseconds);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        std::this_thread::sleep_for(std::chrono::milliseconds(1)); // for those that are waited for
    }
    return true;
}

// Turns the event loop for this long, so that what must not come has had its chance to.
inline void turnFor(int milliseconds) {
    turnsUntil([] { return false; }, milliseconds);
}

} // namespace tessarine::testing

#pragma once

#include <QString>

#include <functional>

class QWindow;

namespace tessarine {

// The program's standing among the other programs of the session. Main thread.
class ApplicationControl {
public:
    ApplicationControl() = default;
    ApplicationControl(const ApplicationControl&) = delete;
    ApplicationControl& operator=(const ApplicationControl&) = delete;
    virtual ~ApplicationControl() = default;

    // The program has a status item and windows, but no place of its own among the applications.
    virtual void useAccessoryPolicy() = 0;

    // Brings the program to the front with this window, which is shown already, whatever program
    // is in front now.
    virtual void activate(QWindow& window) = 0;

    // Does the work that somebody asked for whose token lets this program come to the front. What
    // the work activates may use it; with the end of the work it is used up. An empty token is
    // none. Systems that know of no tokens just do the work.
    virtual void answer(const QString& token, const std::function<void()>& work) {
        static_cast<void>(token);
        work();
    }

    // Gives back to the system what the process has freed and its allocator keeps. Takes some
    // milliseconds.
    virtual void returnFreeMemory() = 0;
};

} // namespace tessarine

#pragma once

namespace tessarine {

// While it lives, a program that finds no display to draw on ends with one sentence on standard
// error and status 1, where Qt would give several and a core dump. For the time in which the
// application object is made. What Qt has to say otherwise it says afterwards. Main thread.
class DisplayCheck {
public:
    DisplayCheck();
    ~DisplayCheck();
    DisplayCheck(const DisplayCheck&) = delete;
    DisplayCheck& operator=(const DisplayCheck&) = delete;
};

} // namespace tessarine

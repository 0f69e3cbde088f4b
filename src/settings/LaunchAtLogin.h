#pragma once

#include <functional>

namespace tessarine {

// What a view needs of the start at login. Neither operation waits; nobody is told of a failure
// but by the next answer.
struct LaunchAtLogin {
    std::function<bool()> isEnabled; // asks the system each time
    std::function<void()> enable;
    std::function<void()> disable;
};

} // namespace tessarine

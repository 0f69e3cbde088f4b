#pragma once

#include <QString>

#include <optional>

namespace tessarine {

enum class LoginItemStatus {
    notRegistered = 0,
    enabled = 1,
    requiresApproval = 2, // registered, but the user switched it off in the system's settings
    notFound = 3          // registered, but the program that it names isn't there
};

// The program among those that the system starts at login. Main thread; nothing waits.
class LoginItem {
public:
    // Why an operation failed, in the system's words; nothing on success.
    using Failure = std::optional<QString>;

    LoginItem() = default;
    LoginItem(const LoginItem&) = delete;
    LoginItem& operator=(const LoginItem&) = delete;
    virtual ~LoginItem() = default;

    // Asks the system each time, so that it follows the user's changes elsewhere.
    virtual LoginItemStatus status() const = 0;

    // The program that is running now starts at the next login. A failure changes nothing.
    virtual Failure registerMainApp() = 0;

    // It doesn't. Fine where nothing was registered.
    virtual Failure unregisterMainApp() = 0;
};

} // namespace tessarine

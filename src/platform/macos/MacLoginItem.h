#pragma once

#include "platform/LoginItem.h"

namespace tessarine {

// The program's bundle among the login items of the system's settings.
class MacLoginItem : public LoginItem {
public:
    LoginItemStatus status() const override;
    Failure registerMainApp() override;
    Failure unregisterMainApp() override;
};

} // namespace tessarine

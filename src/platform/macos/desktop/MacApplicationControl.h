#pragma once

#include "platform/ApplicationControl.h"

namespace tessarine {

// The program as an accessory: without a place in the Dock and without a menu bar.
class MacApplicationControl : public ApplicationControl {
public:
    void useAccessoryPolicy() override;
    void activate(QWindow& window) override;
    void returnFreeMemory() override;
};

} // namespace tessarine

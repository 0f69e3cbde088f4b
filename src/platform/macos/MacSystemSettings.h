#pragma once

#include "platform/SystemSettings.h"

namespace tessarine {

// The pages are addresses that the system's settings open.
class MacSystemSettings : public SystemSettings {
public:
    bool offers(const QString& page) const override;
    bool listsPrograms() const override { return true; }
    bool open(const QString& page) override;
};

} // namespace tessarine

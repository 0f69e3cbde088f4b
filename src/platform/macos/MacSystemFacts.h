#pragma once

#include "platform/SystemFacts.h"

namespace tessarine {

// What the program's bundle and the system say of themselves.
class MacSystemFacts : public SystemFacts {
public:
    QString programVersion() const override;
    QString programBuild() const override;
    QString systemLabel() const override;
    QString systemVersion() const override;
};

} // namespace tessarine

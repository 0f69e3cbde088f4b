#pragma once

#include "platform/ApplicationIcons.h"

namespace tessarine {

// The icons that the system shows for applications, drawn for the densest of displays.
class MacApplicationIcons : public ApplicationIcons {
public:
    QImage iconForFile(const QString& path) const override;
    QImage iconForRunningApplication(const RunningApplication& application) const override;
    QImage genericApplicationIcon() const override;
};

} // namespace tessarine

#pragma once

#include "platform/ApplicationIcons.h"
#include "platform/linux/applications/DesktopEntries.h"
#include "platform/linux/applications/IconTheme.h"

#include <mutex>

namespace tessarine {

// The icons that desktop entries name, from the theme that the desktop has when this is made. The
// files are read directly: Qt's own lookup belongs to the main thread.
class LinuxApplicationIcons : public ApplicationIcons {
public:
    LinuxApplicationIcons(); // after the application object, on its thread
    explicit LinuxApplicationIcons(IconTheme theme);

    QImage iconForFile(const QString& path) const override;
    QImage iconForRunningApplication(const RunningApplication& application) const override;
    QImage genericApplicationIcon() const override;

private:
    QImage iconOf(const DesktopEntry& entry) const;

    const IconTheme theme_;
    mutable std::mutex mutex_; // guards the entries
    mutable DesktopEntries entries_;
};

} // namespace tessarine

#pragma once

#include "platform/ApplicationControl.h"
#include "platform/SoftwareUpdater.h"

#include <QByteArray>

namespace tessarine {

// Windows bear the program's id, by which the desktop finds their entry.
class LinuxApplicationControl : public ApplicationControl {
public:
    LinuxApplicationControl();

    // Nothing to do: a desktop lists windows, not programs.
    void useAccessoryPolicy() override {}

    // The window manager has the last word: it may only mark the window as wanting attention.
    void activate(QWindow& window) override;

    // The token is one for Wayland or the id of a startup notification on X11, whose end is told
    // when the work is done, whether or not it has shown a window.
    void answer(const QString& token, const std::function<void()>& work) override;

    void returnFreeMemory() override;

private:
    QByteArray startupId_; // while a request is answered on X11
};

// Here the package manager brings new versions.
class LinuxSoftwareUpdater : public SoftwareUpdater {
public:
    bool checkForUpdates() override { return false; }
};

} // namespace tessarine

#pragma once

#include "platform/SystemSettings.h"

#include <QStringList>

namespace tessarine {

// The settings of the running desktop. What is asked about the access to banners leads to its page
// for notifications, what is asked about files to the one for privacy. A desktop has them or not:
// the programs of another one, which may be installed too, would change nothing here.
class LinuxSystemSettings : public SystemSettings {
public:
    // The desktop's names, best first, as XDG_CURRENT_DESKTOP has them.
    explicit LinuxSystemSettings(QStringList desktops);

    // Of the session that the program runs in.
    static QStringList currentDesktops();

    bool offers(const QString& page) const override;
    bool listsPrograms() const override { return false; }
    bool open(const QString& page) override;

private:
    QStringList commandFor(const QString& page) const; // empty where there is none

    const QStringList desktops_;
};

} // namespace tessarine

#pragma once

#include "platform/linux/applications/DesktopEntries.h"

#include <QString>

namespace tessarine {

// Names for applications that announce without telling theirs. One thread.
class ApplicationNames {
public:
    // The name that the user knows the desktop entry by. Empty when there is no such entry.
    QString ofDesktopEntry(QString id);

private:
    DesktopEntries entries_;
};

// The name of the program that a process runs. Empty when there is no such process.
QString processName(qint32 pid);

} // namespace tessarine

#pragma once

#include "platform/Platform.h"

#include <QString>

namespace tessarine {

// What the head of a report tells beside the hoard and the log. No text is empty.
struct ReportFacts {
    QString programVersion;
    QString programBuild;
    QString systemLabel; // "System"
    QString systemVersion;
    QString sqliteVersion;
    bool hasAccessibility = false;
    bool hasFullDiskAccess = false;
    QString launchAtLogin;
    QString hoardPath;      // holds the user's home folder
    QString shownHoardPath; // doesn't

    bool operator==(const ReportFacts&) const = default;
};

// "not registered", "enabled", "requires approval", "not found"; anything else is "unknown".
QString launchStatusText(LoginItemStatus status);

// Asks the system and the libraries, as they are now. Main thread.
ReportFacts reportFacts(const Platform& platform, const QString& usernotedDbPath,
                        const QString& hoardPath);

} // namespace tessarine

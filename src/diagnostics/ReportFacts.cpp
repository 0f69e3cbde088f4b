#include "diagnostics/ReportFacts.h"

#include "store/Sqlite.h"

namespace tessarine {

QString launchStatusText(LoginItemStatus status) {
    switch (status) {
    case LoginItemStatus::notRegistered:
        return QStringLiteral("not registered");
    case LoginItemStatus::enabled:
        return QStringLiteral("enabled");
    case LoginItemStatus::requiresApproval:
        return QStringLiteral("requires approval");
    case LoginItemStatus::notFound:
        return QStringLiteral("not found");
    }
    return QStringLiteral("unknown");
}

ReportFacts reportFacts(const Platform& platform, const QString& usernotedDbPath,
                        const QString& hoardPath) {
    const SystemFacts& system = *platform.systemFacts;
    const FileSystem& files = *platform.fileSystem;
    ReportFacts facts;
    facts.programVersion = system.programVersion();
    facts.programBuild = system.programBuild();
    facts.systemLabel = system.systemLabel();
    facts.systemVersion = system.systemVersion();
    facts.sqliteVersion = sqliteVersion();
    facts.hasAccessibility = platform.accessibility->isProcessTrusted();
    facts.hasFullDiskAccess = files.grantsReading(usernotedDbPath);
    facts.launchAtLogin = launchStatusText(platform.loginItem->status());
    facts.hoardPath = hoardPath;
    facts.shownHoardPath = files.abbreviatingWithTilde(hoardPath);
    return facts;
}

} // namespace tessarine

#include "apps/AppLauncher.h"

#include "apps/DeepLink.h"
#include "platform/FileSystem.h"
#include "platform/Scheduler.h"
#include "platform/Workspace.h"
#include "shared/CapturedNotification.h"

#include <QStringList>

#include <cstdio>

namespace tessarine {

namespace {

void tell(const QString& what) {
    const QByteArray line = QStringLiteral("[AppLauncher] %1\n").arg(what).toUtf8();
    std::fwrite(line.constData(), 1, std::size_t(line.size()), stdout);
    std::fflush(stdout);
}

} // namespace

AppLauncher::AppLauncher(Workspace& workspace, const FileSystem& fileSystem, const Scheduler& clock)
    : workspace_(workspace)
    , fileSystem_(fileSystem)
    , clock_(clock) {}

OpenOutcome AppLauncher::open(const CapturedNotification& notification) {
    if (const std::optional<QString> url = deepLinkURL(notification)) {
        workspace_.openURL(*url);
        tell(QStringLiteral("Deep link opened: ") + *url);
        return OpenOutcome::deepLinkOpened;
    }
    if (openInstalledApp(notification.appBundleId, notification.appName))
        return OpenOutcome::appOpened;
    tell(QStringLiteral("App not found: ") + notification.appName + QStringLiteral(" (") +
         notification.appBundleId + u')');
    return OpenOutcome::notFound;
}

std::optional<QString> AppLauncher::deepLinkURL(const CapturedNotification& notification) const {
    return deepLink(notification, {clock_.now(), [this](const QString& bundleId) {
                                       return workspace_.pathForApplication(bundleId).has_value();
                                   }});
}

bool AppLauncher::openInstalledApp(const QString& bundleId, const QString& appName) {
    if (const std::optional<QString> path = workspace_.pathForApplication(bundleId)) {
        workspace_.openApplication(*path);
        tell(QStringLiteral("Opened ") + appName + QStringLiteral(" via bundle ID"));
        return true;
    }
    if (const std::optional<QString> path = findByName(appName)) {
        workspace_.openApplication(*path);
        tell(QStringLiteral("Opened ") + appName + QStringLiteral(" via path lookup"));
        return true;
    }
    return false;
}

void AppLauncher::openByBundleId(const QString& bundleId) {
    if (const std::optional<QString> path = workspace_.pathForApplication(bundleId))
        workspace_.openApplication(*path);
}

// The second folder for utilities, where icons are looked for, is left out.
std::optional<QString> AppLauncher::findByName(const QString& appName) const {
    const QStringList folders{QStringLiteral("/Applications"),
                              QStringLiteral("/System/Applications"),
                              QStringLiteral("/System/Applications/Utilities"),
                              fileSystem_.expandingTilde(QStringLiteral("~/Applications"))};
    for (const QString& folder : folders) {
        if (std::optional<QString> path = workspace_.applicationInFolder(folder, appName))
            return path;
    }
    return std::nullopt;
}

} // namespace tessarine

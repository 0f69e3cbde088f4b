#include "browser/overlays/InlineBanner.h"

#include "shared/BundleId.h"

#include <QCoreApplication>

namespace tessarine {

InlineBanner deepLinkBanner(const QString& appName) {
    InlineBanner banner;
    banner.icon = QStringLiteral("arrow.up.forward.app");
    banner.style = InlineBanner::Style::info;
    banner.title = qtTrId("banner.deepLink.title").arg(appName);
    banner.subtitle = qtTrId("banner.deepLink.subtitle");
    return banner;
}

InlineBanner notInstalledBanner(const CapturedNotification& notification) {
    InlineBanner banner;
    banner.style = InlineBanner::Style::warning;
    if (isUnresolvedBundleId(notification.appBundleId)) {
        banner.icon = QStringLiteral("questionmark.app");
        banner.title = qtTrId("banner.notInstalled.unknownTitle");
        banner.subtitle =
            qtTrId("banner.notInstalled.unknownSubtitle").arg(notification.appBundleId);
    } else {
        banner.icon = QStringLiteral("iphone");
        banner.title = qtTrId("banner.notInstalled.title").arg(notification.appName);
        banner.subtitle = qtTrId("banner.notInstalled.subtitle").arg(notification.appName);
    }
    return banner;
}

} // namespace tessarine

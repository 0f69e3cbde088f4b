#include "settings/PermissionSettings.h"

#include "capture/NotificationListener.h"
#include "platform/Accessibility.h"
#include "platform/FileSystem.h"
#include "platform/SystemSettings.h"

namespace tessarine {

PermissionSettings::PermissionSettings(Services services)
    : services_(std::move(services)) {}

void PermissionSettings::appear() {
    missingPages_.clear();
    recheckAx();
    recheckFda();
}

void PermissionSettings::recheckAx() {
    axEnabled_ = services_.accessibility.isProcessTrusted();
    Q_EMIT changed();
}

void PermissionSettings::recheckFda() {
    fdaEnabled_ = services_.fileSystem.grantsReading(services_.listener->usernotedDbPath());
    Q_EMIT changed();
}

QString PermissionSettings::axSettingsURL() {
    return settingsPages::accessibility;
}

QString PermissionSettings::fdaSettingsURL() {
    return settingsPages::fullDiskAccess;
}

bool PermissionSettings::offers(const QString& url) const {
    return !missingPages_.contains(url) && services_.systemSettings.offers(url);
}

void PermissionSettings::openSettings(const QString& url) {
    if (services_.systemSettings.open(url))
        return;
    missingPages_.insert(url);
    Q_EMIT changed();
}

} // namespace tessarine

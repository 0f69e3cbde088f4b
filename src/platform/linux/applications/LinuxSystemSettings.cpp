#include "platform/linux/applications/LinuxSystemSettings.h"

#include "platform/linux/applications/ApplicationStart.h"

#include <QStandardPaths>

#include <array>

namespace tessarine {

namespace {

struct Page {
    const char* desktop;
    const QString& address;
    const char* command;
};

// The first command that is installed serves. Versions of a desktop name theirs differently.
const std::array<Page, 13>& pages() {
    static const std::array<Page, 13> all{{
        {"GNOME", settingsPages::accessibility, "gnome-control-center notifications"},
        {"GNOME", settingsPages::fullDiskAccess, "gnome-control-center privacy"},
        {"Unity", settingsPages::accessibility, "gnome-control-center notifications"},
        {"Unity", settingsPages::fullDiskAccess, "gnome-control-center privacy"},
        {"KDE", settingsPages::accessibility, "systemsettings kcm_notifications"},
        {"KDE", settingsPages::accessibility, "systemsettings5 kcm_notifications"},
        {"X-Cinnamon", settingsPages::accessibility, "cinnamon-settings notifications"},
        {"X-Cinnamon", settingsPages::fullDiskAccess, "cinnamon-settings privacy"},
        {"XFCE", settingsPages::accessibility, "xfce4-notifyd-config"},
        {"MATE", settingsPages::accessibility, "mate-notification-properties"},
        {"LXQt", settingsPages::accessibility, "lxqt-config-notificationd"},
        {"Budgie", settingsPages::accessibility, "budgie-control-center notifications"},
        {"Budgie", settingsPages::fullDiskAccess, "budgie-control-center privacy"},
    }};
    return all;
}

} // namespace

LinuxSystemSettings::LinuxSystemSettings(QStringList desktops)
    : desktops_(std::move(desktops)) {}

QStringList LinuxSystemSettings::currentDesktops() {
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':', Qt::SkipEmptyParts);
}

QStringList LinuxSystemSettings::commandFor(const QString& page) const {
    for (const QString& desktop : desktops_) {
        for (const Page& known : pages()) {
            if (known.address != page || desktop != QLatin1String(known.desktop))
                continue;
            QStringList command = QString::fromLatin1(known.command).split(u' ');
            if (!QStandardPaths::findExecutable(command.front()).isEmpty())
                return command;
        }
    }
    return {};
}

bool LinuxSystemSettings::offers(const QString& page) const {
    return !commandFor(page).isEmpty();
}

bool LinuxSystemSettings::open(const QString& page) {
    const QStringList command = commandFor(page);
    return !command.isEmpty() && startDetached(command);
}

} // namespace tessarine

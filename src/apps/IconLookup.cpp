#include "apps/IconLookup.h"

#include "platform/ApplicationIcons.h"
#include "platform/FileSystem.h"
#include "platform/Symbols.h"
#include "platform/Workspace.h"
#include "shared/BundleId.h"

#include <QStringList>

#include <algorithm>

namespace tessarine {

namespace {

constexpr int iconSize = 36;          // points a side
constexpr int density = 3;            // device pixels for a point, at the most
constexpr double substituteSize = 16; // an icon no wider is none

// Reads well on light and on dark.
const QColor symbolColour(0x8e, 0x8e, 0x93);

bool hasRealBundleId(const QString& bundleId) {
    return !bundleId.isEmpty() && !isUnresolvedBundleId(bundleId);
}

QImage finished(const QImage& icon) {
    if (icon.isNull())
        return icon;
    constexpr int pixels = iconSize * density;
    QImage copy = icon.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                      .scaled(pixels, pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    copy.setDevicePixelRatio(density);
    return copy;
}

// Of an application at a path, unless the system has only its substitute.
std::optional<QImage> realIcon(const IconSources& sources, const std::optional<QString>& path) {
    if (!path)
        return std::nullopt;
    const QImage icon = sources.icons.iconForFile(*path);
    if (icon.deviceIndependentSize().width() <= substituteSize)
        return std::nullopt;
    return finished(icon);
}

std::optional<QImage> runningIcon(const IconSources& sources, const QString& bundleId) {
    const std::vector<RunningApplication> running = sources.workspace.runningApplications(bundleId);
    if (running.empty())
        return std::nullopt;
    const QImage icon = sources.icons.iconForRunningApplication(running.front());
    return icon.isNull() ? std::nullopt : std::optional(finished(icon));
}

std::optional<QImage> iconByBundleId(const IconSources& sources, const QString& bundleId) {
    if (!hasRealBundleId(bundleId))
        return std::nullopt;
    const auto icon = realIcon(sources, sources.workspace.pathForApplication(bundleId));
    return icon ? icon : runningIcon(sources, bundleId);
}

std::optional<QImage> iconByName(const IconSources& sources, const QString& appName) {
    const QStringList folders{
        QStringLiteral("/Applications"), QStringLiteral("/System/Applications"),
        QStringLiteral("/System/Applications/Utilities"), QStringLiteral("/Applications/Utilities"),
        sources.fileSystem.expandingTilde(QStringLiteral("~/Applications"))};
    for (const QString& folder : folders) {
        const auto path = sources.workspace.applicationInFolder(folder, appName);
        if (auto icon = realIcon(sources, path))
            return icon;
    }
    return std::nullopt;
}

const QStringList& settingsSubstrings() {
    static const QStringList texts{QStringLiteral("system settings"),
                                   QStringLiteral("system preferences"),
                                   QStringLiteral("background items"),
                                   QStringLiteral("background activity"),
                                   QStringLiteral("login items"),
                                   QStringLiteral("software update"),
                                   QStringLiteral("softwareupdatenotification"),
                                   QStringLiteral("btmnotificationagent")};
    return texts;
}

const QStringList& settingsBundleIds() {
    static const QStringList ids{QStringLiteral("com.apple.systempreferences"),
                                 QStringLiteral("com.apple.systemsettings"),
                                 QStringLiteral("login.items"),
                                 QStringLiteral("software.update"),
                                 QStringLiteral("com.apple.softwareupdatenotification"),
                                 QStringLiteral("com.apple.btmnotificationagent")};
    return ids;
}

const QStringList& settingsNames() {
    static const QStringList names{QStringLiteral("app background activity"),
                                   QStringLiteral("background items added"),
                                   QStringLiteral("background items"),
                                   QStringLiteral("system settings"),
                                   QStringLiteral("system preferences"),
                                   QStringLiteral("preferences"),
                                   QStringLiteral("login items"),
                                   QStringLiteral("software update"),
                                   QStringLiteral("softwareupdatenotification"),
                                   QStringLiteral("btmnotificationagent")};
    return names;
}

} // namespace

QString iconCacheKey(const QString& bundleId, const QString& appName) {
    return hasRealBundleId(bundleId) ? QStringLiteral("bundle:") + bundleId
                                     : QStringLiteral("name:") + appName;
}

QImage lookUpIcon(const IconSources& sources, const QString& bundleId, const QString& appName) {
    if (const auto icon = iconByBundleId(sources, bundleId))
        return *icon;
    if (const auto icon = lookUpSystemSettingsIcon(sources, appName, bundleId))
        return *icon;
    if (const auto icon = iconByName(sources, appName))
        return *icon;
    return finished(sources.icons.genericApplicationIcon());
}

bool isSystemSettingsAlias(const QString& appName, const QString& bundleId) {
    const QString name = appName.trimmed().toLower();
    const auto isInName = [&name](const QString& text) { return name.contains(text); };
    return std::any_of(settingsSubstrings().begin(), settingsSubstrings().end(), isInName) ||
           settingsBundleIds().contains(bundleId.toLower()) || settingsNames().contains(name);
}

std::optional<QImage> lookUpSystemSettingsIcon(const IconSources& sources, const QString& appName,
                                               const QString& bundleId) {
    if (!isSystemSettingsAlias(appName, bundleId))
        return std::nullopt;
    for (const QString& name :
         {QStringLiteral("System Settings"), QStringLiteral("System Preferences")}) {
        const auto path =
            sources.workspace.applicationInFolder(QStringLiteral("/System/Applications"), name);
        if (auto icon = realIcon(sources, path))
            return icon;
    }
    const QImage symbol =
        sources.symbols.image(QStringLiteral("gearshape.fill"), iconSize * density, symbolColour);
    return symbol.isNull() ? std::nullopt : std::optional(finished(symbol));
}

} // namespace tessarine

#pragma once

#include <QImage>
#include <QString>

#include <optional>

namespace tessarine {

class ApplicationIcons;
class FileSystem;
class Symbols;
class Workspace;

// Where icons come from.
struct IconSources {
    const Workspace& workspace;
    const FileSystem& fileSystem;
    const ApplicationIcons& icons;
    const Symbols& symbols;
};

// What a notification says of the application that it came from.
struct IconOwner {
    QString bundleId;
    QString appName;
};

// The key that an application's icon is kept under: its bundle id where that is a real one, else
// its name.
QString iconCacheKey(const QString& bundleId, const QString& appName);

// The icon of an application, by a chain of lookups that ends with the generic icon: null only
// where the system has none. A picture of 36 by 36 points, sharp at three times that. Any thread.
QImage lookUpIcon(const IconSources& sources, const QString& bundleId, const QString& appName);

// Whether the names are those of one of the system's agents that have no application of their own
// and belong to its settings.
bool isSystemSettingsAlias(const QString& appName, const QString& bundleId);

// The settings' icon, in the same form, if the names are such and it can be had. Any thread.
std::optional<QImage> lookUpSystemSettingsIcon(const IconSources& sources, const QString& appName,
                                               const QString& bundleId);

} // namespace tessarine

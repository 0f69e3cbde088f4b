#include "platform/linux/applications/DesktopEntries.h"

#include "platform/linux/applications/DesktopEntryFile.h"
#include "shared/BundleId.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace tessarine {

namespace {

// "lang_COUNTRY.ENCODING@MODIFIER" -> the suffixes under which a localised key may stand, best
// first.
QStringList localeSuffixes(const QString& locale) {
    const QString modifier = locale.contains(u'@') ? locale.section(u'@', 1) : QString();
    const QString withCountry = locale.section(u'@', 0, 0).section(u'.', 0, 0);
    const QString language = withCountry.section(u'_', 0, 0);
    QStringList suffixes;
    if (!modifier.isEmpty())
        suffixes << withCountry + u'@' + modifier;
    suffixes << withCountry;
    if (!modifier.isEmpty())
        suffixes << language + u'@' + modifier;
    suffixes << language;
    return suffixes;
}

QString localised(const DesktopEntryKeys& keys, const QString& key, const QString& locale) {
    for (const QString& suffix : localeSuffixes(locale)) {
        const auto found = keys.constFind(key + u'[' + suffix + u']');
        if (found != keys.constEnd())
            return *found;
    }
    return keys.value(key);
}

} // namespace

QString messageLocale() {
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        QString value = qEnvironmentVariable(variable);
        if (!value.isEmpty())
            return value;
    }
    return QStringLiteral("C");
}

bool DesktopEntry::isInstalled() const {
    return tryExec.isEmpty() || !QStandardPaths::findExecutable(tryExec).isEmpty();
}

std::optional<DesktopEntry> readDesktopEntry(const QString& path, const QString& locale) {
    const std::optional<DesktopEntryKeys> read = readDesktopEntryKeys(path);
    const DesktopEntryKeys keys = read.value_or(DesktopEntryKeys());
    if (keys.value(QStringLiteral("Type")) != QStringLiteral("Application") ||
        isTrue(keys, QStringLiteral("Hidden")))
        return std::nullopt;
    DesktopEntry entry;
    entry.path = path;
    entry.name = localised(keys, QStringLiteral("Name"), locale);
    entry.exec = keys.value(QStringLiteral("Exec"));
    entry.icon = localised(keys, QStringLiteral("Icon"), locale);
    entry.tryExec = keys.value(QStringLiteral("TryExec"));
    entry.workingFolder = keys.value(QStringLiteral("Path"));
    entry.wantsTerminal = isTrue(keys, QStringLiteral("Terminal"));
    entry.isBusActivatable = isTrue(keys, QStringLiteral("DBusActivatable"));
    return entry;
}

DesktopEntries::DesktopEntries()
    : DesktopEntries(QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation)) {}

DesktopEntries::DesktopEntries(QStringList folders)
    : folders_(std::move(folders)) {}

std::optional<DesktopEntry> DesktopEntries::find(const QString& bundleIdentifier) {
    refresh();
    const std::optional<DesktopEntry> entry = entryWithId(bundleIdentifier);
    return entry ? entry : entryWithId(idByDerivedId_.value(bundleIdentifier));
}

std::optional<DesktopEntry> DesktopEntries::findNamed(const QString& name) {
    refresh();
    return entryWithId(idByName_.value(name));
}

std::optional<DesktopEntry> DesktopEntries::findAt(const QString& path) {
    refresh();
    return entryWithId(idByPath_.value(path));
}

std::optional<DesktopEntry> DesktopEntries::entryWithId(const QString& id) const {
    const auto found = byId_.constFind(id);
    return found == byId_.constEnd() ? std::nullopt : std::optional(*found);
}

void DesktopEntries::refresh() {
    bool current = !readAt_.isEmpty();
    for (auto folder = readAt_.cbegin(); current && folder != readAt_.cend(); ++folder)
        current = QFileInfo(folder.key()).lastModified() == folder.value();
    if (current)
        return;
    readAt_.clear();
    ids_.clear();
    byId_.clear();
    idByDerivedId_.clear();
    idByName_.clear();
    idByPath_.clear();
    for (const QString& folder : folders_)
        readFolder(folder, folder);
}

void DesktopEntries::readFolder(const QString& root, const QString& folder) {
    readAt_.insert(folder, QFileInfo(folder).lastModified());
    const QDir directory(folder);
    const auto names =
        directory.entryInfoList({QStringLiteral("*.desktop")}, QDir::Files, QDir::Name);
    for (const QFileInfo& file : names) {
        QString id = QDir(root).relativeFilePath(file.filePath()).replace(u'/', u'-');
        id.chop(QStringLiteral(".desktop").size());
        if (ids_.contains(id))
            continue;
        ids_.insert(id);
        std::optional<DesktopEntry> entry = readDesktopEntry(file.filePath(), messageLocale());
        if (!entry)
            continue;
        entry->id = id;
        addEntry(*entry);
    }
    const auto folders = directory.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (const QString& name : folders)
        readFolder(root, directory.filePath(name));
}

void DesktopEntries::addEntry(const DesktopEntry& entry) {
    byId_.insert(entry.id, entry);
    idByPath_.insert(entry.path, entry.id);
    if (entry.name.isEmpty())
        return;
    const QString derivedId = derivedBundleId(entry.name);
    if (!idByDerivedId_.contains(derivedId))
        idByDerivedId_.insert(derivedId, entry.id);
    if (!idByName_.contains(entry.name))
        idByName_.insert(entry.name, entry.id);
}

} // namespace tessarine

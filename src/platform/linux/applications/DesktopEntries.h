#pragma once

#include <QDateTime>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

namespace tessarine {

// What the program uses of an application's desktop entry.
struct DesktopEntry {
    QString id;            // file name relative to its folder, "/" as "-", without ".desktop"
    QString path;          // of the file
    QString name;          // in the user's language
    QString exec;          // command line, still with its field codes
    QString icon;          // name in the icon theme, or a path
    QString tryExec;       // a program without which the application counts as not installed
    QString workingFolder; // to start in; may be empty
    bool wantsTerminal = false;
    bool isBusActivatable = false; // it can be started by its id as a name on the session bus

    // Whether the program that it says to look for is there.
    bool isInstalled() const;
};

// Reads one file in the form of freedesktop's Desktop Entry Specification. Nothing when it is not
// an application's entry, or is marked as deleted. The locale is a POSIX name ("de_DE.UTF-8").
std::optional<DesktopEntry> readDesktopEntry(const QString& path, const QString& locale);

// The user's, for texts.
QString messageLocale();

// The applications installed for this user, kept current by looking at the folders' dates. Where
// an id is in two folders the first one holds, as in the specification. One thread.
class DesktopEntries {
public:
    DesktopEntries();                             // XDG_DATA_HOME, then XDG_DATA_DIRS
    explicit DesktopEntries(QStringList folders); // folders named "applications", best first

    // By entry id, else by the id derived from the entry's name.
    std::optional<DesktopEntry> find(const QString& bundleIdentifier);

    // By the entry's name in the user's language, compared exactly.
    std::optional<DesktopEntry> findNamed(const QString& name);

    // The one that the file at the path holds, if it is among these.
    std::optional<DesktopEntry> findAt(const QString& path);

private:
    void refresh();
    void readFolder(const QString& root, const QString& folder);
    void addEntry(const DesktopEntry& entry);
    std::optional<DesktopEntry> entryWithId(const QString& id) const;

    QStringList folders_;
    QHash<QString, QDateTime> readAt_; // each folder read, with its date then
    QSet<QString> ids_; // all met, also of deleted entries: they hide those of later folders
    QHash<QString, DesktopEntry> byId_;
    QHash<QString, QString> idByDerivedId_;
    QHash<QString, QString> idByName_;
    QHash<QString, QString> idByPath_;
};

} // namespace tessarine

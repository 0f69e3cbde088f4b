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
    QString id;   // file name relative to its folder, "/" as "-", without ".desktop"
    QString path; // of the file
    QString name; // in the user's language
    QString exec; // command line, still with its field codes
    QString icon; // name in the icon theme, or a path

    // The program that the entry starts: the first word of its command line, unquoted.
    QString executable() const;
};

// Reads one file in the form of freedesktop's Desktop Entry Specification. Nothing when it is not
// an application's entry, or is marked as deleted. The locale is a POSIX name ("de_DE.UTF-8").
std::optional<DesktopEntry> readDesktopEntry(const QString& path, const QString& locale);

// The applications installed for this user, kept current by looking at the folders' dates. Where
// an id is in two folders the first one holds, as in the specification. One thread.
class DesktopEntries {
public:
    DesktopEntries();                             // XDG_DATA_HOME, then XDG_DATA_DIRS
    explicit DesktopEntries(QStringList folders); // folders named "applications", best first

    // By entry id, else by the id derived from the entry's name.
    std::optional<DesktopEntry> find(const QString& bundleIdentifier);

private:
    void refresh();
    void readFolder(const QString& root, const QString& folder);

    QStringList folders_;
    QHash<QString, QDateTime> readAt_; // each folder read, with its date then
    QSet<QString> ids_; // all met, also of deleted entries: they hide those of later folders
    QHash<QString, DesktopEntry> byId_;
    QHash<QString, QString> idByDerivedId_;
};

} // namespace tessarine

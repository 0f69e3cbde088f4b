#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class QSettings;

namespace tessarine {

// How large an icon is to be shown: points a side, and pixels for each point.
struct IconSize {
    int points = 0;
    int scale = 1;
};

// Finds icons in the folders of icon themes, as freedesktop's Icon Theme Specification lays them
// out: the theme itself, what it inherits from, "hicolor" and Adwaita, then the folders without a
// theme. Reads files at each question and keeps nothing. Any thread.
class IconTheme {
public:
    // The folders that hold themes, best first, and those that hold icons only.
    IconTheme(QString name, QStringList folders, QStringList looseFolders);

    // The file of the icon that was made for this size, or for the one that is closest to it in
    // pixels: drawings too were made for a size, or for a range of sizes. Empty when no theme has
    // the icon.
    QString find(const QString& icon, const IconSize& size) const;

private:
    // Where the icons of one range of sizes lie.
    struct Folder {
        QString name; // relative to the theme's
        qint64 smallest = 0;
        qint64 largest = 0; // in points
        qint64 scale = 1;

        qint64 distance(const IconSize& wanted) const;
    };

    QStringList chain() const;
    void addToChain(QStringList& chain, const QString& theme) const;
    QString indexOf(const QString& theme) const;
    static Folder folderIn(const QSettings& index, const QString& name);
    std::vector<Folder> foldersOf(const QString& theme) const;
    QString findIn(const QString& theme, const QString& icon, const IconSize& size) const;

    QString name_;
    QStringList folders_;
    QStringList looseFolders_;
};

} // namespace tessarine

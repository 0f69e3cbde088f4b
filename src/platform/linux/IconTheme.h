#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace tessarine {

// Finds icons in the folders of icon themes, as freedesktop's Icon Theme Specification lays them
// out: the theme itself, what it inherits from, "hicolor" and Adwaita, then the folders without a
// theme. Reads files at each question and keeps nothing. Any thread.
class IconTheme {
public:
    // The folders that hold themes, best first, and those that hold icons only.
    IconTheme(QString name, QStringList folders, QStringList looseFolders);

    // The file of the icon in the rendition that suits this many pixels a side best: a drawing,
    // else the smallest that is large enough, else the largest. Empty when no theme has the icon.
    QString find(const QString& icon, int pixels) const;

private:
    struct Folder {
        QString name; // relative to the theme's
        int pixels;   // a side, of the icons in it
    };

    QStringList chain() const;
    void addToChain(QStringList& chain, const QString& theme) const;
    QString indexOf(const QString& theme) const;
    std::vector<Folder> foldersOf(const QString& theme) const;
    QString findIn(const QString& theme, const QString& icon, int pixels) const;

    QString name_;
    QStringList folders_;
    QStringList looseFolders_;
};

} // namespace tessarine

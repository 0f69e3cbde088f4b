#include "platform/linux/applications/IconTheme.h"

#include <QFileInfo>
#include <QSettings>

#include <algorithm>
#include <limits>

namespace tessarine {

namespace {

// In the order of the Icon Theme Specification.
const QStringList kinds{QStringLiteral(".png"), QStringLiteral(".svg"), QStringLiteral(".xpm")};

// The file of this name without its kind, in the first of the folders that has one.
QString firstExisting(const QString& name, const QStringList& folders) {
    for (const QString& folder : folders) {
        for (const QString& kind : kinds) {
            QString path = folder + u'/' + name + kind;
            if (QFileInfo(path).isFile())
                return path;
        }
    }
    return {};
}

// No folder of icons is as far from any size.
constexpr qint64 farthest = std::numeric_limits<qint64>::max();

QStringList listOf(const QVariant& value) {
    QStringList list = value.toStringList();
    list.removeAll(QString());
    return list;
}

} // namespace

IconTheme::IconTheme(QString name, QStringList folders, QStringList looseFolders)
    : name_(std::move(name))
    , folders_(std::move(folders))
    , looseFolders_(std::move(looseFolders)) {}

QString IconTheme::find(const QString& icon, const IconSize& size) const {
    if (icon.isEmpty() || icon.contains(u'/'))
        return {};
    for (const QString& theme : chain()) {
        QString path = findIn(theme, icon, size);
        if (!path.isEmpty())
            return path;
    }
    return firstExisting(icon, folders_ + looseFolders_);
}

QStringList IconTheme::chain() const {
    QStringList chain;
    addToChain(chain, name_);
    chain.removeAll(QStringLiteral("hicolor")); // it is everybody's last resort
    addToChain(chain, QStringLiteral("hicolor"));
    addToChain(chain, QStringLiteral("Adwaita"));
    return chain;
}

void IconTheme::addToChain(QStringList& chain, const QString& theme) const {
    if (theme.isEmpty() || chain.contains(theme))
        return;
    chain << theme;
    const QSettings index(indexOf(theme), QSettings::IniFormat);
    for (const QString& parent : listOf(index.value(QStringLiteral("Icon Theme/Inherits"))))
        addToChain(chain, parent.trimmed());
}

QString IconTheme::indexOf(const QString& theme) const {
    for (const QString& folder : folders_) {
        QString path = folder + u'/' + theme + QStringLiteral("/index.theme");
        if (QFileInfo::exists(path))
            return path;
    }
    return {};
}

// In pixels; less than nothing for the very size that was asked for, by points and scale.
qint64 IconTheme::Folder::distance(const IconSize& wanted) const {
    if (scale == wanted.scale && smallest <= wanted.points && wanted.points <= largest)
        return -1;
    const qint64 pixels = qint64(wanted.points) * wanted.scale;
    return std::max({qint64(0), smallest * scale - pixels, pixels - largest * scale});
}

IconTheme::Folder IconTheme::folderIn(const QSettings& index, const QString& name) {
    const auto number = [&](const char* field, int otherwise) {
        return index.value(name + u'/' + QLatin1String(field), otherwise).toInt();
    };
    const int size = number("Size", 0);
    const QString type = index.value(name + QStringLiteral("/Type")).toString();
    Folder folder{name, size, size, number("Scale", 1)};
    if (type == QStringLiteral("Scalable")) {
        folder.smallest = number("MinSize", size);
        folder.largest = number("MaxSize", size);
    } else if (type != QStringLiteral("Fixed")) { // a threshold, if nothing is said
        const int threshold = number("Threshold", 2);
        folder.smallest -= threshold;
        folder.largest += threshold;
    }
    return folder;
}

std::vector<IconTheme::Folder> IconTheme::foldersOf(const QString& theme) const {
    const QString path = indexOf(theme);
    if (path.isEmpty())
        return {};
    const QSettings index(path, QSettings::IniFormat);
    std::vector<Folder> folders;
    for (const char* key : {"Icon Theme/Directories", "Icon Theme/ScaledDirectories"}) {
        for (const QString& name : listOf(index.value(QString::fromLatin1(key))))
            folders.push_back(folderIn(index, name.trimmed()));
    }
    return folders;
}

QString IconTheme::findIn(const QString& theme, const QString& icon, const IconSize& size) const {
    QString closest;
    qint64 leastDistance = farthest;
    for (const Folder& folder : foldersOf(theme)) {
        const qint64 distance = folder.distance(size);
        if (distance >= leastDistance)
            continue;
        const QString found = firstExisting(theme + u'/' + folder.name + u'/' + icon, folders_);
        if (found.isEmpty())
            continue;
        closest = found;
        leastDistance = distance;
    }
    return closest;
}

} // namespace tessarine

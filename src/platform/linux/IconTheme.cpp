#include "platform/linux/IconTheme.h"

#include <QFileInfo>
#include <QSettings>

#include <limits>

namespace tessarine {

namespace {

const QStringList kinds{QStringLiteral(".svg"), QStringLiteral(".png"), QStringLiteral(".xpm")};

QString existing(const QString& pathWithoutKind, const QString& kind) {
    QString path = pathWithoutKind + kind;
    return QFileInfo(path).isFile() ? path : QString();
}

// How ill an icon of this size stands for one of the wanted size. Enlarging is worst.
qint64 unfitness(int pixels, int wanted) {
    constexpr qint64 enlarging = 1 << 20;
    return pixels >= wanted ? pixels - wanted + 1 : enlarging + wanted - pixels;
}

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

QString IconTheme::find(const QString& icon, int pixels) const {
    if (icon.isEmpty() || icon.contains(u'/'))
        return {};
    for (const QString& theme : chain()) {
        QString path = findIn(theme, icon, pixels);
        if (!path.isEmpty())
            return path;
    }
    for (const QString& folder : folders_ + looseFolders_) {
        for (const QString& kind : kinds) {
            QString path = existing(folder + u'/' + icon, kind);
            if (!path.isEmpty())
                return path;
        }
    }
    return {};
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

std::vector<IconTheme::Folder> IconTheme::foldersOf(const QString& theme) const {
    const QString path = indexOf(theme);
    if (path.isEmpty())
        return {};
    QSettings index(path, QSettings::IniFormat);
    std::vector<Folder> folders;
    for (const char* key : {"Icon Theme/Directories", "Icon Theme/ScaledDirectories"}) {
        for (const QString& entry : listOf(index.value(QString::fromLatin1(key)))) {
            const QString name = entry.trimmed();
            const auto number = [&](const char* field, int otherwise) {
                return index.value(name + QString::fromLatin1(field), otherwise).toInt();
            };
            folders.push_back({name, number("/Size", 0) * number("/Scale", 1)});
        }
    }
    return folders;
}

QString IconTheme::findIn(const QString& theme, const QString& icon, int pixels) const {
    QString best;
    qint64 leastUnfit = std::numeric_limits<qint64>::max();
    for (const Folder& folder : foldersOf(theme)) {
        for (const QString& base : folders_) {
            const QString path = base + u'/' + theme + u'/' + folder.name + u'/' + icon;
            for (const QString& kind : kinds) {
                const bool isDrawing = kind == kinds.first();
                const qint64 unfit = isDrawing ? 0 : unfitness(folder.pixels, pixels);
                if (unfit >= leastUnfit)
                    continue;
                const QString found = existing(path, kind);
                if (found.isEmpty())
                    continue;
                best = found;
                leastUnfit = unfit;
            }
        }
    }
    return best;
}

} // namespace tessarine

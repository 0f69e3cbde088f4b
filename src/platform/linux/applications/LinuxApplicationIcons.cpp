#include "platform/linux/applications/LinuxApplicationIcons.h"

#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QImageReader>
#include <QPainter>
#include <QSet>
#include <QStandardPaths>
#include <QSvgRenderer>

#include <algorithm>

namespace tessarine {

namespace {

// The largest that views show, on the densest of displays.
constexpr IconSize shownSize{48, 3};
constexpr int drawnPixels = shownSize.points * shownSize.scale;

QStringList below(const QString& name) {
    QStringList folders;
    for (const QString& data :
         QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
        folders << data + u'/' + name;
    return folders;
}

IconTheme desktopTheme() {
    QStringList folders = below(QStringLiteral("icons"));
    folders.prepend(QDir::homePath() + QStringLiteral("/.icons"));
    return IconTheme(QIcon::themeName(), folders, below(QStringLiteral("pixmaps")));
}

QImage emptySquare(int side) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QRectF centred(const QSizeF& size, int side) {
    return {QPointF((side - size.width()) / 2, (side - size.height()) / 2), size};
}

QImage draw(const QString& path) {
    QSvgRenderer drawing(path);
    if (!drawing.isValid() || drawing.defaultSize().isEmpty())
        return {};
    QImage image = emptySquare(drawnPixels);
    QPainter painter(&image);
    const QSizeF size =
        QSizeF(drawing.defaultSize()).scaled(drawnPixels, drawnPixels, Qt::KeepAspectRatio);
    drawing.render(&painter, centred(size, drawnPixels));
    return image;
}

QImage read(const QString& path) {
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    QImage picture = reader.read();
    if (picture.isNull() || picture.width() == picture.height())
        return picture;
    QImage image = emptySquare(std::max(picture.width(), picture.height()));
    QPainter painter(&image);
    painter.drawImage(centred(picture.size(), image.width()), picture);
    return image;
}

QImage load(const QString& path) {
    if (path.isEmpty())
        return {};
    const bool isDrawing = path.endsWith(QStringLiteral(".svg"), Qt::CaseInsensitive) ||
                           path.endsWith(QStringLiteral(".svgz"), Qt::CaseInsensitive);
    return isDrawing ? draw(path) : read(path);
}

// The names under which themes keep the icon of any program. Many entries that have nothing better
// name one of them, and themes link the names of applications to them.
bool isGeneric(const QString& icon) {
    static const QSet<QString> names{QStringLiteral("application-x-executable"),
                                     QStringLiteral("application-default-icon"),
                                     QStringLiteral("application-x-desktop"),
                                     QStringLiteral("application-x-shellscript"),
                                     QStringLiteral("applications-other"),
                                     QStringLiteral("gnome-fs-executable"),
                                     QStringLiteral("exec"),
                                     QStringLiteral("executable"),
                                     QStringLiteral("system-run"),
                                     QStringLiteral("unknown")};
    return names.contains(icon);
}

// Some entries give the name an ending, which the specification doesn't want there.
QString withoutEnding(const QString& icon) {
    for (const char* ending : {".png", ".svg", ".xpm"}) {
        if (icon.endsWith(QLatin1String(ending)))
            return icon.chopped(4);
    }
    return icon;
}

} // namespace

LinuxApplicationIcons::LinuxApplicationIcons()
    : LinuxApplicationIcons(desktopTheme()) {}

LinuxApplicationIcons::LinuxApplicationIcons(IconTheme theme)
    : theme_(std::move(theme)) {}

QImage LinuxApplicationIcons::iconForFile(const QString& path) const {
    const std::optional<DesktopEntry> entry = readDesktopEntry(path, messageLocale());
    return entry ? iconOf(*entry) : QImage();
}

QImage
LinuxApplicationIcons::iconForRunningApplication(const RunningApplication& application) const {
    std::optional<DesktopEntry> entry;
    {
        const std::lock_guard lock(mutex_);
        entry = entries_.find(application.bundleIdentifier);
    }
    return entry ? iconOf(*entry) : QImage();
}

// A theme's icon for any program looks the same for all: the views have something better.
QImage LinuxApplicationIcons::genericApplicationIcon() const {
    return {};
}

QImage LinuxApplicationIcons::iconOf(const DesktopEntry& entry) const {
    if (QDir::isAbsolutePath(entry.icon))
        return load(entry.icon);
    QString path = theme_.find(entry.icon, shownSize);
    if (path.isEmpty())
        path = theme_.find(withoutEnding(entry.icon), shownSize);
    const QFileInfo file(QFileInfo(path).canonicalFilePath());
    return isGeneric(withoutEnding(entry.icon)) || isGeneric(file.completeBaseName()) ? QImage()
                                                                                      : load(path);
}

} // namespace tessarine

#include "platform/linux/LinuxApplicationIcons.h"

#include <QDir>
#include <QIcon>
#include <QImageReader>
#include <QPainter>
#include <QStandardPaths>
#include <QSvgRenderer>

#include <algorithm>

namespace tessarine {

namespace {

// Enough for what the views show at three times their size.
constexpr int drawnPixels = 144;

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
    const QImage picture = reader.read();
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

// Some entries give the name an ending, which the specification doesn't want there.
QString withoutEnding(const QString& icon) {
    for (const char* ending : {".png", ".svg", ".xpm"}) {
        if (icon.endsWith(QLatin1String(ending)))
            return icon.chopped(4);
    }
    return icon;
}

// Where no theme has an icon for programs.
QImage plainTile() {
    constexpr double inset = drawnPixels / 12.0;
    constexpr double radius = drawnPixels / 5.0;
    QImage image = emptySquare(drawnPixels);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x8e, 0x8e, 0x93));
    painter.drawRoundedRect(QRectF(image.rect()).adjusted(inset, inset, -inset, -inset), radius,
                            radius);
    return image;
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

QImage LinuxApplicationIcons::genericApplicationIcon() const {
    const QImage icon = load(theme_.find(QStringLiteral("application-x-executable"), drawnPixels));
    return icon.isNull() ? plainTile() : icon;
}

QImage LinuxApplicationIcons::iconOf(const DesktopEntry& entry) const {
    if (QDir::isAbsolutePath(entry.icon))
        return load(entry.icon);
    const QString path = theme_.find(entry.icon, drawnPixels);
    return load(path.isEmpty() ? theme_.find(withoutEnding(entry.icon), drawnPixels) : path);
}

} // namespace tessarine

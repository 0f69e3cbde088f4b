#include "platform/linux/LinuxSymbols.h"

#include <QFile>
#include <QMap>
#include <QPainter>
#include <QStandardPaths>
#include <QSvgRenderer>

// Qt's macro can't name a resource from inside a namespace.
static void initSymbolResources() {
    Q_INIT_RESOURCE(symbols);
}

namespace tessarine {

namespace {

// From symbol name to icon name, as the freedesktop icon naming specification and Adwaita have it.
// An empty icon name stands for a drawing of our own.
const QMap<QString, QString>& table() {
    static const QMap<QString, QString> icons{
        {QStringLiteral("bell.fill"), QString()},
        {QStringLiteral("bell.slash"), QStringLiteral("notifications-disabled")},
        {QStringLiteral("clock.arrow.circlepath"), QStringLiteral("document-open-recent")},
    };
    return icons;
}

// Versions of the theme keep their icons in different folders.
QString iconPath(const QString& icon) {
    for (const char* size : {"symbolic", "scalable"}) {
        for (const char* context : {"actions", "status", "places", "devices", "mimetypes", "ui"}) {
            QString path =
                QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                                       QStringLiteral("icons/Adwaita/%1/%2/%3-symbolic.svg")
                                           .arg(QLatin1String(size), QLatin1String(context), icon));
            if (!path.isEmpty())
                return path;
        }
    }
    return {};
}

QString drawingPath(const QString& name) {
    const auto entry = table().find(name);
    if (entry == table().end())
        return {};
    return entry->isEmpty() ? QStringLiteral(":/symbols/%1.svg").arg(name) : iconPath(*entry);
}

} // namespace

QImage LinuxSymbols::image(const QString& name, int pixels, const QColor& tint) const {
    initSymbolResources();
    QSvgRenderer drawing;
    const QString path = drawingPath(name);
    if (pixels < 1 || path.isEmpty() || !drawing.load(path))
        return {};
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter, QRectF(0, 0, pixels, pixels));
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), tint);
    return image;
}

QStringList LinuxSymbols::names() {
    return table().keys();
}

} // namespace tessarine

#include "platform/linux/desktop/LinuxSymbols.h"

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
        {QStringLiteral("30.circle"), QString()},
        {QStringLiteral("7.circle"), QString()},
        {QStringLiteral("accessibility"), QString()},
        {QStringLiteral("antenna.radiowaves.left.and.right"), QString()},
        {QStringLiteral("arrow.clockwise"), QStringLiteral("view-refresh")},
        {QStringLiteral("arrow.clockwise.circle"), QString()},
        {QStringLiteral("arrow.up.circle.fill"), QString()},
        {QStringLiteral("arrow.up.doc.fill"), QString()},
        {QStringLiteral("arrow.up.forward.app"), QString()},
        {QStringLiteral("bell.and.waveform.fill"), QString()},
        {QStringLiteral("bell.and.waves.left.and.right"), QString()},
        {QStringLiteral("bell.fill"), QString()},
        {QStringLiteral("bell.slash"), QStringLiteral("notifications-disabled")},
        {QStringLiteral("calendar"), QString()},
        {QStringLiteral("calendar.badge.clock"), QString()},
        {QStringLiteral("calendar.badge.minus"), QString()},
        {QStringLiteral("checkmark"), QStringLiteral("object-select")},
        {QStringLiteral("checkmark.circle"), QString()},
        {QStringLiteral("checkmark.circle.fill"), QString()},
        {QStringLiteral("checkmark.shield"), QString()},
        {QStringLiteral("checkmark.shield.fill"), QString()},
        {QStringLiteral("chevron.down"), QString()},
        {QStringLiteral("chevron.left"), QString()},
        {QStringLiteral("chevron.right"), QString()},
        {QStringLiteral("chevron.up.chevron.down"), QString()},
        {QStringLiteral("circle"), QString()},
        {QStringLiteral("clock.arrow.circlepath"), QStringLiteral("document-open-recent")},
        {QStringLiteral("cylinder"), QString()},
        {QStringLiteral("cylinder.split.1x2"), QString()},
        {QStringLiteral("doc.on.clipboard"), QStringLiteral("edit-paste")},
        {QStringLiteral("doc.on.doc"), QStringLiteral("edit-copy")},
        {QStringLiteral("doc.richtext.fill"), QString()},
        {QStringLiteral("doc.text"), QString()},
        {QStringLiteral("doc.text.magnifyingglass"), QString()},
        {QStringLiteral("envelope.open.fill"), QString()},
        {QStringLiteral("exclamationmark.circle"), QString()},
        {QStringLiteral("exclamationmark.circle.fill"), QString()},
        {QStringLiteral("exclamationmark.lock.fill"), QString()},
        {QStringLiteral("exclamationmark.triangle"), QString()},
        {QStringLiteral("exclamationmark.triangle.fill"), QStringLiteral("dialog-warning")},
        {QStringLiteral("eye"), QStringLiteral("view-reveal")},
        {QStringLiteral("eye.slash"), QStringLiteral("view-conceal")},
        {QStringLiteral("folder"), QStringLiteral("folder")},
        {QStringLiteral("gear"), QString()},
        {QStringLiteral("gearshape"), QString()},
        {QStringLiteral("gearshape.fill"), QString()},
        {QStringLiteral("hand.raised.fill"), QString()},
        {QStringLiteral("info.circle"), QString()},
        {QStringLiteral("internaldrive"), QStringLiteral("drive-harddisk")},
        {QStringLiteral("internaldrive.fill"), QString()},
        {QStringLiteral("iphone"), QStringLiteral("phone")},
        {QStringLiteral("iphone.and.arrow.forward"), QString()},
        {QStringLiteral("key.fill"), QString()},
        {QStringLiteral("lightbulb"), QString()},
        {QStringLiteral("lock.fill"), QString()},
        {QStringLiteral("lock.open.fill"), QString()},
        {QStringLiteral("lock.shield"), QString()},
        {QStringLiteral("lock.shield.fill"), QString()},
        {QStringLiteral("magnifyingglass"), QStringLiteral("edit-find")},
        {QStringLiteral("menubar.rectangle"), QString()},
        {QStringLiteral("moon"), QStringLiteral("weather-clear-night")},
        {QStringLiteral("pause.fill"), QString()},
        {QStringLiteral("person.fill.checkmark"), QString()},
        {QStringLiteral("pin"), QString()},
        {QStringLiteral("pin.fill"), QString()},
        {QStringLiteral("pin.slash"), QString()},
        {QStringLiteral("play.fill"), QString()},
        {QStringLiteral("questionmark.app"), QString()},
        {QStringLiteral("square.and.arrow.down"), QStringLiteral("document-save")},
        {QStringLiteral("square.and.arrow.up"), QString()},
        {QStringLiteral("square.and.arrow.up.circle.fill"), QString()},
        {QStringLiteral("square.grid.2x2"), QString()},
        {QStringLiteral("sun.max"), QStringLiteral("weather-clear")},
        {QStringLiteral("switch.2"), QString()},
        {QStringLiteral("tablecells"), QString()},
        {QStringLiteral("timer"), QString()},
        {QStringLiteral("trash"), QString()},
        {QStringLiteral("trash.fill"), QString()},
        {QStringLiteral("tray"), QString()},
        {QStringLiteral("tray.full"), QString()},
        {QStringLiteral("xmark"), QString()},
        {QStringLiteral("xmark.circle.fill"), QString()},
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

QStringList LinuxSymbols::names() const {
    return table().keys();
}

std::unique_ptr<Symbols> makeSymbols() {
    return std::make_unique<LinuxSymbols>();
}

} // namespace tessarine

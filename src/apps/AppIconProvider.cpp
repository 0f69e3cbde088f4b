#include "apps/AppIconProvider.h"

#include "apps/AppIconResolver.h"

#include <QPainter>
#include <QPainterPath>

namespace tessarine {

namespace {

QImage rounded(const QImage& icon, double radius) {
    QImage image(icon.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(icon));
    painter.drawRoundedRect(QRectF(image.rect()), radius, radius);
    return image;
}

} // namespace

AppIconProvider::AppIconProvider(std::shared_ptr<const AppIconResolver> resolver)
    : QQuickImageProvider(QQuickImageProvider::Image)
    , resolver_(std::move(resolver)) {}

// A key may hold any character, an address may not.
QString AppIconProvider::address(const QString& key, double rounding) {
    const QByteArray name = key.toUtf8().toBase64(QByteArray::Base64UrlEncoding);
    return QStringLiteral("image://appicons/%1/%2").arg(rounding).arg(QLatin1String(name));
}

QImage AppIconProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize) {
    const double rounding = id.section(u'/', 0, 0).toDouble();
    const QByteArray name = id.section(u'/', 1).toLatin1();
    const QString key =
        QString::fromUtf8(QByteArray::fromBase64(name, QByteArray::Base64UrlEncoding));
    QImage icon = resolver_->cache().value(key);
    icon.setDevicePixelRatio(1); // from here on pixels count
    if (size)
        *size = icon.size();
    if (icon.isNull())
        return icon;
    if (!requestedSize.isEmpty() && requestedSize.width() < icon.width())
        icon = icon.scaled(requestedSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return rounding > 0 ? rounded(icon, rounding * icon.width()) : icon;
}

} // namespace tessarine

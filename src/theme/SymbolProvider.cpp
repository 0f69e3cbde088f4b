#include "theme/SymbolProvider.h"

#include "platform/Symbols.h"

namespace tessarine {

namespace {

constexpr int defaultPixels = 16; // where the view names no size

} // namespace

QString symbolAddress(const QString& name, const QColor& tint) {
    const QColor::NameFormat format = tint.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb;
    return QStringLiteral("image://symbols/%1/%2").arg(name, tint.name(format));
}

SymbolProvider::SymbolProvider(const Symbols& symbols)
    : QQuickImageProvider(QQuickImageProvider::Image)
    , symbols_(symbols) {}

QImage SymbolProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize) {
    const QString name = id.section(u'/', 0, 0);
    const QColor tint(id.section(u'/', 1));
    const int pixels = requestedSize.width() > 0 ? requestedSize.width() : defaultPixels;
    QImage image = symbols_.image(name, pixels, tint);
    if (size)
        *size = image.size();
    return image;
}

} // namespace tessarine

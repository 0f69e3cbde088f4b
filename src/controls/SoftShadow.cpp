#include "controls/SoftShadow.h"

#include <QPainter>

#include <cmath>

namespace tessarine {

namespace {

constexpr double deviationsInReach = 3; // beyond that a Gaussian blur leaves nothing to be seen

// A Gaussian blur of a rectangle is the product of its two profiles.
QImage shadowImage(const QSize& size, double reach, const QColor& colour) {
    const QList<double> columns = shadowProfile(size.width(), reach);
    const QList<double> rows = shadowProfile(size.height(), reach);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const double alpha = colour.alpha() * columns[x] * rows[y];
            line[x] = qPremultiply(
                qRgba(colour.red(), colour.green(), colour.blue(), int(std::lround(alpha))));
        }
    }
    return image;
}

} // namespace

QList<double> shadowProfile(int length, double reach) {
    const double scale = deviationsInReach / (std::sqrt(2.0) * reach);
    QList<double> profile(length);
    for (int i = 0; i < length; ++i) {
        const double fromStart = i + 0.5 - reach;
        const double fromEnd = length - i - 0.5 - reach;
        profile[i] = (std::erf(fromStart * scale) + std::erf(fromEnd * scale)) / 2;
    }
    return profile;
}

SoftShadow::SoftShadow(QQuickItem* parent)
    : QQuickPaintedItem(parent) {
    connect(this, &SoftShadow::changed, this, [this] { update(); });
}

void SoftShadow::geometryChange(const QRectF& now, const QRectF& before) {
    QQuickPaintedItem::geometryChange(now, before);
    setTextureSize(now.size().toSize());
    update();
}

void SoftShadow::paint(QPainter* painter) {
    const QSize size = boundingRect().size().toSize();
    if (!size.isEmpty() && reach_ > 0)
        painter->drawImage(boundingRect(), shadowImage(size, reach_, color_));
}

} // namespace tessarine

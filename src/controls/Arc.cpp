#include "controls/Arc.h"

#include <QPainter>

namespace tessarine {

namespace {

// Angles of Qt's painter: sixteenths of a degree, anticlockwise, from the right.
constexpr int top = 90 * 16;
constexpr double wholeTurn = 360 * 16;

} // namespace

Arc::Arc(QQuickItem* parent)
    : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    connect(this, &Arc::changed, this, [this] { update(); });
}

void Arc::paint(QPainter* painter) {
    const double half = strokeWidth_ / 2;
    painter->setPen(QPen(color_, strokeWidth_, Qt::SolidLine, Qt::FlatCap));
    painter->setBrush(Qt::NoBrush);
    painter->drawArc(boundingRect().adjusted(half, half, -half, -half), top,
                     -qRound(fraction_ * wholeTurn));
}

} // namespace tessarine

#include "controls/Outline.h"

#include <QPainter>

namespace tessarine {

Outline::Outline(QQuickItem* parent)
    : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    connect(this, &Outline::changed, this, [this] { update(); });
}

void Outline::paint(QPainter* painter) {
    const double half = strokeWidth_ / 2;
    painter->setPen(QPen(color_, strokeWidth_));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(boundingRect().adjusted(half, half, -half, -half), radius_ - half,
                             radius_ - half);
}

} // namespace tessarine

#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The part of a circle that stands for a fraction: from the top, clockwise, inside the item.
class Arc : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed)
    Q_PROPERTY(double strokeWidth MEMBER strokeWidth_ NOTIFY changed) // in points
    Q_PROPERTY(double fraction MEMBER fraction_ NOTIFY changed)       // from 0 to 1

public:
    explicit Arc(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    QColor color_;
    double strokeWidth_ = 1;
    double fraction_ = 1;
};

} // namespace tessarine

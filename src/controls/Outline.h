#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The outline of a rounded rectangle that fills the item: a line of any width, inside the item and
// equally wide on each side. The border of a QML Rectangle is rounded to whole pixels, and where no
// graphics card draws, it comes out wider on two of the sides.
class Outline : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed)
    Q_PROPERTY(double strokeWidth MEMBER strokeWidth_ NOTIFY changed) // in points
    Q_PROPERTY(double radius MEMBER radius_ NOTIFY changed)           // of its outer edge

public:
    explicit Outline(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    QColor color_;
    double strokeWidth_ = 1;
    double radius_ = 0;
};

} // namespace tessarine

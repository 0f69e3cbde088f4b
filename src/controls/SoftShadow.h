#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The soft shadow of a panel: strongest where the panel is, and gone at the item's own edges, which
// lie `reach` points beyond the panel on every side. Painted at one pixel a point, whatever the
// density: there is nothing sharp in it.
class SoftShadow : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed)
    Q_PROPERTY(double reach MEMBER reach_ NOTIFY changed)

public:
    explicit SoftShadow(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

protected:
    void geometryChange(const QRectF& now, const QRectF& before) override;

private:
    QColor color_;
    double reach_ = 0;
};

// How dark the shadow is, from 0 to 1, in each of so many pixels of a line across a panel, the
// first and the last of which are `reach` away from it: what a Gaussian blur makes of the panel.
QList<double> shadowProfile(int length, double reach);

} // namespace tessarine

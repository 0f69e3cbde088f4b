#include "export/ReportCanvas.h"

#include <QFontMetricsF>
#include <QIODevice>
#include <QPageSize>
#include <QPainterPath>

namespace tessarine {

namespace {

// Text is laid out on a finer grid than the point, or letters would be set to whole points. A
// multiple of 72, so that a point is a whole number of its units, also half a point.
constexpr int unitsPerPoint = 20;
constexpr int resolution = 72 * unitsPerPoint;

} // namespace

ReportCanvas::ReportCanvas(QIODevice& device, const QString& title)
    : device_(device)
    , writer_(&device) {
    writer_.setTitle(title);
    writer_.setCreator(QStringLiteral("Tessarine"));
    writer_.setResolution(resolution);
    writer_.setPageSize(QPageSize(QSizeF(pageWidth, pageHeight), QPageSize::Point, QString(),
                                  QPageSize::ExactMatch));
    writer_.setPageMargins(QMarginsF());
}

bool ReportCanvas::open() {
    return device_.isWritable() && painter_.begin(&writer_);
}

void ReportCanvas::startPage() {
    if (hasPage_)
        writer_.newPage();
    hasPage_ = true;
    painter_.resetTransform();
    painter_.scale(unitsPerPoint, -unitsPerPoint);
    painter_.translate(0, -pageHeight);
    fillRect({0, 0, pageWidth, pageHeight}, Qt::white);
}

bool ReportCanvas::close() {
    return painter_.end();
}

void ReportCanvas::drawText(const QString& text, const QFont& font, const QColor& colour, double x,
                            double top, double width, ReportAlignment alignment) {
    const ReportLine line(text, font, writer_, width * unitsPerPoint);
    const QFontMetricsF metrics(font, &writer_);
    const double ascender = metrics.ascent() / unitsPerPoint;
    const double descender = -metrics.descent() / unitsPerPoint;
    const bool atRight = alignment == ReportAlignment::right || line.runsToTheLeft();
    const double start = atRight ? x + width - line.width() / unitsPerPoint : x;
    painter_.save();
    painter_.setPen(colour);
    painter_.translate(start, top - descender + 2 - ascender);
    painter_.scale(1.0 / unitsPerPoint, -1.0 / unitsPerPoint);
    line.draw(painter_, pictures_);
    painter_.restore();
}

void ReportCanvas::strokeLine(double fromX, double toX, double y, const QColor& colour,
                              double lineWidth) {
    painter_.setPen(QPen(colour, lineWidth, Qt::SolidLine, Qt::FlatCap));
    painter_.drawLine(QPointF(fromX, y), QPointF(toX, y));
}

void ReportCanvas::fillRect(const QRectF& rect, const QColor& colour) {
    painter_.fillRect(rect, colour);
}

void ReportCanvas::fillEllipse(const QRectF& rect, const QColor& colour) {
    QPainterPath path;
    path.addEllipse(rect);
    painter_.fillPath(path, colour);
}

void ReportCanvas::fillRectAndRoundedRect(const QRectF& rect, double radius, const QColor& colour) {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addRect(rect);
    path.addRoundedRect(rect, radius, radius);
    painter_.fillPath(path, colour);
}

} // namespace tessarine

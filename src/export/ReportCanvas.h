#pragma once

#include "export/ReportLine.h"

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPdfWriter>
#include <QRectF>
#include <QString>

class QIODevice;

namespace tessarine {

enum class ReportAlignment { natural, right }; // natural: as the text's script runs

// The pages of a PDF file, and what the report draws on them. Coordinates are those of PDF: points,
// from the lower left corner of the page, y upwards. The system of Qt's painter shows nowhere else.
class ReportCanvas {
public:
    static constexpr double pageWidth = 595;
    static constexpr double pageHeight = 842;

    // The device is open and outlives the canvas.
    ReportCanvas(QIODevice& device, const QString& title);

    // False when the device can't be written to. Before everything else.
    bool open();

    // Starts a page, white all over.
    void startPage();

    // Ends the file.
    bool close();

    // One line of text. Its box hangs below top by the font's ascender and reaches two points and
    // the descender above it; the text stands at the box's upper edge. What doesn't fit into the
    // width, or comes after a line break, isn't drawn.
    void drawText(const QString& text, const QFont& font, const QColor& colour, double x,
                  double top, double width, ReportAlignment alignment = ReportAlignment::natural);

    // A horizontal line.
    void strokeLine(double fromX, double toX, double y, const QColor& colour, double lineWidth);

    void fillRect(const QRectF& rect, const QColor& colour);

    // The ellipse inscribed in the rectangle.
    void fillEllipse(const QRectF& rect, const QColor& colour);

    // The rectangle together with its own rounded rectangle, by the winding rule.
    void fillRectAndRoundedRect(const QRectF& rect, double radius, const QColor& colour);

private:
    QIODevice& device_;
    QPdfWriter writer_;
    QPainter painter_;
    ColourGlyphs pictures_;
    bool hasPage_ = false;
};

} // namespace tessarine

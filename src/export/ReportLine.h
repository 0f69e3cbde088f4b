#pragma once

#include <QFont>
#include <QHash>
#include <QImage>
#include <QPair>
#include <QString>
#include <QTextLayout>

class QPaintDevice;
class QPainter;
class QRawFont;

namespace tessarine {

// Pictures of glyphs that have colours of their own, by face, size and glyph. PDF fonts hold
// outlines only, so such glyphs are drawn as images, each of which a file needs once.
class ColourGlyphs {
public:
    static bool areIn(const QRawFont& font);

    const QImage& picture(const QRawFont& font, quint32 glyph);

private:
    QHash<QPair<QString, quint32>, QImage> pictures_;
};

// What one line of a given width shows of a text: as many words as fit, up to the first line break.
// A word that is too wide for the line is cut. In units of the device.
class ReportLine {
public:
    ReportLine(const QString& text, const QFont& font, QPaintDevice& device, double width);

    // Whether the text is written from right to left.
    bool runsToTheLeft() const { return runsToTheLeft_; }

    double width() const { return line_.isValid() ? line_.naturalTextWidth() : 0; }

    // With its left end at the painter's origin, on its base line.
    void draw(QPainter& painter, ColourGlyphs& pictures) const;

private:
    bool runsToTheLeft_;
    QTextLayout layout_;
    QTextLine line_;
};

} // namespace tessarine

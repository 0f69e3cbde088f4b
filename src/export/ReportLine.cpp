#include "export/ReportLine.h"

#include <QGlyphRun>
#include <QPainter>
#include <QRawFont>

#include <algorithm>
#include <cmath>

namespace tessarine {

namespace {

// No line of a page holds more; a longer text would be laid out for nothing.
constexpr qsizetype mostUnits = 4096;

// Pixels for each em of a picture: enough for print at the report's sizes.
constexpr double pictureSize = 72;

bool isLineBreak(QChar character) {
    switch (character.unicode()) {
    case u'\n':
    case u'\v':
    case u'\f':
    case u'\r':
    case u'\u0085':
    case u'\u2028':
    case u'\u2029':
        return true;
    default:
        return false;
    }
}

QString firstLine(const QString& text) {
    const auto end = std::find_if(text.begin(), text.end(), isLineBreak);
    return text.left(std::min<qsizetype>(end - text.begin(), mostUnits));
}

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

// Punctuation and symbols of the kind that fonts vary with their neighbours.
bool isSign(QChar character) {
    const bool isCommon =
        character < u'\u0100' || (character >= u'\u2010' && character <= u'\u22FF');
    return isCommon && (character.isPunct() || character.isSymbol());
}

bool continuesACharacter(QChar character) {
    return character.isMark() || character.category() == QChar::Other_Format;
}

// Fonts have other forms of ":" between digits, of "-" between capitals and the like. Such forms
// have no code point, so a reader of the file could neither find nor copy them. Signs are shaped by
// themselves, which gives their plain forms.
QList<QTextLayout::FormatRange> shapedApart(const QString& text) {
    QList<QTextLayout::FormatRange> ranges;
    for (qsizetype i = 0; i < text.size();) {
        qsizetype end = i + 1;
        if (isDigit(text[i])) {
            while (end < text.size() && isDigit(text[end]))
                ++end;
        }
        const bool isWhole = end == text.size() || !continuesACharacter(text[end]);
        if (isWhole && (isDigit(text[i]) || isSign(text[i])))
            ranges.append({int(i), int(end - i), QTextCharFormat()});
        i = end;
    }
    return ranges;
}

QTextOption lineOption(bool runsToTheLeft) {
    QTextOption option;
    option.setTextDirection(runsToTheLeft ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

} // namespace

bool ColourGlyphs::areIn(const QRawFont& font) {
    static thread_local QHash<QString, bool> known;
    const auto found = known.constFind(font.familyName());
    if (found != known.constEnd())
        return *found;
    const bool areThere = !font.fontTable("CBLC").isEmpty() || !font.fontTable("sbix").isEmpty() ||
                          !font.fontTable("COLR").isEmpty();
    known.insert(font.familyName(), areThere);
    return areThere;
}

const QImage& ColourGlyphs::picture(const QRawFont& font, quint32 glyph) {
    QImage& image = pictures_[{font.familyName(), glyph}];
    if (!image.isNull())
        return image;
    QRawFont scaled = font;
    scaled.setPixelSize(pictureSize);
    QGlyphRun run;
    run.setRawFont(scaled);
    run.setGlyphIndexes({glyph});
    run.setPositions({QPointF(0, scaled.ascent())});
    const double width = scaled.advancesForGlyphIndexes({glyph}).value(0).x();
    image = QImage(std::max(1, int(std::ceil(width))),
                   int(std::ceil(scaled.ascent() + scaled.descent())),
                   QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.drawGlyphRun({}, run);
    return image;
}

ReportLine::ReportLine(const QString& text, const QFont& font, QPaintDevice& device, double width)
    : runsToTheLeft_(firstLine(text).isRightToLeft())
    , layout_(firstLine(text), font, &device) {
    layout_.setTextOption(lineOption(runsToTheLeft_));
    layout_.setFormats(shapedApart(layout_.text()));
    layout_.beginLayout();
    line_ = layout_.createLine();
    if (line_.isValid())
        line_.setLineWidth(width);
    layout_.endLayout();
}

void ReportLine::draw(QPainter& painter, ColourGlyphs& pictures) const {
    if (!line_.isValid())
        return;
    const QPointF origin(0, -line_.ascent());
    const QList<QGlyphRun> runs = line_.glyphRuns();
    for (const QGlyphRun& run : runs) {
        const QRawFont font = run.rawFont();
        if (!ColourGlyphs::areIn(font)) {
            painter.drawGlyphRun(origin, run);
            continue;
        }
        const double scale = font.pixelSize() / pictureSize;
        for (qsizetype i = 0; i < run.glyphIndexes().size(); ++i) {
            const QImage& picture = pictures.picture(font, run.glyphIndexes()[i]);
            const QPointF corner = origin + run.positions()[i] - QPointF(0, font.ascent());
            painter.drawImage(QRectF(corner, QSizeF(picture.size()) * scale), picture);
        }
    }
}

} // namespace tessarine

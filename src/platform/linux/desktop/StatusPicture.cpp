#include "platform/linux/desktop/StatusPicture.h"

#include "platform/FontFamilies.h"
#include "platform/Symbols.h"

#include <QGuiApplication>
#include <QPainter>
#include <QStringList>

#include <algorithm>

namespace tessarine {

namespace {

// How far the contour reaches beyond the symbol, in pixels.
int contourWidth(int size) {
    return std::max(1, qRound(size / 22.0));
}

QColor tone(bool dark) {
    return dark ? QColor(0xf2, 0xf2, 0xf4) : QColor(0x1f, 0x1f, 0x22);
}

// The symbol's shape, grown by the contour's width on all sides.
void drawContour(QPainter& painter, const QImage& shape, int inset, int width) {
    for (int dx = -width; dx <= width; ++dx) {
        for (int dy = -width; dy <= width; ++dy) {
            if (dx * dx + dy * dy <= width * width + 1)
                painter.drawImage(inset + dx, inset + dy, shape);
        }
    }
}

// Neither colour alone could be read on every panel; one of the two always can.
void drawSymbol(QPainter& painter, const Symbols& symbols, const QString& name, int size,
                bool dark) {
    const int width = contourWidth(size);
    const int pixels = size - 2 * width;
    drawContour(painter, symbols.image(name, pixels, tone(!dark)), width, width);
    painter.drawImage(width, width, symbols.image(name, pixels, tone(dark)));
}

QFont tagFont(int size) {
    QFont font = QGuiApplication::font();
    font.setFamilies(QStringList(systemFontFamilies().tabular) + font.families());
    font.setPixelSize(std::max(7, size * 4 / 10));
    font.setWeight(QFont::Bold);
    return font;
}

// In the lower right corner, as wide as its text needs, and a gap away from the symbol.
void drawTag(QPainter& painter, const QString& text, int size) {
    painter.setFont(tagFont(size));
    const int height = std::max(9, size * 11 / 20);
    const int textWidth = painter.fontMetrics().horizontalAdvance(text) + height * 4 / 10;
    const int width = std::clamp(textWidth, height, size);
    const QRect tag(size - width, size - height, width, height);
    const int gap = contourWidth(size);
    const double radius = height / 2.0;
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.drawRoundedRect(tag.adjusted(-gap, -gap, gap, gap), radius + gap, radius + gap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setBrush(QColor(0xd8, 0x2c, 0x2c));
    painter.drawRoundedRect(tag, radius, radius);
    painter.setPen(Qt::white);
    painter.drawText(tag, Qt::AlignCenter | Qt::TextDontClip, text);
}

QPixmap picture(const Symbols& symbols, const QString& name, const QString& tag, int size,
                bool dark) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    drawSymbol(painter, symbols, name, size, dark);
    if (!tag.isEmpty())
        drawTag(painter, tag, size);
    return pixmap;
}

} // namespace

QIcon statusIcon(const Symbols& symbols, const QString& symbolName, const QString& title,
                 bool dark) {
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 44, 48, 64})
        icon.addPixmap(picture(symbols, symbolName, title.trimmed(), size, dark));
    return icon;
}

} // namespace tessarine

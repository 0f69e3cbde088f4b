#include "platform/linux/desktop/StatusPicture.h"

#include "platform/Symbols.h"

#include <QGuiApplication>
#include <QPainter>

#include <algorithm>

namespace tessarine {

namespace {

void drawSymbol(QPainter& painter, const Symbols& symbols, const QString& name, int size,
                bool dark) {
    const int inset = std::max(1, size / 12);
    const QColor tone = dark ? QColor(0xf2, 0xf2, 0xf4) : QColor(0x2c, 0x2c, 0x2f);
    QColor edge = dark ? QColor(0, 0, 0) : QColor(0xff, 0xff, 0xff);
    edge.setAlphaF(0.3F);
    const QImage contour = symbols.image(name, size - 2 * inset, edge);
    for (const int dx : {-1, 0, 1})
        for (const int dy : {-1, 0, 1})
            painter.drawImage(inset + dx, inset + dy, contour);
    painter.drawImage(inset, inset, symbols.image(name, size - 2 * inset, tone));
}

// In the lower right corner, as wide as its text needs.
void drawTag(QPainter& painter, const QString& text, int size) {
    QFont font = QGuiApplication::font();
    font.setPixelSize(std::max(7, size * 4 / 10));
    font.setWeight(QFont::Bold);
    painter.setFont(font);
    const int height = std::max(9, size * 11 / 20);
    const int textWidth = painter.fontMetrics().horizontalAdvance(text) + height * 4 / 10;
    const int width = std::clamp(textWidth, height, size);
    const QRect tag(size - width, size - height, width, height);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xd8, 0x2c, 0x2c));
    painter.drawRoundedRect(tag, height / 2.0, height / 2.0);
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

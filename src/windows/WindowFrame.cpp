#include "windows/WindowFrame.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace tessarine {

namespace {

constexpr int greatestExtent = 32767; // window systems count in 16 bits

} // namespace

std::optional<QRect> frameFromText(const QString& text) {
    const QStringList parts = text.split(u' ');
    std::array<int, 4> numbers{};
    if (parts.size() != qsizetype(numbers.size()))
        return std::nullopt;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        bool isNumber = false;
        numbers[i] = parts[qsizetype(i)].toInt(&isNumber);
        if (!isNumber || numbers[i] > greatestExtent || numbers[i] < -greatestExtent)
            return std::nullopt;
    }
    const auto [x, y, width, height] = numbers;
    if (width < 1 || height < 1)
        return std::nullopt;
    return QRect(x, y, width, height);
}

QString frameToText(const QRect& frame) {
    return QStringLiteral("%1 %2 %3 %4")
        .arg(frame.x())
        .arg(frame.y())
        .arg(frame.width())
        .arg(frame.height());
}

QSize sizeWithin(const QSize& wanted, const QSize& minimum, const QSize& room) {
    return wanted.boundedTo(room).expandedTo(minimum);
}

QPoint centred(const QSize& size, const QRect& room) {
    const QPoint corner(room.x() + (room.width() - size.width()) / 2,
                        room.y() + (room.height() - size.height()) / 2);
    return {std::max(corner.x(), room.x()), std::max(corner.y(), room.y())};
}

} // namespace tessarine

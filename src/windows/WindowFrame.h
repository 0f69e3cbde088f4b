#pragma once

#include <QRect>
#include <QString>

#include <optional>

namespace tessarine {

// A window's frame as user defaults keep it: "x y width height" in points. Nothing when the text
// is anything else, or no window could have that size.
std::optional<QRect> frameFromText(const QString& text);
QString frameToText(const QRect& frame);

// The size nearest to the wanted one that is not below the minimum and, as far as the minimum
// allows, not above what the screen has room for.
QSize sizeWithin(const QSize& wanted, const QSize& minimum, const QSize& room);

// The place that puts a window of this size in the middle of the room, or at its corner when it is
// larger.
QPoint centred(const QSize& size, const QRect& room);

} // namespace tessarine

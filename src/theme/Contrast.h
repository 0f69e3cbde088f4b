#pragma once

#include <QColor>
#include <QList>

namespace tessarine {

// How well two opaque colours can be told from each other, as the Web Content Accessibility
// Guidelines 2 define it: from 1, for the same, to 21, for black and white.
double contrast(const QColor& left, const QColor& right);

// The contrasts that these guidelines ask for.
constexpr double readableText = 4.5;
constexpr double visibleShape = 3.0;

// The shade of a colour that has at least this contrast to each of the grounds: the colour itself
// where it has, else the first one on its way to the end, which is black or white.
QColor shadeFor(const QColor& colour, const QList<QColor>& grounds, double least,
                const QColor& end);

} // namespace tessarine

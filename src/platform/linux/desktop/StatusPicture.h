#pragma once

#include <QIcon>

namespace tessarine {

class Symbols;

// The status item as one square picture for a tray, in all sizes that trays ask for: the symbol,
// and where there is a title, a small tag with it. A contour of the opposite lightness keeps it
// readable on a tray whose colour nobody tells.
QIcon statusIcon(const Symbols& symbols, const QString& symbolName, const QString& title,
                 bool dark);

} // namespace tessarine

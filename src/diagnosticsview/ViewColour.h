#pragma once

#include "shared/Colour.h"

#include <QColor>

namespace tessarine {

// A design colour as views draw with it.
inline QColor viewColour(const Colour& colour) {
    return QColor::fromRgbF(float(colour.red), float(colour.green), float(colour.blue));
}

} // namespace tessarine

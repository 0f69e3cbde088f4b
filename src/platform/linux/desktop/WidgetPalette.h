#pragma once

#include <QPalette>

namespace tessarine {

// Colours for the few widgets that are drawn outside of the windows: the desktop's own where they
// are as light or dark as wanted, else quiet ones that are.
QPalette widgetPalette(bool dark);

} // namespace tessarine

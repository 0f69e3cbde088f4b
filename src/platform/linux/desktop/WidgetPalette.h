#pragma once

#include <QPalette>

namespace tessarine {

class SystemAppearance;

// Colours for the few widgets that are drawn outside of the windows: the desktop's own where they
// are as light or dark as wanted, else quiet ones that are. What is chosen has the desktop's accent
// colour, with a text on it that can be read. Strong contrast has black and white. Main thread.
QPalette widgetPalette(const SystemAppearance& appearance);

} // namespace tessarine

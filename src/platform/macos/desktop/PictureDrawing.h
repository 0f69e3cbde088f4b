#pragma once

#include <QImage>

#import <AppKit/AppKit.h>

namespace tessarine {

// The system's picture in the middle of a transparent square with this many pixels a side, as large
// as fits, in sRGB. Null for none. Any thread.
QImage drawnSquare(NSImage* picture, int pixels);

} // namespace tessarine

#pragma once

#include <QStringView>

namespace tessarine {

// An opaque sRGB colour, each component from 0 to 1.
struct Colour {
    double red = 0;
    double green = 0;
    double blue = 0;

    bool operator==(const Colour&) const = default;
};

// The colour that six hexadecimal digits name ("4FC3F7"). What is neither letter nor digit is cut
// from both ends first, so "#4FC3F7" is the same; digits are read up to the first that is none.
Colour colourFromHex(QStringView text);

} // namespace tessarine

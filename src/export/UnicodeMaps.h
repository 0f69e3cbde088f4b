#pragma once

#include <QByteArray>

namespace tessarine {

// The maps from glyphs to text in a PDF file by Qt, which searching and copying go by, made to name
// the characters that were written. Qt names each glyph by the lowest code point that it serves: a
// blank as a tab, an ideograph as a radical, an Arabic letter as one of its four shapes. Nothing
// else in the file changes, nor does any length.
void nameGlyphsByTheirText(QByteArray& pdf);

} // namespace tessarine

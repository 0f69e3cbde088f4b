#include "controls/TextWidths.h"

#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace tessarine {

namespace {

// The last letter may reach beyond its advance, which metrics of fonts leave out.
double widthAsDrawn(const QString& text, const QFont& font) {
    QTextLayout layout(text, font);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    return line.isValid() ? line.naturalTextWidth() : 0;
}

} // namespace

int TextWidths::widest() const {
    double widest = 0;
    for (const QString& text : texts_)
        widest = std::max(widest, widthAsDrawn(text, font_));
    return int(std::ceil(widest));
}

} // namespace tessarine

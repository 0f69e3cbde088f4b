#include "controls/TextWidths.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace tessarine {

int TextWidths::widest() const {
    const QFontMetricsF metrics(font_);
    double widest = 0;
    for (const QString& text : texts_)
        widest = std::max(widest, metrics.horizontalAdvance(text));
    return int(std::ceil(widest));
}

} // namespace tessarine

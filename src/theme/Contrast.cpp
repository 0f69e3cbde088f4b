#include "theme/Contrast.h"

#include <algorithm>
#include <cmath>

namespace tessarine {

namespace {

double linear(float part) {
    const auto value = double(part);
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QColor mixed(const QColor& from, const QColor& to, float share) {
    const auto part = [share](float a, float b) { return a + (b - a) * share; };
    const QColor exact =
        QColor::fromRgbF(part(from.redF(), to.redF()), part(from.greenF(), to.greenF()),
                         part(from.blueF(), to.blueF()));
    return QColor(exact.rgb()); // as it will be seen
}

} // namespace

double contrast(const QColor& left, const QColor& right) {
    const double a = luminance(left) + 0.05;
    const double b = luminance(right) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

QColor shadeFor(const QColor& colour, const QList<QColor>& grounds, double least,
                const QColor& end) {
    constexpr int steps = 50;
    const auto holds = [&](const QColor& shade) {
        return std::all_of(grounds.begin(), grounds.end(),
                           [&](const QColor& ground) { return contrast(shade, ground) >= least; });
    };
    for (int step = 0; step < steps; ++step) {
        const QColor shade = mixed(colour, end, float(step) / steps);
        if (holds(shade))
            return shade;
    }
    return end;
}

} // namespace tessarine

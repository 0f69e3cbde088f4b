#include "controls/ScrollRange.h"

#include <QQuickItem>

#include <algorithm>

namespace tessarine {

namespace {

double number(const QQuickItem& view, const char* property) {
    return view.property(property).toDouble();
}

} // namespace

double firstContentY(const QQuickItem& view) {
    return number(view, "originY") - number(view, "topMargin");
}

double lastContentY(const QQuickItem& view) {
    const double end =
        number(view, "originY") + number(view, "contentHeight") + number(view, "bottomMargin");
    return std::max(end - view.height(), firstContentY(view));
}

void scrollBy(QQuickItem& view, double distance) {
    const double wanted = number(view, "contentY") + distance;
    view.setProperty("contentY", std::clamp(wanted, firstContentY(view), lastContentY(view)));
}

} // namespace tessarine

#pragma once

class QQuickItem;

namespace tessarine {

// How far a list or another flickable view may be scrolled, as values of its contentY in points.
double firstContentY(const QQuickItem& view);
double lastContentY(const QQuickItem& view); // not below the first

// Scrolls the view by a distance, as far as there is something to show.
void scrollBy(QQuickItem& view, double distance);

} // namespace tessarine

#include "controls/KeyboardScroller.h"

#include "controls/ScrollRange.h"

#include <QKeyEvent>

#include <algorithm>
#include <limits>
#include <optional>

namespace tessarine {

namespace {

constexpr double line = 48; // points; a page leaves as much of the one before in sight
constexpr double allTheWay = std::numeric_limits<double>::max() / 2;

// How far a key scrolls a view of this height; nothing for a key that doesn't.
std::optional<double> distanceOf(int key, bool backwards, double height) {
    const double page = std::max(height - line, line);
    switch (key) {
    case Qt::Key_Up:
        return -line;
    case Qt::Key_Down:
        return line;
    case Qt::Key_PageUp:
        return -page;
    case Qt::Key_PageDown:
        return page;
    case Qt::Key_Space:
        return backwards ? -page : page;
    case Qt::Key_Home:
        return -allTheWay;
    case Qt::Key_End:
        return allTheWay;
    default:
        return std::nullopt;
    }
}

} // namespace

bool KeyboardScroller::press(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const bool backwards = modifiers == Qt::ShiftModifier && event.key() == Qt::Key_Space;
    QQuickItem* const scrolled = scrolled_ ? scrolled_.get() : view();
    if (modifiers != Qt::NoModifier && !backwards)
        return false;
    const std::optional<double> distance = distanceOf(event.key(), backwards, scrolled->height());
    if (distance)
        scrollBy(*scrolled, *distance);
    return distance.has_value();
}

} // namespace tessarine

#include "controls/KeyboardScroller.h"

#include <QKeyEvent>

#include <algorithm>

namespace tessarine {

namespace {

constexpr double line = 48; // points; a page leaves as much of the one before in sight

double number(const QQuickItem& view, const char* property) {
    return view.property(property).toDouble();
}

// The end of what a flickable view shows, as a value of its contentY.
double lastContentY(const QQuickItem& view) {
    const double end =
        number(view, "originY") + number(view, "contentHeight") + number(view, "bottomMargin");
    return end - view.height();
}

double firstContentY(const QQuickItem& view) {
    return number(view, "originY") - number(view, "topMargin");
}

} // namespace

bool KeyboardScroller::press(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const bool backwards = modifiers == Qt::ShiftModifier && event.key() == Qt::Key_Space;
    if (modifiers != Qt::NoModifier && !backwards)
        return false;
    const double page = std::max(view()->height() - line, line);
    switch (event.key()) {
    case Qt::Key_Up:
        scrollBy(-line);
        return true;
    case Qt::Key_Down:
        scrollBy(line);
        return true;
    case Qt::Key_PageUp:
        scrollBy(-page);
        return true;
    case Qt::Key_PageDown:
        scrollBy(page);
        return true;
    case Qt::Key_Space:
        scrollBy(backwards ? -page : page);
        return true;
    case Qt::Key_Home:
        scrollTo(firstContentY(*view()));
        return true;
    case Qt::Key_End:
        scrollTo(lastContentY(*view()));
        return true;
    default:
        return false;
    }
}

void KeyboardScroller::scrollBy(double distance) {
    scrollTo(number(*view(), "contentY") + distance);
}

void KeyboardScroller::scrollTo(double contentY) {
    const double last = std::max(lastContentY(*view()), firstContentY(*view()));
    view()->setProperty("contentY", std::clamp(contentY, firstContentY(*view()), last));
}

} // namespace tessarine

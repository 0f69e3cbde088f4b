#include "controls/MenuKeyboard.h"

#include <QKeyEvent>

#include <algorithm>

namespace tessarine {

namespace {

constexpr int page = 8; // rows

int currentRow(const QQuickItem& view) {
    return view.property("currentIndex").toInt();
}

} // namespace

bool MenuKeyboard::press(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (modifiers != Qt::NoModifier && modifiers != Qt::ShiftModifier)
        return false;
    const int row = currentRow(*view());
    const int last = int(texts_.size()) - 1;
    switch (event.key()) {
    case Qt::Key_Up:
        goTo(row <= 0 ? last : row - 1);
        return true;
    case Qt::Key_Down:
        goTo(row == last ? 0 : row + 1);
        return true;
    case Qt::Key_PageUp:
        goTo(row - page);
        return true;
    case Qt::Key_PageDown:
        goTo(row + page);
        return true;
    case Qt::Key_Home:
        goTo(0);
        return true;
    case Qt::Key_End:
        goTo(last);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (row >= 0)
            Q_EMIT chosen(row);
        return true;
    default:
        return search(event);
    }
}

bool MenuKeyboard::search(const QKeyEvent& event) {
    const QString typed = event.text();
    if (typed.isEmpty() || !typed.front().isPrint())
        return false;
    const int row = typeAhead_.find(typed, event.timestamp(), texts_, currentRow(*view()));
    if (row >= 0)
        goTo(row);
    return true;
}

void MenuKeyboard::goTo(int row) {
    if (texts_.isEmpty())
        return;
    view()->setProperty("currentIndex", std::clamp(row, 0, int(texts_.size()) - 1));
}

} // namespace tessarine

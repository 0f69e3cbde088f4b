#include "browser/KeyMonitor.h"

#include "browser/rows/RowActions.h"
#include "browser/selection/ListSelection.h"

#include <QKeyEvent>
#include <QQuickItem>
#include <QQuickWindow>

namespace tessarine {

namespace {

constexpr auto commandModifiers =
    Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

bool isPlain(const QKeyEvent& event, Qt::Key key) {
    return event.key() == key && !(event.modifiers() & commandModifiers);
}

// A field in which text is selected copies that text, as everywhere.
bool hasSelectedText(const QQuickItem* item) {
    return item && !item->property("selectedText").toString().isEmpty();
}

} // namespace

KeyMonitor::KeyMonitor(RowActions& actions, const ListSelection& selection, QQuickWindow& window,
                       QQuickItem& root)
    : actions_(actions)
    , selection_(selection)
    , window_(window)
    , root_(root) {
    window.installEventFilter(this);
}

bool KeyMonitor::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !keysAreOurs())
        return false;
    return takesKey(static_cast<const QKeyEvent&>(*event));
}

bool KeyMonitor::keysAreOurs() const {
    const QQuickItem* const focused = window_.activeFocusItem();
    return actions_.isPreviewing() || !focused || focused == window_.contentItem() ||
           focused == &root_ || root_.isAncestorOf(focused);
}

bool KeyMonitor::takesKey(const QKeyEvent& event) {
    if (isPlain(event, Qt::Key_Space))
        return takesSpace(event);
    if (event.key() == Qt::Key_Escape)
        return takesEscape();
    return event.matches(QKeySequence::Copy) && takesCopy();
}

// A key that is held down opens once.
bool KeyMonitor::takesSpace(const QKeyEvent& event) {
    if (!actions_.focusedNotification())
        return false;
    if (!event.isAutoRepeat())
        actions_.setShowPreview(!actions_.isPreviewing());
    return true;
}

bool KeyMonitor::takesEscape() {
    if (selection_.selectionMode())
        return false;
    actions_.clearFocus();
    return true;
}

bool KeyMonitor::takesCopy() {
    if (!actions_.focusedNotification() || hasSelectedText(window_.activeFocusItem()))
        return false;
    if (actions_.isPreviewing())
        actions_.copyPreview();
    else
        actions_.copyToPasteboard(actions_.focusedNotifId());
    return true;
}

} // namespace tessarine

#pragma once

#include <QObject>

class QKeyEvent;
class QQuickItem;
class QQuickWindow;

namespace tessarine {

class ListSelection;
class RowActions;

// Sees the keys of the main window before the control that has the focus: Space opens and closes
// the preview of the focused row, Escape takes the focus away, the copy shortcut copies the row.
// What the preview shows belongs to the main view; keys in other sheets, dialogs, menus and
// popovers are theirs. Main thread.
class KeyMonitor : public QObject {
    Q_OBJECT

public:
    // All four outlive the monitor. The root is the item that the main view fills.
    KeyMonitor(RowActions& actions, const ListSelection& selection, QQuickWindow& window,
               QQuickItem& root);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool keysAreOurs() const;
    bool takesKey(const QKeyEvent& event);
    bool takesSpace(const QKeyEvent& event);
    bool takesEscape();
    bool takesCopy();

    RowActions& actions_;
    const ListSelection& selection_;
    QQuickWindow& window_;
    QQuickItem& root_;
};

} // namespace tessarine

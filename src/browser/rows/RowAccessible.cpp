#include "browser/rows/RowAccessible.h"

#include <QCoreApplication>
#include <QQuickWindow>

namespace tessarine {

namespace {

const QString previewAction = QStringLiteral("preview");

QAccessibleInterface* make(const QString& className, QObject* object) {
    if (className != QLatin1StringView(NotificationRowItem::staticMetaObject.className()))
        return nullptr;
    return new RowAccessible(*static_cast<NotificationRowItem*>(object)); // Qt deletes it
}

} // namespace

void RowAccessible::install() {
    QAccessible::installFactory(make); // again does nothing
}

NotificationRowItem& RowAccessible::row() const {
    return *static_cast<NotificationRowItem*>(object());
}

// The list: what is between them is nothing that a screen reader is told of.
QAccessibleInterface* RowAccessible::parent() const {
    for (QQuickItem* item = row().parentItem(); item; item = item->parentItem()) {
        QAccessibleInterface* const found = QAccessible::queryAccessibleInterface(item);
        if (found && found->role() == QAccessible::List)
            return found;
    }
    return nullptr;
}

QWindow* RowAccessible::window() const {
    return row().window();
}

QRect RowAccessible::rect() const {
    return {row().mapToGlobal(QPointF(0, 0)).toPoint(), row().size().toSize()};
}

QString RowAccessible::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? row().accessibleName() : QString();
}

QAccessible::State RowAccessible::state() const {
    const QWindow* const inWindow = window();
    QAccessible::State state;
    state.selectable = true;
    state.selected = row().selectionMode() ? row().isSelected() : row().isFocused();
    state.checkable = row().selectionMode();
    state.checked = row().selectionMode() && row().isSelected();
    state.disabled = !row().isEnabled();
    state.invisible = !inWindow || !inWindow->isVisible() || !row().isVisible();
    if (const QAccessibleInterface* const list = parent())
        state.offscreen = !list->rect().intersects(rect());
    return state;
}

void* RowAccessible::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
}

QStringList RowAccessible::actionNames() const {
    QStringList names(pressAction());
    if (row().selectionMode())
        return names;
    names << showMenuAction();
    if (!row().isMasked())
        names << previewAction;
    return names;
}

QString RowAccessible::localizedActionName(const QString& name) const {
    return name == previewAction ? qtTrId("preview.title")
                                 : QAccessibleActionInterface::localizedActionName(name);
}

void RowAccessible::doAction(const QString& name) {
    if (!actionNames().contains(name))
        return;
    if (name == pressAction())
        row().click();
    else if (name == showMenuAction())
        row().askForMenu();
    else
        row().askForPreview();
}

} // namespace tessarine

#include "browser/rows/RowAccessible.h"

#include <QCoreApplication>

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
    return static_cast<NotificationRowItem&>(item());
}

QString RowAccessible::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? row().accessibleName() : QString();
}

QAccessible::State RowAccessible::state() const {
    QAccessible::State state = LineAccessible::state();
    state.selectable = true;
    state.selected = row().selectionMode() ? row().isSelected() : row().isFocused();
    state.checkable = row().selectionMode();
    state.checked = row().selectionMode() && row().isSelected();
    return state;
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

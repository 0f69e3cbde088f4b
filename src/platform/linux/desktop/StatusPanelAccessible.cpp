#include "platform/linux/desktop/StatusPanelAccessible.h"

#include <QMenu>

namespace tessarine {

namespace {

QAccessibleInterface* make(const QString&, QObject* object) {
    auto* const panel = dynamic_cast<LinuxStatusPanel*>(object);
    return panel ? new StatusPanelAccessible(*panel) : nullptr; // Qt deletes it
}

} // namespace

void StatusPanelAccessible::install() {
    QAccessible::installFactory(make); // again does nothing
}

QMenu* StatusPanelAccessible::openMenu() const {
    QMenu* const menu = widget()->findChild<QMenu*>();
    return menu && menu->isVisible() ? menu : nullptr;
}

QAccessibleInterface* StatusPanelAccessible::child(int index) const {
    QMenu* const menu = openMenu();
    return menu && index == 0 ? QAccessible::queryAccessibleInterface(menu) : nullptr;
}

int StatusPanelAccessible::indexOfChild(const QAccessibleInterface* child) const {
    return child && child->object() == openMenu() ? 0 : -1;
}

QString StatusPanelAccessible::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? widget()->accessibleName() : QAccessibleWidget::text(kind);
}

QStringList StatusPanelAccessible::actionNames() const {
    return QStringList(pressAction()) + QAccessibleWidget::actionNames();
}

void StatusPanelAccessible::doAction(const QString& name) {
    if (name == pressAction())
        static_cast<LinuxStatusPanel*>(widget())->click();
    else
        QAccessibleWidget::doAction(name);
}

} // namespace tessarine

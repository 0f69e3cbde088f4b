#pragma once

#include "browser/rows/NotificationRowItem.h"

#include <QAccessibleActionInterface>
#include <QAccessibleObject>

namespace tessarine {

// A row as a screen reader finds it. What Qt makes of items knows neither context menus nor actions
// of a program's own, so a row offers these by itself: to press it, to open its menu and, unless
// its content is hidden, its preview. Main thread.
class RowAccessible : public QAccessibleObject, public QAccessibleActionInterface {
public:
    explicit RowAccessible(NotificationRowItem& row)
        : QAccessibleObject(&row) {}

    // From then on rows are found by it.
    static void install();

    QAccessibleInterface* parent() const override;
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QWindow* window() const override;
    QRect rect() const override; // on the screen
    QString text(QAccessible::Text kind) const override;
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    QString localizedActionName(const QString& name) const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    NotificationRowItem& row() const;
};

} // namespace tessarine

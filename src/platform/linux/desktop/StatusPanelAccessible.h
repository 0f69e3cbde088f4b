#pragma once

#include "platform/linux/desktop/LinuxStatusPanel.h"

#include <QAccessibleWidget>

class QMenu;

namespace tessarine {

// The panel as a screen reader finds it: a button with its menu below it while that is open. Qt
// leaves open menus out of its tree, so that only the keyboard would come upon their entries. Main
// thread.
class StatusPanelAccessible : public QAccessibleWidget {
public:
    explicit StatusPanelAccessible(LinuxStatusPanel& panel)
        : QAccessibleWidget(&panel, QAccessible::Button) {}

    // From then on panels are found by it.
    static void install();

    int childCount() const override { return openMenu() ? 1 : 0; }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;

private:
    QMenu* openMenu() const;
};

} // namespace tessarine

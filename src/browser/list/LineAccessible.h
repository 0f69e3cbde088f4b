#pragma once

#include <QAccessibleActionInterface>
#include <QAccessibleObject>
#include <QQuickItem>

namespace tessarine {

// What a screen reader finds at a line of the list, with what all lines have in common: the list is
// their parent, and nothing is inside them. Main thread.
class LineAccessible : public QAccessibleObject, public QAccessibleActionInterface {
public:
    QAccessibleInterface* parent() const override;
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QWindow* window() const override;
    QRect rect() const override; // on the screen
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

protected:
    explicit LineAccessible(QQuickItem& item)
        : QAccessibleObject(&item) {}

    QQuickItem& item() const;
};

} // namespace tessarine

#pragma once

#include "browser/list/LineAccessible.h"
#include "browser/rows/NotificationRowItem.h"

namespace tessarine {

// A row as a screen reader finds it. What Qt makes of items knows neither context menus nor actions
// of a program's own, so a row offers these by itself: to press it, to open its menu and, unless
// its content is hidden, its preview. Main thread.
class RowAccessible : public LineAccessible {
public:
    explicit RowAccessible(NotificationRowItem& row)
        : LineAccessible(row) {}

    // From then on rows are found by it.
    static void install();

    QString text(QAccessible::Text kind) const override;
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;

    QStringList actionNames() const override;
    QString localizedActionName(const QString& name) const override;
    void doAction(const QString& name) override;

private:
    NotificationRowItem& row() const;
};

} // namespace tessarine

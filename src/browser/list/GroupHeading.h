#pragma once

#include "browser/list/LineAccessible.h"

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// What a screen reader finds of a group's header beside the header's buttons: its title, and its
// menu while it has one. It draws nothing. Main thread.
class GroupHeading : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title MEMBER title_ NOTIFY titleChanged REQUIRED)
    Q_PROPERTY(bool hasMenu MEMBER hasMenu_ NOTIFY hasMenuChanged REQUIRED)

public:
    explicit GroupHeading(QQuickItem* parent = nullptr)
        : QQuickItem(parent) {}

    const QString& title() const { return title_; }
    bool hasMenu() const { return hasMenu_; }
    void askForMenu() { Q_EMIT menuRequested(); }

Q_SIGNALS:
    void titleChanged();
    void hasMenuChanged();
    void menuRequested();

private:
    QString title_;
    bool hasMenu_ = false;
};

// As a screen reader finds it.
class GroupHeadingAccessible : public LineAccessible {
public:
    explicit GroupHeadingAccessible(GroupHeading& heading)
        : LineAccessible(heading) {}

    // From then on headings of groups are found by it.
    static void install();

    QString text(QAccessible::Text kind) const override;
    QAccessible::Role role() const override { return QAccessible::Heading; }

    QStringList actionNames() const override;
    void doAction(const QString& name) override;

private:
    GroupHeading& heading() const;
};

} // namespace tessarine

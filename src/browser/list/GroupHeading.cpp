#include "browser/list/GroupHeading.h"

namespace tessarine {

namespace {

QAccessibleInterface* makeOfHeading(const QString& className, QObject* object) {
    if (className != QLatin1StringView(GroupHeading::staticMetaObject.className()))
        return nullptr;
    return new GroupHeadingAccessible(*static_cast<GroupHeading*>(object)); // Qt deletes it
}

} // namespace

void GroupHeadingAccessible::install() {
    QAccessible::installFactory(makeOfHeading); // again does nothing
}

GroupHeading& GroupHeadingAccessible::heading() const {
    return static_cast<GroupHeading&>(item());
}

QString GroupHeadingAccessible::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? heading().title() : QString();
}

QStringList GroupHeadingAccessible::actionNames() const {
    return heading().hasMenu() ? QStringList(showMenuAction()) : QStringList();
}

void GroupHeadingAccessible::doAction(const QString& name) {
    if (actionNames().contains(name))
        heading().askForMenu();
}

} // namespace tessarine

#include "browser/ListEntry.h"

#include "browser/RowTimeFormatter.h"
#include "shared/DayKey.h"

namespace tessarine {

namespace {

ListEntry headerOf(const NotificationGroup& group) {
    ListEntry header;
    header.kind = ListEntry::Kind::header;
    header.notification = group.notifications.front();
    header.groupKey = group.key;
    auto ids = std::make_shared<std::vector<QUuid>>();
    ids->reserve(group.notifications.size());
    for (const CapturedNotification& row : group.notifications)
        ids->push_back(row.id);
    header.ids = std::move(ids);
    return header;
}

ListEntry rowOf(const CapturedNotification& notification, bool showDate) {
    ListEntry row;
    row.notification = notification;
    row.showDate = showDate;
    return row;
}

bool looksLikeSameHeader(const ListEntry& left, const ListEntry& right) {
    return left.groupKey == right.groupKey && left.title == right.title &&
           left.showsApp == right.showsApp && left.isCollapsed == right.isCollapsed &&
           left.ids->size() == right.ids->size() &&
           left.notification.appBundleId == right.notification.appBundleId;
}

} // namespace

bool looksTheSame(const ListEntry& left, const ListEntry& right) {
    if (left.kind != right.kind)
        return false;
    if (left.kind == ListEntry::Kind::header)
        return looksLikeSameHeader(left, right);
    return left.showDate == right.showDate && showsSameRow(left.notification, right.notification);
}

ListEntries ungroupedEntries(const NotificationList& rows) {
    ListEntries entries;
    entries.reserve(rows.size());
    for (const CapturedNotification& notification : rows)
        entries.push_back(rowOf(notification, true));
    return entries;
}

ListEntries groupedEntries(GroupMode mode, const std::vector<NotificationGroup>& groups,
                           const QSet<QString>& collapsed) {
    const bool byDate = mode == GroupMode::date;
    ListEntries entries;
    for (const NotificationGroup& group : groups) {
        ListEntry header = headerOf(group);
        header.title = byDate ? dayTitle(group.key) : group.key;
        header.showsApp = !byDate;
        header.isCollapsed = collapsed.contains(group.key);
        const bool showsRows = !header.isCollapsed;
        entries.push_back(std::move(header));
        if (!showsRows)
            continue;
        for (const CapturedNotification& notification : group.notifications)
            entries.push_back(rowOf(notification, !byDate));
    }
    return entries;
}

QString dayTitle(const QString& key) {
    const std::optional<double> start = startOfDay(key);
    return start ? dayTitleFormatter().text(*start) : key;
}

} // namespace tessarine

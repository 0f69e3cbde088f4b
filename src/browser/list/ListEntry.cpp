#include "browser/list/ListEntry.h"

#include "browser/list/RowTimeFormatter.h"
#include "shared/DayKey.h"

#include <algorithm>

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

ListEntry rowOf(const CapturedNotification& notification, bool showDate,
                ListEntry::Fade fade = ListEntry::Fade::none) {
    ListEntry row;
    row.notification = notification;
    row.showDate = showDate;
    row.fade = fade;
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
    return left.showDate == right.showDate && left.fade == right.fade &&
           showsSameRow(left.notification, right.notification);
}

bool hasTheSameIds(const ListEntry& left, const ListEntry& right) {
    if (left.kind != right.kind)
        return false;
    if (left.kind == ListEntry::Kind::header)
        return *left.ids == *right.ids;
    return left.notification.id == right.notification.id;
}

ListEntries ungroupedEntries(const NotificationList& rows) {
    ListEntries entries;
    entries.reserve(rows.size());
    for (const CapturedNotification& notification : rows)
        entries.push_back(rowOf(notification, true));
    return entries;
}

ListEntries groupedEntries(GroupMode mode, const std::vector<NotificationGroup>& groups,
                           const QSet<QString>& collapsed, const QHash<QString, int>& changing) {
    using Fade = ListEntry::Fade;
    const bool byDate = mode == GroupMode::date;
    ListEntries entries;
    for (const NotificationGroup& group : groups) {
        ListEntry header = headerOf(group);
        header.title = byDate ? dayTitle(group.key) : group.key;
        header.showsApp = !byDate;
        header.isCollapsed = collapsed.contains(group.key);
        const bool isCollapsed = header.isCollapsed;
        entries.push_back(std::move(header));
        const bool isChanging = changing.contains(group.key);
        const Fade fade = !isChanging ? Fade::none : isCollapsed ? Fade::out : Fade::in;
        const std::size_t all = group.notifications.size();
        const std::size_t count =
            isCollapsed ? std::min(all, std::size_t(changing.value(group.key))) : all;
        for (std::size_t i = 0; i < count; ++i)
            entries.push_back(rowOf(group.notifications[i], !byDate, fade));
    }
    return entries;
}

QString dayTitle(const QString& key) {
    const std::optional<double> start = startOfDay(key);
    return start ? dayTitleFormatter().text(*start) : key;
}

} // namespace tessarine

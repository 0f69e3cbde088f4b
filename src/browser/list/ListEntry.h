#pragma once

#include "browser/list/ListDerivation.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace tessarine {

// One line of the browser's list: a notification, or the header above a group of them.
struct ListEntry {
    enum class Kind { row, header };
    enum class Fade { none, in, out };

    Kind kind = Kind::row;
    CapturedNotification notification; // of a header: the first of its group
    bool showDate = true;              // of a row: whether its time line shows the date too
    Fade fade = Fade::none;            // of a row: whether it comes or goes with its group

    // Of a header only.
    QString groupKey;
    QString title;
    bool showsApp = false; // the group is an application's and has its icon
    bool isCollapsed = false;
    std::shared_ptr<const std::vector<QUuid>> ids; // of the group's rows, those hidden too
};

using ListEntries = std::vector<ListEntry>;

// Whether two lines look the same, whatever their rows' ids in memory.
bool looksTheSame(const ListEntry& left, const ListEntry& right);

// Whether the rows that two lines stand for (their own, or those of their groups) have the same ids
// in memory. What is marked as selected or focused is known by these alone.
bool hasTheSameIds(const ListEntry& left, const ListEntry& right);

// The lines of a list without groups.
ListEntries ungroupedEntries(const NotificationList& rows);

// The lines of groups: each header, then its rows unless its key is among the collapsed ones.
// Groups of GroupMode::date have the date in their titles and not in their rows. A group whose key
// is among the changing ones has just been opened or closed: its rows fade in, or as many of them
// as it says are there still, and fade out.
ListEntries groupedEntries(GroupMode mode, const std::vector<NotificationGroup>& groups,
                           const QSet<QString>& collapsed,
                           const QHash<QString, int>& changing = {});

// A day key as a title in the user's full date style; the key itself if it is none.
QString dayTitle(const QString& key);

// What a view shows of a header, with the selection as it stands.
class GroupHeader {
    Q_GADGET
    QML_VALUE_TYPE(groupHeader)
    Q_PROPERTY(QString key MEMBER key CONSTANT)
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(int count MEMBER count CONSTANT)
    Q_PROPERTY(bool isCollapsed MEMBER isCollapsed CONSTANT)
    Q_PROPERTY(int selectedCount MEMBER selectedCount CONSTANT)
    Q_PROPERTY(bool hasIcon MEMBER hasIcon CONSTANT)
    Q_PROPERTY(QString bundleId MEMBER bundleId CONSTANT)
    Q_PROPERTY(QString appName MEMBER appName CONSTANT)

public:
    bool operator==(const GroupHeader&) const = default;

    QString key;
    QString title;
    int count = 0;
    bool isCollapsed = false;
    int selectedCount = 0;
    bool hasIcon = false;
    QString bundleId;
    QString appName;
};

} // namespace tessarine

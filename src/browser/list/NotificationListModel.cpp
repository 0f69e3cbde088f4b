#include "browser/list/NotificationListModel.h"

#include "browser/list/ListDifference.h"
#include "browser/list/RowTimeFormatter.h"
#include "shared/LocalZone.h"

#include <QMetaEnum>

#include <algorithm>
#include <utility>

namespace tessarine {

namespace {

// A row shows five lines at most. Laying out more text than any window could need would make a
// huge notification hold up the scrolling.
constexpr qsizetype longestShownText = 2000;

QString beginning(const QString& text) {
    if (text.size() <= longestShownText)
        return text;
    const bool splitsPair = text[longestShownText].isLowSurrogate();
    return text.left(splitsPair ? longestShownText - 1 : longestShownText) + u'…';
}

QString timeText(const ListEntry& row) {
    const RowTimeFormatter& formatter = row.showDate ? rowDateTimeFormatter() : rowTimeFormatter();
    return formatter.text(row.notification.timestamp);
}

QString pinText(const CapturedNotification& row) {
    return row.pinned ? qtTrId("row.pinned") : QString();
}

QString joined(QStringList texts) {
    texts.removeAll(QString());
    return texts.join(QStringLiteral(", "));
}

QString spokenText(const ListEntry& row) {
    const CapturedNotification& notification = row.notification;
    return joined({notification.appName, beginning(notification.title),
                   beginning(notification.body), timeText(row), pinText(notification)});
}

QString spokenMask(const ListEntry& row) {
    const CapturedNotification& notification = row.notification;
    return joined({notification.appName, qtTrId("row.contentHidden"), timeText(row),
                   pinText(notification), qtTrId("row.clickToReveal")});
}

} // namespace

NotificationListModel::NotificationListModel(IsPrivate isPrivate, QObject* parent)
    : QAbstractListModel(parent)
    , isPrivate_(std::move(isPrivate))
    , zone_(localZoneNumber()) {}

// Takes out what went, from the end so that positions stay valid, puts in what came, from the
// front, and then tells what changed in the lines that stayed.
void NotificationListModel::setEntries(ListEntries entries) {
    const KeptRows kept = keptRows(entries_, entries);
    std::size_t end = entries_.size();
    for (auto pair = kept.rbegin(); pair != kept.rend(); ++pair) {
        removeLinesAt(int(pair->first) + 1, int(end - pair->first) - 1);
        end = pair->first;
    }
    removeLinesAt(0, int(end));

    std::size_t begin = 0;
    for (const auto& [before, after] : kept) {
        insertLinesAt(entries, begin, after);
        begin = after + 1;
    }
    insertLinesAt(entries, begin, entries.size());
    replaceLines(std::move(entries));
}

void NotificationListModel::removeLinesAt(int first, int count) {
    if (count < 1)
        return;
    beginRemoveRows({}, first, first + count - 1);
    entries_.erase(entries_.begin() + first, entries_.begin() + first + count);
    endRemoveRows();
}

void NotificationListModel::insertLinesAt(const ListEntries& from, std::size_t first,
                                          std::size_t end) {
    if (first >= end)
        return;
    beginInsertRows({}, int(first), int(end) - 1);
    entries_.insert(entries_.begin() + std::ptrdiff_t(first), from.begin() + std::ptrdiff_t(first),
                    from.begin() + std::ptrdiff_t(end));
    endInsertRows();
}

void NotificationListModel::replaceLines(ListEntries entries) {
    const ListEntries before = std::exchange(entries_, std::move(entries));
    const int zone = localZoneNumber();
    const bool timesDiffer = std::exchange(zone_, zone) != zone;
    bool sameIds = true;
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        sameIds = sameIds && hasTheSameIds(before[i], entries_[i]);
        if (timesDiffer || !looksTheSame(before[i], entries_[i]))
            Q_EMIT dataChanged(index(int(i)), index(int(i)));
    }
    if (!sameIds)
        tellOfAll({int(Role::NotificationId), int(Role::IsSelected), int(Role::IsFocused),
                   int(Role::Header)});
}

void NotificationListModel::tellOfAll(const QList<int>& roles) {
    if (!entries_.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), roles);
}

void NotificationListModel::setSelected(const QSet<QUuid>& ids) {
    if (std::exchange(selected_, ids) != ids)
        tellOfAll({int(Role::IsSelected), int(Role::Header)});
}

void NotificationListModel::setFocused(const QUuid& id) {
    if (std::exchange(focused_, id) != id)
        tellOfAll({int(Role::IsFocused)});
}

void NotificationListModel::privacyChanged() {
    tellOfAll({int(Role::IsPrivate)});
}

QSet<QUuid> NotificationListModel::idsOfGroup(const QString& key) const {
    const auto header = std::find_if(entries_.begin(), entries_.end(), [&](const auto& entry) {
        return entry.kind == ListEntry::Kind::header && entry.groupKey == key;
    });
    return header == entries_.end() ? QSet<QUuid>()
                                    : QSet<QUuid>(header->ids->begin(), header->ids->end());
}

bool NotificationListModel::isHeader(int line) const {
    return entries_[std::size_t(line)].kind == ListEntry::Kind::header;
}

int NotificationListModel::headerAbove(int line) const {
    if (line >= rowCount())
        return -1;
    while (line >= 0 && !isHeader(line))
        --line;
    return std::max(line, -1);
}

int NotificationListModel::headerBelow(int line) const {
    for (int next = std::max(line, -1) + 1; next < rowCount(); ++next) {
        if (isHeader(next))
            return next;
    }
    return -1;
}

int NotificationListModel::focusedLine() const {
    const auto found = std::find_if(entries_.begin(), entries_.end(), [&](const ListEntry& entry) {
        return entry.kind == ListEntry::Kind::row && entry.notification.id == focused_;
    });
    return found == entries_.end() ? -1 : int(found - entries_.begin());
}

GroupHeader NotificationListModel::header(int line) const {
    const bool exists = line >= 0 && line < rowCount() && isHeader(line);
    return exists ? headerOf(entries_[std::size_t(line)]) : GroupHeader();
}

int NotificationListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(entries_.size());
}

QVariant NotificationListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const ListEntry& entry = entries_[std::size_t(index.row())];
    return role == Qt::DisplayRole ? entry.notification.title : value(entry, Role(role));
}

QVariant NotificationListModel::value(const ListEntry& entry, Role role) const {
    const bool isHeader = entry.kind == ListEntry::Kind::header;
    if (role == Role::Kind)
        return isHeader ? QStringLiteral("header") : QStringLiteral("row");
    if (role == Role::Header)
        return QVariant::fromValue(isHeader ? headerOf(entry) : GroupHeader());
    return valueOfRow(entry, role);
}

QVariant NotificationListModel::valueOfRow(const ListEntry& entry, Role role) const {
    const CapturedNotification& row = entry.notification;
    switch (role) {
    case Role::NotificationId:
        return row.id;
    case Role::BundleId:
        return row.appBundleId;
    case Role::AppName:
        return row.appName;
    case Role::Title:
        return beginning(row.title);
    case Role::Body:
        return beginning(row.body);
    case Role::TimeText:
        return timeText(entry);
    case Role::Pinned:
        return row.pinned;
    case Role::IsPrivate:
        return isPrivate_ && isPrivate_(row.appBundleId);
    case Role::IsSelected:
        return selected_.contains(row.id);
    case Role::IsFocused:
        return focused_ == row.id;
    case Role::IsArriving:
        return entry.fade == ListEntry::Fade::in;
    case Role::IsLeaving:
        return entry.fade == ListEntry::Fade::out;
    case Role::SpokenText:
        return spokenText(entry);
    case Role::SpokenMask:
        return spokenMask(entry);
    case Role::Kind:
    case Role::Header:
        break;
    }
    return {};
}

GroupHeader NotificationListModel::headerOf(const ListEntry& entry) const {
    GroupHeader header;
    header.key = entry.groupKey;
    header.title = entry.title;
    header.count = int(entry.ids->size());
    header.isCollapsed = entry.isCollapsed;
    header.selectedCount =
        int(std::count_if(entry.ids->begin(), entry.ids->end(),
                          [&](const QUuid& id) { return selected_.contains(id); }));
    header.hasIcon = entry.showsApp;
    header.bundleId = entry.notification.appBundleId;
    header.appName = entry.notification.appName;
    return header;
}

QHash<int, QByteArray> NotificationListModel::roleNames() const {
    const auto roles = QMetaEnum::fromType<Role>();
    QHash<int, QByteArray> names;
    for (int i = 0; i < roles.keyCount(); ++i) {
        QByteArray name(roles.key(i));
        name[0] = char(name[0] | 0x20);
        names.insert(roles.value(i), name);
    }
    return names;
}

} // namespace tessarine

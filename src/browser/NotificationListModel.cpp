#include "browser/NotificationListModel.h"

#include "browser/ListDifference.h"
#include "browser/RowTimeFormatter.h"

#include <QMetaEnum>

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

} // namespace

NotificationListModel::NotificationListModel(QObject* parent)
    : QAbstractListModel(parent) {}

// Takes out what went, from the end so that positions stay valid, puts in what came, from the
// front, and then tells what changed in the rows that stayed.
void NotificationListModel::setNotifications(NotificationList notifications) {
    const KeptRows kept = keptRows(rows_, notifications);
    std::size_t end = rows_.size();
    for (auto pair = kept.rbegin(); pair != kept.rend(); ++pair) {
        removeRowsAt(int(pair->first) + 1, int(end - pair->first) - 1);
        end = pair->first;
    }
    removeRowsAt(0, int(end));

    std::size_t begin = 0;
    for (const auto& [before, after] : kept) {
        insertRowsAt(notifications, begin, after);
        begin = after + 1;
    }
    insertRowsAt(notifications, begin, notifications.size());
    replaceRows(std::move(notifications));
}

void NotificationListModel::removeRowsAt(int first, int count) {
    if (count < 1)
        return;
    beginRemoveRows({}, first, first + count - 1);
    rows_.erase(rows_.begin() + first, rows_.begin() + first + count);
    endRemoveRows();
}

void NotificationListModel::insertRowsAt(const NotificationList& from, std::size_t first,
                                         std::size_t end) {
    if (first >= end)
        return;
    beginInsertRows({}, int(first), int(end) - 1);
    rows_.insert(rows_.begin() + std::ptrdiff_t(first), from.begin() + std::ptrdiff_t(first),
                 from.begin() + std::ptrdiff_t(end));
    endInsertRows();
}

void NotificationListModel::replaceRows(NotificationList rows) {
    const NotificationList before = std::exchange(rows_, std::move(rows));
    bool sameIds = true;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        sameIds = sameIds && before[i].id == rows_[i].id;
        if (!showsSameRow(before[i], rows_[i]))
            Q_EMIT dataChanged(index(int(i)), index(int(i)));
    }
    if (!sameIds)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {int(Role::NotificationId)});
}

int NotificationListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(rows_.size());
}

QVariant NotificationListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const CapturedNotification& row = rows_[std::size_t(index.row())];
    return role == Qt::DisplayRole ? row.title : value(row, Role(role));
}

QVariant NotificationListModel::value(const CapturedNotification& row, Role role) const {
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
        return rowDateTimeFormatter().text(row.timestamp);
    case Role::SpokenText:
        return spokenText(row);
    }
    return {};
}

QString NotificationListModel::spokenText(const CapturedNotification& row) const {
    QStringList texts{row.appName, beginning(row.title), beginning(row.body),
                      rowDateTimeFormatter().text(row.timestamp)};
    texts.removeAll(QString());
    return texts.join(QStringLiteral(", "));
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

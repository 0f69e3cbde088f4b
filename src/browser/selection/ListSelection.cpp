#include "browser/selection/ListSelection.h"

#include "shared/DayKey.h"
#include "store/HoardStore.h"

#include <QCoreApplication>

#include <utility>

namespace tessarine {

namespace {

QSet<QUuid> idsOf(const NotificationList& rows) {
    QSet<QUuid> ids;
    for (const CapturedNotification& row : rows)
        ids.insert(row.id);
    return ids;
}

} // namespace

ListSelection::ListSelection(BrowserList& list, HoardStore& hoard, Scheduler& scheduler)
    : list_(list)
    , hoard_(hoard)
    , dates_(list, scheduler) {
    connect(&list_, &BrowserList::listChanged, this, &ListSelection::listChanged);
    connect(&list_, &BrowserList::listChanged, this, &ListSelection::selectionChanged);
    connect(&dates_, &DateSelection::rangeChosen, this, &ListSelection::selectRange);
    connect(&dates_, &DateSelection::dayChosen, this, &ListSelection::selectDay);
}

void ListSelection::select(QSet<QUuid> ids) {
    selectedIds_ = std::move(ids);
    list_.lines()->setSelected(selectedIds_);
    Q_EMIT selectionChanged();
}

template <typename Test>
void ListSelection::addShown(const Test& test) {
    QSet<QUuid> ids = selectedIds_;
    for (const CapturedNotification& row : list_.filteredNotifications()) {
        if (test(row))
            ids.insert(row.id);
    }
    select(std::move(ids));
}

bool ListSelection::everySelected() const {
    return std::size_t(selectedIds_.size()) == list_.filteredNotifications().size();
}

QString ListSelection::selectionText() const {
    return selectedIds_.isEmpty() ? qtTrId("selection.noSelection")
                                  : qtTrId("selection.count", selectedCount());
}

void ListSelection::enterSelectionMode() {
    selectionMode_ = true;
    select({});
}

void ListSelection::exitSelectionMode() {
    selectionMode_ = false;
    select({});
}

void ListSelection::toggleSelection(const QUuid& id) {
    QSet<QUuid> ids = selectedIds_;
    if (!ids.remove(id))
        ids.insert(id);
    select(std::move(ids));
}

void ListSelection::selectAllVisible() {
    select(everySelected() ? QSet<QUuid>() : idsOf(list_.filteredNotifications()));
}

void ListSelection::selectApp(const QString& appName) {
    addShown([&](const CapturedNotification& row) { return row.appName == appName; });
}

void ListSelection::selectRange(double start, double end) {
    addShown([&](const CapturedNotification& row) {
        return row.timestamp >= start && row.timestamp <= end;
    });
}

void ListSelection::selectDay(const QString& key) {
    addShown([&](const CapturedNotification& row) { return dayKey(row.timestamp) == key; });
}

void ListSelection::selectGroup(const QString& key) {
    select(selectedIds_ + list_.lines()->idsOfGroup(key));
}

void ListSelection::deselectGroup(const QString& key) {
    select(selectedIds_ - list_.lines()->idsOfGroup(key));
}

void ListSelection::deselect(const QUuid& id) {
    select(selectedIds_ - QSet<QUuid>{id});
}

void ListSelection::keepLoaded() {
    select(QSet<QUuid>(selectedIds_).intersect(idsOf(list_.notifications())));
}

// Deletion. The store reports nothing: the list that comes back shows what happened.

void ListSelection::deleteSelected() {
    const NotificationList rows = list_.notifications();
    for (const CapturedNotification& row : rows) {
        if (selectedIds_.contains(row.id))
            hoard_.deleteNotification(row.dbId);
    }
    exitSelectionMode();
    list_.refreshList();
}

void ListSelection::deleteEverything() {
    list_.deleteEverything();
    exitSelectionMode();
}

void ListSelection::setShowDeleteSelectedConfirm(bool shown) {
    if (std::exchange(showDeleteSelectedConfirm_, shown) != shown)
        Q_EMIT questionChanged();
}

QString ListSelection::deleteSelectedTitle() const {
    return qtTrId("selection.confirmDelete.title", selectedCount());
}

void ListSelection::setShowDeleteAllConfirm(bool shown) {
    if (std::exchange(showDeleteAllConfirm_, shown) != shown)
        Q_EMIT questionChanged();
}

QString ListSelection::deleteAllTitle() const {
    return qtTrId("selection.confirmDeleteAll.title", int(list_.notifications().size()));
}

} // namespace tessarine

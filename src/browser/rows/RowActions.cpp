#include "browser/rows/RowActions.h"

#include "apps/AppLauncher.h"
#include "browser/list/BrowserList.h"
#include "browser/overlays/Overlays.h"
#include "browser/selection/ListSelection.h"
#include "store/HoardStore.h"

#include <algorithm>
#include <utility>

namespace tessarine {

namespace {

std::optional<CapturedNotification> rowWith(const QUuid& id, const NotificationList& rows) {
    const auto found =
        std::find_if(rows.begin(), rows.end(), [&](const auto& row) { return row.id == id; });
    return found == rows.end() ? std::nullopt : std::optional(*found);
}

} // namespace

RowActions::RowActions(Services services)
    : services_(std::move(services)) {
    connect(&services_.list, &BrowserList::listChanged, this, &RowActions::closeOrphanedPreview);
}

std::optional<CapturedNotification> RowActions::find(const QUuid& id) const {
    if (auto row = rowWith(id, services_.list.notifications()))
        return row;
    return menuRow_ && menuRow_->id == id ? menuRow_ : std::nullopt;
}

// Clicks and focus

void RowActions::onSingleTap(const QUuid& id) {
    if (services_.selection.selectionMode())
        services_.selection.toggleSelection(id);
    else
        setFocus(id);
}

void RowActions::onDoubleTap(const QUuid& id) {
    if (services_.selection.selectionMode())
        return;
    setFocus(id);
    openInApp(id);
}

void RowActions::setFocus(const QUuid& id) {
    focusedNotifId_ = id;
    services_.list.lines()->setFocused(id);
}

std::optional<CapturedNotification> RowActions::focusedNotification() const {
    if (focusedNotifId_.isNull())
        return std::nullopt;
    return rowWith(focusedNotifId_, services_.list.filteredNotifications());
}

void RowActions::clearFocus() {
    setFocus(QUuid());
    setShowPreview(false);
}

// One row

void RowActions::togglePinned(const QUuid& id) {
    if (const std::optional<CapturedNotification> row = find(id)) {
        services_.hoard.togglePin(row->dbId);
        services_.list.refreshList();
    }
}

bool RowActions::copyToPasteboard(const QUuid& id) {
    const std::optional<CapturedNotification> row = find(id);
    if (!row)
        return false;
    QStringList texts{row->title, row->body};
    texts.removeAll(QString());
    if (texts.isEmpty())
        return false;
    services_.setPasteboard(texts.join(u'\n'));
    return true;
}

void RowActions::openInApp(const QUuid& id) {
    const std::optional<CapturedNotification> row = find(id);
    if (!row)
        return;
    switch (services_.launcher.open(*row)) {
    case OpenOutcome::deepLinkOpened:
        services_.overlays.showBanner(deepLinkBanner(row->appName));
        break;
    case OpenOutcome::notFound:
        services_.overlays.showBanner(notInstalledBanner(*row));
        break;
    case OpenOutcome::appOpened:
        break;
    }
}

// Deletion. The store reports nothing: the list that comes back shows what happened.
void RowActions::deleteNotification(const QUuid& id) {
    const std::optional<CapturedNotification> row = find(id);
    if (!row)
        return;
    services_.hoard.deleteNotification(row->dbId);
    services_.selection.deselect(id);
    services_.list.refreshList();
}

RowMenuContent RowActions::menuOf(const QUuid& id) {
    const std::optional<CapturedNotification> row = find(id);
    if (!row || services_.selection.selectionMode())
        return {};
    menuRow_ = row;
    return menuContent(*row);
}

// Many rows. A reload has new ids, so nothing stays selected.

void RowActions::deleteAllFromApp(const QString& appName) {
    BrowserList& list = services_.list;
    services_.hoard.deleteApp(appName);
    list.refreshList();
    if (list.selectedApp() == appName)
        list.setSelectedApp(everyApp);
    list.openGroup(appName);
    services_.selection.keepLoaded();
}

void RowActions::deleteAllFromDate(const QString& key) {
    services_.hoard.deleteDay(key);
    services_.list.refreshList();
    services_.list.openGroup(key);
    services_.selection.keepLoaded();
}

void RowActions::deleteGroup(const QString& key) {
    if (services_.list.groupMode() == GroupMode::date)
        deleteAllFromDate(key);
    else
        deleteAllFromApp(key);
}

// The preview

void RowActions::setShowPreview(bool shown) {
    const bool shows = shown && focusedNotification().has_value();
    if (std::exchange(showPreview_, shows) != shows)
        Q_EMIT previewChanged();
}

void RowActions::previewRow(const QUuid& id) {
    if (services_.selection.selectionMode())
        return;
    setFocus(id);
    setShowPreview(true);
}

void RowActions::closeOrphanedPreview() {
    if (showPreview_ && !focusedNotification())
        setShowPreview(false);
}

PreviewContent RowActions::preview() const {
    const std::optional<CapturedNotification> row = focusedNotification();
    return showPreview_ && row ? previewContent(*row) : PreviewContent();
}

void RowActions::copyPreview() {
    if (isPreviewing() && copyToPasteboard(focusedNotifId_))
        setShowPreview(false);
}

void RowActions::openPreviewed() {
    const std::optional<CapturedNotification> row = focusedNotification();
    if (row && !row->appBundleId.isEmpty())
        services_.launcher.openByBundleId(row->appBundleId);
    setShowPreview(false);
}

} // namespace tessarine

// What acts on rows: selection, focus, pinning, deletion, preview, copying and opening.

#include "apps/AppLauncher.h"
#include "browser/ContentView.h"
#include "browser/PopoverDays.h"
#include "browser/RowTimeFormatter.h"
#include "capture/NotificationListener.h"
#include "platform/Scheduler.h"
#include "shared/DayKey.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace tessarine {

namespace {

constexpr double bannerSeconds = 4;

QSet<QUuid> idsOf(const NotificationList& rows) {
    QSet<QUuid> ids;
    for (const CapturedNotification& row : rows)
        ids.insert(row.id);
    return ids;
}

// The text with the number in it, in the number's grammatical form and the user's digits.
QString countedText(const char* id, qsizetype count) {
    return qtTrId(id, int(count));
}

QVariantMap asMap(const PopoverMonth& month) {
    QVariantList days;
    for (const PopoverDay& day : month.days)
        days << QVariantMap{{QStringLiteral("text"), day.text},
                            {QStringLiteral("label"), day.label},
                            {QStringLiteral("badge"), day.badge.value_or(0)}};
    return {{QStringLiteral("title"), month.title}, {QStringLiteral("days"), days}};
}

} // namespace

std::optional<CapturedNotification> ContentView::find(const QUuid& id) const {
    const NotificationList& rows = notifications();
    const auto found =
        std::find_if(rows.begin(), rows.end(), [&](const auto& row) { return row.id == id; });
    if (found != rows.end())
        return *found;
    return menuRow_ && menuRow_->id == id ? menuRow_ : std::nullopt;
}

// Selection

void ContentView::updateMarks() {
    lines_.marksChanged();
    tellOfMarks();
}

void ContentView::enterSelectionMode() {
    marks_.selected.clear();
    selectionMode_ = true;
    updateMarks();
}

void ContentView::exitSelectionMode() {
    selectionMode_ = false;
    marks_.selected.clear();
    updateMarks();
}

void ContentView::toggleSelection(const QUuid& id) {
    if (!marks_.selected.remove(id))
        marks_.selected.insert(id);
    updateMarks();
}

bool ContentView::everySelected() const {
    return marks_.selected.size() == shownCount_;
}

void ContentView::selectAllVisible() {
    marks_.selected = everySelected() ? QSet<QUuid>() : idsOf(filteredNotifications());
    updateMarks();
}

void ContentView::addToSelection(const NotificationList& rows) {
    marks_.selected.unite(idsOf(rows));
    updateMarks();
}

void ContentView::selectApp(const QString& appName) {
    NotificationList rows = filteredNotifications();
    std::erase_if(rows, [&](const auto& row) { return row.appName != appName; });
    addToSelection(rows);
}

void ContentView::selectRange(double start, double end) {
    NotificationList rows = filteredNotifications();
    std::erase_if(
        rows, [&](const auto& row) { return !(row.timestamp >= start && row.timestamp <= end); });
    addToSelection(rows);
}

void ContentView::selectDay(const QString& key) {
    NotificationList rows = filteredNotifications();
    std::erase_if(rows, [&](const auto& row) { return dayKey(row.timestamp) != key; });
    addToSelection(rows);
}

QSet<QUuid> ContentView::idsOfGroup(const QString& key) const {
    const auto groups = groupMode_ == GroupMode::date ? groupedByDate() : groupedByApp();
    for (const NotificationGroup& group : groups) {
        if (group.key == key)
            return idsOf(group.notifications);
    }
    return {};
}

void ContentView::selectGroup(const QString& key) {
    marks_.selected.unite(idsOfGroup(key));
    updateMarks();
}

void ContentView::deselectGroup(const QString& key) {
    marks_.selected.subtract(idsOfGroup(key));
    updateMarks();
}

void ContentView::onSelectPreset(int preset) {
    const auto [start, end] =
        presetBounds(allDateRangePresets.at(std::size_t(preset)), services_.scheduler.now());
    selectRange(start, end);
    setShowDatePickerPopover(false);
}

void ContentView::onSelectDay(const QString& key) {
    selectDay(key);
    setShowDatePickerPopover(false);
}

QString ContentView::selectionText() const {
    if (marks_.selected.isEmpty())
        return qtTrId("selection.noSelection");
    return countedText("selection.count", marks_.selected.size());
}

QVariantList ContentView::presets() {
    QVariantList presets;
    for (const DateRangePreset preset : allDateRangePresets)
        presets << QVariantMap{{QStringLiteral("symbol"), symbolName(preset)},
                               {QStringLiteral("label"), label(preset)}};
    return presets;
}

QVariantList ContentView::popoverMonths() const {
    QVariantList months;
    for (const PopoverMonth& month :
         tessarine::popoverMonths(uniqueDays(notifications()), dayCounts(notifications())))
        months << asMap(month);
    return months;
}

bool ContentView::hasDays() const {
    return hasNotifications();
}

// Focus

std::optional<CapturedNotification> ContentView::focusedNotification() const {
    if (marks_.focused.isNull())
        return std::nullopt;
    const NotificationList rows = filteredNotifications();
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [&](const auto& row) { return row.id == marks_.focused; });
    return found == rows.end() ? std::nullopt : std::optional(*found);
}

void ContentView::onSingleTap(const QUuid& id) {
    if (selectionMode_) {
        toggleSelection(id);
        return;
    }
    marks_.focused = id;
    updateMarks();
}

void ContentView::onDoubleTap(const QUuid& id) {
    if (selectionMode_)
        return;
    onSingleTap(id);
    openInApp(id);
}

void ContentView::clearFocus() {
    marks_.focused = QUuid();
    updateMarks();
    setShowPreview(false);
}

// Single rows

QVariantMap ContentView::menuOf(const QUuid& id) {
    const std::optional<CapturedNotification> row = find(id);
    if (!row)
        return {};
    menuRow_ = row;
    const QString date = dayTitleFormatter().text(row->timestamp);
    return {
        {QStringLiteral("id"), id},
        {QStringLiteral("pinned"), row->pinned},
        {QStringLiteral("appName"), row->appName},
        {QStringLiteral("dayKey"), dayKey(row->timestamp)},
        {QStringLiteral("open"), qtTrId("contextMenu.openInApp").arg(row->appName)},
        {QStringLiteral("deleteApp"), qtTrId("contextMenu.deleteAllFrom").arg(row->appName)},
        {QStringLiteral("deleteDay"), qtTrId("contextMenu.deleteAllFromDate").arg(date)},
    };
}

void ContentView::togglePinned(const QUuid& id) {
    if (const std::optional<CapturedNotification> row = find(id)) {
        hoard().togglePin(row->dbId);
        refreshList();
    }
}

bool ContentView::copyToPasteboard(const QUuid& id) {
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

void ContentView::openInApp(const QUuid& id) {
    const std::optional<CapturedNotification> row = find(id);
    if (!row)
        return;
    switch (services_.launcher.open(*row)) {
    case OpenOutcome::deepLinkOpened:
        showBanner(deepLinkBanner(row->appName));
        break;
    case OpenOutcome::notFound:
        showBanner(notInstalledBanner(*row));
        break;
    case OpenOutcome::appOpened:
        break;
    }
}

// Deletion. The store reports nothing: the list that comes back shows what happened.

void ContentView::deleteNotification(const QUuid& id) {
    const std::optional<CapturedNotification> row = find(id);
    if (!row)
        return;
    hoard().deleteNotification(row->dbId);
    marks_.selected.remove(id);
    refreshList();
}

// Rows that a search has hidden since they were selected go too.
void ContentView::deleteSelected() {
    const NotificationList rows = notifications();
    for (const CapturedNotification& row : rows) {
        if (marks_.selected.contains(row.id))
            hoard().deleteNotification(row.dbId);
    }
    exitSelectionMode();
    refreshList();
}

void ContentView::deleteAllFromApp(const QString& appName) {
    hoard().deleteApp(appName);
    refreshList();
    if (selectedApp_ == appName)
        setSelectedApp(everyApp);
    collapsedGroups_.remove(appName);
    keepKnownSelection();
}

void ContentView::deleteAllFromDate(const QString& key) {
    hoard().deleteDay(key);
    refreshList();
    collapsedGroups_.remove(key);
    keepKnownSelection();
}

void ContentView::deleteGroup(const QString& key) {
    if (groupMode_ == GroupMode::date)
        deleteAllFromDate(key);
    else
        deleteAllFromApp(key);
}

// A reload has new ids, so nothing stays selected.
void ContentView::keepKnownSelection() {
    marks_.selected.intersect(idsOf(notifications()));
    updateLines();
}

// What stands above the list

void ContentView::present(bool& flag, bool shown) {
    if (std::exchange(flag, shown) != shown)
        Q_EMIT presentationChanged();
}

void ContentView::setShowPreview(bool shown) {
    present(showPreview_, shown && focusedNotification().has_value());
}

void ContentView::closeOrphanedPreview() {
    if (showPreview_ && !focusedNotification())
        setShowPreview(false);
}

QVariantMap ContentView::preview() const {
    const std::optional<CapturedNotification> row = focusedNotification();
    if (!showPreview_ || !row)
        return {};
    return {
        {QStringLiteral("bundleId"), row->appBundleId},
        {QStringLiteral("appName"), row->appName},
        {QStringLiteral("time"), rowDateTimeFormatter().text(row->timestamp)},
        {QStringLiteral("title"), row->title},
        {QStringLiteral("body"), row->body},
        {QStringLiteral("openText"), qtTrId("preview.open").arg(row->appName)},
    };
}

void ContentView::copyPreview() {
    if (isPreviewing() && copyToPasteboard(marks_.focused))
        setShowPreview(false);
}

// A plainer way in than openInApp: no deep link, no lookup by name, no banner.
void ContentView::openPreviewed() {
    const std::optional<CapturedNotification> row = focusedNotification();
    if (row && !row->appBundleId.isEmpty())
        services_.launcher.openByBundleId(row->appBundleId);
    setShowPreview(false);
}

void ContentView::showBanner(const InlineBanner& banner) {
    inlineBanner_ = banner;
    Q_EMIT inlineBannerChanged();
    const int task = ++bannerTask_;
    services_.scheduler.onMainAfter(bannerSeconds, [self = QPointer<ContentView>(this), task] {
        if (self && self->bannerTask_ == task)
            self->dismissBanner();
    });
}

void ContentView::dismissBanner() {
    if (std::exchange(inlineBanner_, std::nullopt))
        Q_EMIT inlineBannerChanged();
}

// The sheet gets the list as it stands, whatever the filters show. One that is closed may be in the
// middle of telling so.
void ContentView::setShowExportSheet(bool shown) {
    if (shown == showExportSheet_)
        return;
    if (shown) {
        exportSheet_ = services_
                           .makeExportSheet(notifications(),
                                            [self = QPointer<ContentView>(this)] {
                                                if (self)
                                                    self->setShowExportSheet(false);
                                            })
                           .release();
        exportSheet_->setParent(this);
        Q_EMIT exportSheetMade();
    }
    present(showExportSheet_, shown);
    if (!shown && exportSheet_)
        exportSheet_->deleteLater();
}

void ContentView::setShowDeleteSelectedConfirm(bool shown) {
    present(showDeleteSelectedConfirm_, shown);
}

void ContentView::setShowDeleteAllConfirm(bool shown) {
    present(showDeleteAllConfirm_, shown);
}

void ContentView::setShowDatePickerPopover(bool shown) {
    present(showDatePickerPopover_, shown);
}

QString ContentView::deleteSelectedTitle() const {
    return countedText("selection.confirmDelete.title", marks_.selected.size());
}

QString ContentView::deleteAllTitle() const {
    return countedText("selection.confirmDeleteAll.title", qsizetype(notifications().size()));
}

} // namespace tessarine

#include "settings/ExcludedAppsView.h"

#include "platform/Scheduler.h"
#include "preferences/PreferencesStore.h"
#include "shared/Text.h"

#include <algorithm>
#include <utility>

namespace tessarine {

namespace {

constexpr qsizetype longestName = 80; // characters that a question has room for
constexpr int rowsOfPage = 5;

} // namespace

ExcludedAppsView::ExcludedAppsView(PreferencesStore& preferences, HoardStore& hoard,
                                   Scheduler& scheduler)
    : preferences_(preferences)
    , hoard_(hoard)
    , scheduler_(scheduler) {
    connect(&preferences, &PreferencesStore::changed, this, &ExcludedAppsView::takePreferences);
    takePreferences();
}

void ExcludedAppsView::takePreferences() {
    apps_.setExcluded(preferences_.excludedBundleIds());
    Q_EMIT changed();
}

void ExcludedAppsView::appear() {
    const auto takeLater = alive_.guard([this, number = ++reading_](const DistinctAppList& apps) {
        if (number == reading_)
            takeApps(apps);
    });
    scheduler_.onGlobalQueue(
        QualityOfService::userInitiated, [&hoard = hoard_, &scheduler = scheduler_, takeLater] {
            scheduler.onMain([takeLater, apps = hoard.distinctApps()] { takeLater(apps); });
        });
}

void ExcludedAppsView::takeApps(DistinctAppList apps) {
    apps_.setApps(std::move(apps));
    isLoaded_ = true;
    Q_EMIT loaded();
}

void ExcludedAppsView::disappear() {
    ++reading_;
    cancel();
    apps_.setApps({});
    isLoaded_ = false;
    Q_EMIT loaded();
}

int ExcludedAppsView::excludedCount() const {
    return int(preferences_.excludedBundleIds().size());
}

void ExcludedAppsView::toggleOn(int row) {
    asked_ = apps_.apps().at(std::size_t(row));
    pendingExclude_ = asked_;
    Q_EMIT askedChanged();
    setShowConfirmation(true);
}

void ExcludedAppsView::toggleOff(int row) {
    std::set<QString> excluded = preferences_.excludedBundleIds();
    excluded.erase(apps_.apps().at(std::size_t(row)).bundleId);
    preferences_.setExcludedBundleIds(excluded);
}

int ExcludedAppsView::rowAfter(int key, int row) const {
    const int last = apps_.rowCount() - 1;
    switch (key) {
    case Qt::Key_Up:
        return std::max(0, row - 1);
    case Qt::Key_Down:
        return std::min(last, row + 1);
    case Qt::Key_PageUp:
        return std::max(0, row - rowsOfPage);
    case Qt::Key_PageDown:
        return std::min(last, row + rowsOfPage);
    case Qt::Key_Home:
        return std::min(last, 0);
    case Qt::Key_End:
        return last;
    default:
        return -1;
    }
}

void ExcludedAppsView::excludeOnly() {
    excludePending();
}

void ExcludedAppsView::excludeAndDelete() {
    if (const std::optional<DistinctApp> app = excludePending())
        hoard_.deleteApp(app->appName);
}

void ExcludedAppsView::cancel() {
    pendingExclude_.reset();
    setShowConfirmation(false);
}

std::optional<DistinctApp> ExcludedAppsView::excludePending() {
    std::optional<DistinctApp> app = std::exchange(pendingExclude_, std::nullopt);
    if (app) {
        std::set<QString> excluded = preferences_.excludedBundleIds();
        excluded.insert(app->bundleId);
        preferences_.setExcludedBundleIds(excluded);
    }
    setShowConfirmation(false);
    return app;
}

void ExcludedAppsView::setShowConfirmation(bool shown) {
    if (shown == showConfirmation_)
        return;
    showConfirmation_ = shown;
    Q_EMIT showConfirmationChanged();
}

QString ExcludedAppsView::askedName() const {
    const QString name = (asked_.appName.isEmpty() ? asked_.bundleId : asked_.appName).simplified();
    const QStringView shown = firstCharacters(name, longestName);
    return shown.size() == name.size() ? name : shown.toString() + u'…';
}

QString ExcludedAppsView::confirmationTitle() const {
    return qtTrId("excludedApps.confirm.title").arg(askedName());
}

QString ExcludedAppsView::confirmationMessage() const {
    return qtTrId("excludedApps.confirm.message").arg(askedName());
}

} // namespace tessarine

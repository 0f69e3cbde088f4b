#include "browser/list/BrowserList.h"

#include "platform/Scheduler.h"
#include "preferences/PreferencesStore.h"
#include "store/HoardStore.h"

#include <QCoreApplication>
#include <QLocale>

#include <utility>

namespace tessarine {

namespace {

constexpr double accessInterval = 1; // seconds

template <typename Mode, std::size_t Count>
QStringList labelsOf(const std::array<Mode, Count>& modes) {
    QStringList labels;
    for (const Mode mode : modes)
        labels << label(mode);
    return labels;
}

} // namespace

// The way of the rows: loaded, filtered and sorted, grouped into entries, told by the model.
BrowserList::BrowserList(std::shared_ptr<NotificationListener> listener, HoardStore& hoard,
                         PreferencesStore& preferences, Scheduler& scheduler,
                         CanSeeNotifications canSeeNotifications)
    : hoard_(hoard)
    , scheduler_(scheduler)
    , canSeeNotifications_(std::move(canSeeNotifications))
    , loaded_(std::move(listener), hoard, scheduler)
    , collapsed_(scheduler)
    , lines_([&preferences](const QString& bundleId) { return preferences.isPrivate(bundleId); }) {
    connect(&loaded_, &LoadedRows::changed, this, &BrowserList::takeList);
    connect(&loaded_, &LoadedRows::hoardCounted, this, &BrowserList::listChanged);
    connect(&collapsed_, &CollapsedGroups::faded, this, &BrowserList::derive);
    connect(&preferences, &PreferencesStore::changed, &lines_,
            &NotificationListModel::privacyChanged);
}

BrowserList::~BrowserList() = default;

void BrowserList::appear() {
    isShown_ = true;
    loaded_.appear();
    watchAccess();
}

void BrowserList::disappear() {
    isShown_ = false;
    loaded_.disappear();
    watchAccess();
}

// The bus may come and go, and the user may grant the permission, while the list says what is
// amiss.
void BrowserList::watchAccess() {
    const bool watches = isShown_ && face_ == Face::Waiting;
    if (watches == bool(accessWatch_))
        return;
    accessWatch_ = watches ? scheduler_.every(accessInterval, [this] { checkAccess(); }) : nullptr;
    if (watches)
        checkAccess();
}

void BrowserList::checkAccess() {
    const bool canSee = canSeeNotifications_();
    if (std::exchange(couldSeeNotifications_, canSee) != canSee)
        Q_EMIT listChanged();
}

void BrowserList::takeList() {
    uniqueApps_ = tessarine::uniqueApps(notifications());
    if (loaded_.arePublished() && face_ == Face::Loading)
        face_ = Face::Waiting;
    derive();
}

void BrowserList::derive() {
    filtered_ =
        sortedBy(sortMode_, keepingMatches(keepingApp(notifications(), selectedApp_), searchText_));
    face_ = derivedFace();
    lines_.setEntries(entries());
    watchAccess();
    Q_EMIT listChanged();
}

BrowserList::Face BrowserList::derivedFace() const {
    if (face_ == Face::Loading)
        return Face::Loading;
    if (!hasNotifications())
        return Face::Waiting;
    return filtered_.empty() ? Face::NoResults : Face::List;
}

ListEntries BrowserList::entries() const {
    switch (groupMode_) {
    case GroupMode::none:
        break;
    case GroupMode::app:
        return groupedEntries(groupMode_, groupedByApp(), collapsed_.keys(), collapsed_.fading());
    case GroupMode::date:
        return groupedEntries(groupMode_, groupedByDate(), collapsed_.keys(), collapsed_.fading());
    }
    return ungroupedEntries(filtered_);
}

std::vector<NotificationGroup> BrowserList::groupedByApp() const {
    return tessarine::groupedByApp(filtered_);
}

std::vector<NotificationGroup> BrowserList::groupedByDate() const {
    return tessarine::groupedByDate(filtered_);
}

QString BrowserList::counterText() const {
    if (!canLoadOlder())
        return qtTrId("toolbar.notifCount", int(filtered_.size()));
    const QLocale locale;
    return qtTrId("toolbar.notifCount.truncated")
        .arg(locale.toString(qsizetype(filtered_.size())), locale.toString(hoardTotalCount()));
}

QString BrowserList::waitingDetail() {
    if (face_ != Face::Waiting)
        return {};
    if (!hoard_.isUsable())
        return qtTrId("hoard.empty.notOpened").arg(hoard_.path());
    couldSeeNotifications_ = canSeeNotifications_();
    return couldSeeNotifications_ ? qtTrId("hoard.empty.waiting.detail")
                                  : qtTrId("hoard.empty.noAccess");
}

QString BrowserList::noResultsDetail() const {
    return canLoadOlder() ? qtTrId("hoard.empty.noResults.older")
                          : qtTrId("hoard.empty.noResults.detail");
}

void BrowserList::deleteEverything() {
    loaded_.deleteEverything();
    collapsed_.openAll();
    setSelectedApp(everyApp);
}

// What the user wishes

void BrowserList::changeDerivation() {
    derive();
    Q_EMIT derivationChanged();
}

void BrowserList::setSearchText(const QString& text) {
    if (std::exchange(searchText_, text) == text)
        return;
    Q_EMIT searchTextChanged();
    changeDerivation();
}

void BrowserList::setSelectedApp(const QString& appName) {
    if (std::exchange(selectedApp_, appName) != appName)
        changeDerivation();
}

void BrowserList::setSortMode(SortMode mode) {
    if (std::exchange(sortMode_, mode) == mode)
        return;
    Q_EMIT sortModeChanged();
    changeDerivation();
}

void BrowserList::setGroupMode(GroupMode mode) {
    if (std::exchange(groupMode_, mode) == mode)
        return;
    collapsed_.openAll();
    Q_EMIT groupModeChanged();
    changeDerivation();
}

void BrowserList::toggleGroup(const QString& key, int fadingRows) {
    collapsed_.toggle(key, fadingRows);
    derive();
}

void BrowserList::openGroup(const QString& key) {
    collapsed_.open(key);
    derive();
}

// The toolbar's entries

QStringList BrowserList::appLabels() const {
    return QStringList(qtTrId("toolbar.app.all")) + uniqueApps_;
}

int BrowserList::selectedAppIndex() const {
    return selectedApp_ == everyApp
               ? 0
               : int((QStringList(everyApp) + uniqueApps_).indexOf(selectedApp_));
}

void BrowserList::setSelectedAppIndex(int index) {
    setSelectedApp((QStringList(everyApp) + uniqueApps_).at(index));
}

QString BrowserList::selectedAppLabel() const {
    return selectedApp_ == everyApp ? qtTrId("toolbar.app.all") : selectedApp_;
}

void BrowserList::setSortModeIndex(int index) {
    setSortMode(allSortModes.at(std::size_t(index)));
}

void BrowserList::setGroupModeIndex(int index) {
    setGroupMode(allGroupModes.at(std::size_t(index)));
}

QStringList BrowserList::sortLabels() {
    return labelsOf(allSortModes);
}

QStringList BrowserList::groupLabels() {
    return labelsOf(allGroupModes);
}

} // namespace tessarine

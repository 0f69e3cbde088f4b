#include "browser/ContentView.h"

#include "capture/NotificationListener.h"
#include "platform/Scheduler.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPointer>

#include <utility>

namespace tessarine {

namespace {

constexpr qint64 firstLoadLimit = 500;
constexpr qint64 loadStep = 500;

constexpr double readAheadRetry = 1.0; // seconds

// As long as a group takes to open or close, and a little more for the last frame.
constexpr double togglingSeconds = 0.2;

template <typename Mode, std::size_t Count>
QStringList labelsOf(const std::array<Mode, Count>& modes) {
    QStringList labels;
    for (const Mode mode : modes)
        labels << label(mode);
    return labels;
}

} // namespace

ContentView::ContentView(Services services)
    : services_(std::move(services)) {
    marks_.isPrivate = [this](const QString& bundleId) {
        return services_.preferences.isPrivate(bundleId);
    };
    connect(&services_.preferences, &PreferencesStore::changed, this,
            [this] { lines_.marksChanged(); });
    hasList_ = !notifications().empty();
    connect(services_.listener.get(), &NotificationListener::notificationsChanged, this, [this] {
        hasList_ = true;
        if (isShown_)
            takeList();
    });
}

const NotificationList& ContentView::notifications() const {
    return services_.listener->notifications();
}

// The derived values

NotificationList ContentView::filteredNotifications() const {
    return sortedBy(sortMode_,
                    keepingMatches(keepingApp(notifications(), selectedApp_), searchText_));
}

std::vector<NotificationGroup> ContentView::groupedByApp() const {
    return tessarine::groupedByApp(filteredNotifications());
}

std::vector<NotificationGroup> ContentView::groupedByDate() const {
    return tessarine::groupedByDate(filteredNotifications());
}

// The list

void ContentView::appear() {
    isShown_ = true;
    loadedCount_ = notifications().size();
    hoardTotalCount_ = hoard().totalCount();
    takeList();
    readAhead();
}

void ContentView::disappear() {
    isShown_ = false;
}

void ContentView::takeList() {
    if (std::exchange(loadedCount_, notifications().size()) != notifications().size())
        hoardTotalCount_ = hoard().totalCount();
    if (hasList_ && face_ == Face::Loading)
        face_ = Face::Waiting;
    apps_ = uniqueApps(notifications());
    updateLines();
}

void ContentView::updateLines() {
    const NotificationList rows = filteredNotifications();
    shownCount_ = qsizetype(rows.size());
    if (face_ != Face::Loading)
        face_ = notifications().empty() ? Face::Waiting
                : rows.empty()          ? Face::Fruitless
                                        : Face::List;
    lines_.setEntries(makeEntries(rows));
    closeOrphanedPreview();
    Q_EMIT listChanged();
    tellOfMarks();
}

void ContentView::tellOfMarks() {
    ++revision_;
    Q_EMIT selectionChanged();
}

ListEntries ContentView::makeEntries(const NotificationList& rows) const {
    const QSet<QString> changing(changingGroups_.keyBegin(), changingGroups_.keyEnd());
    switch (groupMode_) {
    case GroupMode::none:
        break;
    case GroupMode::app:
        return groupedEntries(groupMode_, tessarine::groupedByApp(rows), collapsedGroups_,
                              changing);
    case GroupMode::date:
        return groupedEntries(groupMode_, tessarine::groupedByDate(rows), collapsedGroups_,
                              changing);
    }
    return ungroupedEntries(rows);
}

bool ContentView::hasNotifications() const {
    return !notifications().empty();
}

bool ContentView::canLoadOlder() const {
    return hoardTotalCount_ > qint64(notifications().size());
}

QString ContentView::counterText() const {
    if (!canLoadOlder())
        return qtTrId("toolbar.notifCount", int(shownCount_));
    const QLocale locale;
    return qtTrId("toolbar.notifCount.truncated")
        .arg(locale.toString(shownCount_), locale.toString(hoardTotalCount_));
}

void ContentView::refreshList() {
    services_.listener->setNotifications(hoard().fetchRecent(loadLimit_));
    readAhead();
}

// So that the next press of Load Older finds its rows read, however large the hoard is.
void ContentView::readAhead() {
    if (!canLoadOlder())
        return;
    Scheduler& scheduler = services_.scheduler;
    const auto tryAgain = [self = QPointer<ContentView>(this)] {
        if (self && self->isShown_)
            self->readAhead();
    };
    scheduler.onGlobalQueue(QualityOfService::utility, [&hoard = hoard(), &scheduler, tryAgain,
                                                        limit = loadLimit_ + loadStep] {
        if (hoard.readAhead(limit) == ReadingAhead::gaveWay)
            scheduler.onMainAfter(readAheadRetry, tryAgain);
    });
}

void ContentView::loadOlder() {
    loadLimit_ += loadStep;
    refreshList();
    hoardTotalCount_ = hoard().totalCount();
    Q_EMIT listChanged();
}

void ContentView::deleteEverything() {
    hoard().deleteAll();
    services_.listener->setNotifications({});
    loadLimit_ = firstLoadLimit;
    exitSelectionMode();
    collapsedGroups_.clear();
    setSelectedApp(everyApp);
}

// The toolbar

void ContentView::changeDerivation() {
    updateLines();
    Q_EMIT derivationChanged();
}

void ContentView::setSearchText(const QString& text) {
    if (std::exchange(searchText_, text) == text)
        return;
    Q_EMIT searchTextChanged();
    changeDerivation();
}

void ContentView::setSelectedApp(const QString& appName) {
    if (std::exchange(selectedApp_, appName) != appName)
        changeDerivation();
}

QStringList ContentView::appLabels() const {
    return QStringList(qtTrId("toolbar.app.all")) + apps();
}

// None for an application whose rows have left the list: the filter holds all the same.
int ContentView::selectedAppIndex() const {
    return selectedApp_ == everyApp ? 0
                                    : int((QStringList(everyApp) + apps()).indexOf(selectedApp_));
}

void ContentView::setSelectedAppIndex(int index) {
    setSelectedApp((QStringList(everyApp) + apps()).at(index));
}

QString ContentView::selectedAppLabel() const {
    return selectedApp_ == everyApp ? qtTrId("toolbar.app.all") : selectedApp_;
}

void ContentView::setSortMode(SortMode mode) {
    if (std::exchange(sortMode_, mode) == mode)
        return;
    Q_EMIT sortModeChanged();
    changeDerivation();
}

void ContentView::setGroupMode(GroupMode mode) {
    if (std::exchange(groupMode_, mode) == mode)
        return;
    collapsedGroups_.clear();
    changingGroups_.clear();
    Q_EMIT groupModeChanged();
    changeDerivation();
}

void ContentView::setSortModeIndex(int index) {
    setSortMode(allSortModes.at(std::size_t(index)));
}

void ContentView::setGroupModeIndex(int index) {
    setGroupMode(allGroupModes.at(std::size_t(index)));
}

QStringList ContentView::sortLabels() {
    return labelsOf(allSortModes);
}

QStringList ContentView::groupLabels() {
    return labelsOf(allGroupModes);
}

void ContentView::toggleGroup(const QString& key) {
    if (!collapsedGroups_.remove(key))
        collapsedGroups_.insert(key);
    const int number = ++toggleCount_;
    changingGroups_.insert(key, number);
    updateLines();
    services_.scheduler.onMainAfter(togglingSeconds,
                                    [self = QPointer<ContentView>(this), key, number] {
                                        if (self)
                                            self->finishToggle(key, number);
                                    });
}

// A group that was toggled again in the meantime goes on fading.
void ContentView::finishToggle(const QString& key, int number) {
    if (changingGroups_.value(key) != number)
        return;
    changingGroups_.remove(key);
    updateLines();
}

} // namespace tessarine

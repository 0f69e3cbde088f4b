#include "browser/list/LoadedRows.h"

#include "capture/NotificationListener.h"
#include "platform/Scheduler.h"
#include "store/HoardStore.h"

#include <QPointer>

#include <utility>

namespace tessarine {

namespace {

constexpr qint64 firstLoadLimit = 500;
constexpr qint64 loadStep = 500;

constexpr double readAheadRetry = 1.0; // seconds

} // namespace

LoadedRows::LoadedRows(std::shared_ptr<NotificationListener> listener, HoardStore& hoard,
                       Scheduler& scheduler)
    : listener_(std::move(listener))
    , hoard_(hoard)
    , scheduler_(scheduler)
    , arePublished_(!listener_->notifications().empty())
    , loadLimit_(firstLoadLimit) {
    connect(listener_.get(), &NotificationListener::notificationsChanged, this, [this] {
        arePublished_ = true;
        if (isShown_)
            takeList();
    });
}

const NotificationList& LoadedRows::notifications() const {
    return listener_->notifications();
}

bool LoadedRows::canLoadOlder() const {
    return hoardTotalCount_ > qint64(notifications().size());
}

void LoadedRows::appear() {
    isShown_ = true;
    countedAt_ = notifications().size();
    hoardTotalCount_ = hoard_.totalCount();
    Q_EMIT changed();
    readAhead();
}

void LoadedRows::disappear() {
    isShown_ = false;
}

void LoadedRows::takeList() {
    if (std::exchange(countedAt_, notifications().size()) != notifications().size())
        hoardTotalCount_ = hoard_.totalCount();
    Q_EMIT changed();
}

void LoadedRows::refresh() {
    listener_->setNotifications(hoard_.fetchRecent(loadLimit_));
    readAhead();
}

// So that the next press of Load Older finds its rows read, however large the hoard is.
void LoadedRows::readAhead() {
    if (!canLoadOlder())
        return;
    const auto tryAgain = [self = QPointer<LoadedRows>(this)] {
        if (self && self->isShown_)
            self->readAhead();
    };
    scheduler_.onGlobalQueue(QualityOfService::utility, [&hoard = hoard_, &scheduler = scheduler_,
                                                         tryAgain, limit = loadLimit_ + loadStep] {
        if (hoard.readAhead(limit) == ReadingAhead::gaveWay)
            scheduler.onMainAfter(readAheadRetry, tryAgain);
    });
}

void LoadedRows::loadOlder() {
    loadLimit_ += loadStep;
    refresh();
    hoardTotalCount_ = hoard_.totalCount();
    Q_EMIT hoardCounted();
}

void LoadedRows::deleteEverything() {
    hoard_.deleteAll();
    listener_->setNotifications({});
    loadLimit_ = firstLoadLimit;
}

} // namespace tessarine

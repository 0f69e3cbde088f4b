#include "capture/NotificationListener.h"

#include "capture/StartupRecovery.h"

#include <utility>

namespace tessarine {

namespace {

const QString usernotedDatabase =
    QStringLiteral("~/Library/Group Containers/group.com.apple.usernoted/db2/db");
const QString legacyFolder = QStringLiteral("~/Library/Application Support/NotificationCenter");

} // namespace

// From a layer through the sink into the hoard, and from there into the published list.
NotificationListener::NotificationListener(const Services& services)
    : services_(services)
    , sink_({services.hoard, services.diagnostics, *services.platform.scheduler,
             [this] { publishSoon(); }})
    , banners_({*services.platform.accessibility, *services.platform.workspace,
                *services.platform.scheduler, services.diagnostics, sink_})
    , usernoted_(services.platform.fileSystem->expandingTilde(usernotedDatabase),
                 {services.hoard, services.diagnostics, *services.platform.scheduler,
                  *services.platform.fileWatcher, *services.platform.workspace, sink_})
    , legacy_(services.platform.fileSystem->expandingTilde(legacyFolder),
              {services.hoard, *services.platform.scheduler, *services.platform.fileWatcher,
               *services.platform.workspace, sink_}) {}

NotificationListener::~NotificationListener() = default;

// Whoever sets the list has just read it: nothing newer is waiting to be published.
void NotificationListener::setNotifications(NotificationList notifications) {
    notifications_ = std::move(notifications);
    isPublicationPending_ = false;
    Q_EMIT notificationsChanged();
}

void NotificationListener::start() {
    if (isStarted_)
        return;
    isStarted_ = true;
    banners_.start();
    services_.platform.scheduler->onMain(alive_.guard([this] {
        recoverAtStartup();
        usernoted_.startWatcher();
        legacy_.startWatcher();
    }));
}

void NotificationListener::recoverAtStartup() {
    Scheduler& scheduler = *services_.platform.scheduler;
    StartupRecovery recovery({services_.hoard, scheduler, services_.diagnostics, sink_, usernoted_,
                              legacy_, publishedLimit, services_.preferences.retentionDays(),
                              [this] {
                                  publishRecent();
                                  return notifications_.size();
                              }},
                             alive_.token());
    scheduler.onGlobalQueue(QualityOfService::utility,
                            [recovery = std::move(recovery)]() mutable { recovery.run(); });
}

void NotificationListener::publishRecent() {
    setNotifications(services_.hoard.fetchRecent(publishedLimit));
}

// The tasks of a burst of captures stand in one row on the main thread: the list is published
// behind them, once.
void NotificationListener::publishSoon() {
    if (std::exchange(isPublicationPending_, true))
        return;
    services_.platform.scheduler->onMain(alive_.guard([this] {
        if (isPublicationPending_)
            publishRecent();
    }));
}

} // namespace tessarine

#include "capture/NotificationListener.h"

#include "capture/StartupRecovery.h"

#include <utility>

namespace tessarine {

namespace {

const QString usernotedDatabase =
    QStringLiteral("~/Library/Group Containers/group.com.apple.usernoted/db2/db");
const QString legacyFolder = QStringLiteral("~/Library/Application Support/NotificationCenter");

} // namespace

NotificationListener::NotificationListener(Services services)
    : services_(std::move(services))
    , usernotedDbPath_(services_.platform.fileSystem->expandingTilde(usernotedDatabase))
    , legacyDbPath_(
          findLegacyDatabase(services_.platform.fileSystem->expandingTilde(legacyFolder))) {
    loadLegacyAppNames();
}

NotificationListener::~NotificationListener() = default;

std::shared_ptr<NotificationListener> NotificationListener::create(Services services) {
    std::shared_ptr<NotificationListener> listener(new NotificationListener(std::move(services)));
    listener->sink_ = std::make_shared<CaptureSink>(CaptureSink::Services{
        listener->services_.hoard, listener->diagnostics(), listener->scheduler(),
        [weak = std::weak_ptr(listener)] {
            if (const std::shared_ptr<NotificationListener> self = weak.lock())
                self->publishSoon();
        }});
    return listener;
}

// Whoever sets the list has just read it: nothing newer is due.
void NotificationListener::setNotifications(NotificationList notifications) {
    notifications_ = std::move(notifications);
    isPublicationDue_ = false;
    Q_EMIT notificationsChanged();
}

void NotificationListener::start() {
    if (isStarted_)
        return;
    isStarted_ = true;
    if (!services_.platform.accessibility->isProcessTrusted()) {
        diagnostics().log(QStringLiteral("AXObserver deferred — Accessibility not yet granted"),
                          Level::warning, Category::ax);
        diagnostics().setAxStatus(QStringLiteral("Waiting for Accessibility permission"));
    } else {
        startAXObserver();
    }
    installLifecycleObservers();
    scheduler().onMain([weak = weak_from_this()] {
        const std::shared_ptr<NotificationListener> self = weak.lock();
        if (!self)
            return;
        self->recoverAtStartup();
        self->startUsernotedWatcher();
        self->startLegacyWatcher();
    });
}

void NotificationListener::recoverAtStartup() {
    scheduler().onGlobalQueue(
        QualityOfService::utility,
        [recovery = StartupRecovery(shared_from_this())]() mutable { recovery.run(); });
}

void NotificationListener::publishRecent() {
    setNotifications(hoard().fetchRecent(publishedLimit));
}

// A burst of captures has its tasks on the main thread in one row: the list is published behind
// them, once.
void NotificationListener::publishSoon() {
    if (std::exchange(isPublicationDue_, true))
        return;
    scheduler().onMain([weak = weak_from_this()] {
        const std::shared_ptr<NotificationListener> self = weak.lock();
        if (self && self->isPublicationDue_)
            self->publishRecent();
    });
}

QString NotificationListener::displayName(const QString& bundleId) const {
    const auto running = services_.platform.workspace->runningApplications(bundleId);
    if (!running.empty() && running.front().localizedName)
        return *running.front().localizedName;
    return lastBundleComponent(bundleId);
}

} // namespace tessarine

#include "capture/NotificationListener.h"

#include "capture/StartupRecovery.h"

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
    return std::shared_ptr<NotificationListener>(new NotificationListener(std::move(services)));
}

void NotificationListener::setNotifications(NotificationList notifications) {
    notifications_ = std::move(notifications);
    ++publications_;
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

void NotificationListener::count(const QString& message, Category category) {
    diagnostics().setCapturedTotal(diagnostics().capturedTotal() + 1);
    diagnostics().log(message, Level::success, category);
}

QString NotificationListener::displayName(const QString& bundleId) const {
    const auto running = services_.platform.workspace->runningApplications(bundleId);
    if (!running.empty() && running.front().localizedName)
        return *running.front().localizedName;
    return lastBundleComponent(bundleId);
}

} // namespace tessarine

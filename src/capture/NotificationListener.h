#pragma once

#include "capture/CaptureSink.h"
#include "capture/LegacyDatabase.h"
#include "capture/UsernotedDatabase.h"
#include "diagnostics/DiagnosticsStore.h"
#include "platform/Platform.h"
#include "preferences/PreferencesStore.h"
#include "store/HoardStore.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace tessarine {

// The capture engine: owns the layers that see notifications, brings each capture into the hoard,
// and publishes the list that the windows show. There is no stop: after start() it captures until
// the process ends.
//
// All of it is used on the main thread, which the polls block for the length of a reading; only
// the recovery at start works elsewhere.
class NotificationListener : public QObject,
                             public std::enable_shared_from_this<NotificationListener> {
    Q_OBJECT

public:
    struct Services {
        HoardStore& hoard;
        PreferencesStore& preferences;
        DiagnosticsStore& diagnostics;
        Platform& platform;
    };

    static constexpr qint64 publishedLimit = 500;

    // Finds the legacy database and reads its names. Captures nothing yet. Tasks hold the listener
    // weakly, so it is always made shared.
    static std::shared_ptr<NotificationListener> create(Services services);
    ~NotificationListener() override;

    // The hoard's first 500 rows in the hoard's order, or what a window has asked for since.
    const NotificationList& notifications() const { return notifications_; }
    void setNotifications(NotificationList notifications);

    bool isStarted() const { return isStarted_; }

    // Starts the recovery and arms the layers. Only the first call does anything.
    void start();

    // One reading of a database, as its watch or timer sets off.
    void pollUsernoted();
    void pollLegacy();

    // Attaches to the process that draws banners, or looks for it every three seconds. Called from
    // outside when the permission comes while the program runs.
    void startAXObserver();
    bool hasAXObserver() const { return axObserver_ != nullptr; }
    qint32 observedPid() const { return observedPid_; } // 0: none

    const QString& usernotedDbPath() const { return usernotedDbPath_; }
    const QString& legacyDbPath() const { return legacyDbPath_; }
    double lastSeenTimestamp() const { return usernotedCursor_.timestamp; }
    const std::set<qint64>& lastSeenRecIds() const { return usernotedCursor_.recIds; }
    qint64 lastSeenRecId() const { return lastSeenRecId_; }
    qint64 lastSeenNoteId() const { return lastSeenNoteId_; }
    const std::vector<std::pair<QString, double>>& recentTitles() const { return recentTitles_; }

Q_SIGNALS:
    void notificationsChanged();

private:
    explicit NotificationListener(Services services);

    HoardStore& hoard() const { return services_.hoard; }
    DiagnosticsStore& diagnostics() const { return services_.diagnostics; }
    Scheduler& scheduler() const { return *services_.platform.scheduler; }

    void recoverAtStartup();
    void publishRecent();
    void publishSoon();
    QString displayName(const QString& bundleId) const;

    void startUsernotedWatcher();
    NotificationList fetchNewUsernotedRecords();
    void moveUsernotedCursor(const UsernotedCursor& newest);
    void raiseLastSeenRecId(const NotificationList& records);

    void loadLegacyAppNames();
    void startLegacyWatcher();
    NotificationList fetchNewLegacyRecords();

    Accessibility& accessibility() const { return *services_.platform.accessibility; }
    void startAXObserverAfter(double seconds);
    std::unique_ptr<AXObserver> makeObserver(qint32 pid);
    void stopAXObserver();
    void handleAXEvent(const AXElementRef& element);
    void scanBanners(qint32 pid);
    void storeBannerCapture(const CapturedNotification& record);
    void installLifecycleObservers();
    void systemWillSleep(const std::optional<RunningApplication>& application);
    void systemDidWake(const std::optional<RunningApplication>& application);
    void applicationDidTerminate(const std::optional<RunningApplication>& application);
    void applicationDidLaunch(const std::optional<RunningApplication>& application);

    friend class StartupRecovery; // writes the fields below in its tasks on the main thread

    Services services_;
    std::shared_ptr<CaptureSink> sink_;
    NotificationList notifications_;
    bool isPublicationDue_ = false; // a task is on its way to publish
    QString usernotedDbPath_;
    std::unique_ptr<FileWatch> usernotedWatchSource_;
    std::unique_ptr<RepeatingTimer> usernotedPollTimer_;
    qint64 lastSeenRecId_ = 0;
    UsernotedCursor usernotedCursor_; // lastSeenTimestamp and lastSeenRecIds
    qint64 lastSeenNoteId_ = 0;
    std::unique_ptr<FileWatch> legacyWatchSource_;
    QString legacyDbPath_;
    LegacyAppNames legacyAppNameCache_;
    std::unique_ptr<AXObserver> axObserver_;
    qint32 observedPid_ = 0;
    std::vector<std::pair<QString, double>> recentTitles_; // unused: the hoard tells duplicates
    std::optional<double> lastAXScan_; // monotonic seconds; none: the distant past
    std::unique_ptr<WorkspaceObservation> sleepObserver_;
    std::unique_ptr<WorkspaceObservation> wakeObserver_;
    std::unique_ptr<WorkspaceObservation> terminateObserver_;
    std::unique_ptr<WorkspaceObservation> launchObserver_;
    bool isStarted_ = false;
};

} // namespace tessarine

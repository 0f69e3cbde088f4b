#pragma once

#include "capture/BannerLayer.h"
#include "capture/CaptureSink.h"
#include "capture/LegacyLayer.h"
#include "capture/UsernotedLayer.h"
#include "diagnostics/DiagnosticsStore.h"
#include "platform/Platform.h"
#include "preferences/PreferencesStore.h"
#include "shared/AliveGuard.h"
#include "store/HoardStore.h"

#include <QObject>

#include <memory>
#include <set>
#include <utility>
#include <vector>

namespace tessarine {

// The capture engine: owns the layers that see notifications and the sink that stores them, starts
// them and the recovery, and publishes the list that the windows show. There is no stop: after
// start() it captures until the process ends.
//
// All of it is used on the main thread, which the polls block for the length of a reading; only
// banner scans and the recovery at start work elsewhere.
class NotificationListener : public QObject {
    Q_OBJECT

public:
    struct Services {
        HoardStore& hoard;
        PreferencesStore& preferences;
        DiagnosticsStore& diagnostics;
        Platform& platform;
    };

    static constexpr qint64 publishedLimit = 500;

    // Finds the legacy database and reads its names. Captures nothing yet.
    explicit NotificationListener(const Services& services);
    ~NotificationListener() override;

    // The hoard's first 500 rows in the hoard's order, or what a window has asked for since.
    const NotificationList& notifications() const { return notifications_; }
    void setNotifications(NotificationList notifications);

    bool isStarted() const { return isStarted_; }

    // Starts the recovery and the layers. Only the first call does anything.
    void start();

    // Reads one of the databases now, as its watch or timer does.
    void pollUsernoted() { usernoted_.poll(); }
    void pollLegacy() { legacy_.poll(); }

    // Called from outside when the permission comes while the program runs.
    void startAXObserver() { banners_.startAXObserver(); }
    bool hasAXObserver() const { return banners_.hasAXObserver(); }
    qint32 observedPid() const { return banners_.observedPid(); } // 0: none

    const QString& usernotedDbPath() const { return usernoted_.path(); }
    const QString& legacyDbPath() const { return legacy_.path(); }
    double lastSeenTimestamp() const { return usernoted_.cursor().timestamp; }
    const std::set<qint64>& lastSeenRecIds() const { return usernoted_.cursor().recIds; }
    qint64 lastSeenRecId() const { return usernoted_.lastSeenRecId(); }
    qint64 lastSeenNoteId() const { return legacy_.lastSeenNoteId(); }
    const std::vector<std::pair<QString, double>>& recentTitles() const { return recentTitles_; }

Q_SIGNALS:
    void notificationsChanged();

private:
    void recoverAtStartup();
    void publishRecent();
    void publishSoon();

    Services services_;
    NotificationList notifications_;
    bool isPublicationPending_ = false; // a task on its way will publish
    bool isStarted_ = false;
    std::vector<std::pair<QString, double>> recentTitles_; // unused: the hoard finds duplicates
    CaptureSink sink_;
    BannerLayer banners_;
    UsernotedLayer usernoted_;
    LegacyLayer legacy_;
    AliveGuard alive_;
};

} // namespace tessarine

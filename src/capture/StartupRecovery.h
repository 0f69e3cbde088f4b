#pragma once

#include "capture/NotificationListener.h"

#include <memory>
#include <optional>

namespace tessarine {

// The reading that runs once at start, on a worker: takes into the hoard what the databases hold
// of the time while the program was not running. It neither counts nor logs its rows.
class StartupRecovery {
public:
    // Built on the main thread, from which it takes the settings that it needs.
    explicit StartupRecovery(const std::shared_ptr<NotificationListener>& listener);

    // Runs to the end on the calling worker. Does nothing when the listener is gone.
    void run();

private:
    void loadHoard();
    void recoverUsernoted();
    void recoverLegacy();
    void saveUsernotedCursor(const NotificationList& found, const UsernotedCursor& cursor);

    void store(const NotificationList& records);

    // The records that retention would keep.
    NotificationList kept(const NotificationList& found) const;
    void publishRecent(const std::function<void(NotificationListener&)>& afterwards);
    void onMain(const std::function<void(NotificationListener&)>& work);

    std::weak_ptr<NotificationListener> listener_;
    HoardStore& hoard_;
    Scheduler& scheduler_;
    QString usernotedDbPath_;
    QString legacyDbPath_;
    qint64 retentionDays_;
    std::optional<double> cutOff_; // reference-date seconds
};

} // namespace tessarine

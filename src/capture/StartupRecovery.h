#pragma once

#include "capture/CaptureSink.h"
#include "capture/LegacyLayer.h"
#include "capture/UsernotedLayer.h"
#include "diagnostics/DiagnosticsStore.h"
#include "platform/Scheduler.h"
#include "shared/AliveGuard.h"
#include "store/HoardStore.h"

#include <functional>
#include <optional>

namespace tessarine {

// Runs once at start, on a worker: reads what the databases have from the time while the program
// was not running, and stores it in the hoard. Its rows are neither counted nor logged.
class StartupRecovery {
public:
    struct Services {
        // For any thread.
        HoardStore& hoard;
        Scheduler& scheduler;

        // For the main thread.
        DiagnosticsStore& diagnostics;
        CaptureSink& sink;
        UsernotedLayer& usernoted;
        LegacyLayer& legacy;

        qint64 publishedLimit; // rows of the published list
        qint64 retentionDays;

        // Publishes the list on the main thread. Gives its length.
        std::function<std::size_t()> publishRecent;
    };

    // Built on the main thread. The owner is that of the services for the main thread: once it is
    // gone they are left alone.
    StartupRecovery(Services services, AliveGuard::Token owner);

    // Runs to the end on the calling worker. Does nothing when the owner is gone.
    void run();

private:
    void loadHoard();
    void recoverUsernoted();
    void resumeUsernoted(const UsernotedCursor& cursor, qint64 recId);
    void saveUsernotedCursor(const NotificationList& found, const UsernotedCursor& cursor);
    void recoverLegacy();

    void store(const NotificationList& records);
    void publishRecent();

    // The records that the retention setting would not delete.
    NotificationList withinRetention(const NotificationList& found) const;

    // Runs the work on the main thread, if the owner still lives, and waits for it.
    void onMain(const Task& work);

    Services services_;
    AliveGuard::Token owner_;
    QString usernotedDbPath_;
    QString legacyDbPath_;
    std::optional<double> cutOff_; // reference-date seconds
};

} // namespace tessarine

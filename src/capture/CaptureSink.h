#pragma once

#include "diagnostics/DiagnosticsStore.h"
#include "platform/Scheduler.h"
#include "shared/AliveGuard.h"
#include "store/HoardStore.h"

#include <deque>
#include <functional>

namespace tessarine {

// The reader that found a notification. It decides how the notification is stored and logged.
enum class CaptureOrigin { banner, usernoted, legacy, recovery };

// Stores captures in the hoard, counts them, and logs each that was added; those of the recovery
// are neither counted nor logged. What can't be stored at the moment stays pending, in its order,
// and is tried again as long as the program runs. Of too many pending ones the oldest are dropped,
// which is logged. Main thread.
class CaptureSink {
public:
    struct Services {
        HoardStore& hoard;
        DiagnosticsStore& diagnostics;
        Scheduler& scheduler;
        std::function<void()> requestPublication; // called when the hoard has new rows
    };

    // How much may be pending: notifications, and characters of their texts.
    static constexpr std::size_t maximumPending = 50000;
    static constexpr qsizetype maximumPendingCharacters = 32LL * 1024 * 1024;

    explicit CaptureSink(Services services);

    // True when a row was added. Then publication is requested.
    bool store(CaptureOrigin origin, const CapturedNotification& notification);

    // Stores what a reading found, in its order, and requests publication once, whether or not a
    // row was added.
    void storeReading(CaptureOrigin origin, const NotificationList& notifications);

    // For a capture that the caller could not store: it becomes pending.
    void storeLater(CaptureOrigin origin, const CapturedNotification& notification);

    std::size_t pendingCount() const { return pending_.size(); }

private:
    struct Capture {
        CaptureOrigin origin;
        CapturedNotification notification;
    };

    bool storeOrRetryLater(CaptureOrigin origin, const CapturedNotification& notification);
    Insertion tryToStore(const Capture& capture);
    void countAndLog(const Capture& capture);
    void addPending(Capture capture);
    void dropOldest();
    void retryAfter(double seconds);
    void retry();
    bool retrySome();

    Services services_;
    std::deque<Capture> pending_;
    qsizetype pendingCharacters_ = 0;
    qint64 storedFromPending_ = 0; // since the first one became pending
    bool isLocked_ = false;        // another program held the hoard at the last try
    bool isRetryScheduled_ = false;
    double retryDelay_; // seconds
    AliveGuard alive_;
};

} // namespace tessarine

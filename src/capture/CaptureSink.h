#pragma once

#include "diagnostics/DiagnosticsStore.h"
#include "platform/Scheduler.h"
#include "shared/AliveGuard.h"
#include "store/HoardStore.h"

#include <deque>
#include <functional>

namespace tessarine {

// Who saw a notification. That decides how it is stored and what is said of it.
enum class CaptureOrigin { banner, usernoted, legacy, recovery };

// Brings captures into the hoard, counts them, and logs each that was added; those of the recovery
// without a count and a line. What the hoard does not take at the moment is kept, in its order, and
// tried again as long as the program runs. There is a bound to that: what is given up is logged.
// Main thread.
class CaptureSink {
public:
    struct Services {
        HoardStore& hoard;
        DiagnosticsStore& diagnostics;
        Scheduler& scheduler;
        std::function<void()> requestPublication; // called when the hoard has new rows
    };

    // How much may wait: notifications, and characters of their texts.
    static constexpr std::size_t maximumPending = 50000;
    static constexpr qsizetype maximumPendingCharacters = 32 * 1024 * 1024;

    explicit CaptureSink(Services services);

    // True when a row was added. Then publication is requested.
    bool store(CaptureOrigin origin, const CapturedNotification& notification);

    // Stores what a reading found, in its order, and requests publication once, whether or not a
    // row was added.
    void storeReading(CaptureOrigin origin, const NotificationList& notifications);

    // For a capture that somebody else could not store.
    void storeLater(CaptureOrigin origin, const CapturedNotification& notification);

    std::size_t pendingCount() const { return pending_.size(); }

private:
    struct Capture {
        CaptureOrigin origin;
        CapturedNotification notification;
    };

    bool storeOrKeep(CaptureOrigin origin, const CapturedNotification& notification);
    Insertion tryToStore(const Capture& capture);
    void tellOfStored(const Capture& capture);
    void keep(Capture capture);
    void giveUpOldest();
    void retryAfter(double seconds);
    void retry();
    bool retrySome();

    Services services_;
    std::deque<Capture> pending_;
    qsizetype pendingCharacters_ = 0;
    qint64 storedAfterWaiting_ = 0; // since captures have begun to wait
    bool isLocked_ = false;         // another program held the hoard at the last try
    bool isRetryScheduled_ = false;
    double retryDelay_; // seconds
    AliveGuard alive_;
};

} // namespace tessarine

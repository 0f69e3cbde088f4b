#include "capture/CaptureSink.h"

#include <algorithm>
#include <utility>

namespace tessarine {

namespace {

constexpr double firstRetry = 0.5;    // seconds
constexpr double longestRetry = 30.0; // seconds

// How many captures one task on the main thread tries to store. One may fail for a reason of its
// own, so the next ones are tried too, up to this number.
constexpr std::size_t retriesInOneTask = 50;

qsizetype characters(const CapturedNotification& notification) {
    return notification.appName.size() + notification.appBundleId.size() +
           notification.title.size() + notification.body.size();
}

Insertion insert(HoardStore& hoard, CaptureOrigin origin,
                 const CapturedNotification& notification) {
    return origin == CaptureOrigin::banner ? hoard.tryInsertDeduplicated(notification)
                                           : hoard.tryInsert(notification);
}

bool isFinal(Insertion result) {
    return result == Insertion::stored || result == Insertion::refused;
}

} // namespace

CaptureSink::CaptureSink(Services services)
    : services_(std::move(services))
    , retryDelay_(firstRetry) {}

bool CaptureSink::store(CaptureOrigin origin, const CapturedNotification& notification) {
    const bool isAdded = storeOrRetryLater(origin, notification);
    if (isAdded)
        services_.requestPublication();
    return isAdded;
}

void CaptureSink::storeReading(CaptureOrigin origin, const NotificationList& notifications) {
    for (const CapturedNotification& notification : notifications)
        storeOrRetryLater(origin, notification);
    services_.requestPublication();
}

// While another program holds the hoard, each try would keep the main thread waiting.
bool CaptureSink::storeOrRetryLater(CaptureOrigin origin,
                                    const CapturedNotification& notification) {
    Capture capture{origin, notification};
    const Insertion result = isLocked_ ? Insertion::locked : tryToStore(capture);
    if (!isFinal(result))
        addPending(std::move(capture));
    return result == Insertion::stored;
}

void CaptureSink::storeLater(CaptureOrigin origin, const CapturedNotification& notification) {
    addPending({origin, notification});
}

Insertion CaptureSink::tryToStore(const Capture& capture) {
    const Insertion result = insert(services_.hoard, capture.origin, capture.notification);
    isLocked_ = result == Insertion::locked;
    if (result == Insertion::stored)
        countAndLog(capture);
    return result;
}

void CaptureSink::countAndLog(const Capture& capture) {
    DiagnosticsStore& diagnostics = services_.diagnostics;
    const auto countAndLogAs = [&](const QString& message, Category category) {
        diagnostics.setCapturedTotal(diagnostics.capturedTotal() + 1);
        diagnostics.log(message.arg(capture.notification.appName), Level::success, category);
    };
    switch (capture.origin) {
    case CaptureOrigin::banner:
        return countAndLogAs(QStringLiteral("Notification from [%1]"), Category::ax);
    case CaptureOrigin::usernoted:
        return countAndLogAs(QStringLiteral("Captured notification from [%1]"),
                             Category::usernoted);
    case CaptureOrigin::legacy:
        return countAndLogAs(QStringLiteral("Notification from [%1]"), Category::legacy);
    case CaptureOrigin::recovery:
        return;
    }
}

void CaptureSink::addPending(Capture capture) {
    if (pending_.empty()) {
        storedFromPending_ = 0;
        services_.diagnostics.log(QStringLiteral("Hoard not writable — captures wait"),
                                  Level::warning, Category::hoard);
    }
    pendingCharacters_ += characters(capture.notification);
    pending_.push_back(std::move(capture));
    if (pending_.size() > maximumPending || pendingCharacters_ > maximumPendingCharacters)
        dropOldest();
    retryAfter(retryDelay_);
}

// A tenth at once, so that the log doesn't get a line for each.
void CaptureSink::dropOldest() {
    const std::size_t before = pending_.size();
    const std::size_t goal = before - before / 10;
    while (!pending_.empty() &&
           (pending_.size() >= goal || pendingCharacters_ > maximumPendingCharacters)) {
        pendingCharacters_ -= characters(pending_.front().notification);
        pending_.pop_front();
    }
    services_.diagnostics.log(QStringLiteral("Hoard not writable — %1 notification(s) given up")
                                  .arg(before - pending_.size()),
                              Level::warning, Category::hoard);
}

void CaptureSink::retryAfter(double seconds) {
    if (pending_.empty() || std::exchange(isRetryScheduled_, true))
        return;
    services_.scheduler.onMainAfter(seconds, alive_.guard([this] { retry(); }));
}

void CaptureSink::retry() {
    isRetryScheduled_ = false;
    const qint64 storedBefore = storedFromPending_;
    const bool isProgress = retrySome();
    if (storedFromPending_ > storedBefore)
        services_.requestPublication();
    if (pending_.empty())
        services_.diagnostics.log(
            QStringLiteral("Hoard writable again — %1 waiting notification(s) stored")
                .arg(storedFromPending_),
            Level::success, Category::hoard);
    retryDelay_ = isProgress ? firstRetry : std::min(2 * retryDelay_, longestRetry);
    if (isProgress && !isLocked_)
        retryAfter(0);
    else
        retryAfter(retryDelay_);
}

// True when at least one was stored or refused. What fails goes to the end of the queue: the reason
// may be its own, and must not block the others.
bool CaptureSink::retrySome() {
    bool isProgress = false;
    for (std::size_t tries = std::min(pending_.size(), retriesInOneTask); tries > 0; --tries) {
        const Insertion result = tryToStore(pending_.front());
        if (result == Insertion::locked)
            break;
        Capture capture = std::move(pending_.front());
        pending_.pop_front();
        if (result == Insertion::failed) {
            pending_.push_back(std::move(capture));
            continue;
        }
        pendingCharacters_ -= characters(capture.notification);
        storedFromPending_ += result == Insertion::stored ? 1 : 0;
        isProgress = true;
    }
    return isProgress;
}

} // namespace tessarine

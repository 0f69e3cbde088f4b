// The layer that reads the database of the system's notification daemon: on each write of its log,
// and every 30 seconds whatever happens.

#include "capture/NotificationListener.h"
#include "shared/Text.h"

#include <algorithm>

namespace tessarine {

namespace {

constexpr double pollInterval = 30.0; // seconds

} // namespace

void NotificationListener::startUsernotedWatcher() {
    const auto poll = [weak = weak_from_this()] {
        if (const std::shared_ptr<NotificationListener> self = weak.lock())
            self->pollUsernoted();
    };
    usernotedWatchSource_ = services_.platform.fileWatcher->watchWrites(
        usernotedDbPath_ + QStringLiteral("-wal"), poll);
    if (usernotedWatchSource_) {
        diagnostics().setDbStatus(QStringLiteral("Watcher active (WAL)"));
        diagnostics().log(QStringLiteral("File watcher active on WAL"), Level::success,
                          Category::usernoted);
    }
    usernotedPollTimer_ = scheduler().every(pollInterval, poll);
    diagnostics().setDbStatus(QStringLiteral("Polling every 30s"));
    diagnostics().log(QStringLiteral("Poll timer active (30s interval)"), Level::info,
                      Category::usernoted);
    diagnostics().startPollCountdown();
}

void NotificationListener::pollUsernoted() {
    diagnostics().setPolling(true);
    diagnostics().log(QStringLiteral("Polling usernoted DB (ts: %1)")
                          .arg(decimalText(usernotedCursor_.timestamp)),
                      Level::activity, Category::usernoted);
    diagnostics().startPollCountdown();
    const NotificationList records = fetchNewUsernotedRecords();
    if (records.empty()) {
        diagnostics().log(QStringLiteral("Poll complete — no new records"), Level::info,
                          Category::usernoted);
        return;
    }
    diagnostics().log(QStringLiteral("Found %1 new record(s)").arg(records.size()), Level::success,
                      Category::usernoted);
    for (const CapturedNotification& record : records)
        sink_->store(CaptureOrigin::usernoted, record);
    publishSoon();
}

// Moves the cursor before anything is stored: what a crash between the two loses is lost to this
// layer.
NotificationList NotificationListener::fetchNewUsernotedRecords() {
    UsernotedReading reading =
        readUsernotedDatabase(usernotedDbPath_, usernotedCursor_, DecoderVariant::poll,
                              [this](const QString& bundleId) { return displayName(bundleId); });
    moveUsernotedCursor(reading.newest);
    raiseLastSeenRecId(reading.records);
    return std::move(reading.records);
}

void NotificationListener::moveUsernotedCursor(const UsernotedCursor& newest) {
    if (usernotedCursor_.timestamp < newest.timestamp)
        usernotedCursor_ = newest;
    else if (usernotedCursor_.timestamp == newest.timestamp && !newest.recIds.empty())
        usernotedCursor_.recIds.insert(newest.recIds.begin(), newest.recIds.end());
    else
        return;
    hoard().saveLastSeenUsernotedState(usernotedCursor_.recIds, usernotedCursor_.timestamp);
}

void NotificationListener::raiseLastSeenRecId(const NotificationList& records) {
    const auto greatest =
        std::max_element(records.begin(), records.end(), [](const auto& left, const auto& right) {
            return left.noteId < right.noteId;
        });
    if (greatest == records.end() || greatest->noteId <= lastSeenRecId_)
        return;
    lastSeenRecId_ = greatest->noteId;
    hoard().saveLastSeenUsernotedRecId(lastSeenRecId_);
    scheduler().onMain([weak = weak_from_this(), recId = lastSeenRecId_] {
        if (const std::shared_ptr<NotificationListener> self = weak.lock())
            self->diagnostics().setLastSeenRecId(recId);
    });
}

} // namespace tessarine

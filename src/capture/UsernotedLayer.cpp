#include "capture/UsernotedLayer.h"

#include "capture/ApplicationDisplayName.h"
#include "shared/Text.h"

#include <algorithm>
#include <utility>

namespace tessarine {

namespace {

constexpr double pollInterval = 30.0; // seconds

} // namespace

UsernotedLayer::UsernotedLayer(QString path, const Services& services)
    : path_(std::move(path))
    , services_(services) {}

void UsernotedLayer::startWatcher() {
    DiagnosticsStore& diagnostics = services_.diagnostics;
    const Task pollIfAlive = alive_.guard([this] { poll(); });
    watchSource_ = services_.fileWatcher.watchWrites(path_ + QStringLiteral("-wal"), pollIfAlive);
    if (watchSource_) {
        diagnostics.setDbStatus(QStringLiteral("Watcher active (WAL)"));
        diagnostics.log(QStringLiteral("File watcher active on WAL"), Level::success,
                        Category::usernoted);
    }
    pollTimer_ = services_.scheduler.every(pollInterval, pollIfAlive);
    diagnostics.setDbStatus(QStringLiteral("Polling every 30s"));
    diagnostics.log(QStringLiteral("Poll timer active (30s interval)"), Level::info,
                    Category::usernoted);
    diagnostics.startPollCountdown();
}

void UsernotedLayer::poll() {
    DiagnosticsStore& diagnostics = services_.diagnostics;
    diagnostics.setPolling(true);
    diagnostics.log(
        QStringLiteral("Polling usernoted DB (ts: %1)").arg(decimalText(cursor_.timestamp)),
        Level::activity, Category::usernoted);
    diagnostics.startPollCountdown();
    const NotificationList records = fetchNewRecords();
    if (records.empty()) {
        diagnostics.log(QStringLiteral("Poll complete — no new records"), Level::info,
                        Category::usernoted);
        return;
    }
    diagnostics.log(QStringLiteral("Found %1 new record(s)").arg(records.size()), Level::success,
                    Category::usernoted);
    services_.sink.storeReading(CaptureOrigin::usernoted, records);
}

// Moves the cursor before anything is stored: what a crash between the two loses is lost to this
// layer.
NotificationList UsernotedLayer::fetchNewRecords() {
    UsernotedReading reading = readUsernotedDatabase(
        path_, cursor_, DecoderVariant::poll,
        [this](const QString& bundleId) { return displayName(services_.workspace, bundleId); });
    moveCursor(reading.newest);
    raiseLastSeenRecId(reading.records);
    return std::move(reading.records);
}

void UsernotedLayer::moveCursor(const UsernotedCursor& newest) {
    if (cursor_.timestamp < newest.timestamp)
        cursor_ = newest;
    else if (cursor_.timestamp == newest.timestamp && !newest.recIds.empty())
        cursor_.recIds.insert(newest.recIds.begin(), newest.recIds.end());
    else
        return;
    services_.hoard.saveLastSeenUsernotedState(cursor_.recIds, cursor_.timestamp);
}

void UsernotedLayer::raiseLastSeenRecId(const NotificationList& records) {
    const auto greatest = std::ranges::max_element(records, {}, &CapturedNotification::noteId);
    if (greatest == records.end() || greatest->noteId <= lastSeenRecId_)
        return;
    lastSeenRecId_ = greatest->noteId;
    services_.hoard.saveLastSeenUsernotedRecId(lastSeenRecId_);
    services_.scheduler.onMain(alive_.guard(
        [this, recId = lastSeenRecId_] { services_.diagnostics.setLastSeenRecId(recId); }));
}

void UsernotedLayer::setCursor(const UsernotedCursor& cursor, qint64 lastSeenRecId) {
    cursor_ = cursor;
    lastSeenRecId_ = lastSeenRecId;
    services_.diagnostics.setLastSeenRecId(lastSeenRecId);
}

} // namespace tessarine

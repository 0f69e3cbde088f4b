#include "capture/StartupRecovery.h"

#include "shared/ReferenceTime.h"
#include "shared/Text.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace tessarine {

namespace {

// How far back the very first reading goes.
constexpr double firstReading = 30 * secondsPerDay;

qint64 greatestNoteId(const NotificationList& records) {
    return std::ranges::max_element(records, {}, &CapturedNotification::noteId)->noteId;
}

// The greatest finite date of the records, with the keys at it. A record with an infinite date is
// stored like any other, but as a cursor that date would hide every later row.
UsernotedCursor newestOf(const NotificationList& records, const UsernotedCursor& cursor) {
    UsernotedCursor newest{cursor.timestamp, {}};
    for (const CapturedNotification& record : records) {
        if (!std::isfinite(record.timestamp) || record.timestamp < newest.timestamp)
            continue;
        if (record.timestamp > newest.timestamp)
            newest = {record.timestamp, {}};
        newest.recIds.insert(record.noteId);
    }
    return newest;
}

} // namespace

StartupRecovery::StartupRecovery(Services services, AliveGuard::Token owner)
    : services_(std::move(services))
    , owner_(std::move(owner))
    , usernotedDbPath_(services_.usernoted.path())
    , legacyDbPath_(services_.legacy.path()) {}

void StartupRecovery::run() {
    if (!owner_.isAlive())
        return;
    loadHoard();
    if (services_.retentionDays >= 1)
        cutOff_ = services_.scheduler.now() -
                  static_cast<double>(services_.retentionDays) * secondsPerDay;
    recoverUsernoted();
    recoverLegacy();
}

// The list is read here first, since that may take long. On the main thread the hoard then knows
// it, together with what was captured meanwhile.
void StartupRecovery::loadHoard() {
    services_.hoard.fetchRecent(services_.publishedLimit);
    onMain([this] {
        const auto count = static_cast<qint64>(services_.publishRecent());
        services_.diagnostics.setCapturedTotal(count);
        services_.diagnostics.log(QStringLiteral("Hoard loaded — %1 notifications").arg(count),
                                  Level::success, Category::hoard);
    });
}

void StartupRecovery::recoverUsernoted() {
    HoardStore& hoard = services_.hoard;
    const qint64 recId = hoard.lastSeenUsernotedRecId();
    const double stored = hoard.lastSeenUsernotedTimestamp();
    const UsernotedCursor cursor{stored > 0 ? stored : services_.scheduler.now() - firstReading,
                                 hoard.lastSeenUsernotedRecIds()};
    resumeUsernoted(cursor, recId);
    const NotificationList found =
        readUsernotedDatabase(usernotedDbPath_, cursor, DecoderVariant::startUp,
                              lastBundleComponent)
            .records;
    if (found.empty())
        return;
    saveUsernotedCursor(found, cursor);
    store(withinRetention(found));
    publishRecent();
}

void StartupRecovery::resumeUsernoted(const UsernotedCursor& cursor, qint64 recId) {
    onMain([&] {
        services_.usernoted.setCursor(cursor, recId);
        services_.diagnostics.log(QStringLiteral("Resuming from timestamp ") +
                                      decimalText(cursor.timestamp),
                                  Level::info, Category::usernoted);
    });
}

void StartupRecovery::saveUsernotedCursor(const NotificationList& found,
                                          const UsernotedCursor& cursor) {
    const UsernotedCursor newest = newestOf(found, cursor);
    if (newest.timestamp <= cursor.timestamp)
        return;
    const qint64 recId = greatestNoteId(found);
    services_.hoard.saveLastSeenUsernotedState(newest.recIds, newest.timestamp);
    services_.hoard.saveLastSeenUsernotedRecId(recId);
    onMain([&] { services_.usernoted.setCursor(newest, recId); });
}

void StartupRecovery::recoverLegacy() {
    const qint64 noteId = services_.hoard.lastSeenSystemNoteId();
    onMain([&] { services_.legacy.setLastSeenNoteId(noteId); });
    const LegacyAppNames names = readLegacyAppNames(legacyDbPath_, NullBundleId::skipped);
    const NotificationList found = readLegacyDatabase(
        legacyDbPath_, noteId, names, services_.scheduler.now(), lastBundleComponent);
    if (found.empty())
        return;
    const qint64 newest = greatestNoteId(found);
    onMain([&] { services_.legacy.setLastSeenNoteId(newest); });
    services_.hoard.saveLastSeenSystemNoteId(newest);
    const NotificationList records = withinRetention(found);
    if (records.empty())
        return;
    store(records);
    publishRecent();
}

NotificationList StartupRecovery::withinRetention(const NotificationList& found) const {
    NotificationList records;
    std::copy_if(found.begin(), found.end(), std::back_inserter(records),
                 [this](const CapturedNotification& record) {
                     return !cutOff_ || record.timestamp >= *cutOff_;
                 });
    return records;
}

// The first record that the hoard doesn't take, and all behind it, are left to the sink, which
// tries again: each attempt here would block the main thread, which uses the hoard as well.
void StartupRecovery::store(const NotificationList& records) {
    const auto notTaken = std::find_if(records.begin(), records.end(), [this](const auto& record) {
        const Insertion result = services_.hoard.tryInsert(record);
        return result == Insertion::locked || result == Insertion::failed;
    });
    if (notTaken == records.end())
        return;
    onMain([&] {
        std::for_each(notTaken, records.end(), [this](const CapturedNotification& record) {
            services_.sink.storeLater(CaptureOrigin::recovery, record);
        });
    });
}

// Read here first, as in loadHoard.
void StartupRecovery::publishRecent() {
    services_.hoard.fetchRecent(services_.publishedLimit);
    onMain([this] { services_.publishRecent(); });
}

void StartupRecovery::onMain(const Task& work) {
    services_.scheduler.onMainAndWait([&] {
        if (owner_.isAlive())
            work();
    });
}

} // namespace tessarine

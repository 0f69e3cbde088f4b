#include "capture/StartupRecovery.h"

#include "shared/ReferenceTime.h"
#include "shared/Text.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace tessarine {

namespace {

// How far back the first reading ever goes.
constexpr double firstReading = 30 * secondsPerDay;

qint64 greatestNoteId(const NotificationList& records) {
    qint64 greatest = records.front().noteId;
    for (const CapturedNotification& record : records)
        greatest = std::max(greatest, record.noteId);
    return greatest;
}

// The greatest finite date of the records, with the keys at it. A date without end is stored like
// any other, but as a cursor it would put every later row behind it.
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

StartupRecovery::StartupRecovery(const std::shared_ptr<NotificationListener>& listener)
    : listener_(listener)
    , hoard_(listener->services_.hoard)
    , scheduler_(listener->scheduler())
    , usernotedDbPath_(listener->usernotedDbPath_)
    , legacyDbPath_(listener->legacyDbPath_)
    , retentionDays_(listener->services_.preferences.retentionDays()) {}

void StartupRecovery::run() {
    if (listener_.expired())
        return;
    loadHoard();
    if (retentionDays_ >= 1)
        cutOff_ = scheduler_.now() - static_cast<double>(retentionDays_) * secondsPerDay;
    recoverUsernoted();
    recoverLegacy();
}

void StartupRecovery::loadHoard() {
    publishRecent([](NotificationListener& listener) {
        const auto count = static_cast<qint64>(listener.notifications().size());
        listener.diagnostics().setCapturedTotal(count);
        listener.diagnostics().log(QStringLiteral("Hoard loaded — %1 notifications").arg(count),
                                   Level::success, Category::hoard);
    });
}

void StartupRecovery::recoverUsernoted() {
    const qint64 recId = hoard_.lastSeenUsernotedRecId();
    const double stored = hoard_.lastSeenUsernotedTimestamp();
    const UsernotedCursor cursor{stored > 0 ? stored : scheduler_.now() - firstReading,
                                 hoard_.lastSeenUsernotedRecIds()};
    onMain([&](NotificationListener& listener) {
        listener.lastSeenRecId_ = recId;
        listener.usernotedCursor_ = cursor;
        listener.diagnostics().setLastSeenRecId(recId);
        listener.diagnostics().log(QStringLiteral("Resuming from timestamp ") +
                                       decimalText(cursor.timestamp),
                                   Level::info, Category::usernoted);
    });
    const NotificationList found =
        readUsernotedDatabase(usernotedDbPath_, cursor, DecoderVariant::startUp,
                              lastBundleComponent)
            .records;
    if (found.empty())
        return;
    saveUsernotedCursor(found, cursor);
    store(kept(found));
    publishRecent([](NotificationListener&) {});
}

void StartupRecovery::saveUsernotedCursor(const NotificationList& found,
                                          const UsernotedCursor& cursor) {
    const UsernotedCursor newest = newestOf(found, cursor);
    if (newest.timestamp <= cursor.timestamp)
        return;
    const qint64 recId = greatestNoteId(found);
    hoard_.saveLastSeenUsernotedState(newest.recIds, newest.timestamp);
    hoard_.saveLastSeenUsernotedRecId(recId);
    onMain([&](NotificationListener& listener) {
        listener.usernotedCursor_ = newest;
        listener.lastSeenRecId_ = recId;
        listener.diagnostics().setLastSeenRecId(recId);
    });
}

void StartupRecovery::recoverLegacy() {
    const qint64 noteId = hoard_.lastSeenSystemNoteId();
    onMain([&](NotificationListener& listener) { listener.lastSeenNoteId_ = noteId; });
    const LegacyAppNames names = readLegacyAppNames(legacyDbPath_, NullBundleId::skipped);
    const NotificationList found =
        readLegacyDatabase(legacyDbPath_, noteId, names, scheduler_.now(), lastBundleComponent);
    if (found.empty())
        return;
    const qint64 newest = greatestNoteId(found);
    onMain([&](NotificationListener& listener) { listener.lastSeenNoteId_ = newest; });
    hoard_.saveLastSeenSystemNoteId(newest);
    const NotificationList keptRecords = kept(found);
    if (keptRecords.empty())
        return;
    store(keptRecords);
    publishRecent([](NotificationListener&) {});
}

NotificationList StartupRecovery::kept(const NotificationList& found) const {
    NotificationList records;
    std::copy_if(found.begin(), found.end(), std::back_inserter(records),
                 [this](const CapturedNotification& record) {
                     return !cutOff_ || record.timestamp >= *cutOff_;
                 });
    return records;
}

// What the hoard does not take now is the sink's to try again, and all that follows: each try would
// hold up the main thread, which uses the hoard as well.
void StartupRecovery::store(const NotificationList& records) {
    const auto notTaken = std::find_if(records.begin(), records.end(), [this](const auto& record) {
        const Insertion result = hoard_.tryInsert(record);
        return result == Insertion::locked || result == Insertion::failed;
    });
    if (notTaken == records.end())
        return;
    onMain([&](NotificationListener& listener) {
        std::for_each(notTaken, records.end(), [&](const CapturedNotification& record) {
            listener.sink_->storeLater(CaptureOrigin::recovery, record);
        });
    });
}

// The list is read here first, since that may take long. On the main thread the hoard then knows
// it, together with what was captured meanwhile.
void StartupRecovery::publishRecent(const std::function<void(NotificationListener&)>& afterwards) {
    hoard_.fetchRecent(NotificationListener::publishedLimit);
    onMain([&](NotificationListener& listener) {
        listener.publishRecent();
        afterwards(listener);
    });
}

void StartupRecovery::onMain(const std::function<void(NotificationListener&)>& work) {
    scheduler_.onMainAndWait([&] {
        if (const std::shared_ptr<NotificationListener> listener = listener_.lock())
            work(*listener);
    });
}

} // namespace tessarine

// The layer that reads the notification database of older systems, when there is one: at start and
// whenever the file is written. It says nothing but what it captured.

#include "capture/NotificationListener.h"

#include <algorithm>

namespace tessarine {

void NotificationListener::loadLegacyAppNames() {
    legacyAppNameCache_ = readLegacyAppNames(legacyDbPath_, NullBundleId::fatal);
}

void NotificationListener::startLegacyWatcher() {
    legacyWatchSource_ =
        services_.platform.fileWatcher->watchWrites(legacyDbPath_, [weak = weak_from_this()] {
            if (const std::shared_ptr<NotificationListener> self = weak.lock())
                self->pollLegacy();
        });
}

void NotificationListener::pollLegacy() {
    const NotificationList records = fetchNewLegacyRecords();
    if (records.empty())
        return;
    // Not always the last one: the ids are read as 32 bits, but ordered by all they have.
    lastSeenNoteId_ = std::ranges::max_element(records, {}, &CapturedNotification::noteId)->noteId;
    hoard().saveLastSeenSystemNoteId(lastSeenNoteId_);
    for (const CapturedNotification& record : records)
        sink_->store(CaptureOrigin::legacy, record);
    publishSoon();
}

NotificationList NotificationListener::fetchNewLegacyRecords() {
    return readLegacyDatabase(legacyDbPath_, lastSeenNoteId_, legacyAppNameCache_,
                              scheduler().now(),
                              [this](const QString& bundleId) { return displayName(bundleId); });
}

} // namespace tessarine

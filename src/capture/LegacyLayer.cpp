#include "capture/LegacyLayer.h"

#include "capture/ApplicationDisplayName.h"

#include <algorithm>

namespace tessarine {

LegacyLayer::LegacyLayer(const QString& folder, const Services& services)
    : path_(findLegacyDatabase(folder))
    , appNames_(readLegacyAppNames(path_, NullBundleId::fatal))
    , services_(services) {}

void LegacyLayer::startWatcher() {
    watchSource_ = services_.fileWatcher.watchWrites(path_, alive_.guard([this] { poll(); }));
}

void LegacyLayer::poll() {
    const NotificationList records = fetchNewRecords();
    if (records.empty())
        return;
    // Not always the last one: the ids are read as 32 bits, but ordered by all they have.
    lastSeenNoteId_ = std::ranges::max_element(records, {}, &CapturedNotification::noteId)->noteId;
    services_.hoard.saveLastSeenSystemNoteId(lastSeenNoteId_);
    services_.sink.storeReading(CaptureOrigin::legacy, records);
}

NotificationList LegacyLayer::fetchNewRecords() const {
    return readLegacyDatabase(
        path_, lastSeenNoteId_, appNames_, services_.scheduler.now(),
        [this](const QString& bundleId) { return displayName(services_.workspace, bundleId); });
}

} // namespace tessarine

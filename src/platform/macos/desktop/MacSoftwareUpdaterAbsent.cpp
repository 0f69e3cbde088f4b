// For a build without Sparkle's framework.

#include "platform/macos/desktop/MacSoftwareUpdater.h"

namespace tessarine {

struct MacSoftwareUpdater::Controller {};

MacSoftwareUpdater::MacSoftwareUpdater() = default;

MacSoftwareUpdater::~MacSoftwareUpdater() = default;

bool MacSoftwareUpdater::checkForUpdates() {
    return false;
}

} // namespace tessarine

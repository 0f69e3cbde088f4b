#include "core/Services.h"

namespace tessarine {

Services::Services(Platform& platform)
    : platform(platform)
    , hoard(*platform.fileSystem, *platform.userDefaults, *platform.scheduler)
    , preferences(*platform.userDefaults)
    , diagnostics(*platform.scheduler, hoard)
    , listener(std::make_shared<NotificationListener>(
          NotificationListener::Services{hoard, preferences, diagnostics, platform}))
    , launcher(*platform.workspace, *platform.fileSystem, *platform.scheduler) {}

} // namespace tessarine

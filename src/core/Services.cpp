#include "core/Services.h"

namespace tessarine {

Services::Services(Platform& system)
    : platform(system)
    , hoard(*system.fileSystem, *system.userDefaults, *system.scheduler)
    , preferences(*system.userDefaults)
    , diagnostics(*system.scheduler, hoard)
    , listener(NotificationListener::create({hoard, preferences, diagnostics, system}))
    , launcher(*system.workspace, *system.fileSystem, *system.scheduler) {}

} // namespace tessarine

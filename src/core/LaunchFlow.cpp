#include "core/LaunchFlow.h"

#include "core/Retention.h"

namespace tessarine {

void LaunchFlow::begin() {
    finishStartup();
}

void LaunchFlow::finishStartup() {
    applyRetention(services_.preferences, services_.hoard, services_.diagnostics);
    services_.listener->start();
    fdaConfirmedAtLaunch_ =
        services_.platform.fileSystem->grantsReading(services_.listener->usernotedDbPath());
}

} // namespace tessarine

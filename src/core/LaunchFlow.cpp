#include "core/LaunchFlow.h"

#include "core/Retention.h"

#include <QDebug>

namespace tessarine {

void LaunchFlow::beginLaunchFlow() {
    if (services_.preferences.hasAcceptedEULA())
        finishStartup();
    else
        services_.platform.scheduler->onMainAfter(firstRunDelay,
                                                  alive_.guard([this] { steps_.showFirstRun(); }));
}

void LaunchFlow::finishStartup() {
    applyRetention(services_.preferences, services_.hoard, services_.diagnostics);
    services_.listener->start();
    fdaConfirmedAtLaunch_ =
        services_.platform.fileSystem->grantsReading(services_.listener->usernotedDbPath());
    tellWhatIsMissing();
    steps_.runPermissionChecks();
}

void LaunchFlow::tellWhatIsMissing() {
    if (!services_.hoard.isUsable())
        qWarning().noquote() << "The hoard can't be opened:" << services_.hoard.path();
    const auto tellOfAccess = [this] {
        if (!services_.platform.accessibility->isProcessTrusted())
            qWarning("Notifications can't be seen: the system gives no access to them, "
                     "as where there is no session bus");
    };
    services_.platform.scheduler->onMainAfter(accessGrace, alive_.guard(tellOfAccess));
}

} // namespace tessarine

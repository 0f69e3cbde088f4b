#pragma once

#include "platform/Scheduler.h"
#include "platform/Workspace.h"
#include "platform/linux/BannerProcess.h"
#include "platform/linux/DesktopEntries.h"
#include "platform/linux/LogindSleep.h"

#include <QMultiHash>

#include <memory>
#include <string>

namespace tessarine {

// An application is a desktop entry; it runs when a process of this user runs its program. The
// process that draws banners is the one that the banner process stands for; of other applications
// no launch or termination is told. Sleep is what logind says on the system bus.
class LinuxWorkspace : public Workspace {
public:
    // The address is the system bus's, as D-Bus writes it.
    LinuxWorkspace(Scheduler& scheduler, std::shared_ptr<BannerProcess> banners,
                   std::string systemBus);

    std::vector<RunningApplication>
    runningApplications(const QString& bundleIdentifier) const override;
    std::unique_ptr<WorkspaceObservation> observe(WorkspaceEvent event, Handler handler) override;

private:
    const QMultiHash<QString, qint32>& processes() const;

    std::vector<RunningApplication> runningBannerProcess() const;

    const Scheduler& scheduler_;
    const std::shared_ptr<BannerProcess> banners_;
    LogindSleep sleep_;
    mutable DesktopEntries entries_;
    mutable QMultiHash<QString, qint32> pidsByProgram_; // absolute path of the program
    mutable double processesReadAt_ = -1;
};

} // namespace tessarine

#pragma once

#include "platform/Scheduler.h"
#include "platform/Workspace.h"
#include "platform/linux/applications/DesktopEntries.h"
#include "platform/linux/banners/BannerProcess.h"
#include "platform/linux/bus/LogindSleep.h"

#include <QMultiHash>

#include <memory>
#include <mutex>
#include <string>

namespace tessarine {

// An application is a desktop entry, and its path that of the entry's file; it runs when a process
// of this user runs its program. The process that draws banners is the one that the banner process
// stands for; of other applications no launch or termination is told. Sleep is what logind says on
// the system bus.
class LinuxWorkspace : public Workspace {
public:
    // The addresses of both buses, as D-Bus writes them; an empty one is no bus.
    struct Buses {
        std::string session;
        std::string system;
    };

    LinuxWorkspace(Scheduler& scheduler, std::shared_ptr<BannerProcess> banners, Buses buses);

    std::vector<RunningApplication>
    runningApplications(const QString& bundleIdentifier) const override;
    std::optional<QString> pathForApplication(const QString& bundleIdentifier) const override;

    // All applications lie in the first of the folders that are looked through.
    std::optional<QString> applicationInFolder(const QString& folder,
                                               const QString& name) const override;

    void openApplication(const QString& path) override;
    void openURL(const QString& url) override;
    std::unique_ptr<WorkspaceObservation> observe(WorkspaceEvent event, Handler handler) override;

private:
    const QMultiHash<QString, qint32>& processes() const;

    std::vector<RunningApplication> runningBannerProcess() const;

    Scheduler& scheduler_;
    const std::shared_ptr<BannerProcess> banners_;
    const std::string sessionBus_;
    LogindSleep sleep_;
    mutable std::mutex mutex_; // guards what follows
    mutable DesktopEntries entries_;
    mutable QMultiHash<QString, qint32> pidsByProgram_; // absolute path of the program
    mutable double processesReadAt_ = -1;
};

} // namespace tessarine

#pragma once

#include "capture/CaptureSink.h"
#include "diagnostics/DiagnosticsStore.h"
#include "platform/Accessibility.h"
#include "platform/Scheduler.h"
#include "platform/Workspace.h"
#include "shared/AliveGuard.h"
#include "shared/CapturedNotification.h"

#include <memory>
#include <optional>

namespace tessarine {

// The layer that reads banners off the screen: an observer on the process that draws them, a scan
// of its windows whenever the throttle lets an event through, and what keeps the observer attached
// while that process, or the system's sleep, comes and goes. Main thread; scans run on workers
// under a watchdog.
class BannerLayer {
public:
    struct Services {
        Accessibility& accessibility;
        Workspace& workspace;
        Scheduler& scheduler;
        DiagnosticsStore& diagnostics;
        CaptureSink& sink;
    };

    explicit BannerLayer(const Services& services);

    // Attaches the observer if the permission is there, and follows sleep and the banner process
    // from now on.
    void start();

    // Attaches to the process that draws banners, or looks for it every three seconds. Without the
    // permission it logs that it did nothing.
    void startAXObserver();
    bool hasAXObserver() const { return axObserver_ != nullptr; }
    qint32 observedPid() const { return observedPid_; } // 0: none

private:
    using LifecycleReaction = void (BannerLayer::*)(const std::optional<RunningApplication>&);

    void startAXObserverAfter(double seconds);
    std::unique_ptr<AXObserver> makeObserver(qint32 pid);
    void stopAXObserver();
    void handleAXEvent(const AXElementRef& element);
    void scanBanners(qint32 pid);
    void storeBannerCapture(const CapturedNotification& record);
    void logTimeout();

    void installLifecycleObservers();
    std::unique_ptr<WorkspaceObservation> observe(WorkspaceEvent event, LifecycleReaction reaction);
    void systemWillSleep(const std::optional<RunningApplication>& application);
    void systemDidWake(const std::optional<RunningApplication>& application);
    void applicationDidTerminate(const std::optional<RunningApplication>& application);
    void applicationDidLaunch(const std::optional<RunningApplication>& application);

    Services services_;
    std::unique_ptr<AXObserver> axObserver_;
    qint32 observedPid_ = 0;
    std::optional<double> lastAXScan_; // seconds of the scheduler's uptime; none: no scan yet
    std::unique_ptr<WorkspaceObservation> sleepObserver_;
    std::unique_ptr<WorkspaceObservation> wakeObserver_;
    std::unique_ptr<WorkspaceObservation> terminateObserver_;
    std::unique_ptr<WorkspaceObservation> launchObserver_;
    AliveGuard alive_;
};

} // namespace tessarine

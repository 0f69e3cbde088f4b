#include "capture/BannerLayer.h"

#include "capture/BannerScan.h"

#include <utility>

namespace tessarine {

namespace {

constexpr double scanDeadline = 2.0;   // seconds until the watchdog logs a timeout
constexpr double searchInterval = 3.0; // seconds between looks for the banner process
constexpr double delayAfterWake = 2.0;
constexpr double delayAfterLaunch = 1.0;

} // namespace

BannerLayer::BannerLayer(const Services& services)
    : services_(services) {}

void BannerLayer::start() {
    if (services_.accessibility.isProcessTrusted()) {
        startAXObserver();
    } else {
        services_.diagnostics.log(
            QStringLiteral("AXObserver deferred — Accessibility not yet granted"), Level::warning,
            Category::ax);
        services_.diagnostics.setAxStatus(QStringLiteral("Waiting for Accessibility permission"));
    }
    installLifecycleObservers();
}

void BannerLayer::startAXObserver() {
    DiagnosticsStore& diagnostics = services_.diagnostics;
    if (!services_.accessibility.isProcessTrusted()) {
        diagnostics.log(QStringLiteral("startAXObserver called without Accessibility — skipped"),
                        Level::warning, Category::ax);
        return;
    }
    const auto running = services_.workspace.runningApplications(bannerProcess);
    if (running.empty()) {
        startAXObserverAfter(searchInterval);
        return;
    }
    const qint32 pid = running.front().pid;
    observedPid_ = pid;
    std::unique_ptr<AXObserver> observer = makeObserver(pid);
    if (!observer)
        return; // the noted pid stays: a launch of the same process is no second chance
    stopAXObserver();
    const AXElementRef application = services_.accessibility.applicationElement(pid);
    for (const QString& name :
         {ax::windowCreated, ax::elementDestroyed, ax::valueChanged, ax::focusedElementChanged})
        observer->addNotification(application, name);
    observer->attachToMainRunLoop();
    axObserver_ = std::move(observer);
    observedPid_ = pid;
    diagnostics.setAxStatus(QStringLiteral("Active (pid %1)").arg(pid));
    diagnostics.log(QStringLiteral("AXObserver attached to notificationcenterui pid %1").arg(pid),
                    Level::success, Category::ax);
    scanBanners(pid);
}

void BannerLayer::startAXObserverAfter(double seconds) {
    services_.scheduler.onMainAfter(seconds, alive_.guard([this] { startAXObserver(); }));
}

// The callback only starts a task, so that no event is handled inside another process's call.
std::unique_ptr<AXObserver> BannerLayer::makeObserver(qint32 pid) {
    const auto handle =
        alive_.guard([this](const AXElementRef& element) { handleAXEvent(element); });
    return services_.accessibility.createObserver(
        pid, [handle, &main = services_.scheduler](const AXElementRef& element, const QString&) {
            main.onMain([handle, element] { handle(element); });
        });
}

void BannerLayer::stopAXObserver() {
    axObserver_.reset();
    observedPid_ = 0;
    lastAXScan_.reset();
}

void BannerLayer::handleAXEvent(const AXElementRef& element) {
    const double now = services_.scheduler.uptime();
    if (lastAXScan_ && now - *lastAXScan_ < axThrottle)
        return;
    lastAXScan_ = now;
    if (services_.accessibility.pid(element) == observedPid_)
        scanBanners(observedPid_);
}

// A scan that overruns its deadline goes on by itself and stores what it finds: a call into
// another process can't be interrupted. What a scan has taken nobody else has any more.
void BannerLayer::scanBanners(qint32 pid) {
    Scheduler& scheduler = services_.scheduler;
    const auto store =
        alive_.guard([this](const CapturedNotification& record) { storeBannerCapture(record); });
    const auto scan = [store, &scheduler, &accessibility = services_.accessibility, pid] {
        runBannerScan(accessibility, scheduler, pid, [&](CapturedNotification captured) {
            scheduler.onMain([store, record = std::move(captured)] { store(record); });
        });
    };
    const auto reportTimeout = alive_.guard([this] { logTimeout(); });
    scheduler.onGlobalQueue(QualityOfService::userInitiated, [&scheduler, scan, reportTimeout] {
        if (!scheduler.completesWithin(scanDeadline, QualityOfService::userInitiated, scan))
            scheduler.onMain(reportTimeout);
    });
}

void BannerLayer::storeBannerCapture(const CapturedNotification& record) {
    services_.sink.store(CaptureOrigin::banner, record);
}

void BannerLayer::logTimeout() {
    services_.diagnostics.log(
        QStringLiteral("AX scan timed out (notificationcenterui unresponsive)"), Level::warning,
        Category::ax);
}

void BannerLayer::installLifecycleObservers() {
    sleepObserver_ = observe(WorkspaceEvent::willSleep, &BannerLayer::systemWillSleep);
    wakeObserver_ = observe(WorkspaceEvent::didWake, &BannerLayer::systemDidWake);
    terminateObserver_ =
        observe(WorkspaceEvent::didTerminateApplication, &BannerLayer::applicationDidTerminate);
    launchObserver_ =
        observe(WorkspaceEvent::didLaunchApplication, &BannerLayer::applicationDidLaunch);
}

std::unique_ptr<WorkspaceObservation> BannerLayer::observe(WorkspaceEvent event,
                                                           LifecycleReaction reaction) {
    const auto react =
        alive_.guard([this, reaction](const std::optional<RunningApplication>& application) {
            (this->*reaction)(application);
        });
    return services_.workspace.observe(
        event, [react, &main = services_.scheduler](const auto& application) {
            main.onMain([react, application] { react(application); });
        });
}

void BannerLayer::systemWillSleep(const std::optional<RunningApplication>&) {
    services_.diagnostics.log(QStringLiteral("System sleep detected — AXObserver torn down"),
                              Level::info, Category::ax);
    services_.diagnostics.setAxStatus(QStringLiteral("Inactive (sleep)"));
    stopAXObserver();
}

void BannerLayer::systemDidWake(const std::optional<RunningApplication>&) {
    services_.diagnostics.log(QStringLiteral("System wake detected — restarting AXObserver"),
                              Level::info, Category::ax);
    services_.diagnostics.setAxStatus(QStringLiteral("Restarting after wake..."));
    startAXObserverAfter(delayAfterWake);
}

void BannerLayer::applicationDidTerminate(const std::optional<RunningApplication>& application) {
    if (!application || application->bundleIdentifier != bannerProcess)
        return;
    services_.diagnostics.log(
        QStringLiteral("notificationcenterui terminated — AXObserver torn down"), Level::warning,
        Category::ax);
    services_.diagnostics.setAxStatus(QStringLiteral("Inactive (process terminated)"));
    stopAXObserver();
}

void BannerLayer::applicationDidLaunch(const std::optional<RunningApplication>& application) {
    if (!application || application->bundleIdentifier != bannerProcess ||
        application->pid == observedPid_)
        return;
    services_.diagnostics.log(
        QStringLiteral("notificationcenterui launched (pid %1) — reattaching AXObserver")
            .arg(application->pid),
        Level::info, Category::ax);
    startAXObserverAfter(delayAfterLaunch);
}

} // namespace tessarine

// The layer that reads banners off the screen: an observer on the process that draws them, a scan
// of its windows at most once a second, and what keeps the observer attached.

#include "capture/BannerScan.h"
#include "capture/NotificationListener.h"

namespace tessarine {

namespace {

constexpr double scanDeadline = 2.0;   // seconds until the watchdog speaks
constexpr double searchInterval = 3.0; // seconds between looks for the banner process
constexpr double delayAfterWake = 2.0;
constexpr double delayAfterLaunch = 1.0;

} // namespace

void NotificationListener::startAXObserver() {
    if (!accessibility().isProcessTrusted()) {
        diagnostics().log(QStringLiteral("startAXObserver called without Accessibility — skipped"),
                          Level::warning, Category::ax);
        return;
    }
    const auto running = services_.platform.workspace->runningApplications(bannerProcess);
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
    const AXElementRef application = accessibility().applicationElement(pid);
    for (const QString& name :
         {ax::windowCreated, ax::elementDestroyed, ax::valueChanged, ax::focusedElementChanged})
        observer->addNotification(application, name);
    observer->attachToMainRunLoop();
    axObserver_ = std::move(observer);
    observedPid_ = pid;
    diagnostics().setAxStatus(QStringLiteral("Active (pid %1)").arg(pid));
    diagnostics().log(QStringLiteral("AXObserver attached to notificationcenterui pid %1").arg(pid),
                      Level::success, Category::ax);
    scanBanners(pid);
}

void NotificationListener::startAXObserverAfter(double seconds) {
    scheduler().onMainAfter(seconds, [weak = weak_from_this()] {
        if (const std::shared_ptr<NotificationListener> self = weak.lock())
            self->startAXObserver();
    });
}

// The callback only starts a task, so that no event is handled inside another process's call.
std::unique_ptr<AXObserver> NotificationListener::makeObserver(qint32 pid) {
    return accessibility().createObserver(pid, [weak = weak_from_this(), &main = scheduler()](
                                                   const AXElementRef& element, const QString&) {
        main.onMain([weak, element] {
            if (const std::shared_ptr<NotificationListener> self = weak.lock())
                self->handleAXEvent(element);
        });
    });
}

void NotificationListener::stopAXObserver() {
    axObserver_.reset();
    observedPid_ = 0;
    lastAXScan_.reset();
}

void NotificationListener::handleAXEvent(const AXElementRef& element) {
    const double now = scheduler().uptime();
    if (lastAXScan_ && now - *lastAXScan_ < axThrottle)
        return;
    lastAXScan_ = now;
    if (accessibility().pid(element) == observedPid_)
        scanBanners(observedPid_);
}

// A scan that overruns its deadline goes on by itself and stores what it finds: a call into
// another process can't be interrupted. What a scan has taken nobody else has any more.
void NotificationListener::scanBanners(qint32 pid) {
    Scheduler& main = scheduler();
    const auto scan = [weak = weak_from_this(), &main, &accessibility = accessibility(), pid] {
        runBannerScan(accessibility, main, pid, [&](CapturedNotification captured) {
            main.onMain([weak, record = std::move(captured)] {
                if (const std::shared_ptr<NotificationListener> self = weak.lock())
                    self->storeBannerCapture(record);
            });
        });
    };
    main.onGlobalQueue(QualityOfService::userInitiated, [weak = weak_from_this(), &main, scan] {
        if (main.completesWithin(scanDeadline, QualityOfService::userInitiated, scan))
            return;
        main.onMain([weak] {
            if (const std::shared_ptr<NotificationListener> self = weak.lock())
                self->diagnostics().log(
                    QStringLiteral("AX scan timed out (notificationcenterui unresponsive)"),
                    Level::warning, Category::ax);
        });
    });
}

void NotificationListener::storeBannerCapture(const CapturedNotification& record) {
    if (sink_->store(CaptureOrigin::banner, record))
        publishSoon();
}

void NotificationListener::installLifecycleObservers() {
    const auto install = [this](WorkspaceEvent event, auto reaction) {
        return services_.platform.workspace->observe(
            event, [weak = weak_from_this(), &main = scheduler(),
                    reaction](const std::optional<RunningApplication>& application) {
                main.onMain([weak, reaction, application] {
                    if (const std::shared_ptr<NotificationListener> self = weak.lock())
                        (self.get()->*reaction)(application);
                });
            });
    };
    sleepObserver_ = install(WorkspaceEvent::willSleep, &NotificationListener::systemWillSleep);
    wakeObserver_ = install(WorkspaceEvent::didWake, &NotificationListener::systemDidWake);
    terminateObserver_ = install(WorkspaceEvent::didTerminateApplication,
                                 &NotificationListener::applicationDidTerminate);
    launchObserver_ =
        install(WorkspaceEvent::didLaunchApplication, &NotificationListener::applicationDidLaunch);
}

void NotificationListener::systemWillSleep(const std::optional<RunningApplication>&) {
    diagnostics().log(QStringLiteral("System sleep detected — AXObserver torn down"), Level::info,
                      Category::ax);
    diagnostics().setAxStatus(QStringLiteral("Inactive (sleep)"));
    stopAXObserver();
}

void NotificationListener::systemDidWake(const std::optional<RunningApplication>&) {
    diagnostics().log(QStringLiteral("System wake detected — restarting AXObserver"), Level::info,
                      Category::ax);
    diagnostics().setAxStatus(QStringLiteral("Restarting after wake..."));
    startAXObserverAfter(delayAfterWake);
}

void NotificationListener::applicationDidTerminate(
    const std::optional<RunningApplication>& application) {
    if (!application || application->bundleIdentifier != bannerProcess)
        return;
    diagnostics().log(QStringLiteral("notificationcenterui terminated — AXObserver torn down"),
                      Level::warning, Category::ax);
    diagnostics().setAxStatus(QStringLiteral("Inactive (process terminated)"));
    stopAXObserver();
}

void NotificationListener::applicationDidLaunch(
    const std::optional<RunningApplication>& application) {
    if (!application || application->bundleIdentifier != bannerProcess ||
        application->pid == observedPid_)
        return;
    diagnostics().log(
        QStringLiteral("notificationcenterui launched (pid %1) — reattaching AXObserver")
            .arg(application->pid),
        Level::info, Category::ax);
    startAXObserverAfter(delayAfterLaunch);
}

} // namespace tessarine

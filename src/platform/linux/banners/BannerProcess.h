#pragma once

#include "platform/Accessibility.h"
#include "platform/HandlerList.h"
#include "platform/Scheduler.h"
#include "platform/linux/banners/BannerTree.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>

namespace tessarine {

// Who draws banners. It may be followed by another one in the same process: the turn tells them
// apart.
struct BannerOwner {
    qint32 pid = 0;
    std::uint64_t turn = 0;

    bool operator==(const BannerOwner&) const = default;
};

// What is known of the service: whether the bus lets us look, and who draws.
struct BannerService {
    bool trusted = false;
    std::optional<BannerOwner> owner;
};

// The process that draws banners, as a listener sees it: it launches, shows windows, sends events
// and terminates. A bus thread tells what happens; a listener asks and is told.
// Nothing is recorded before somebody listens: before the first observer is attached, or waits for
// the launch of a process that doesn't run yet. From then on banners stay until they are taken;
// while no observer is attached, the latest of them, within bounds.
// A change sends an event at once, unless the port's throttle is closed to it; and as long as
// a banner is left another one follows when the throttle must have run out. With none left, nothing
// runs.
// A process with banners that nobody took stays until they are taken, or until another one takes
// its place.
class BannerProcess : public std::enable_shared_from_this<BannerProcess> {
public:
    using EventHandlers = HandlerList<const AXElementRef&, const QString&>;
    using LifecycleHandlers = HandlerList<qint32>;

    // What makes a burst: so much text, where each announcement counts for a kilobyte at least.
    static constexpr std::size_t burstBytes = 4 << 20;

    // How long the first question may wait for the bus.
    static constexpr std::chrono::milliseconds firstAnswer{1000};

    // What is kept while no observer is attached.
    static constexpr std::size_t mostUnobserved = 20000;
    static constexpr std::size_t mostUnobservedBytes = 32 << 20; // of texts

    explicit BannerProcess(Scheduler& scheduler, std::chrono::milliseconds patience = firstAnswer);

    // Called on a worker when a burst of announcements was taken and what it led to on the main
    // thread so far is done. Before anything is told.
    void whenABurstIsOver(Task task) { afterBurst_ = std::move(task); }

    // What the bus thread tells, in the order in which it happened.
    void setService(const BannerService& service);
    void announce(BannerCall call);
    void answered(const AnnouncementKey& key, std::uint32_t number); // 0 for an error
    void closed(const BannerId& id);
    void forgetIds(NotificationService service);

    // Whether anything that is announced now would be recorded. Any thread.
    bool isRecording() const { return isRecording_; }

    // The clock of BannerCall::announcedAt. Any thread.
    double uptime() const { return scheduler_.uptime(); }

    // Questions, any thread. The first of them waits, while there is patience, counted from the
    // start, until it is known whether the bus lets us look.
    bool isTrusted() const;
    std::optional<qint32> pid() const;

    // The root of the windows of the process with this pid. Any thread.
    AXElementRef applicationElement(qint32 pid);

    // Told on the main thread, where these are called too.
    std::shared_ptr<void> onEvent(EventHandlers::Handler handler);
    std::shared_ptr<void> onLaunch(LifecycleHandlers::Handler handler);
    std::shared_ptr<void> onTermination(LifecycleHandlers::Handler handler);

private:
    class Application;

    std::optional<std::vector<AXElementRef>> windows(qint32 pid);
    bool take(BannerState& state);
    BannerService knownService() const;

    void apply(const BannerService& next);
    void launch(const BannerService& service);
    void terminate(const BannerService& service);
    void endWhenEmpty();
    void sendEvent();
    bool isLeftToTheReminder() const;
    void noteTaken(std::size_t bytes);
    void remindWhilePending();

    template <typename Function>
    void onMain(Function function);

    Scheduler& scheduler_;
    BannerTree tree_;

    mutable std::mutex mutex_;
    mutable std::condition_variable serviceKnown_;
    const std::chrono::steady_clock::time_point patience_; // of the first question
    BannerService service_;
    bool isServiceKnown_ = false;
    mutable bool answeredInIgnorance_ = false;
    bool isEnding_ = false; // nobody draws any more, but banners are left
    double scannedAt_;      // the last scan, or the last event that the throttle let through
    BannerChange unsentChange_ = BannerChange::none;
    bool isEventOnItsWay_ = false; // to the main thread
    bool isReminderSet_ = false;
    std::size_t burst_ = 0; // bytes taken since the last burst was over

    Task afterBurst_;
    std::atomic<bool> isRecording_ = false;
    const std::shared_ptr<std::atomic<int>> observers_ = std::make_shared<std::atomic<int>>(0);

    // Main thread only.
    EventHandlers eventHandlers_;
    LifecycleHandlers launchHandlers_;
    LifecycleHandlers terminationHandlers_;
};

} // namespace tessarine

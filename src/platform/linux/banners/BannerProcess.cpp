#include "platform/linux/banners/BannerProcess.h"

#include "platform/linux/banners/BannerElements.h"

#include <algorithm>
#include <utility>

namespace tessarine {

namespace {

// A reminder comes a little later than the throttle asks for, so that it gets through for certain.
constexpr double reminderInterval = axThrottle + 0.05;

// Between the last announcement of a burst and the time when its memory is free.
constexpr double calm = 3.0; // seconds

constexpr std::size_t leastBytes = 1024; // of memory that an announcement takes on its way

const QString applicationRole = QStringLiteral("AXApplication");

} // namespace

// The root element. It outlives the process that it names without harm.
class BannerProcess::Application : public BannerElement {
public:
    Application(std::weak_ptr<BannerProcess> process, qint32 pid)
        : process_(std::move(process))
        , pid_(pid) {}

    std::optional<qint32> pid() const override { return pid_; }

    std::optional<AXValue> attribute(const QString& name) const override {
        const std::shared_ptr<BannerProcess> process = process_.lock();
        if (!process || process->pid() != pid_)
            return std::nullopt;
        if (name == ax::role)
            return applicationRole;
        if (name == ax::windows)
            return process->windows(pid_);
        return std::nullopt;
    }

    std::optional<Announcement> takeAnnouncement() const override { return std::nullopt; }

private:
    const std::weak_ptr<BannerProcess> process_;
    const qint32 pid_;
};

BannerProcess::BannerProcess(Scheduler& scheduler, std::chrono::milliseconds patience)
    : scheduler_(scheduler)
    , patience_(std::chrono::steady_clock::now() + patience)
    , scannedAt_(-reminderInterval) {}

// The task doesn't keep the process alive, and does nothing once it is gone.
template <typename Function>
void BannerProcess::onMain(Function function) {
    scheduler_.onMain([weak = weak_from_this(), function = std::move(function)] {
        if (const std::shared_ptr<BannerProcess> self = weak.lock())
            function(*self);
    });
}

void BannerProcess::setService(const BannerService& service) {
    {
        const std::lock_guard lock(mutex_);
        const bool isFirst = !isServiceKnown_;
        isServiceKnown_ = true;
        serviceKnown_.notify_all();
        // Whoever asks from now on gets this as the first answer: there is nothing to tell.
        if (isFirst && !answeredInIgnorance_) {
            service_ = service;
            return;
        }
    }
    onMain([service](BannerProcess& self) { self.apply(service); });
}

void BannerProcess::announce(BannerCall call) {
    if (!isRecording_)
        return;
    const BannerChange change = tree_.announce(std::move(call));
    if (change == BannerChange::none)
        return;
    if (*observers_ == 0)
        tree_.keepLatest(mostUnobserved, mostUnobservedBytes);
    const std::lock_guard lock(mutex_);
    if (unsentChange_ != BannerChange::shown)
        unsentChange_ = change;
    if (isEventOnItsWay_ || isLeftToTheReminder())
        return;
    isEventOnItsWay_ = true;
    onMain([](BannerProcess& self) { self.sendEvent(); });
}

// The throttle would swallow an event now. Sending it all the same would wake the main thread for
// each of a burst of announcements, at the cost of those who announce. Under the lock.
bool BannerProcess::isLeftToTheReminder() const {
    return isReminderSet_ && scheduler_.uptime() - scannedAt_ < axThrottle;
}

void BannerProcess::answered(const AnnouncementKey& key, std::uint32_t number) {
    tree_.answered(key, number);
}

void BannerProcess::closed(const BannerId& id) {
    tree_.closed(id);
}

void BannerProcess::forgetIds(NotificationService service) {
    tree_.forgetIds(service);
}

BannerService BannerProcess::knownService() const {
    std::unique_lock lock(mutex_);
    if (!serviceKnown_.wait_until(lock, patience_, [this] { return isServiceKnown_; }))
        answeredInIgnorance_ = true;
    return service_;
}

bool BannerProcess::isTrusted() const {
    return knownService().trusted;
}

std::optional<qint32> BannerProcess::pid() const {
    const std::optional<BannerOwner> owner = knownService().owner;
    return owner ? std::optional(owner->pid) : std::nullopt;
}

AXElementRef BannerProcess::applicationElement(qint32 pid) {
    return std::make_shared<Application>(weak_from_this(), pid);
}

std::optional<std::vector<AXElementRef>> BannerProcess::windows(qint32 pid) {
    {
        const std::lock_guard lock(mutex_);
        scannedAt_ = scheduler_.uptime();
    }
    const auto take = [weak = weak_from_this()](BannerState& state) {
        const std::shared_ptr<BannerProcess> self = weak.lock();
        return self && self->take(state);
    };
    const auto look = std::make_shared<const BannerLook>(
        BannerLook{pid, scheduler_.now() - scheduler_.uptime(), take});
    std::vector<AXElementRef> windows;
    for (auto& state : tree_.pending())
        windows.push_back(bannerWindow(look, std::move(state)));
    return windows;
}

bool BannerProcess::take(BannerState& state) {
    if (!tree_.take(state))
        return false;
    noteTaken(bytesOf(state.texts));
    return true;
}

void BannerProcess::noteTaken(std::size_t bytes) {
    const std::lock_guard lock(mutex_);
    burst_ += std::max(bytes, leastBytes);
    if (!tree_.isEmpty())
        return;
    if (isEnding_)
        onMain([](BannerProcess& self) { self.endWhenEmpty(); });
    if (afterBurst_ && burst_ >= burstBytes) {
        burst_ = 0;
        scheduler_.onMainAfter(calm, [&scheduler = scheduler_, task = afterBurst_] {
            scheduler.onGlobalQueue(QualityOfService::background, task);
        });
    }
}

std::shared_ptr<void> BannerProcess::onEvent(EventHandlers::Handler handler) {
    isRecording_ = true;
    ++*observers_;
    auto leave = [token = eventHandlers_.add(std::move(handler)), observers = observers_](void*) {
        --*observers;
    };
    remindWhilePending(); // of what was announced while nobody observed
    return {nullptr, std::move(leave)};
}

std::shared_ptr<void> BannerProcess::onLaunch(LifecycleHandlers::Handler handler) {
    isRecording_ = true;
    return launchHandlers_.add(std::move(handler));
}

std::shared_ptr<void> BannerProcess::onTermination(LifecycleHandlers::Handler handler) {
    return terminationHandlers_.add(std::move(handler));
}

void BannerProcess::apply(const BannerService& next) {
    const BannerService last = knownService();
    if (next.owner) {
        const bool isNew = next.owner != last.owner;
        if (last.owner && isNew)
            terminate({next.trusted, std::nullopt});
        if (isNew)
            launch(next);
        return;
    }
    {
        const std::lock_guard lock(mutex_);
        service_.trusted = next.trusted;
        isEnding_ = last.owner.has_value();
    }
    endWhenEmpty();
}

void BannerProcess::launch(const BannerService& service) {
    {
        const std::lock_guard lock(mutex_);
        service_ = service;
    }
    launchHandlers_.call(service.owner->pid);
}

// The service is the one that is left.
void BannerProcess::terminate(const BannerService& service) {
    qint32 pid = 0;
    {
        const std::lock_guard lock(mutex_);
        pid = service_.owner->pid;
        service_ = service;
        isEnding_ = false;
    }
    terminationHandlers_.call(pid);
}

void BannerProcess::endWhenEmpty() {
    BannerService rest;
    {
        const std::lock_guard lock(mutex_);
        if (!isEnding_ || !tree_.isEmpty())
            return;
        rest.trusted = service_.trusted;
    }
    terminate(rest);
}

void BannerProcess::sendEvent() {
    BannerChange change = BannerChange::none;
    std::optional<BannerOwner> owner;
    {
        const std::lock_guard lock(mutex_);
        isEventOnItsWay_ = false;
        change = std::exchange(unsentChange_, BannerChange::none);
        owner = service_.owner;
        if (const double now = scheduler_.uptime(); now - scannedAt_ >= axThrottle)
            scannedAt_ = now; // by what this event leads to
    }
    if (owner)
        eventHandlers_.call(applicationElement(owner->pid), change == BannerChange::replaced
                                                                ? ax::valueChanged
                                                                : ax::windowCreated);
    remindWhilePending();
}

// One reminder at a time.
void BannerProcess::remindWhilePending() {
    if (tree_.isEmpty() || eventHandlers_.isEmpty())
        return;
    double delay = reminderInterval;
    {
        const std::lock_guard lock(mutex_);
        if (std::exchange(isReminderSet_, true))
            return;
        delay -= std::min(axThrottle, scheduler_.uptime() - scannedAt_);
    }
    scheduler_.onMainAfter(delay, [weak = weak_from_this()] {
        const std::shared_ptr<BannerProcess> self = weak.lock();
        if (!self)
            return;
        {
            const std::lock_guard lock(self->mutex_);
            self->isReminderSet_ = false;
        }
        if (!self->tree_.isEmpty())
            self->sendEvent();
    });
}

} // namespace tessarine

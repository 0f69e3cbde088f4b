#include "platform/qt/QtScheduler.h"

#include "shared/ReferenceTime.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include <chrono>
#include <ctime>
#include <future>
#include <utility>

namespace tessarine {

namespace {

// What tasks may take of a turn of the event loop: half a frame.
constexpr std::chrono::milliseconds turnShare{8};

#ifdef CLOCK_BOOTTIME
constexpr clockid_t clockThatCountsSleep = CLOCK_BOOTTIME;
#else
constexpr clockid_t clockThatCountsSleep = CLOCK_MONOTONIC; // counts it where there is no other one
#endif

const QEvent::Type taskEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

class QtRepeatingTimer : public RepeatingTimer {
public:
    QtRepeatingTimer(double seconds, Task task) {
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.setInterval(static_cast<int>(seconds * 1000.0));
        QObject::connect(&timer_, &QTimer::timeout, &timer_, std::move(task));
        timer_.start();
    }

private:
    QTimer timer_;
};

// A task, and a future that is ready when it has run or was dropped without running: the last copy
// of the task takes the promise with it.
std::pair<Task, std::future<void>> withEnd(Task task) {
    const auto end = std::make_shared<std::promise<void>>();
    return {[end, task = std::move(task)] {
                task();
                end->set_value();
            },
            end->get_future()};
}

} // namespace

QtScheduler::QtScheduler() = default;

QtScheduler::~QtScheduler() = default;

double QtScheduler::now() const {
    const auto sinceUnix = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration<double>(sinceUnix).count() - unixSecondsAtReferenceDate;
}

// The standard's steady clock stands still while Linux sleeps.
double QtScheduler::uptime() const {
    timespec sinceStart{};
    clock_gettime(clockThatCountsSleep, &sinceStart);
    return static_cast<double>(sinceStart.tv_sec) + static_cast<double>(sinceStart.tv_nsec) * 1e-9;
}

void QtScheduler::onMain(Task task) {
    main_.post(std::move(task));
}

void QtScheduler::onMainAfter(double seconds, Task task) {
    main_.post([this, due = uptime() + seconds, task = std::move(task)] {
        const double rest = std::max(0.0, due - uptime());
        // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): Qt owns the slot object
        QTimer::singleShot(std::chrono::milliseconds(static_cast<qint64>(rest * 1000.0 + 0.999)),
                           Qt::PreciseTimer, &main_, task);
    });
}

void QtScheduler::onMainAndWait(const Task& task) {
    auto [reporting, end] = withEnd(task);
    main_.post(std::move(reporting));
    end.wait();
}

std::unique_ptr<RepeatingTimer> QtScheduler::every(double seconds, Task task) {
    return std::make_unique<QtRepeatingTimer>(seconds, std::move(task));
}

void QtScheduler::onGlobalQueue(QualityOfService quality, Task task) {
    workers_.run(quality, std::move(task));
}

bool QtScheduler::completesWithin(double seconds, QualityOfService quality, Task task) {
    auto [reporting, end] = withEnd(std::move(task));
    workers_.run(quality, std::move(reporting));
    return end.wait_for(std::chrono::duration<double>(seconds)) == std::future_status::ready;
}

QtScheduler::MainThread::MainThread() {
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, this,
                     [this] { turnBegan_ = std::chrono::steady_clock::now(); });
}

// The event is made before the lock is taken and looked at after: the lock alone orders one
// thread's making of it and the other's reading, where Qt's own order can't be seen.
void QtScheduler::MainThread::post(Task task) {
    auto event = std::make_unique<QEvent>(taskEvent);
    {
        const std::lock_guard lock(mutex_);
        tasks_.push_back(std::move(task));
    }
    QCoreApplication::postEvent(this, event.release());
}

bool QtScheduler::MainThread::event(QEvent* event) {
    std::unique_lock lock(mutex_);
    const bool isTask = event->type() == taskEvent;
    lock.unlock();
    if (!isTask)
        return QObject::event(event);
    if (postponed_ > 0 || turnIsUsedUp())
        postponeTask();
    else
        runOne();
    return true;
}

void QtScheduler::MainThread::runOne() {
    std::unique_lock lock(mutex_);
    const Task task = std::move(tasks_.front());
    tasks_.pop_front();
    lock.unlock();
    task();
}

// A task may turn the event loop itself, in which the others go on.
void QtScheduler::MainThread::runPostponed() {
    continuesLater_ = false;
    turnBegan_ = std::chrono::steady_clock::now();
    while (postponed_ > 0 && !turnIsUsedUp()) {
        if (--postponed_ > 0)
            continueLater();
        runOne();
    }
    if (postponed_ > 0)
        continueLater();
}

void QtScheduler::MainThread::postponeTask() {
    ++postponed_;
    continueLater();
}

// A timer that is due at once comes after input and drawing.
void QtScheduler::MainThread::continueLater() {
    if (!std::exchange(continuesLater_, true))
        QTimer::singleShot(0, this, [this] { runPostponed(); });
}

bool QtScheduler::MainThread::turnIsUsedUp() const {
    return std::chrono::steady_clock::now() - turnBegan_ > turnShare;
}

} // namespace tessarine

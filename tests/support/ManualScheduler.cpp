#include "support/ManualScheduler.h"

#include <algorithm>
#include <limits>

namespace tessarine::testing {

class ManualScheduler::Timer : public RepeatingTimer {
public:
    Timer(ManualScheduler& scheduler, int id)
        : scheduler_(scheduler)
        , id_(id) {}
    ~Timer() override { scheduler_.timers_.erase(id_); }

private:
    ManualScheduler& scheduler_;
    int id_;
};

void ManualScheduler::onMain(Task task) {
    if (spent_ > 0)
        delayed_.emplace(uptime_ + spent_, std::move(task));
    else
        main_.push_back(std::move(task));
}

void ManualScheduler::onMainAfter(double seconds, Task task) {
    delayed_.emplace(uptime_ + spent_ + seconds, std::move(task));
}

void ManualScheduler::onMainAndWait(const Task& task) {
    while (runOneMainTask()) {
    }
    task();
}

std::unique_ptr<RepeatingTimer> ManualScheduler::every(double seconds, Task task) {
    const int id = nextTimer_++;
    timers_.emplace(id, Repeating{uptime_ + seconds, seconds, std::move(task)});
    return std::make_unique<Timer>(*this, id);
}

void ManualScheduler::onGlobalQueue(QualityOfService, Task task) {
    global_.push_back(std::move(task));
}

bool ManualScheduler::completesWithin(double seconds, QualityOfService, Task task) {
    const double before = spent_;
    task();
    const double took = spent_ - before;
    spent_ = before + std::min(took, seconds);
    return took <= seconds;
}

void ManualScheduler::spend(double seconds) {
    spent_ += seconds;
}

void ManualScheduler::sleep(double seconds) {
    std::multimap<double, Task> later;
    for (auto& [due, task] : delayed_)
        later.emplace_hint(later.end(), due + seconds, std::move(task));
    delayed_ = std::move(later);
    for (auto& [id, timer] : timers_)
        timer.next += seconds;
    turnTo(uptime_ + seconds);
}

void ManualScheduler::settle() {
    while (runOneMainTask() || runDueDelayed() || runGlobalTask()) {
    }
}

void ManualScheduler::advance(double seconds) {
    const double end = uptime_ + seconds;
    settle();
    while (nextDue() <= end) {
        turnTo(std::max(uptime_, nextDue()));
        if (!runDueDelayed())
            runDueTimer();
        settle();
    }
    turnTo(end);
}

bool ManualScheduler::runOneMainTask() {
    if (main_.empty())
        return false;
    const Task task = std::move(main_.front());
    main_.pop_front();
    task();
    return true;
}

bool ManualScheduler::runDueDelayed() {
    if (delayed_.empty() || delayed_.begin()->first > uptime_)
        return false;
    const Task task = std::move(delayed_.begin()->second);
    delayed_.erase(delayed_.begin());
    task();
    return true;
}

bool ManualScheduler::runDueTimer() {
    const auto due =
        std::min_element(timers_.begin(), timers_.end(), [](const auto& left, const auto& right) {
            return left.second.next < right.second.next;
        });
    if (due == timers_.end() || due->second.next > uptime_)
        return false;
    due->second.next += due->second.interval;
    const Task task = due->second.task; // it may end its own timer
    task();
    return true;
}

bool ManualScheduler::runGlobalTask() {
    if (globalQueuesHeld_ || global_.empty())
        return false;
    const Task task = std::move(global_.front());
    global_.pop_front();
    task();
    spent_ = 0;
    return true;
}

double ManualScheduler::nextDue() const {
    double next = std::numeric_limits<double>::infinity();
    if (!delayed_.empty())
        next = delayed_.begin()->first;
    for (const auto& [id, timer] : timers_)
        next = std::min(next, timer.next);
    return next;
}

void ManualScheduler::turnTo(double uptime) {
    now_ += uptime - uptime_;
    uptime_ = uptime;
}

} // namespace tessarine::testing

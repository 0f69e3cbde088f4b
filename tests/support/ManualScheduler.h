#pragma once

#include "platform/Scheduler.h"

#include <deque>
#include <map>

namespace tessarine::testing {

// A scheduler whose clock the test turns. Everything runs on the test's own thread, and only inside
// settle() and advance(): first what waits for the main thread, then work for the global queues.
class ManualScheduler : public Scheduler {
public:
    static constexpr double startOfTime = 785000000.0; // 2025-11-16 15:33:20 UTC

    double now() const override { return now_; }
    double uptime() const override { return uptime_; }
    void onMain(Task task) override;
    void onMainAfter(double seconds, Task task) override;
    void onMainAndWait(const Task& task) override; // runs what waits for the main thread first
    std::unique_ptr<RepeatingTimer> every(double seconds, Task task) override;
    void onGlobalQueue(QualityOfService quality, Task task) override;
    bool completesWithin(double seconds, QualityOfService quality, Task task) override;

    // Runs what is due now, and what comes of it, until nothing is left.
    void settle();

    // Turns both clocks on by this much, running each thing at its time.
    void advance(double seconds);

    // The system sleeps so long: the clocks go on, what waits for its time waits longer.
    void sleep(double seconds);

    // Sets the wall clock to another time, as a user may; the monotonic one goes on.
    void setWallClock(double now) { now_ = now; }

    // Called from inside work on a global queue: it takes this long. What it hands to the main
    // thread afterwards comes that much later, and a deadline may pass meanwhile.
    void spend(double seconds);

    // Runs one main-thread task, for tests of what happens in between. False when none waits.
    bool runOneMainTask();

    // Holds back the global queues while true.
    void holdGlobalQueues(bool held) { globalQueuesHeld_ = held; }

    std::size_t runningTimers() const { return timers_.size(); }
    std::size_t waitingGlobalTasks() const { return global_.size(); }

private:
    class Timer;
    struct Repeating {
        double next;
        double interval;
        Task task;
    };

    bool runDueDelayed();
    bool runDueTimer();
    bool runGlobalTask();
    double nextDue() const;
    void turnTo(double uptime);

    double now_ = startOfTime;
    double uptime_ = 1000.0;
    double spent_ = 0; // by the work that is running
    bool globalQueuesHeld_ = false;
    std::deque<Task> main_;
    std::multimap<double, Task> delayed_; // by uptime
    std::deque<Task> global_;
    std::map<int, Repeating> timers_;
    int nextTimer_ = 0;
};

} // namespace tessarine::testing

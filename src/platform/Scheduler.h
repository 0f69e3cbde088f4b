#pragma once

#include <functional>
#include <memory>

namespace tessarine {

// How urgent work on a global queue is; urgent work is taken up first.
enum class QualityOfService { background, utility, userInitiated };

using Task = std::function<void()>;

// A running repeating timer. Destroying it stops it: no call starts afterwards.
class RepeatingTimer {
public:
    RepeatingTimer() = default;
    RepeatingTimer(const RepeatingTimer&) = delete;
    RepeatingTimer& operator=(const RepeatingTimer&) = delete;
    virtual ~RepeatingTimer() = default;
};

// Time and threads. Every operation may be called from any thread unless it says otherwise.
class Scheduler {
public:
    Scheduler() = default;
    Scheduler(const Scheduler&) = delete;
    Scheduler& operator=(const Scheduler&) = delete;
    virtual ~Scheduler() = default;

    // The wall clock, in seconds since the reference date. For dates only: people set it back.
    virtual double now() const = 0;

    // A clock that never goes back, in seconds from an arbitrary origin. It goes on while the
    // system sleeps, so that what happened before is as old as a reader of the wall clock would
    // say. For intervals and ages. Waiting is another matter: a sleep may lengthen the delays
    // below.
    virtual double uptime() const = 0;

    // Runs the task on the main thread, after all that was handed over before it.
    virtual void onMain(Task task) = 0;

    // The same, at the earliest this many seconds from now.
    virtual void onMainAfter(double seconds, Task task) = 0;

    // Runs the task on the main thread and returns when it has run. Not from the main thread.
    virtual void onMainAndWait(const Task& task) = 0;

    // Calls the task on the main thread each interval (seconds), first after one interval, without
    // leeway. Made and destroyed on the main thread.
    virtual std::unique_ptr<RepeatingTimer> every(double seconds, Task task) = 0;

    // Runs the task on a worker thread. Blocked workers keep no other task waiting: the queue
    // takes further threads.
    virtual void onGlobalQueue(QualityOfService quality, Task task) = 0;

    // Runs the task on a further worker and waits for it, at most this many seconds. False when
    // the time was up: the task then goes on by itself.
    virtual bool completesWithin(double seconds, QualityOfService quality, Task task) = 0;
};

} // namespace tessarine

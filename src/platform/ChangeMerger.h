#pragma once

#include "platform/Scheduler.h"

#include <atomic>
#include <memory>

namespace tessarine {

// Turns the changes of a watched file, as a system tells them, into the calls that FileWatcher
// promises: on the main thread, those that come before a call has begun merged into it, and one
// more call when the file has been still for a moment. SQLite makes a commit visible, in memory
// that no watch sees, only after the last write to its log. Held by a shared pointer: its tasks
// end with it.
class ChangeMerger : public std::enable_shared_from_this<ChangeMerger> {
public:
    static constexpr double settlingTime = 0.25; // seconds

    static std::shared_ptr<ChangeMerger> make(Scheduler& scheduler, Task handler);

    // The file has changed. Any thread.
    void changed();

    // No call comes afterwards. Main thread; also from within the handler.
    void end();

private:
    ChangeMerger(Scheduler& scheduler, Task handler);

    void call();
    void settleAfter(double seconds);
    void settle();

    Scheduler& scheduler_;
    std::shared_ptr<const Task> handler_; // of the main thread; null at the end
    std::atomic<bool> callPending_ = false;
    std::atomic<bool> settlePending_ = false;
    std::atomic<double> changedAt_ = 0; // by the scheduler's uptime
};

} // namespace tessarine

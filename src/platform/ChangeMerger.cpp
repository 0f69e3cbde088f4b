#include "platform/ChangeMerger.h"

#include <utility>

namespace tessarine {

std::shared_ptr<ChangeMerger> ChangeMerger::make(Scheduler& scheduler, Task handler) {
    return std::shared_ptr<ChangeMerger>(new ChangeMerger(scheduler, std::move(handler)));
}

ChangeMerger::ChangeMerger(Scheduler& scheduler, Task handler)
    : scheduler_(scheduler)
    , handler_(std::make_shared<const Task>(std::move(handler))) {}

void ChangeMerger::changed() {
    changedAt_ = scheduler_.uptime();
    if (!settlePending_.exchange(true))
        settleAfter(settlingTime);
    if (callPending_.exchange(true))
        return;
    scheduler_.onMain([weak = weak_from_this()] {
        if (const std::shared_ptr<ChangeMerger> self = weak.lock())
            self->call();
    });
}

void ChangeMerger::end() {
    handler_.reset();
}

// What changes from here on is for the next call.
void ChangeMerger::call() {
    callPending_ = false;
    if (const std::shared_ptr<const Task> handler = handler_)
        (*handler)();
}

void ChangeMerger::settleAfter(double seconds) {
    scheduler_.onMainAfter(seconds, [weak = weak_from_this()] {
        if (const std::shared_ptr<ChangeMerger> self = weak.lock())
            self->settle();
    });
}

// A change that comes between the two lines finds no task pending, and starts another one.
void ChangeMerger::settle() {
    settlePending_ = false;
    const double rest = changedAt_ + settlingTime - scheduler_.uptime();
    if (rest > 0) {
        if (!settlePending_.exchange(true))
            settleAfter(rest);
    } else if (!callPending_) {
        call();
    }
}

} // namespace tessarine

#include "platform/qt/WorkerPool.h"

#include "platform/ThreadQuality.h"

#include <chrono>

namespace tessarine {

namespace {

constexpr std::size_t mostWorkers = 64;
constexpr std::chrono::seconds idleLife{5};

} // namespace

WorkerPool::~WorkerPool() {
    {
        const std::lock_guard lock(mutex_);
        closing_ = true;
    }
    workCame_.notify_all();
    std::unique_lock lock(mutex_);
    while (!workers_.empty()) {
        workCame_.wait(lock, [this] { return workers_.empty() || !finished_.empty(); });
        reap();
    }
    reap();
}

void WorkerPool::run(QualityOfService quality, Task task) {
    const std::lock_guard lock(mutex_);
    reap();
    queues_[static_cast<std::size_t>(quality)].push_back(std::move(task));
    ++queued_;
    if (queued_ > idle_ && workers_.size() < mostWorkers) {
        const auto self = workers_.emplace(workers_.end());
        *self = std::thread([this, self] { work(self); });
    } else {
        workCame_.notify_one();
    }
}

void WorkerPool::work(Workers::iterator self) {
    std::unique_lock lock(mutex_);
    while (true) {
        ++idle_;
        const bool found =
            workCame_.wait_for(lock, idleLife, [this] { return hasWork() || closing_; });
        --idle_;
        if (!found || !hasWork())
            break;
        auto [quality, task] = takeMostUrgent();
        lock.unlock();
        setThreadQuality(quality);
        task();
        task = nullptr;
        lock.lock();
    }
    finished_.splice(finished_.end(), workers_, self);
    workCame_.notify_all();
}

bool WorkerPool::hasWork() const {
    return queued_ > 0;
}

WorkerPool::Job WorkerPool::takeMostUrgent() {
    std::size_t urgency = queues_.size() - 1;
    while (urgency > 0 && queues_[urgency].empty())
        --urgency;
    Job job{static_cast<QualityOfService>(urgency), std::move(queues_[urgency].front())};
    queues_[urgency].pop_front();
    --queued_;
    return job;
}

// A finished worker has let go of the lock for good by the time it can be joined here, or does so
// without taking it again.
void WorkerPool::reap() {
    for (std::thread& worker : finished_)
        worker.join();
    finished_.clear();
}

} // namespace tessarine

#include "platform/qt/WorkerPool.h"

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
        Task task = takeMostUrgent();
        lock.unlock();
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

Task WorkerPool::takeMostUrgent() {
    for (auto queue = queues_.rbegin(); queue != queues_.rend(); ++queue) {
        if (!queue->empty()) {
            Task task = std::move(queue->front());
            queue->pop_front();
            --queued_;
            return task;
        }
    }
    return nullptr;
}

// A finished worker has let go of the lock for good by the time it can be joined here, or does so
// without taking it again.
void WorkerPool::reap() {
    for (std::thread& worker : finished_)
        worker.join();
    finished_.clear();
}

} // namespace tessarine

#pragma once

#include "platform/Scheduler.h"

#include <array>
#include <condition_variable>
#include <deque>
#include <list>
#include <mutex>
#include <thread>

namespace tessarine {

// The threads behind the global queues. A task that finds no idle worker gets a new thread, up to
// a limit that only a fault can reach; a worker that finds nothing to do for a while ends.
// Standard threads rather than Qt's, so that ThreadSanitizer sees every hand-over.
class WorkerPool {
public:
    WorkerPool() = default;
    WorkerPool(const WorkerPool&) = delete;
    WorkerPool& operator=(const WorkerPool&) = delete;
    ~WorkerPool(); // runs what is queued, then waits for all workers

    void run(QualityOfService quality, Task task);

private:
    using Workers = std::list<std::thread>;

    struct Job {
        QualityOfService quality;
        Task task;
    };

    void work(Workers::iterator self);
    bool hasWork() const;
    Job takeMostUrgent(); // while there is work
    void reap();

    std::mutex mutex_;
    std::condition_variable workCame_;
    std::array<std::deque<Task>, 3> queues_; // by quality of service
    Workers workers_;
    Workers finished_;
    std::size_t idle_ = 0;
    std::size_t queued_ = 0;
    bool closing_ = false;
};

} // namespace tessarine

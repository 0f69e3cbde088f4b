#pragma once

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <string>
#include <utility>

namespace tessarine {

// A queue that is entered synchronously: the caller's own thread does the work, one caller at a
// time, in the order in which they came. Entering it from its own work would wait for ever.
class SerialQueue {
public:
    explicit SerialQueue(std::string label)
        : label_(std::move(label)) {}

    const std::string& label() const { return label_; }

    // Waits for its turn, runs the work on this thread and gives what it gives.
    template <typename Work>
    decltype(auto) sync(Work&& work) {
        const Turn turn(*this);
        return std::forward<Work>(work)();
    }

    // Whether another caller waits for its turn, while one is at work. Any thread.
    bool isWaitedFor() const {
        const std::lock_guard lock(mutex_);
        return nextTicket_ > nowServing_ + 1;
    }

private:
    class Turn {
    public:
        explicit Turn(SerialQueue& queue)
            : queue_(queue) {
            std::unique_lock lock(queue_.mutex_);
            const std::uint64_t ticket = queue_.nextTicket_++;
            queue_.turnCame_.wait(lock, [&] { return queue_.nowServing_ == ticket; });
        }
        Turn(const Turn&) = delete;
        Turn& operator=(const Turn&) = delete;
        ~Turn() {
            {
                const std::lock_guard lock(queue_.mutex_);
                ++queue_.nowServing_;
            }
            queue_.turnCame_.notify_all();
        }

    private:
        SerialQueue& queue_;
    };

    std::string label_;
    mutable std::mutex mutex_;
    std::condition_variable turnCame_;
    std::uint64_t nextTicket_ = 0;
    std::uint64_t nowServing_ = 0;
};

} // namespace tessarine

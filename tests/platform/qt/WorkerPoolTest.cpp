#include "platform/qt/WorkerPool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <memory>
#include <vector>

namespace tessarine {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;

constexpr auto patience = 60s; // only a failing test uses it up

// A door that workers wait behind.
class Door {
public:
    void open() { opened_.set_value(); }
    void pass() const { future_.wait(); }

private:
    std::promise<void> opened_;
    std::shared_future<void> future_ = opened_.get_future().share();
};

template <typename Condition>
bool comesTrue(const Condition& condition, std::chrono::seconds within = patience) {
    const auto end = std::chrono::steady_clock::now() + within;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(1ms);
    }
    return true;
}

TEST(WorkerPoolTest, RunsATaskOnAnotherThread) {
    std::promise<std::thread::id> ran;
    WorkerPool pool;
    pool.run(QualityOfService::utility, [&] { ran.set_value(std::this_thread::get_id()); });
    EXPECT_NE(ran.get_future().get(), std::this_thread::get_id());
}

TEST(WorkerPoolTest, RunsEachTaskOnce) {
    std::atomic<int> ran = 0;
    {
        WorkerPool pool;
        for (int i = 0; i < 500; ++i)
            pool.run(static_cast<QualityOfService>(i % 3), [&] { ++ran; });
    }
    EXPECT_EQ(ran, 500);
}

TEST(WorkerPoolTest, RunsAFurtherTaskWhileTwentyAreBlocked) {
    Door door;
    std::atomic<int> blocked = 0;
    std::promise<void> ran;
    WorkerPool pool;
    for (int i = 0; i < 20; ++i) {
        pool.run(QualityOfService::background, [&] {
            ++blocked;
            door.pass();
        });
    }
    EXPECT_TRUE(comesTrue([&] { return blocked == 20; }));
    pool.run(QualityOfService::background, [&] { ran.set_value(); });
    EXPECT_EQ(ran.get_future().wait_for(patience), std::future_status::ready);
    door.open();
}

TEST(WorkerPoolTest, TakesUrgentWorkFirstWhereAllWorkersAreBusy) {
    constexpr int allWorkers = 64;
    Door door;
    Door last;
    std::atomic<int> blocked = 0;
    std::vector<char> order; // by the one worker that is let go
    {
        WorkerPool pool;
        for (int i = 0; i < allWorkers; ++i) {
            pool.run(QualityOfService::background, [&, i] {
                ++blocked;
                i == 0 ? door.pass() : last.pass();
            });
        }
        ASSERT_TRUE(comesTrue([&] { return blocked == allWorkers; }));
        std::promise<void> done;
        pool.run(QualityOfService::background, [&] {
            order.push_back('b');
            done.set_value();
        });
        pool.run(QualityOfService::utility, [&] { order.push_back('u'); });
        pool.run(QualityOfService::userInitiated, [&] { order.push_back('i'); });
        pool.run(QualityOfService::userInitiated, [&] { order.push_back('j'); });
        door.open();
        EXPECT_EQ(done.get_future().wait_for(patience), std::future_status::ready);
        last.open();
    }
    EXPECT_THAT(order, ElementsAre('i', 'j', 'u', 'b'));
}

TEST(WorkerPoolTest, RunsWhatIsQueuedBeforeItGoes) {
    std::atomic<int> ran = 0;
    {
        WorkerPool pool;
        for (int i = 0; i < 100; ++i) {
            pool.run(QualityOfService::utility, [&] {
                std::this_thread::sleep_for(1ms);
                ++ran;
            });
        }
    }
    EXPECT_EQ(ran, 100);
}

TEST(WorkerPoolTest, WaitsForWhatTasksQueueWhileItGoes) {
    std::atomic<int> ran = 0;
    {
        WorkerPool pool;
        pool.run(QualityOfService::utility, [&] {
            std::this_thread::sleep_for(20ms); // the pool is going by now
            pool.run(QualityOfService::background, [&] {
                ++ran;
                pool.run(QualityOfService::utility, [&] { ++ran; });
            });
            ++ran;
        });
    }
    EXPECT_EQ(ran, 3);
}

TEST(WorkerPoolTest, GoesAtOnceWhenNothingWasRun) {
    const WorkerPool pool;
}

TEST(WorkerPoolTest, LetsGoOfATaskWhenItHasRun) {
    const auto held = std::make_shared<int>(1);
    WorkerPool pool;
    pool.run(QualityOfService::utility, [held] {});
    EXPECT_TRUE(comesTrue([&] { return held.use_count() == 1; }));
}

TEST(WorkerPoolTest, TakesTasksFromSeveralThreads) {
    std::atomic<int> ran = 0;
    {
        WorkerPool pool;
        std::vector<std::thread> threads;
        threads.reserve(8);
        for (int i = 0; i < 8; ++i) {
            threads.emplace_back([&] {
                for (int round = 0; round < 100; ++round)
                    pool.run(QualityOfService::userInitiated, [&] { ++ran; });
            });
        }
        for (std::thread& thread : threads)
            thread.join();
    }
    EXPECT_EQ(ran, 800);
}

} // namespace
} // namespace tessarine

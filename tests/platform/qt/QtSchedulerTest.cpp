#include "platform/qt/QtScheduler.h"

#include "support/EventLoop.h"

#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <ctime>
#include <future>
#include <thread>
#include <vector>

namespace tessarine {
namespace {

using testing::turnFor;
using testing::turnsUntil;
using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto utility = QualityOfService::utility;

class Stopwatch {
public:
    double seconds() const {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
    }

private:
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

class QtSchedulerTest : public ::testing::Test {
protected:
    // Does the work on a thread beside and turns the loop meanwhile.
    template <typename Work>
    void beside(const Work& work) {
        std::atomic<bool> done = false;
        std::thread thread([&] {
            work();
            done = true;
        });
        EXPECT_TRUE(turnsUntil([&] { return done.load(); }));
        thread.join();
    }

    const std::thread::id mainThread = std::this_thread::get_id();
    std::vector<int> order;
    QtScheduler scheduler;
};

// Clocks

TEST_F(QtSchedulerTest, CountsTheWallClockFromTheReferenceDate) {
    const auto before = static_cast<double>(std::time(nullptr)) - 978307200.0;
    const double now = scheduler.now();
    const auto after = static_cast<double>(std::time(nullptr)) - 978307200.0;
    // The kernel's whole seconds may lag behind by a tick.
    EXPECT_GE(now, before);
    EXPECT_LT(now, after + 1.1);
}

TEST_F(QtSchedulerTest, MeasuresIntervalsInSeconds) {
    const Stopwatch outer;
    const double before = scheduler.uptime();
    const Stopwatch inner;
    std::this_thread::sleep_for(20ms);
    const double least = inner.seconds();
    const double measured = scheduler.uptime() - before;
    const double most = outer.seconds();
    // Sums of doubles: a microsecond is left to rounding.
    EXPECT_GE(measured, least - 1e-6);
    EXPECT_LE(measured, most + 1e-6);
}

// On the main thread

TEST_F(QtSchedulerTest, RunsATaskOnTheMainThreadWhenTheLoopTurns) {
    std::thread::id ranOn;
    scheduler.onMain([&] { ranOn = std::this_thread::get_id(); });
    EXPECT_EQ(ranOn, std::thread::id());
    EXPECT_TRUE(turnsUntil([&] { return ranOn == mainThread; }));
}

TEST_F(QtSchedulerTest, RunsTasksInTheOrderInWhichTheyWereHandedOver) {
    for (int number = 1; number <= 5; ++number)
        scheduler.onMain([this, number] { order.push_back(number); });
    turnsUntil([&] { return order.size() == 5; });
    EXPECT_THAT(order, ElementsAre(1, 2, 3, 4, 5));
}

TEST_F(QtSchedulerTest, RunsWhatATaskHandsOverAfterWhatWaits) {
    scheduler.onMain([this] {
        order.push_back(1);
        scheduler.onMain([this] { order.push_back(3); });
        EXPECT_THAT(order, ElementsAre(1));
    });
    scheduler.onMain([this] { order.push_back(2); });
    turnsUntil([&] { return order.size() == 3; });
    EXPECT_THAT(order, ElementsAre(1, 2, 3));
}

TEST_F(QtSchedulerTest, GivesTheLoopItsTurnBetweenManyTasks) {
    for (int number = 0; number < 100; ++number)
        scheduler.onMain([this, number] {
            order.push_back(number);
            std::this_thread::sleep_for(3ms);
        });
    std::size_t doneBefore = 0; // a timer stands for what a user does meanwhile
    QTimer::singleShot(1, [&] { doneBefore = order.size(); });
    EXPECT_TRUE(turnsUntil([&] { return order.size() == 100; }));
    EXPECT_GT(doneBefore, 0U);
    EXPECT_LT(doneBefore, 50U);
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST_F(QtSchedulerTest, GoesOnWhileATaskTurnsTheLoopItself) {
    for (int number = 0; number < 20; ++number)
        scheduler.onMain([this, number] {
            order.push_back(number);
            std::this_thread::sleep_for(3ms);
            if (number % 5 == 3) {
                EXPECT_TRUE(turnsUntil([&] { return int(order.size()) > number + 1; }));
            }
        });
    EXPECT_TRUE(turnsUntil([&] { return order.size() == 20; }));
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST_F(QtSchedulerTest, RunsTasksOfOtherThreadsOnTheMainThread) {
    std::thread([this] {
        for (int number = 1; number <= 50; ++number) {
            scheduler.onMain([this, number] {
                EXPECT_EQ(std::this_thread::get_id(), mainThread);
                order.push_back(number);
            });
        }
    }).join();
    EXPECT_THAT(order, IsEmpty());
    EXPECT_TRUE(turnsUntil([&] { return order.size() == 50; }));
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST_F(QtSchedulerTest, TakesTasksFromManyThreadsAtOnce) {
    std::vector<std::thread> threads;
    int ran = 0;
    threads.reserve(8);
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([&] {
            for (int round = 0; round < 100; ++round)
                scheduler.onMain([&] { ++ran; });
        });
    }
    EXPECT_TRUE(turnsUntil([&] { return ran == 800; }));
    for (std::thread& thread : threads)
        thread.join();
}

TEST_F(QtSchedulerTest, DropsWhatWaitsWhenItGoes) {
    bool ran = false;
    {
        QtScheduler passing;
        passing.onMain([&] { ran = true; });
        passing.onMainAfter(0.01, [&] { ran = true; });
    }
    turnFor(50);
    EXPECT_FALSE(ran);
}

// Later

TEST_F(QtSchedulerTest, RunsADelayedTaskNotBeforeItsTime) {
    const Stopwatch watch;
    double ranAt = 0;
    scheduler.onMainAfter(0.06, [&] { ranAt = watch.seconds(); });
    EXPECT_TRUE(turnsUntil([&] { return ranAt > 0; }));
    EXPECT_GE(ranAt, 0.06);
}

// The times are those of the handing over, so a machine that stalls just then has to try again.
TEST_F(QtSchedulerTest, RunsDelayedTasksInTheOrderOfTheirTimes) {
    bool inTime = false;
    for (int attempt = 0; attempt < 100 && !inTime; ++attempt) {
        order.clear();
        const Stopwatch watch;
        scheduler.onMainAfter(0.09, [this] { order.push_back(3); });
        scheduler.onMainAfter(0.01, [this] { order.push_back(1); });
        scheduler.onMainAfter(0.05, [this] { order.push_back(2); });
        scheduler.onMain([&] { inTime = watch.seconds() < 0.01; });
        ASSERT_TRUE(turnsUntil([&] { return order.size() == 3; }));
    }
    ASSERT_TRUE(inTime);
    EXPECT_THAT(order, ElementsAre(1, 2, 3));
}

// The loop turns only after the sleep: were that when the delay begins, the second would be first.
TEST_F(QtSchedulerTest, CountsTheDelayFromTheCall) {
    scheduler.onMainAfter(0.2, [this] { order.push_back(1); });
    std::this_thread::sleep_for(200ms);
    scheduler.onMainAfter(0.1, [this] { order.push_back(2); });
    EXPECT_TRUE(turnsUntil([&] { return order.size() == 2; }));
    EXPECT_THAT(order, ElementsAre(1, 2));
}

TEST_F(QtSchedulerTest, RunsATaskWithoutDelayAfterWhatWaits) {
    scheduler.onMain([this] { order.push_back(1); });
    scheduler.onMainAfter(0.0, [this] { order.push_back(2); });
    turnsUntil([&] { return order.size() == 2; });
    EXPECT_THAT(order, ElementsAre(1, 2));
}

TEST_F(QtSchedulerTest, TakesDelayedTasksFromOtherThreads) {
    std::thread::id ranOn;
    std::thread([&] {
        scheduler.onMainAfter(0.02, [&] { ranOn = std::this_thread::get_id(); });
    }).join();
    EXPECT_TRUE(turnsUntil([&] { return ranOn == mainThread; }));
}

// And wait

TEST_F(QtSchedulerTest, WaitsUntilTheTaskHasRunOnTheMainThread) {
    beside([&] {
        bool ran = false;
        scheduler.onMainAndWait([&] {
            EXPECT_EQ(std::this_thread::get_id(), mainThread);
            std::this_thread::sleep_for(10ms);
            ran = true;
        });
        EXPECT_TRUE(ran);
    });
}

TEST_F(QtSchedulerTest, WaitsBehindWhatWasHandedOverBefore) {
    beside([&] {
        scheduler.onMain([this] { order.push_back(1); });
        scheduler.onMainAndWait([this] { order.push_back(2); });
        scheduler.onMainAndWait([this] { order.push_back(3); });
    });
    EXPECT_THAT(order, ElementsAre(1, 2, 3));
}

// Repeatedly

TEST_F(QtSchedulerTest, CallsFirstAfterOneIntervalAndThenAgain) {
    const Stopwatch watch;
    std::vector<double> calls;
    const auto timer = scheduler.every(0.03, [&] { calls.push_back(watch.seconds()); });
    EXPECT_TRUE(turnsUntil([&] { return calls.size() >= 3; }));
    // The timer may round to its clock's milliseconds.
    EXPECT_GE(calls.at(0), 0.029);
    EXPECT_GE(calls.at(2), 0.089);
}

TEST_F(QtSchedulerTest, CallsNoMoreOnceTheTimerIsGone) {
    int calls = 0;
    auto timer = scheduler.every(0.01, [&] { ++calls; });
    ASSERT_TRUE(turnsUntil([&] { return calls >= 1; }));
    timer.reset();
    const int atTheEnd = calls;
    turnFor(60);
    EXPECT_EQ(calls, atTheEnd);
}

TEST_F(QtSchedulerTest, MakesNoCallThatWasDueWhenTheTimerWent) {
    int calls = 0;
    auto timer = scheduler.every(0.01, [&] { ++calls; });
    std::this_thread::sleep_for(30ms);
    timer.reset();
    turnFor(40);
    EXPECT_EQ(calls, 0);
}

TEST_F(QtSchedulerTest, LetsATimerEndItselfInItsOwnCall) {
    int calls = 0;
    std::unique_ptr<RepeatingTimer> timer;
    timer = scheduler.every(0.01, [&] {
        timer.reset();
        ++calls;
    });
    EXPECT_TRUE(turnsUntil([&] { return calls > 0; }));
    turnFor(60);
    EXPECT_EQ(calls, 1);
}

TEST_F(QtSchedulerTest, KeepsTimersApart) {
    int slow = 0;
    int fast = 0;
    const auto first = scheduler.every(0.2, [&] { ++slow; });
    auto second = scheduler.every(0.01, [&] { ++fast; });
    EXPECT_TRUE(turnsUntil([&] { return fast >= 3; }));
    second.reset();
    EXPECT_TRUE(turnsUntil([&] { return slow >= 1; }));
}

// On workers

TEST_F(QtSchedulerTest, RunsWorkOnAnotherThreadWithoutTheLoop) {
    std::promise<std::thread::id> ran;
    scheduler.onGlobalQueue(utility, [&] { ran.set_value(std::this_thread::get_id()); });
    EXPECT_NE(ran.get_future().get(), mainThread);
}

TEST_F(QtSchedulerTest, BringsWorkBackToTheMainThread) {
    std::thread::id cameBackOn;
    scheduler.onGlobalQueue(
        utility, [&] { scheduler.onMain([&] { cameBackOn = std::this_thread::get_id(); }); });
    EXPECT_TRUE(turnsUntil([&] { return cameBackOn == mainThread; }));
}

TEST_F(QtSchedulerTest, WaitsForItsWorkWhenItGoes) {
    std::atomic<bool> ran = false;
    {
        QtScheduler passing;
        passing.onGlobalQueue(utility, [&] {
            std::this_thread::sleep_for(20ms);
            passing.onMain([] {});
            ran = true;
        });
    }
    EXPECT_TRUE(ran);
}

// Within a time

TEST_F(QtSchedulerTest, SaysThatATaskCompletedInTime) {
    std::thread::id ranOn;
    EXPECT_TRUE(
        scheduler.completesWithin(60.0, utility, [&] { ranOn = std::this_thread::get_id(); }));
    EXPECT_NE(ranOn, std::thread::id());
    EXPECT_NE(ranOn, mainThread);
}

TEST_F(QtSchedulerTest, ReturnsAsSoonAsTheTaskIsDone) {
    const Stopwatch watch;
    scheduler.completesWithin(120.0, utility, [] {});
    EXPECT_LT(watch.seconds(), 60.0);
}

TEST_F(QtSchedulerTest, SaysWhenTheTimeWasUpAndLetsTheTaskGoOn) {
    std::promise<void> door;
    std::atomic<bool> finished = false;
    const Stopwatch watch;
    EXPECT_FALSE(scheduler.completesWithin(0.05, utility, [&, opened = door.get_future().share()] {
        opened.wait();
        finished = true;
    }));
    EXPECT_GE(watch.seconds(), 0.05);
    EXPECT_FALSE(finished);
    door.set_value();
    EXPECT_TRUE(turnsUntil([&] { return finished.load(); }));
}

TEST_F(QtSchedulerTest, WatchesATaskFromAWorkerWhileOthersHang) {
    std::promise<void> door;
    const std::shared_future<void> opened = door.get_future().share();
    for (int i = 0; i < 20; ++i)
        scheduler.onGlobalQueue(QualityOfService::userInitiated, [opened] { opened.wait(); });
    std::promise<bool> completed;
    scheduler.onGlobalQueue(QualityOfService::userInitiated, [&] {
        completed.set_value(
            scheduler.completesWithin(60.0, QualityOfService::userInitiated, [] {}));
    });
    EXPECT_TRUE(completed.get_future().get());
    door.set_value();
}

} // namespace
} // namespace tessarine

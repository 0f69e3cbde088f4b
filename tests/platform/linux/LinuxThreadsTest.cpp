#include "platform/SerialQueue.h"
#include "platform/qt/WorkerPool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <future>
#include <string>
#include <thread>
#include <vector>

#include <sys/syscall.h>
#include <unistd.h>

// What threads do, as /proc alone can tell.

namespace tessarine {
namespace {

using ::testing::ElementsAre;

template <typename Condition>
bool turnsTrue(const Condition& condition) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(1);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

// The letter after the command in /proc's line for a thread: "S" when it waits.
char stateOfThread(pid_t thread) {
    std::ifstream file("/proc/self/task/" + std::to_string(thread) + "/stat");
    std::string line;
    std::getline(file, line);
    const std::size_t command = line.rfind(')');
    return command == std::string::npos || command + 2 >= line.size() ? '?' : line[command + 2];
}

TEST(SerialQueueOrderTest, LetsCallersInInTheOrderInWhichTheyCame) {
    SerialQueue queue("q");
    std::vector<int> order;
    std::vector<std::thread> threads;
    queue.sync([&] {
        for (int number = 1; number <= 6; ++number) {
            std::atomic<pid_t> entering = 0;
            threads.emplace_back([&, number] {
                entering = static_cast<pid_t>(syscall(SYS_gettid));
                queue.sync([&order, number] { order.push_back(number); });
            });
            while (entering == 0 || stateOfThread(entering) != 'S')
                std::this_thread::yield();
        }
    });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_THAT(order, ElementsAre(1, 2, 3, 4, 5, 6));
}

std::ptrdiff_t threadsOfThisProcess() {
    const std::filesystem::directory_iterator tasks("/proc/self/task");
    return std::distance(begin(tasks), end(tasks));
}

TEST(WorkerPoolThreadsTest, GivesItsThreadsBackWhenThereIsNothingToDo) {
    const std::ptrdiff_t before = threadsOfThisProcess();
    std::promise<void> opened;
    std::shared_future<void> door = opened.get_future().share();
    std::atomic<int> blocked = 0;
    WorkerPool pool;
    for (int i = 0; i < 5; ++i) {
        pool.run(QualityOfService::utility, [&] {
            ++blocked;
            door.wait();
        });
    }
    ASSERT_TRUE(turnsTrue([&] { return blocked == 5; }));
    EXPECT_EQ(threadsOfThisProcess(), before + 5);
    opened.set_value();
    EXPECT_TRUE(turnsTrue([&] { return threadsOfThisProcess() == before; }));
    std::promise<void> ran;
    pool.run(QualityOfService::utility, [&] { ran.set_value(); });
    EXPECT_EQ(ran.get_future().wait_for(std::chrono::minutes(1)), std::future_status::ready);
}

} // namespace
} // namespace tessarine

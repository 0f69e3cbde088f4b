#include "platform/SerialQueue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace tessarine {
namespace {

TEST(SerialQueueTest, HasItsLabel) {
    EXPECT_EQ(SerialQueue("com.example.queue").label(), "com.example.queue");
}

TEST(SerialQueueTest, GivesWhatTheWorkGives) {
    SerialQueue queue("q");
    EXPECT_EQ(queue.sync([] { return 42; }), 42);
    EXPECT_EQ(queue.sync([] { return std::string("text"); }), "text");
}

TEST(SerialQueueTest, PassesAReferenceThrough) {
    SerialQueue queue("q");
    int number = 1;
    queue.sync([&]() -> int& { return number; }) = 5;
    EXPECT_EQ(number, 5);
}

TEST(SerialQueueTest, PassesWhatCanOnlyBeMoved) {
    SerialQueue queue("q");
    auto given = queue.sync([] { return std::make_unique<int>(3); });
    EXPECT_EQ(*given, 3);
}

TEST(SerialQueueTest, RunsTheWorkOnTheCallersThread) {
    SerialQueue queue("q");
    EXPECT_EQ(queue.sync([] { return std::this_thread::get_id(); }), std::this_thread::get_id());
    std::thread([&] {
        EXPECT_EQ(queue.sync([] { return std::this_thread::get_id(); }),
                  std::this_thread::get_id());
    }).join();
}

TEST(SerialQueueTest, ReturnsAfterTheWorkIsDone) {
    SerialQueue queue("q");
    bool done = false;
    queue.sync([&] { done = true; });
    EXPECT_TRUE(done);
}

TEST(SerialQueueTest, LetsOneCallerInAtATime) {
    SerialQueue queue("q");
    std::atomic<int> inside = 0;
    int counted = 0; // guarded by the queue alone
    std::vector<std::thread> threads;
    threads.reserve(8);
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([&] {
            for (int round = 0; round < 200; ++round) {
                queue.sync([&] {
                    EXPECT_EQ(++inside, 1);
                    ++counted;
                    --inside;
                });
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(counted, 1600);
}

TEST(SerialQueueTest, IsFreeAgainAfterWorkThatThrew) {
    SerialQueue queue("q");
    EXPECT_THROW(queue.sync([] { throw std::runtime_error("no"); }), std::runtime_error);
    EXPECT_EQ(queue.sync([] { return 1; }), 1);
}

} // namespace
} // namespace tessarine

#include "store/HoardFixture.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

constexpr int threadCount = 8;

// Runs the work on all threads at once, each with its number.
template <typename Work>
void onAllThreads(const Work& work) {
    std::atomic<int> ready = 0;
    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    for (int number = 0; number < threadCount; ++number) {
        threads.emplace_back([&, number] {
            ++ready;
            while (ready < threadCount)
                std::this_thread::yield();
            work(number);
        });
    }
    for (std::thread& thread : threads)
        thread.join();
}

class HoardThreads : public testing::HoardFixture {
protected:
    HoardThreads() { start(); }
};

TEST_F(HoardThreads, StoreEveryRowOnce) {
    constexpr int each = 40;
    std::atomic<int> stored = 0;
    onAllThreads([&](int number) {
        for (int i = 0; i < each; ++i)
            stored += store->insert(capture(number * each + i, 700000000.0 + i)) ? 1 : 0;
    });
    EXPECT_EQ(stored, threadCount * each);
    EXPECT_EQ(file().number(u"SELECT COUNT(*) FROM notifications"_qs), threadCount * each);
    EXPECT_EQ(file().number(u"SELECT COUNT(DISTINCT system_note_id) FROM notifications"_qs),
              threadCount * each);
}

TEST_F(HoardThreads, StoreAKeyOnceHoweverManyBringIt) {
    constexpr int keys = 20;
    std::atomic<int> stored = 0;
    onAllThreads([&](int) {
        for (int key = 1; key <= keys; ++key)
            stored += store->insert(capture(key)) ? 1 : 0;
    });
    EXPECT_EQ(stored, keys);
    EXPECT_EQ(file().number(u"SELECT COUNT(*) FROM notifications"_qs), keys);
}

TEST_F(HoardThreads, LetNothingBetweenProbeAndInsertion) {
    constexpr int banners = 20;
    std::atomic<int> stored = 0;
    onAllThreads([&](int) {
        for (int i = 0; i < banners; ++i) {
            CapturedNotification banner = capture(0);
            banner.title = QString::number(i);
            stored += store->insertDeduplicated(banner) ? 1 : 0;
        }
    });
    EXPECT_EQ(stored, banners);
    EXPECT_EQ(file().number(u"SELECT COUNT(*) FROM notifications"_qs), banners);
}

TEST_F(HoardThreads, ReadWholeRowsWhileOthersWrite) {
    constexpr int each = 20;
    std::atomic<int> torn = 0;
    onAllThreads([&](int number) {
        for (int i = 0; i < each; ++i) {
            if (number % 2 == 0) {
                CapturedNotification notification = capture(number * each + i + 1);
                notification.title = notification.body = QString::number(notification.noteId);
                store->insert(notification);
                continue;
            }
            for (const CapturedNotification& row : store->fetchRecent(500)) {
                if (row.title != row.body || row.title != QString::number(row.noteId))
                    ++torn;
            }
            store->stats();
            store->totalCount();
        }
    });
    EXPECT_EQ(torn, 0);
    EXPECT_EQ(store->totalCount(), threadCount / 2 * each);
}

// Whichever thread comes first: the others wait, and nobody opens it a second time.
TEST(HoardOfAnyThread, IsOpenedByTheFirstThatAsks) {
    const QTemporaryDir home;
    const testing::SimulatedPlatform system(home.path());
    HoardStore store(system.fileSystem, system.defaults, system.scheduler);
    EXPECT_FALSE(QFile::exists(store.path()));
    onAllThreads([&](int thread) {
        CapturedNotification notification;
        notification.noteId = thread + 1;
        EXPECT_TRUE(store.insert(notification));
    });
    EXPECT_EQ(testing::DatabaseFile(store.path()).number(u"SELECT count(*) FROM notifications"_qs),
              threadCount);
}

// Whoever waits for the hoard comes first: a reading ahead that has just begun is given up.
TEST_F(HoardThreads, MakeAReadingAheadGiveWay) {
    ASSERT_TRUE(file().run(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE "
                           "i < 20000) INSERT INTO notifications (title, timestamp) SELECT i, i "
                           "FROM n"_qs));
    std::atomic<bool> isReading = true;
    std::thread other([&] {
        while (isReading)
            store->totalCount();
    });
    while (store->readAhead(1000) != ReadingAhead::gaveWay)
        ASSERT_TRUE(file().run(u"UPDATE notifications SET title = 'x' WHERE id = 1"_qs));
    isReading = false;
    other.join();
    EXPECT_EQ(store->readAhead(1000), ReadingAhead::done);
    EXPECT_EQ(store->fetchRecent(1000).size(), 1000U);
}

} // namespace
} // namespace tessarine

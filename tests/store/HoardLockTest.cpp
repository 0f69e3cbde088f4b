// Captures while another program holds the hoard.

#include "store/HoardFixture.h"
#include "store/Sqlite.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

// Another program that writes to the hoard and takes its time.
class OtherProgram {
public:
    explicit OtherProgram(const QString& path)
        : connection_(path, SqliteConnection::Mode::ownFile) {}

    void takeLock() { ASSERT_TRUE(connection_.execute("BEGIN IMMEDIATE")); }
    void letGo() { ASSERT_TRUE(connection_.execute("COMMIT")); }

private:
    SqliteConnection connection_;
};

class HoardLock : public testing::HoardFixture {
protected:
    qint64 rowCount() const { return file().number(u"SELECT COUNT(*) FROM notifications"_qs); }

    OtherProgram other{start().path()};
};

TEST_F(HoardLock, IsWaitedForByACapture) {
    using namespace std::chrono_literals;
    other.takeLock();
    std::thread program([this] {
        std::this_thread::sleep_for(50ms); // a capture that doesn't wait has failed by then
        other.letGo();
    });
    EXPECT_EQ(store->tryInsert(capture(1)), Insertion::stored);
    program.join();
}

TEST_F(HoardLock, LetsACaptureFailWhereItStays) {
    other.takeLock();
    EXPECT_EQ(store->tryInsert(capture(1)), Insertion::locked);
    EXPECT_EQ(store->tryInsertDeduplicated(capture(0)), Insertion::locked);
    EXPECT_FALSE(store->insert(capture(1)));
    EXPECT_FALSE(store->insertDeduplicated(capture(0)));
    other.letGo();
    EXPECT_EQ(rowCount(), 0);
    EXPECT_EQ(store->tryInsertDeduplicated(capture(0)), Insertion::stored);
    EXPECT_EQ(store->tryInsert(capture(1)), Insertion::stored);
}

TEST_F(HoardLock, IsNotNeededToTellADuplicateOrAnExcludedApplication) {
    store->tryInsertDeduplicated(capture(0));
    other.takeLock();
    EXPECT_EQ(store->tryInsertDeduplicated(capture(0)), Insertion::refused);
    defaults.setTextList(u"excludedBundleIds"_qs, {u"org.example.mail"_qs});
    EXPECT_EQ(store->tryInsert(capture(1)), Insertion::refused);
    other.letGo();
}

TEST_F(HoardLock, IsNoReasonToReadNothing) {
    store->insert(capture(1));
    other.takeLock();
    EXPECT_EQ(store->fetchRecent(500).size(), 1U);
    EXPECT_EQ(store->totalCount(), 1);
    other.letGo();
}

TEST_F(HoardLock, IsWaitedForAtFullLengthAgainOnceACaptureWasStored) {
    using namespace std::chrono_literals;
    other.takeLock();
    EXPECT_EQ(store->tryInsert(capture(1)), Insertion::locked);
    other.letGo();
    ASSERT_EQ(store->tryInsert(capture(1)), Insertion::stored);
    other.takeLock();
    std::thread program([this] {
        std::this_thread::sleep_for(200ms); // more than the moment of the time in between
        other.letGo();
    });
    EXPECT_EQ(store->tryInsert(capture(2)), Insertion::stored);
    program.join();
}

TEST_F(HoardLock, IsToldFromOtherFailures) {
    ASSERT_TRUE(file().run(u"CREATE TRIGGER refusing BEFORE INSERT ON notifications BEGIN SELECT "
                           "RAISE(ABORT, 'no'); END"_qs));
    EXPECT_EQ(store->tryInsert(capture(1)), Insertion::failed);
    EXPECT_EQ(store->tryInsertDeduplicated(capture(0)), Insertion::failed);
}

TEST(HoardThatCanNotBeOpened, LetsCapturesFail) {
    const QTemporaryDir home;
    testing::SimulatedDefaults defaults;
    testing::ManualScheduler scheduler;
    ASSERT_TRUE(QDir(home.path()).mkpath(u"Library/Application Support/Tessarine/hoard.db"_qs));
    const testing::SimulatedFileSystem fileSystem(home.path());
    HoardStore store(fileSystem, defaults, scheduler);
    EXPECT_EQ(store.tryInsert({}), Insertion::failed);
    EXPECT_EQ(store.tryInsertDeduplicated({}), Insertion::failed);
}

} // namespace
} // namespace tessarine

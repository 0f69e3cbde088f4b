// Maintenance of the hoard while captures come.

#include "store/HoardFixture.h"
#include "store/Sqlite.h"
#include "support/ChildRun.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <future>
#include <string>
#include <thread>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

// Stops a statement in the middle, on whatever connection that is opened while this lives, until
// it is let go.
class StoppedStatement {
public:
    explicit StoppedStatement(std::string text)
        : text_(std::move(text)) {
        current = this;
        sqlite3_auto_extension(reinterpret_cast<void (*)()>(&StoppedStatement::connected));
    }
    StoppedStatement(const StoppedStatement&) = delete;
    StoppedStatement& operator=(const StoppedStatement&) = delete;
    ~StoppedStatement() {
        sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(&StoppedStatement::connected));
    }

    void waitUntilItRuns() { began_.get_future().wait(); }
    void letGo() { end_.set_value(); }

private:
    static int connected(sqlite3* connection, char**, const void*) {
        return sqlite3_trace_v2(connection, SQLITE_TRACE_ROW, &StoppedStatement::gaveRow, nullptr);
    }

    // A statement that has given a row is still reading.
    static int gaveRow(unsigned, void*, void* statement, void*) {
        const char* const text = sqlite3_sql(static_cast<sqlite3_stmt*>(statement));
        if (!text || text != current->text_)
            return 0; // SQLite's own statements have no text
        current->began_.set_value();
        current->end_.get_future().wait();
        return 0;
    }

    static inline StoppedStatement* current = nullptr;
    std::string text_;
    std::promise<void> began_;
    std::promise<void> end_;
};

class HoardMaintenanceThreads : public testing::HoardFixture {
protected:
    HoardMaintenanceThreads() { start().insert(capture(1)); }

    // Ends the test where anything waits for the maintenance.
    const testing::NoWaiting limit_;
};

TEST_F(HoardMaintenanceThreads, LetCapturesInWhileTheHoardIsChecked) {
    StoppedStatement check("PRAGMA integrity_check;");
    QString result;
    std::thread worker([&] { result = store->integrityCheck(); });
    check.waitUntilItRuns();
    EXPECT_EQ(store->tryInsert(capture(2)), Insertion::stored);
    EXPECT_EQ(store->tryInsertDeduplicated(capture(0, 1.0)), Insertion::stored);
    EXPECT_EQ(store->fetchRecent(500).size(), 3U);
    EXPECT_EQ(store->stats().totalCount, 3);
    check.letGo();
    worker.join();
    EXPECT_EQ(result, u"ok"_qs);
    EXPECT_EQ(file().number(u"SELECT COUNT(*) FROM notifications"_qs), 3);
}

TEST_F(HoardMaintenanceThreads, LetCapturesInWhileStatisticsAreMade) {
    StoppedStatement statistics(
        "SELECT COUNT(*), SUM(pinned), COUNT(DISTINCT bundle_id) FROM notifications;");
    HoardStats stats;
    std::thread worker([&] { stats = store->stats(); });
    statistics.waitUntilItRuns();
    EXPECT_EQ(store->tryInsert(capture(2)), Insertion::stored);
    statistics.letGo();
    worker.join();
    EXPECT_EQ(stats.totalCount, 1);
}

TEST_F(HoardMaintenanceThreads, LetCapturesInWhileACheckpointWaitsForAReader) {
    const SqliteConnection reader(hoardPath(), SqliteConnection::Mode::ownFileReadOnly);
    ASSERT_TRUE(reader.execute("BEGIN; SELECT COUNT(*) FROM notifications;"));
    store->insert(capture(2)); // what the reader doesn't see can't leave the log
    std::promise<void> began;
    std::thread worker([&] {
        began.set_value();
        store->checkpoint();
    });
    began.get_future().wait();
    for (qint64 key = 3; key < 40; ++key)
        EXPECT_EQ(store->tryInsert(capture(key)), Insertion::stored);
    ASSERT_TRUE(reader.execute("COMMIT;"));
    worker.join();
    EXPECT_EQ(store->totalCount(), 39);
}

} // namespace
} // namespace tessarine

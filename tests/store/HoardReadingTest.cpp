#include "store/HoardFixture.h"
#include "store/SqlTrace.h"
#include "store/Sqlite.h"

#include <QFileInfo>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::SqlTrace;

class HoardReading : public testing::HoardFixture {
protected:
    HoardReading() { start(); }

    void pin(qint64 noteId) const {
        ASSERT_TRUE(file().run(
            u"UPDATE notifications SET pinned = 1 WHERE system_note_id = %1"_qs.arg(noteId)));
    }

    std::vector<qint64> recentKeys(qint64 limit) const {
        std::vector<qint64> keys;
        for (const CapturedNotification& row : store->fetchRecent(limit))
            keys.push_back(row.noteId);
        return keys;
    }
};

TEST_F(HoardReading, GivesNothingFromAnEmptyHoard) {
    EXPECT_THAT(store->fetchRecent(500), IsEmpty());
}

TEST_F(HoardReading, GivesEachFieldOfARow) {
    ASSERT_TRUE(file().run(u"INSERT INTO notifications (id, system_note_id, bundle_id, app_name, "
                           "title, body, timestamp, pinned) VALUES "
                           "(17, 42, 'a.b', 'App', 'T', 'B €', 778912345.5, 1)"_qs));
    const NotificationList rows = store->fetchRecent(10);
    ASSERT_EQ(rows.size(), 1U);
    const CapturedNotification& row = rows.front();
    EXPECT_FALSE(row.id.isNull());
    EXPECT_EQ(row.dbId, 17);
    EXPECT_EQ(row.noteId, 42);
    EXPECT_EQ(row.appBundleId, u"a.b"_qs);
    EXPECT_EQ(row.appName, u"App"_qs);
    EXPECT_EQ(row.title, u"T"_qs);
    EXPECT_EQ(row.body, u"B €"_qs);
    EXPECT_EQ(row.timestamp, 778912345.5);
    EXPECT_TRUE(row.pinned);
}

TEST_F(HoardReading, GivesNullAsZeroAndAsTheEmptyText) {
    ASSERT_TRUE(file().run(u"INSERT INTO notifications (system_note_id) VALUES (NULL)"_qs));
    const CapturedNotification row = store->fetchRecent(1).at(0);
    EXPECT_EQ(row.noteId, 0);
    EXPECT_TRUE(row.appBundleId.isEmpty());
    EXPECT_TRUE(row.appName.isEmpty());
    EXPECT_TRUE(row.title.isEmpty());
    EXPECT_TRUE(row.body.isEmpty());
    EXPECT_EQ(row.timestamp, 0.0);
    EXPECT_FALSE(row.pinned);
}

TEST_F(HoardReading, CountsEveryPinButZeroAsPinned) {
    ASSERT_TRUE(file().run(u"INSERT INTO notifications (pinned) VALUES (2), (-1), (0)"_qs));
    const NotificationList rows = store->fetchRecent(3);
    EXPECT_EQ(std::count_if(rows.begin(), rows.end(), [](const auto& row) { return row.pinned; }),
              2);
}

TEST_F(HoardReading, GivesAFreshIdentityAtEachReading) {
    store->insert(capture(1));
    EXPECT_NE(store->fetchRecent(1).at(0).id, store->fetchRecent(1).at(0).id);
}

TEST_F(HoardReading, GivesBackWhatWasCaptured) {
    CapturedNotification notification = capture(3, 712345678.25);
    notification.title = u"Zeile 1\nZeile 2 😀"_qs;
    store->insert(notification);
    CapturedNotification expected = notification;
    expected.dbId = 1;
    EXPECT_TRUE(showsSameRow(store->fetchRecent(1).at(0), expected));
}

TEST_F(HoardReading, PutsTheNewestFirst) {
    store->insert(capture(1, 100.0));
    store->insert(capture(2, 300.0));
    store->insert(capture(3, 200.0));
    EXPECT_THAT(recentKeys(10), ElementsAre(2, 3, 1));
}

TEST_F(HoardReading, LetsPinnedRowsLead) {
    store->insert(capture(1, 100.0));
    store->insert(capture(2, 300.0));
    store->insert(capture(3, 200.0));
    store->insert(capture(4, 400.0));
    pin(1);
    pin(3);
    EXPECT_THAT(recentKeys(10), ElementsAre(3, 1, 4, 2));
}

TEST_F(HoardReading, GivesAnOldPinnedRowBeforeANewOneWhereOneIsAskedFor) {
    store->insert(capture(1, 100.0));
    store->insert(capture(2, 700000000.0));
    pin(1);
    EXPECT_THAT(recentKeys(1), ElementsAre(1));
}

TEST_F(HoardReading, PutsRowsWithoutATimeLast) {
    ASSERT_TRUE(file().run(u"INSERT INTO notifications (system_note_id) VALUES (9)"_qs));
    store->insert(capture(1, -5.0));
    EXPECT_THAT(recentKeys(10), ElementsAre(1, 9));
}

TEST_F(HoardReading, CutsAtTheLimit) {
    for (int i = 1; i <= 5; ++i)
        store->insert(capture(i, 100.0 * i));
    EXPECT_THAT(recentKeys(3), ElementsAre(5, 4, 3));
    EXPECT_THAT(recentKeys(5), ElementsAre(5, 4, 3, 2, 1));
    EXPECT_THAT(recentKeys(0), IsEmpty());
}

TEST_F(HoardReading, GivesAllRowsForALimitAtTheEdgesOfItsRange) {
    store->insert(capture(1));
    EXPECT_THAT(recentKeys(2147483647), ElementsAre(1));
    EXPECT_THAT(recentKeys(Q_INT64_C(-2147483648)), ElementsAre(1));
    EXPECT_THAT(recentKeys(-1), ElementsAre(1));
}

TEST_F(HoardReading, RunsTheseStatements) {
    store.reset();
    SqlTrace trace;
    start();
    trace.taken();
    store->fetchRecent(500);
    EXPECT_THAT(trace.taken(),
                ElementsAre(u"PRAGMA data_version;"_qs,
                            u"SELECT id, system_note_id, bundle_id, app_name, title, body, "
                            "timestamp, pinned\n"
                            "FROM notifications\n"
                            "ORDER BY pinned DESC, timestamp DESC\n"
                            "LIMIT ?;"_qs));
    store->fetchRecent(500);
    EXPECT_THAT(trace.taken(), ElementsAre(u"PRAGMA data_version;"_qs));
    store->totalCount();
    EXPECT_THAT(trace.taken(), ElementsAre(u"SELECT COUNT(*) FROM notifications"_qs));
    store->maxSystemNoteId();
    EXPECT_THAT(trace.taken(), ElementsAre(u"SELECT MAX(system_note_id) FROM notifications"_qs));
    store->stats();
    EXPECT_THAT(
        trace.taken(),
        ElementsAre(
            u"SELECT COUNT(*), SUM(pinned), COUNT(DISTINCT bundle_id) FROM notifications;"_qs,
            u"SELECT MIN(timestamp), MAX(timestamp) FROM notifications;"_qs));
}

TEST_F(HoardReading, CountsAllRows) {
    EXPECT_EQ(store->totalCount(), 0);
    store->insert(capture(1));
    store->insertDeduplicated(capture(0, 1.0));
    EXPECT_EQ(store->totalCount(), 2);
}

TEST_F(HoardReading, KnowsTheHighestKey) {
    EXPECT_EQ(store->maxSystemNoteId(), 0);
    store->insertDeduplicated(capture(0));
    EXPECT_EQ(store->maxSystemNoteId(), 0);
    store->insert(capture(7));
    store->insert(capture(5));
    EXPECT_EQ(store->maxSystemNoteId(), 7);
}

TEST_F(HoardReading, AnswersEmptyWhenTheTableIsGone) {
    store->insert(capture(1));
    ASSERT_TRUE(file().run(u"DROP TABLE notifications"_qs));
    EXPECT_THAT(store->fetchRecent(10), IsEmpty());
    EXPECT_EQ(store->totalCount(), 0);
    EXPECT_EQ(store->maxSystemNoteId(), 0);
    EXPECT_EQ(store->stats().totalCount, 0);
    EXPECT_FALSE(store->insert(capture(2)));
    EXPECT_FALSE(store->insertDeduplicated(capture(0)));
}

TEST_F(HoardReading, AnswersFalseWhileAnotherProgramWrites) {
    const SqliteConnection other(hoardPath(), SqliteConnection::Mode::ownFile);
    ASSERT_TRUE(other.execute("BEGIN IMMEDIATE"));
    EXPECT_FALSE(store->insert(capture(1)));
    EXPECT_FALSE(store->insertDeduplicated(capture(0)));
    EXPECT_EQ(store->totalCount(), 0);
    ASSERT_TRUE(other.execute("ROLLBACK"));
    EXPECT_TRUE(store->insert(capture(1)));
}

// Statistics

TEST_F(HoardReading, HasNoStatisticsOfAnEmptyHoardButItsSize) {
    const HoardStats stats = store->stats();
    EXPECT_EQ(stats.totalCount, 0);
    EXPECT_EQ(stats.pinnedCount, 0);
    EXPECT_EQ(stats.distinctAppsCount, 0);
    EXPECT_EQ(stats.firstTimestamp, std::nullopt);
    EXPECT_EQ(stats.lastTimestamp, std::nullopt);
    EXPECT_EQ(stats.fileSizeBytes, QFileInfo(hoardPath()).size());
    EXPECT_GT(stats.fileSizeBytes, 0);
}

TEST_F(HoardReading, CountsRowsPinsAndApplications) {
    ASSERT_TRUE(file().run(u"INSERT INTO notifications (bundle_id, timestamp, pinned) VALUES "
                           "('a', 300.0, 1), ('a', 100.5, 0), ('b', 900.25, 1), "
                           "('', 200.0, 0), (NULL, 400.0, 0)"_qs));
    const HoardStats stats = store->stats();
    EXPECT_EQ(stats.totalCount, 5);
    EXPECT_EQ(stats.pinnedCount, 2);
    EXPECT_EQ(stats.distinctAppsCount, 3); // the empty text is one, NULL is none
    EXPECT_EQ(stats.firstTimestamp, 100.5);
    EXPECT_EQ(stats.lastTimestamp, 900.25);
}

TEST_F(HoardReading, SumsPinsRatherThanCountingThem) {
    ASSERT_TRUE(file().run(u"INSERT INTO notifications (pinned) VALUES (3), (1)"_qs));
    EXPECT_EQ(store->stats().pinnedCount, 4);
}

TEST_F(HoardReading, LeavesOutMomentsThatAreNotAfterTheReferenceDate) {
    store->insert(capture(1, -10.0));
    store->insert(capture(2, 0.0));
    EXPECT_EQ(store->stats().firstTimestamp, std::nullopt);
    EXPECT_EQ(store->stats().lastTimestamp, std::nullopt);
    store->insert(capture(3, 10.0));
    EXPECT_EQ(store->stats().firstTimestamp, std::nullopt);
    EXPECT_EQ(store->stats().lastTimestamp, 10.0);
}

TEST_F(HoardReading, MeasuresTheMainFileWithoutItsLog) {
    CapturedNotification large = capture(1);
    large.body = QString(200000, u'x');
    const qint64 before = QFileInfo(hoardPath()).size();
    store->insert(large);
    ASSERT_GT(QFileInfo(hoardPath() + u"-wal"_qs).size(), 200000);
    EXPECT_EQ(store->stats().fileSizeBytes, before);
    file().run(u"PRAGMA wal_checkpoint(FULL)"_qs);
    EXPECT_GT(store->stats().fileSizeBytes, 200000);
}

TEST_F(HoardReading, HasNoSizeWhenTheFileIsGone) {
    ASSERT_TRUE(QFile::remove(hoardPath()));
    EXPECT_EQ(store->stats().fileSizeBytes, 0);
}

// Limits beyond 32 bits

class HoardReadingDeathTest : public testing::HoardFixture {
protected:
    HoardReadingDeathTest() { GTEST_FLAG_SET(death_test_style, "fast"); } // no threads run here
};

TEST_F(HoardReadingDeathTest, EndsTheProcessForALimitAboveTheRange) {
    EXPECT_DEATH(start().fetchRecent(Q_INT64_C(2147483648)), "does not fit");
}

TEST_F(HoardReadingDeathTest, EndsTheProcessForALimitBelowTheRange) {
    EXPECT_DEATH(start().fetchRecent(Q_INT64_C(-2147483649)), "does not fit");
}

} // namespace
} // namespace tessarine

#include "store/HoardFixture.h"
#include "store/SqlTrace.h"
#include "store/Sqlite.h"
#include "support/TimeZoneScope.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::SqlTrace;
using testing::TimeZoneScope;

class HoardDeletion : public testing::HoardFixture {
protected:
    HoardDeletion() { start(); }

    void store3() {
        for (const qint64 key : {1, 2, 3})
            ASSERT_TRUE(store->insert(capture(key)));
    }

    // The keys of the rows that are there, in the order in which they came.
    std::vector<qint64> keys() const {
        std::vector<qint64> found;
        for (const QStringList& row :
             file().rows(u"SELECT system_note_id FROM notifications ORDER BY id"_qs))
            found.push_back(row.front().toLongLong());
        return found;
    }

    qint64 pinnedOf(qint64 id) const {
        return file().number(u"SELECT pinned FROM notifications WHERE id = %1"_qs.arg(id));
    }
};

// Pinning

TEST_F(HoardDeletion, APinGoesOnAndOffAgain) {
    store3();
    store->togglePin(2);
    EXPECT_EQ(pinnedOf(2), 1);
    EXPECT_EQ(pinnedOf(1), 0);
    EXPECT_EQ(pinnedOf(3), 0);
    store->togglePin(2);
    EXPECT_EQ(pinnedOf(2), 0);
}

TEST_F(HoardDeletion, ARowWithAnotherValueThanOneBecomesPinned) {
    ASSERT_TRUE(file().run(u"INSERT INTO notifications (id, pinned) VALUES (5, 2)"_qs));
    store->togglePin(5);
    EXPECT_EQ(pinnedOf(5), 1);
}

TEST_F(HoardDeletion, PinningAnIdThatIsNoMoreChangesNothing) {
    store3();
    store->deleteNotification(2);
    store->togglePin(2);
    store->togglePin(-1);
    store->togglePin(Q_INT64_C(9000000000));
    EXPECT_EQ(file().number(u"SELECT COUNT(*) FROM notifications WHERE pinned <> 0"_qs), 0);
    EXPECT_THAT(keys(), ElementsAre(1, 3));
}

TEST_F(HoardDeletion, APinReachesAnIdBeyond32Bits) {
    ASSERT_TRUE(file().run(u"INSERT INTO notifications (id) VALUES (9000000000)"_qs));
    store->togglePin(Q_INT64_C(9000000000));
    EXPECT_EQ(pinnedOf(Q_INT64_C(9000000000)), 1);
}

// By row, by application, all

TEST_F(HoardDeletion, TakesTheRowWithTheId) {
    store3();
    store->deleteNotification(2);
    EXPECT_THAT(keys(), ElementsAre(1, 3));
}

TEST_F(HoardDeletion, TakesAPinnedRow) {
    store3();
    store->togglePin(2);
    store->deleteNotification(2);
    EXPECT_THAT(keys(), ElementsAre(1, 3));
}

TEST_F(HoardDeletion, OfAnUnknownIdTakesNothing) {
    store3();
    store->deleteNotification(4);
    store->deleteNotification(0);
    store->deleteNotification(-1);
    EXPECT_THAT(keys(), ElementsAre(1, 2, 3));
}

class HoardDeletionDeathTest : public HoardDeletion {
protected:
    HoardDeletionDeathTest() { GTEST_FLAG_SET(death_test_style, "fast"); } // no threads run here
};

TEST_F(HoardDeletionDeathTest, EndsTheProcessForAnIdBeyond32Bits) {
    EXPECT_DEATH(store->deleteNotification(Q_INT64_C(2147483648)), "does not fit");
    EXPECT_DEATH(store->deleteNotification(Q_INT64_C(-2147483649)), "does not fit");
}

TEST_F(HoardDeletion, TakesAllRowsOfTheShownNameWhateverTheirIds) {
    CapturedNotification mail = capture(1);
    CapturedNotification otherMail = capture(2);
    otherMail.appBundleId = u"org.example.other"_qs;
    CapturedNotification lowerMail = capture(3);
    lowerMail.appName = u"mail"_qs;
    CapturedNotification longerMail = capture(4);
    longerMail.appName = u"Mail "_qs;
    for (const CapturedNotification& row : {mail, otherMail, lowerMail, longerMail})
        ASSERT_TRUE(store->insert(row));
    store->togglePin(2);
    store->deleteApp(u"Mail"_qs);
    EXPECT_THAT(keys(), ElementsAre(3, 4));
}

TEST_F(HoardDeletion, TakesANameAsItIsWrittenAndNotAsAPattern) {
    CapturedNotification odd = capture(1);
    odd.appName = u"Ma'il; %"_qs;
    ASSERT_TRUE(store->insert(odd));
    ASSERT_TRUE(store->insert(capture(2)));
    store->deleteApp(u"%"_qs);
    store->deleteApp(u"Ma'il"_qs);
    EXPECT_THAT(keys(), ElementsAre(1, 2));
    store->deleteApp(u"Ma'il; %"_qs);
    EXPECT_THAT(keys(), ElementsAre(2));
}

TEST_F(HoardDeletion, OfTheEmptyNameTakesRowsWithTheEmptyNameButNotThoseWithNone) {
    ASSERT_TRUE(file().run(u"INSERT INTO notifications (system_note_id, app_name) VALUES (1, ''), "
                           "(2, NULL), (3, 'Mail')"_qs));
    store->deleteApp(QString());
    EXPECT_THAT(keys(), ElementsAre(2, 3));
}

TEST_F(HoardDeletion, OfAllTakesPinnedRowsToo) {
    store3();
    store->togglePin(1);
    store->deleteAll();
    EXPECT_EQ(store->totalCount(), 0);
}

TEST_F(HoardDeletion, OfAllLetsTheIdsRiseOn) {
    store3();
    store->deleteAll();
    ASSERT_TRUE(store->insert(capture(9)));
    EXPECT_EQ(file().number(u"SELECT id FROM notifications"_qs), 4);
}

TEST_F(HoardDeletion, RunsTheseStatements) {
    store.reset();
    SqlTrace trace;
    start();
    const TimeZoneScope zone("UTC");
    trace.taken();
    store->togglePin(17);
    store->deleteNotification(17);
    store->deleteApp(u"Mail"_qs);
    store->deleteDay(u"2025-11-16"_qs);
    store->deleteAll();
    store->deleteOlderThan(30);
    EXPECT_THAT(
        trace.taken(),
        ElementsAre(u"UPDATE notifications SET pinned = CASE WHEN pinned=1 THEN 0 ELSE 1 END "
                    "WHERE id = 17;"_qs,
                    u"DELETE FROM notifications WHERE id = ?"_qs,
                    u"DELETE FROM notifications WHERE app_name = ?"_qs,
                    u"DELETE FROM notifications WHERE timestamp >= ? AND timestamp < ?;"_qs,
                    u"DELETE FROM notifications"_qs,
                    u"DELETE FROM notifications WHERE timestamp < ?"_qs));
}

// By day. The starts are Python's, by zoneinfo.

struct DaySpan {
    const char* name;
    const char* zone;
    const char16_t* key;
    double start;
};

class HoardDay : public HoardDeletion, public ::testing::WithParamInterface<DaySpan> {};

TEST_P(HoardDay, Takes24HoursFromTheStartOfTheDay) {
    const TimeZoneScope zone(GetParam().zone);
    const double start = GetParam().start;
    const double end = start + 86400.0;
    ASSERT_TRUE(store->insert(capture(1, start - 0.001)));
    ASSERT_TRUE(store->insert(capture(2, start)));
    ASSERT_TRUE(store->insert(capture(3, start + 43200.0)));
    ASSERT_TRUE(store->insert(capture(4, end - 0.001)));
    ASSERT_TRUE(store->insert(capture(5, end)));
    store->togglePin(3);
    store->deleteDay(QString::fromUtf16(GetParam().key));
    EXPECT_THAT(keys(), ElementsAre(1, 5));
}

INSTANTIATE_TEST_SUITE_P(
    Days, HoardDay,
    ::testing::Values(DaySpan{"Plain", "UTC", u"2025-11-16", 784944000.0},
                      DaySpan{"InTheLocalZone", "Asia/Tokyo", u"2025-11-17", 784998000.0},
                      DaySpan{"Of23Hours", "Europe/Berlin", u"2025-03-30", 764982000.0},
                      DaySpan{"Of25Hours", "Europe/Berlin", u"2025-10-26", 783122400.0},
                      DaySpan{"WithoutMidnight", "America/Sao_Paulo", u"2018-11-04", 562993200.0},
                      DaySpan{"WithTwoMidnights", "America/Havana", u"2018-11-04", 562996800.0}),
    [](const auto& test) { return std::string(test.param.name); });

TEST_F(HoardDeletion, OfTheDayOf23HoursTakesTheFirstHourOfTheNext) {
    const TimeZoneScope zone("Europe/Berlin");
    const double nextMidnight = 765064800.0;
    ASSERT_TRUE(store->insert(capture(1, nextMidnight + 3599)));
    ASSERT_TRUE(store->insert(capture(2, nextMidnight + 3600)));
    store->deleteDay(u"2025-03-30"_qs);
    EXPECT_THAT(keys(), ElementsAre(2));
}

TEST_F(HoardDeletion, OfTheDayOf25HoursLeavesItsLastHour) {
    const TimeZoneScope zone("Europe/Berlin");
    const double nextMidnight = 783212400.0;
    ASSERT_TRUE(store->insert(capture(1, nextMidnight - 3601)));
    ASSERT_TRUE(store->insert(capture(2, nextMidnight - 3600)));
    store->deleteDay(u"2025-10-26"_qs);
    EXPECT_THAT(keys(), ElementsAre(2));
}

TEST_F(HoardDeletion, OfWhatIsNoDayRunsNoStatement) {
    store.reset();
    SqlTrace trace;
    start();
    store3();
    trace.taken();
    for (const QString& key : {QString(), u"yesterday"_qs, u"2025-02-30"_qs, u"2025-11-16 "_qs,
                               u"16.11.2025"_qs, u"2025-1-1"_qs})
        store->deleteDay(key);
    EXPECT_THAT(trace.taken(), IsEmpty());
    EXPECT_THAT(keys(), ElementsAre(1, 2, 3));
}

TEST_F(HoardDeletion, LeavesRowsWithoutATime) {
    ASSERT_TRUE(file().run(u"INSERT INTO notifications (system_note_id) VALUES (1)"_qs));
    const TimeZoneScope zone("UTC");
    store->deleteDay(u"2001-01-01"_qs);
    EXPECT_EQ(store->deleteOlderThan(1), 0);
    EXPECT_THAT(keys(), ElementsAre(1));
}

TEST_F(HoardDeletion, GivesTheCountOfTheChangeBeforeWhenItFails) {
    const double now = scheduler.now();
    for (const qint64 key : {1, 2})
        ASSERT_TRUE(store->insert(capture(key, now - 9 * 86400.0)));
    ASSERT_TRUE(store->insert(capture(3, now - 3 * 86400.0)));
    EXPECT_EQ(store->deleteOlderThan(8), 2);
    const SqliteConnection other(hoardPath(), SqliteConnection::Mode::ownFile);
    ASSERT_TRUE(other.execute("BEGIN IMMEDIATE"));
    EXPECT_EQ(store->deleteOlderThan(1), 2);
    store->deleteOtpOlderThan(1);
    store->deleteDay(u"2025-11-13"_qs); // the day of the third row
    ASSERT_TRUE(other.execute("ROLLBACK"));
    EXPECT_THAT(keys(), ElementsAre(3));
}

TEST_F(HoardDeletion, IsSilentWhileAnotherProgramWrites) {
    store3();
    const SqliteConnection other(hoardPath(), SqliteConnection::Mode::ownFile);
    ASSERT_TRUE(other.execute("BEGIN IMMEDIATE"));
    store->togglePin(1);
    store->deleteNotification(1);
    store->deleteApp(u"Mail"_qs);
    store->deleteAll();
    EXPECT_THAT(keys(), ElementsAre(1, 2, 3));
    ASSERT_TRUE(other.execute("ROLLBACK"));
    EXPECT_EQ(pinnedOf(1), 0);
}

} // namespace
} // namespace tessarine

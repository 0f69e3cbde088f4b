#include "store/RecentRows.h"

#include "support/Numbers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessarine {
namespace {

using ::testing::ElementsAre;
using testing::infinity;
using ::testing::IsEmpty;

constexpr int rowsVersion = 7;

HoardRow row(qint64 id, std::optional<double> timestamp, qint64 pinned = 0) {
    HoardRow row{id, pinned, timestamp, {}};
    row.notification.dbId = id;
    return row;
}

class RecentRowsTest : public ::testing::Test {
protected:
    std::vector<qint64> first(int limit) const {
        std::vector<qint64> ids;
        for (const CapturedNotification& notification : rows.first(limit))
            ids.push_back(notification.dbId);
        return ids;
    }

    RecentRows rows;
};

TEST_F(RecentRowsTest, KnowNothingAtFirst) {
    EXPECT_FALSE(rows.covers(0, rowsVersion));
    rows.rowStored(row(1, 100));
    EXPECT_FALSE(rows.covers(0, rowsVersion));
}

TEST_F(RecentRowsTest, AnswerUpToTheRowsThatTheyHold) {
    rows.fill({row(3, 300), row(2, 200)}, 2, rowsVersion);
    EXPECT_TRUE(rows.covers(2, rowsVersion));
    EXPECT_FALSE(rows.covers(3, rowsVersion));
    EXPECT_FALSE(rows.covers(-1, rowsVersion));
    EXPECT_THAT(first(1), ElementsAre(3));
    EXPECT_THAT(first(2), ElementsAre(3, 2));
}

TEST_F(RecentRowsTest, AnswerForAnyLimitWhereTheyAreAll) {
    rows.fill({row(3, 300), row(2, 200)}, 5, rowsVersion);
    EXPECT_TRUE(rows.covers(100, rowsVersion));
    EXPECT_TRUE(rows.covers(-1, rowsVersion));
    EXPECT_THAT(first(100), ElementsAre(3, 2));
    EXPECT_THAT(first(-1), ElementsAre(3, 2));
}

TEST_F(RecentRowsTest, AreAllWhereThereWasNoLimit) {
    rows.fill({row(3, 300), row(2, 200)}, -1, rowsVersion);
    EXPECT_TRUE(rows.covers(-1, rowsVersion));
}

TEST_F(RecentRowsTest, AreNotTrustedAfterAnotherConnectionWrote) {
    rows.fill({row(3, 300)}, 5, rowsVersion);
    EXPECT_FALSE(rows.covers(1, rowsVersion + 1));
}

TEST_F(RecentRowsTest, GiveFreshIdsWithEveryAnswer) {
    rows.fill({row(3, 300)}, 5, rowsVersion);
    EXPECT_NE(rows.first(1).front().id, rows.first(1).front().id);
}

TEST_F(RecentRowsTest, PutAStoredRowBehindItsEquals) {
    rows.fill({row(4, 300), row(1, 200), row(2, 200), row(3, 100)}, 10, rowsVersion);
    rows.rowStored(row(5, 200));
    EXPECT_THAT(first(10), ElementsAre(4, 1, 2, 5, 3));
}

TEST_F(RecentRowsTest, PutRowsWithoutATimestampLastAndInfiniteOnesAtTheEnds) {
    rows.fill({}, 10, rowsVersion);
    rows.rowStored(row(1, std::nullopt));
    rows.rowStored(row(2, -infinity));
    rows.rowStored(row(3, 0));
    rows.rowStored(row(4, infinity));
    rows.rowStored(row(5, std::nullopt));
    EXPECT_THAT(first(10), ElementsAre(4, 3, 2, 1, 5));
}

TEST_F(RecentRowsTest, LetAPinnedRowLeadWhateverItsTime) {
    rows.fill({row(3, 300), row(2, 200), row(1, 100)}, 10, rowsVersion);
    rows.rowChanged(row(1, 100, 1));
    EXPECT_THAT(first(10), ElementsAre(1, 3, 2));
    rows.rowChanged(row(1, 100, 0));
    EXPECT_THAT(first(10), ElementsAre(3, 2, 1));
}

TEST_F(RecentRowsTest, LetGoOfTheLastRowWhereOneMoreComes) {
    rows.fill({row(3, 300), row(2, 200)}, 2, rowsVersion);
    rows.rowStored(row(4, 400));
    EXPECT_THAT(first(2), ElementsAre(4, 3));
    EXPECT_FALSE(rows.covers(3, rowsVersion));
}

TEST_F(RecentRowsTest, AreNoLongerAllOnceOneWasLetGo) {
    rows.fill({row(2, 200)}, 2, rowsVersion);
    rows.rowStored(row(3, 300));
    EXPECT_TRUE(rows.covers(9, rowsVersion));
    rows.rowStored(row(4, 400));
    EXPECT_FALSE(rows.covers(9, rowsVersion));
    EXPECT_THAT(first(2), ElementsAre(4, 3));
}

TEST_F(RecentRowsTest, DoNotTakeARowThatOthersMayPrecede) {
    rows.fill({row(3, 300), row(2, 200)}, 2, rowsVersion);
    rows.rowDeleted(3);
    rows.rowStored(row(4, 100));
    EXPECT_THAT(first(1), ElementsAre(2));
    EXPECT_FALSE(rows.covers(2, rowsVersion));
}

TEST_F(RecentRowsTest, LetGoOfARowThatLosesItsPinAndItsPlace) {
    rows.fill({row(1, 100, 1), row(3, 300)}, 2, rowsVersion);
    rows.rowChanged(row(1, 100, 0));
    EXPECT_THAT(first(1), ElementsAre(3));
    EXPECT_FALSE(rows.covers(2, rowsVersion));
}

TEST_F(RecentRowsTest, AnswerForFewerAfterADeletion) {
    rows.fill({row(3, 300), row(2, 200), row(1, 100)}, 3, rowsVersion);
    rows.rowDeleted(2);
    rows.rowDeleted(99);
    EXPECT_THAT(first(2), ElementsAre(3, 1));
    EXPECT_FALSE(rows.covers(3, rowsVersion));
}

TEST_F(RecentRowsTest, KeepTheRowsThatAreStillThere) {
    rows.fill({row(3, 300), row(2, 200), row(1, 100)}, 9, rowsVersion);
    rows.removeUnless([](qint64 id) { return id != 2; });
    EXPECT_THAT(first(9), ElementsAre(3, 1));
    EXPECT_TRUE(rows.covers(9, rowsVersion));
}

TEST_F(RecentRowsTest, ForgetEverything) {
    rows.fill({row(3, 300)}, 5, rowsVersion);
    rows.clear();
    EXPECT_FALSE(rows.covers(0, rowsVersion));
    EXPECT_THAT(first(5), IsEmpty());
}

} // namespace
} // namespace tessarine

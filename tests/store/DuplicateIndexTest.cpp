#include "store/DuplicateIndex.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace tessarine {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

constexpr int version = 7;
constexpr double now = 785000000.0;

const ProbedTexts mail{"mail", "Title", "Body"};

DuplicateIndex around(double timestamp, const std::vector<DuplicateIndex::Row>& rows = {}) {
    DuplicateIndex index;
    index.fill(rows, timestamp - 600, timestamp + 3600, version);
    return index;
}

TEST(DuplicateIndexTest, CoversNothingAtFirst) {
    EXPECT_FALSE(DuplicateIndex().covers(now, version));
}

TEST(DuplicateIndexTest, CoversWhatLiesWithItsWholeReachInTheSpanRead) {
    const DuplicateIndex index = around(now);
    EXPECT_TRUE(index.covers(now, version));
    EXPECT_TRUE(index.covers(now - 299, version));
    EXPECT_FALSE(index.covers(now - 299.5, version));
    EXPECT_TRUE(index.covers(now + 3299, version));
    EXPECT_FALSE(index.covers(now + 3299.5, version));
    EXPECT_FALSE(index.covers(std::numeric_limits<double>::infinity(), version));
    EXPECT_FALSE(index.covers(std::numeric_limits<double>::quiet_NaN(), version));
}

TEST(DuplicateIndexTest, IsNotTrustedAfterAnotherConnectionWrote) {
    EXPECT_FALSE(around(now).covers(now, version + 1));
}

TEST(DuplicateIndexTest, NamesTheRowsWithTheseTextsWithinReach) {
    DuplicateIndex index = around(now, {{1, mail, now - 300}, {2, mail, now - 299.9}});
    index.rowStored({3, mail, now + 299.9});
    index.rowStored({4, mail, now + 300});
    index.rowStored({5, {"mail", "Title", "Other"}, now});
    index.rowStored({6, {"mail", "Other", "Body"}, now});
    index.rowStored({7, {"other", "Title", "Body"}, now});
    EXPECT_THAT(index.candidates(mail, now), UnorderedElementsAre(2, 3));
}

TEST(DuplicateIndexTest, TellsTextsApartThatJoinToTheSame) {
    DuplicateIndex index = around(now, {{1, {"a", "bc", ""}, now}});
    EXPECT_THAT(index.candidates({"ab", "c", ""}, now), IsEmpty());
    EXPECT_THAT(index.candidates({"a", "b", "c"}, now), IsEmpty());
    EXPECT_THAT(index.candidates({"a", "bc", ""}, now), ElementsAre(1));
}

TEST(DuplicateIndexTest, IsToBeReadAnewOnceItHasGrownALot) {
    DuplicateIndex index = around(now);
    qint64 id = 0;
    while (index.covers(now, version) && id < 1000000)
        index.rowStored({++id, mail, now});
    EXPECT_GT(id, 1000);
    EXPECT_LT(id, 100000);
}

TEST(DuplicateIndexTest, GivesUpForOneDataVersion) {
    DuplicateIndex index = around(now);
    index.markUnusable(version);
    EXPECT_TRUE(index.isUnusable(version));
    EXPECT_FALSE(index.isUnusable(version + 1));
    EXPECT_FALSE(index.covers(now, version));
    index.clear();
    EXPECT_FALSE(index.isUnusable(version));
}

} // namespace
} // namespace tessarine

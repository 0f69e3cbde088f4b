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
constexpr double moment = 785000000.0;

const ProbedTexts mail{"mail", "Title", "Body"};

DuplicateIndex around(double timestamp, const std::vector<DuplicateIndex::Row>& rows = {}) {
    DuplicateIndex index;
    index.fill(rows, timestamp - 600, timestamp + 3600, version);
    return index;
}

TEST(DuplicateIndexTest, CoversNothingAtFirst) {
    EXPECT_FALSE(DuplicateIndex().covers(moment, version));
}

TEST(DuplicateIndexTest, CoversWhatLiesWithItsWholeReachInTheSpanRead) {
    const DuplicateIndex index = around(moment);
    EXPECT_TRUE(index.covers(moment, version));
    EXPECT_TRUE(index.covers(moment - 299, version));
    EXPECT_FALSE(index.covers(moment - 299.5, version));
    EXPECT_TRUE(index.covers(moment + 3299, version));
    EXPECT_FALSE(index.covers(moment + 3299.5, version));
    EXPECT_FALSE(index.covers(std::numeric_limits<double>::infinity(), version));
    EXPECT_FALSE(index.covers(std::numeric_limits<double>::quiet_NaN(), version));
}

TEST(DuplicateIndexTest, IsNotTrustedAfterAnotherConnectionWrote) {
    EXPECT_FALSE(around(moment).covers(moment, version + 1));
}

TEST(DuplicateIndexTest, NamesTheRowsWithTheseTextsWithinReach) {
    DuplicateIndex index = around(moment, {{1, mail, moment - 300}, {2, mail, moment - 299.9}});
    index.rowStored({3, mail, moment + 299.9});
    index.rowStored({4, mail, moment + 300});
    index.rowStored({5, {"mail", "Title", "Other"}, moment});
    index.rowStored({6, {"mail", "Other", "Body"}, moment});
    index.rowStored({7, {"other", "Title", "Body"}, moment});
    EXPECT_THAT(index.candidates(mail, moment), UnorderedElementsAre(2, 3));
}

TEST(DuplicateIndexTest, TellsTextsApartThatJoinToTheSame) {
    DuplicateIndex index = around(moment, {{1, {"a", "bc", ""}, moment}});
    EXPECT_THAT(index.candidates({"ab", "c", ""}, moment), IsEmpty());
    EXPECT_THAT(index.candidates({"a", "b", "c"}, moment), IsEmpty());
    EXPECT_THAT(index.candidates({"a", "bc", ""}, moment), ElementsAre(1));
}

TEST(DuplicateIndexTest, IsToBeReadAnewOnceItHasGrownALot) {
    DuplicateIndex index = around(moment);
    qint64 id = 0;
    while (index.covers(moment, version) && id < 1000000)
        index.rowStored({++id, mail, moment});
    EXPECT_GT(id, 1000);
    EXPECT_LT(id, 100000);
}

TEST(DuplicateIndexTest, GivesUpForOneDataVersion) {
    DuplicateIndex index = around(moment);
    index.markUnusable(version);
    EXPECT_TRUE(index.isUnusable(version));
    EXPECT_FALSE(index.isUnusable(version + 1));
    EXPECT_FALSE(index.covers(moment, version));
    index.clear();
    EXPECT_FALSE(index.isUnusable(version));
}

} // namespace
} // namespace tessarine

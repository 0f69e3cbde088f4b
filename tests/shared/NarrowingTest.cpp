#include "shared/Narrowing.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

#include <limits>

namespace tessarine {
namespace {

TEST(NarrowToInt32, PassesWhatFits) {
    EXPECT_EQ(narrowToInt32(0), 0);
    EXPECT_EQ(narrowToInt32(-1), -1);
    EXPECT_EQ(narrowToInt32(1500), 1500);
}

TEST(NarrowToInt32, PassesBothEdges) {
    EXPECT_EQ(narrowToInt32(Q_INT64_C(2147483647)), 2147483647);
    EXPECT_EQ(narrowToInt32(Q_INT64_C(-2147483648)), std::numeric_limits<int>::min());
}

TEST(NarrowToInt32DeathTest, EndsTheProcessOneAboveTheRange) {
    EXPECT_DEATH(narrowToInt32(Q_INT64_C(2147483648)), "2147483648 does not fit");
}

TEST(NarrowToInt32DeathTest, EndsTheProcessOneBelowTheRange) {
    EXPECT_DEATH(narrowToInt32(Q_INT64_C(-2147483649)), "-2147483649 does not fit");
}

TEST(NarrowToInt32DeathTest, EndsTheProcessWhereTheLowHalfAloneWouldFit) {
    EXPECT_DEATH(narrowToInt32(Q_INT64_C(4294967303)), "4294967303 does not fit");
}

TEST(NarrowToInt32DeathTest, EndsTheProcessAtTheEndsOfSixtyFourBits) {
    EXPECT_DEATH(narrowToInt32(std::numeric_limits<qint64>::max()), "does not fit");
    EXPECT_DEATH(narrowToInt32(std::numeric_limits<qint64>::min()), "does not fit");
}

} // namespace
} // namespace tessarine

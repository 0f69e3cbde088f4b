#include "store/HoardStats.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

#include <limits>

namespace tessarine {
namespace {

struct Size {
    const char* name;
    qint64 bytes;
    const char* text;
};

class FormattedSize : public ::testing::TestWithParam<Size> {};

TEST_P(FormattedSize, IsInUnitsOf1024) {
    HoardStats stats;
    stats.fileSizeBytes = GetParam().bytes;
    EXPECT_EQ(stats.formattedSize().toStdString(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, FormattedSize,
    ::testing::Values(Size{"Zero", 0, "0 B"}, Size{"Negative", -5, "-5 B"}, Size{"One", 1, "1 B"},
                      Size{"TheLastInBytes", 1023, "1023 B"},
                      Size{"TheFirstInKilobytes", 1024, "1.0 KB"},
                      Size{"OneAndAHalfKilobytes", 1536, "1.5 KB"},
                      Size{"TheLastInKilobytes", 1048575, "1024.0 KB"},
                      Size{"TheFirstInMegabytes", 1048576, "1.00 MB"},
                      Size{"SomeMegabytes", 12635341, "12.05 MB"},
                      Size{"TheMiddleOfTwoTenths", 1280, "1.2 KB"},
                      Size{"TheMiddleOfTwoHundredths", 1179648, "1.12 MB"},
                      Size{"TheLastInMegabytes", 1073741823, "1024.00 MB"},
                      Size{"TheFirstInGigabytes", 1073741824, "1.00 GB"},
                      Size{"ManyGigabytes", Q_INT64_C(5497558138880), "5120.00 GB"},
                      Size{"ALargeNegative", -1048576, "-1048576 B"}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(HoardStatsRecord, IsEmptyAtFirst) {
    const HoardStats stats;
    EXPECT_EQ(stats.totalCount, 0);
    EXPECT_EQ(stats.pinnedCount, 0);
    EXPECT_EQ(stats.distinctAppsCount, 0);
    EXPECT_EQ(stats.firstTimestamp, std::nullopt);
    EXPECT_EQ(stats.lastTimestamp, std::nullopt);
    EXPECT_EQ(stats.fileSizeBytes, 0);
}

} // namespace
} // namespace tessarine

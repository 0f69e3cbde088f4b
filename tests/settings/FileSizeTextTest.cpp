#include "settings/FileSizeText.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

#include <limits>

namespace tessarine {
namespace {

struct SizeInWords {
    qint64 bytes;
    const char* text;
};

class FileSizeTextTest : public ::testing::TestWithParam<SizeInWords> {};

TEST_P(FileSizeTextTest, IsInUnitsOfAThousand) {
    EXPECT_EQ(fileSizeText(GetParam().bytes), QString::fromUtf8(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, FileSizeTextTest,
    ::testing::Values(SizeInWords{0, "Zero KB"}, SizeInWords{-5, "Zero KB"},
                      SizeInWords{1, "1 byte"}, SizeInWords{2, "2 bytes"},
                      SizeInWords{999, "999 bytes"}, SizeInWords{1000, "1 KB"},
                      SizeInWords{1499, "1 KB"}, SizeInWords{1500, "2 KB"},
                      SizeInWords{24576, "25 KB"}, SizeInWords{999499, "999 KB"},
                      SizeInWords{999500, "1 MB"}, SizeInWords{1000000, "1 MB"},
                      SizeInWords{1250000, "1.3 MB"}, SizeInWords{1949000, "1.9 MB"},
                      SizeInWords{2000000, "2 MB"}, SizeInWords{999949999, "999.9 MB"},
                      SizeInWords{999950000, "1 GB"}, SizeInWords{3450000000, "3.45 GB"},
                      SizeInWords{3400000000, "3.4 GB"}, SizeInWords{7123456789012, "7.12 TB"},
                      SizeInWords{std::numeric_limits<qint64>::max(), "9,223,372.04 TB"}));

} // namespace
} // namespace tessarine

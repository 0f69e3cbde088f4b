#include "shared/NumberText.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

#include <limits>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

TEST(GroupedNumber, HasTheGroupsAndDigitsOfTheLocale) {
    EXPECT_EQ(groupedNumber(1234567, "en_US"), u"1,234,567"_qs);
    EXPECT_EQ(groupedNumber(1234567, "de_DE"), u"1.234.567"_qs);
    EXPECT_EQ(groupedNumber(1234567, "hi_IN"), u"12,34,567"_qs);
    EXPECT_EQ(groupedNumber(1234567, "ar_EG"), u"١٬٢٣٤٬٥٦٧"_qs);
}

TEST(GroupedNumber, TakesAnyNumber) {
    EXPECT_EQ(groupedNumber(0, "en_US"), u"0"_qs);
    EXPECT_EQ(groupedNumber(999, "en_US"), u"999"_qs);
    EXPECT_EQ(groupedNumber(-1000, "en_US"), u"-1,000"_qs);
    EXPECT_EQ(groupedNumber(std::numeric_limits<qint64>::max(), "en_US"),
              u"9,223,372,036,854,775,807"_qs);
}

TEST(GroupedNumber, HasPlainDigitsInNoLocale) {
    EXPECT_EQ(groupedNumber(12, "C"), u"12"_qs);
    EXPECT_EQ(groupedNumber(12, ""), u"12"_qs);
}

} // namespace
} // namespace tessarine

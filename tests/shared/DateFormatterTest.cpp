#include "shared/DateFormatter.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

#include <limits>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

// 2025-11-16 15:33:20 UTC, by date(1) of 785000000 + 978307200.
constexpr double afternoon = 785000000.0;

QString day(const char* locale) {
    return DateFormatter::withPattern(u"yyyy-MM-dd"_qs, locale, u"UTC"_qs).text(afternoon);
}

TEST(DateFormatter, FollowsItsPattern) {
    EXPECT_EQ(day("en_US"), u"2025-11-16"_qs);
    EXPECT_EQ(
        DateFormatter::withPattern(u"d MMMM yyyy, HH:mm"_qs, "en_US", u"UTC"_qs).text(afternoon),
        u"16 November 2025, 15:33"_qs);
}

TEST(DateFormatter, HasTheNamesDigitsAndCalendarOfTheLocale) {
    EXPECT_EQ(DateFormatter::withPattern(u"d MMMM"_qs, "de_DE", u"UTC"_qs).text(0), u"1 Januar"_qs);
    EXPECT_EQ(day("ar_EG"), u"٢٠٢٥-١١-١٦"_qs);
    EXPECT_EQ(day("th_TH"), u"2568-11-16"_qs); // 543 years ahead
    EXPECT_EQ(day("C"), u"2025-11-16"_qs);
}

TEST(DateFormatter, IsInTheTimeZone) {
    EXPECT_EQ(DateFormatter::withPattern(u"HH:mm:ss"_qs, "en_US", u"Asia/Tokyo"_qs).text(afternoon),
              u"00:33:20"_qs);
}

TEST(DateFormatter, IsEmptyForWhatIsNoMoment) {
    const auto formatter = DateFormatter::withPattern(u"yyyy"_qs, "en_US");
    EXPECT_EQ(formatter.text(std::numeric_limits<double>::quiet_NaN()), QString());
    EXPECT_EQ(formatter.text(-std::numeric_limits<double>::infinity()), QString());
}

TEST(DateFormatter, CanBeHandedOn) {
    auto first = DateFormatter::withPattern(u"yyyy"_qs, "en_US", u"UTC"_qs);
    const DateFormatter second = std::move(first);
    EXPECT_EQ(second.text(0), u"2001"_qs);
}

} // namespace
} // namespace tessarine

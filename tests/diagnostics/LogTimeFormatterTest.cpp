#include "diagnostics/LogTimeFormatter.h"

#include "support/Printers.h"
#include "support/TimeZoneScope.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

// 2025-11-16 15:33:20 UTC, by date(1) of 785000000 + 978307200.
constexpr double logMoment = 785000000.0;

class LogTimeFormatterTest : public ::testing::Test {
protected:
    const testing::TimeZoneScope zone_{"UTC"};
    const LogTimeFormatter times_{"en_US"};
};

TEST_F(LogTimeFormatterTest, ShowsThousandths) {
    EXPECT_EQ(times_.text(logMoment), u"15:33:20.000"_qs);
    EXPECT_EQ(times_.text(logMoment + 0.123), u"15:33:20.123"_qs);
    EXPECT_EQ(times_.text(logMoment + 0.5), u"15:33:20.500"_qs);
    EXPECT_EQ(times_.text(logMoment + 0.007), u"15:33:20.007"_qs);
}

TEST_F(LogTimeFormatterTest, CutsWhatIsLessOff) {
    EXPECT_EQ(times_.text(logMoment + 0.9994), u"15:33:20.999"_qs);
    EXPECT_EQ(times_.text(logMoment + 0.9999999), u"15:33:21.000"_qs) << "the next microsecond";
}

TEST_F(LogTimeFormatterTest, ShowsEachThousandthAsItWasGiven) {
    for (int i = 0; i < 1000; ++i) {
        const QString expected = u"15:33:20."_qs + QString::number(1000 + i).sliced(1);
        ASSERT_EQ(times_.text(logMoment + i / 1000.0), expected);
    }
}

TEST_F(LogTimeFormatterTest, FollowsTheClockAndTheDigitsOfTheLocale) {
    const testing::TimeZoneScope tokyo("Asia/Tokyo");
    EXPECT_EQ(times_.text(logMoment), u"00:33:20.000"_qs);
    EXPECT_EQ(LogTimeFormatter("ar_EG").text(logMoment + 0.25), u"٠٠:٣٣:٢٠.٢٥٠"_qs);
}

} // namespace
} // namespace tessarine

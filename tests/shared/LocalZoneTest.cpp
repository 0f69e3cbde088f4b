#include "shared/LocalZone.h"

#include "shared/DateFormatter.h"
#include "support/Printers.h"
#include "support/TimeZoneScope.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::TimeZoneScope;

// 2025-11-16 15:33:20 UTC, by date(1) of 785000000 + 978307200.
constexpr double afternoon = 785000000.0;

QString clockTime() {
    return DateFormatter::withPattern(u"HH:mm"_qs, "en_US").text(afternoon);
}

TEST(LocalZone, HasAnotherNumberInAnotherZone) {
    const TimeZoneScope rome("Europe/Rome");
    const int numberInRome = localZoneNumber();
    EXPECT_EQ(localZoneNumber(), numberInRome);
    const TimeZoneScope tokyo("Asia/Tokyo");
    EXPECT_NE(localZoneNumber(), numberInRome);
}

TEST(LocalZone, IsToldFromOneThatOnceHadOtherTimes) {
    const TimeZoneScope istanbul("Europe/Istanbul"); // without summer time since 2016
    const int number = localZoneNumber();
    const TimeZoneScope riyadh("Asia/Riyadh"); // without any
    EXPECT_NE(localZoneNumber(), number);
}

TEST(LocalZone, IsFollowedByFormattersMadeLater) {
    const TimeZoneScope rome("Europe/Rome");
    EXPECT_EQ(clockTime(), u"16:33"_qs);
    {
        const TimeZoneScope tokyo("Asia/Tokyo");
        EXPECT_EQ(clockTime(), u"00:33"_qs);
    }
    EXPECT_EQ(clockTime(), u"16:33"_qs);
}

} // namespace
} // namespace tessarine

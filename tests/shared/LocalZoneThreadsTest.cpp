#include "shared/DateFormatter.h"
#include "shared/DayKey.h"
#include "shared/LocalZone.h"
#include "support/Printers.h"
#include "support/TimeZoneScope.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

// 2025-11-16 15:33:20 UTC, by date(1) of 785000000 + 978307200.
constexpr double firstMoment = 785000000.0;

// Some years of days, each at the same time of day; counts those that are not as in Tokyo.
void showDays(int* wrong) {
    const auto time = DateFormatter::withPattern(u"HH:mm"_qs, "en_US");
    for (int day = 0; day < 1500; ++day) {
        const double moment = firstMoment + 86400.0 * day;
        const bool isRight = time.text(moment) == u"00:33"_qs &&
                             static_cast<double>(wallTime(moment)) == moment + 32400 &&
                             startOfDay(dayKey(moment)) == moment - 2000;
        *wrong += isRight && localZoneNumber() > 0 ? 0 : 1;
    }
}

TEST(LocalZoneThreads, AllSeeOneZone) {
    const testing::TimeZoneScope tokyo("Asia/Tokyo"); // nine hours ahead all year
    std::vector<int> wrong(4, 0);
    std::vector<std::thread> threads;
    threads.reserve(wrong.size());
    for (int& count : wrong)
        threads.emplace_back(showDays, &count);
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(wrong, std::vector<int>(4, 0));
}

} // namespace
} // namespace tessarine

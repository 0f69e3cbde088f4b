#include "shared/FreshId.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <thread>
#include <vector>

namespace tessarine {
namespace {

TEST(FreshId, IsARandomUuidOfTheStandardVariant) {
    for (int i = 0; i < 1000; ++i) {
        const QUuid id = freshId();
        ASSERT_EQ(id.version(), QUuid::Random);
        ASSERT_EQ(id.variant(), QUuid::DCE);
    }
}

TEST(FreshId, NeverComesTwiceInOneThread) {
    std::set<QUuid> ids;
    for (int i = 0; i < 100000; ++i)
        ids.insert(freshId());
    EXPECT_EQ(ids.size(), 100000U);
}

TEST(FreshId, DiffersBetweenThreads) {
    std::array<std::vector<QUuid>, 4> made;
    std::vector<std::thread> threads;
    threads.reserve(made.size());
    for (std::vector<QUuid>& ids : made)
        threads.emplace_back([&ids] {
            for (int i = 0; i < 1000; ++i)
                ids.push_back(freshId());
        });
    for (std::thread& thread : threads)
        thread.join();
    std::set<QUuid> all;
    for (const std::vector<QUuid>& ids : made)
        all.insert(ids.begin(), ids.end());
    EXPECT_EQ(all.size(), 4000U);
}

// Each of the 122 bits that are free is as often set as not: among 20,000 ids the count of one bit
// has a standard deviation of 71, so a bound of 700 fails by chance in no lifetime.
TEST(FreshId, HasEachFreeBitSetInHalfOfTheIds) {
    constexpr int count = 20000;
    std::array<int, 128> set{};
    for (int i = 0; i < count; ++i) {
        const QByteArray bytes = freshId().toRfc4122();
        for (int bit = 0; bit < 128; ++bit)
            set[std::size_t(bit)] += (uchar(bytes[bit / 8]) >> (7 - bit % 8)) & 1;
    }
    for (int bit = 0; bit < 128; ++bit) {
        const bool isFixed = (bit >= 48 && bit < 52) || bit == 64 || bit == 65;
        if (isFixed)
            continue;
        EXPECT_NEAR(set[std::size_t(bit)], count / 2.0, 700) << "bit " << bit;
    }
}

} // namespace
} // namespace tessarine

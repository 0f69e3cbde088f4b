#include "shared/AliveGuard.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace tessarine {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(AliveGuard, RunsTheFunctionWithItsArgumentsWhileTheObjectLives) {
    const AliveGuard alive;
    std::vector<std::string> calls;
    const std::function<void(const std::string&, int)> guarded =
        alive.guard([&](const std::string& text, int number) {
            calls.push_back(text + std::to_string(number));
        });
    guarded("a", 1);
    guarded("b", 2);
    EXPECT_THAT(calls, ElementsAre("a1", "b2"));
}

TEST(AliveGuard, DoesNothingOnceTheObjectIsGone) {
    std::optional<AliveGuard> alive(std::in_place);
    std::vector<int> calls;
    const std::function<void()> guarded = alive->guard([&] { calls.push_back(1); });
    const std::function<void()> copy = guarded;
    alive.reset();
    guarded();
    copy();
    EXPECT_THAT(calls, IsEmpty());
}

TEST(AliveGuard, FollowsItsOwnObjectOnly) {
    std::optional<AliveGuard> first(std::in_place);
    const AliveGuard second;
    std::vector<int> calls;
    const std::function<void()> ofFirst = first->guard([&] { calls.push_back(1); });
    const std::function<void()> ofSecond = second.guard([&] { calls.push_back(2); });
    first.reset();
    ofFirst();
    ofSecond();
    EXPECT_THAT(calls, ElementsAre(2));
}

TEST(AliveGuard, ATokenOutlivesTheObject) {
    std::optional<AliveGuard> alive(std::in_place);
    const AliveGuard::Token token = alive->token();
    EXPECT_TRUE(token.isAlive());
    alive.reset();
    EXPECT_FALSE(token.isAlive());
}

TEST(AliveGuard, AnotherThreadMayAskAndLetGo) {
    std::optional<AliveGuard> alive(std::in_place);
    bool wasAlive = false;
    std::thread worker([&wasAlive, token = alive->token(), guarded = alive->guard([] {})] {
        wasAlive = token.isAlive();
        const auto copy = guarded; // NOLINT(performance-unnecessary-copy-initialization)
    });
    worker.join();
    EXPECT_TRUE(wasAlive);
}

} // namespace
} // namespace tessarine

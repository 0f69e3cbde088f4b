#include "platform/linux/AbstractSocketInstance.h"

#include "support/EventLoop.h"
#include "support/OrdinaryUser.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::turnFor;
using testing::turnsUntil;

// Names are the kernel's and shared by all processes, so each run has a name of its own.
std::string folderOfThisRun() {
    return "/data of test " + std::to_string(getpid());
}

class SingleInstanceTest : public ::testing::Test {
protected:
    const std::string folder = folderOfThisRun();
    AbstractSocketInstance first{folder};
    AbstractSocketInstance second{folder};
};

TEST_F(SingleInstanceTest, LetsTheFirstClaim) {
    EXPECT_TRUE(first.claim());
}

TEST_F(SingleInstanceTest, RefusesTheSecond) {
    ASSERT_TRUE(first.claim());
    EXPECT_FALSE(second.claim());
}

TEST_F(SingleInstanceTest, RefusesALongWaitingSecondThoughNobodyTakesRequests) {
    ASSERT_TRUE(first.claim());
    for (int i = 0; i < 20; ++i)
        EXPECT_FALSE(AbstractSocketInstance(folder).claim());
}

TEST_F(SingleInstanceTest, KeepsDataFoldersApart) {
    ASSERT_TRUE(first.claim());
    EXPECT_TRUE(AbstractSocketInstance(folder + "/other").claim());
}

TEST_F(SingleInstanceTest, KeepsFoldersWithLongEqualBeginningsApart) {
    const std::string beginning = folder + std::string(500, 'x');
    AbstractSocketInstance one(beginning + "1");
    AbstractSocketInstance two(beginning + "2");
    EXPECT_TRUE(one.claim());
    EXPECT_TRUE(two.claim());
}

TEST_F(SingleInstanceTest, GivesTheClaimBackWhenItGoes) {
    {
        AbstractSocketInstance passing(folder);
        ASSERT_TRUE(passing.claim());
    }
    EXPECT_TRUE(first.claim());
}

TEST_F(SingleInstanceTest, GivesTheClaimBackWhenItsProcessEnds) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0)
        _exit(AbstractSocketInstance(folder).claim() ? 0 : 1);
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    EXPECT_TRUE(first.claim());
}

TEST_F(SingleInstanceTest, RefusesASecondProcess) {
    ASSERT_TRUE(first.claim());
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0)
        _exit(AbstractSocketInstance(folder).claim() ? 0 : 1);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 1);
}

TEST_F(SingleInstanceTest, LetsAnotherUserClaim) {
    if (geteuid() != 0)
        GTEST_SKIP() << "needs two users";
    ASSERT_TRUE(first.claim());
    EXPECT_EQ(testing::asOrdinaryUser(
                  [&] { return QString::number(AbstractSocketInstance(folder).claim()); }),
              u"1"_qs);
}

TEST_F(SingleInstanceTest, BringsTheFirstToTheFront) {
    int activations = 0;
    ASSERT_TRUE(first.claim());
    first.onActivation([&] { ++activations; });
    ASSERT_FALSE(second.claim());
    second.activateFirst();
    EXPECT_TRUE(turnsUntil([&] { return activations > 0; }));
    turnFor(50);
    EXPECT_EQ(activations, 1);
}

TEST_F(SingleInstanceTest, DoesNotComeToTheFrontForAClaimAlone) {
    int activations = 0;
    ASSERT_TRUE(first.claim());
    first.onActivation([&] { ++activations; });
    ASSERT_FALSE(second.claim());
    turnFor(100);
    EXPECT_EQ(activations, 0);
}

TEST_F(SingleInstanceTest, ComesToTheFrontForARequestFromBeforeItListened) {
    int activations = 0;
    ASSERT_TRUE(first.claim());
    second.activateFirst();
    first.onActivation([&] { ++activations; });
    EXPECT_TRUE(turnsUntil([&] { return activations == 1; }));
}

TEST_F(SingleInstanceTest, ComesToTheFrontAsOftenAsItIsAsked) {
    int activations = 0;
    ASSERT_TRUE(first.claim());
    first.onActivation([&] { ++activations; });
    second.activateFirst();
    second.activateFirst();
    EXPECT_TRUE(turnsUntil([&] { return activations == 2; }));
}

TEST_F(SingleInstanceTest, AsksNobodyWhereThereIsNoFirst) {
    second.activateFirst();
}

} // namespace
} // namespace tessarine

// When the banner process launches and terminates, and what it answers at the start.

#include "platform/linux/banners/BannerProcessFixture.h"

#include <thread>

namespace tessarine {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::ManualScheduler;
using testing::otherPid;
using testing::pid;
using ::testing::SizeIs;

using BannerLifecycleTest = testing::BannerProcessFixture;

TEST_F(BannerLifecycleTest, LaunchesAndTerminatesWithTheNamesOwner) {
    EXPECT_THAT(runningPids(), IsEmpty());
    daemonTakesTheName();
    EXPECT_THAT(runningPids(), ElementsAre(pid));
    daemonGoes();
    EXPECT_THAT(runningPids(), IsEmpty());
    EXPECT_THAT(told, ElementsAre(u"launch 4711"_qs, u"termination 4711"_qs));
}

TEST_F(BannerLifecycleTest, TerminatesBeforeItsSuccessorLaunches) {
    daemonTakesTheName();
    daemonTakesTheName(otherPid);
    EXPECT_THAT(runningPids(), ElementsAre(otherPid));
    EXPECT_THAT(told, ElementsAre(u"launch 4711"_qs, u"termination 4711"_qs, u"launch 4712"_qs));
}

TEST_F(BannerLifecycleTest, TellsTwoDaemonsInOneProcessApart) {
    daemonTakesTheName();
    daemonTakesTheName();
    EXPECT_THAT(told, ElementsAre(u"launch 4711"_qs, u"termination 4711"_qs, u"launch 4711"_qs));
}

TEST_F(BannerLifecycleTest, ChangesOnlyWhenTheMainThreadIsTold) {
    daemonTakesTheName();
    process->setService({true, BannerOwner{otherPid, ++lastTurn}});
    EXPECT_THAT(runningPids(), ElementsAre(pid)) << "no event was given yet";
    scheduler.settle();
    EXPECT_THAT(runningPids(), ElementsAre(otherPid));
}

TEST_F(BannerLifecycleTest, StaysUntilItsBannersAreTaken) {
    daemonTakesTheName();
    const auto observer = attach();
    announceWithoutTurningTheLoop(u"last words"_qs);
    daemonGoes();
    scheduler.advance(5);
    EXPECT_THAT(told, ElementsAre(u"launch 4711"_qs));
    EXPECT_THAT(runningPids(), ElementsAre(pid));
    EXPECT_THAT(eventTimes, SizeIs(5)) << "it goes on reminding";
    EXPECT_THAT(takenTitles(), ElementsAre(u"last words"_qs));
    scheduler.settle();
    EXPECT_THAT(told, ElementsAre(u"launch 4711"_qs, u"termination 4711"_qs));
    EXPECT_THAT(runningPids(), IsEmpty());
}

TEST_F(BannerLifecycleTest, LeavesItsBannersToItsSuccessor) {
    daemonTakesTheName();
    announce(u"last words"_qs);
    daemonGoes();
    daemonTakesTheName(otherPid);
    EXPECT_THAT(told, ElementsAre(u"launch 4711"_qs, u"termination 4711"_qs, u"launch 4712"_qs));
    EXPECT_THAT(takenTitles(pid), IsEmpty());
    EXPECT_THAT(takenTitles(otherPid), ElementsAre(u"last words"_qs));
    scheduler.settle();
    EXPECT_THAT(told, SizeIs(3));
}

TEST_F(BannerLifecycleTest, GoesWithTheBus) {
    daemonTakesTheName();
    EXPECT_TRUE(accessibility.isProcessTrusted());
    busGoes();
    EXPECT_FALSE(accessibility.isProcessTrusted());
    EXPECT_THAT(runningPids(), IsEmpty());
    EXPECT_THAT(told, ElementsAre(u"launch 4711"_qs, u"termination 4711"_qs));
}

TEST_F(BannerLifecycleTest, ShowsItsBannersWhenTheBusIsGone) {
    daemonTakesTheName();
    const auto observer = attach();
    announce(u"last words"_qs);
    busGoes();
    EXPECT_FALSE(accessibility.isProcessTrusted());
    EXPECT_THAT(takenTitles(), ElementsAre(u"last words"_qs));
    scheduler.settle();
    EXPECT_THAT(told, ElementsAre(u"launch 4711"_qs, u"termination 4711"_qs));
}

TEST_F(BannerLifecycleTest, LaunchesWhenTheBusIsBack) {
    daemonTakesTheName();
    busGoes();
    daemonTakesTheName();
    EXPECT_TRUE(accessibility.isProcessTrusted());
    EXPECT_THAT(told, ElementsAre(u"launch 4711"_qs, u"termination 4711"_qs, u"launch 4711"_qs));
}

TEST_F(BannerLifecycleTest, IsTrustedWithoutADaemon) {
    daemonGoes();
    EXPECT_TRUE(accessibility.isProcessTrusted());
    EXPECT_THAT(runningPids(), IsEmpty());
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(BannerLifecycleTest, TellsNobodyWhoseObservationEnded) {
    launches.reset();
    daemonTakesTheName();
    daemonGoes();
    EXPECT_THAT(told, ElementsAre(u"termination 4711"_qs));
}

TEST_F(BannerLifecycleTest, LetsAnObservationEndInItsOwnEvent) {
    std::unique_ptr<WorkspaceObservation> once;
    int launches = 0;
    once = workspace.observe(WorkspaceEvent::didLaunchApplication, [&](const auto&) {
        ++launches;
        once.reset();
    });
    daemonTakesTheName();
    daemonTakesTheName(otherPid);
    EXPECT_EQ(launches, 1);
}

TEST_F(BannerLifecycleTest, ForgetsTheIdsOfAServiceThatIsGone) {
    daemonTakesTheName();
    announceWithoutTurningTheLoop(u"same"_qs, 1U);
    process->forgetIds(NotificationService::freedesktop);
    announceWithoutTurningTheLoop(u"same"_qs, 1U);
    EXPECT_THAT(takenTitles(), ElementsAre(u"same"_qs, u"same"_qs));
}

TEST_F(BannerLifecycleTest, DoesNothingOnceItIsDestroyed) {
    auto gone = std::make_shared<BannerProcess>(scheduler);
    gone->setService({true, BannerOwner{pid, 1}});
    const AXElementRef application = gone->applicationElement(pid);
    const auto observation = gone->onEvent([](const auto&, const auto&) {});
    gone->announce({{":1.1", 1}, 0U, {{}, u"one"_qs, {}}, 0});
    const auto windows = testing::elements(accessibility, application, ax::windows);
    const auto group = testing::elements(accessibility, windows.at(0), ax::children).at(0);
    gone->setService({true, std::nullopt});
    gone.reset();
    scheduler.advance(5);
    EXPECT_EQ(accessibility.copyAttributeValue(application, ax::windows), std::nullopt);
    EXPECT_EQ(accessibility.takeAnnouncement(group), std::nullopt);
}

// The first answer.

TEST(BannerProcessAtTheStart, AnswersWithWhatTheBusSaidFirst) {
    ManualScheduler scheduler;
    const auto process = std::make_shared<BannerProcess>(scheduler);
    std::vector<qint32> launched;
    const auto token = process->onLaunch([&](qint32 pid) { launched.push_back(pid); });
    process->setService({true, BannerOwner{pid, 1}});
    EXPECT_TRUE(process->isTrusted());
    EXPECT_EQ(process->pid(), pid);
    scheduler.settle();
    EXPECT_THAT(launched, IsEmpty()) << "it was running when it was first asked for";
}

TEST(BannerProcessAtTheStart, WaitsForTheFirstAnswer) {
    ManualScheduler scheduler;
    const auto process = std::make_shared<BannerProcess>(scheduler, std::chrono::minutes(1));
    std::thread bus([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        process->setService({true, BannerOwner{pid, 1}});
    });
    EXPECT_TRUE(process->isTrusted());
    EXPECT_EQ(process->pid(), pid);
    bus.join();
}

// A second for each of a hundred questions would be far more than a minute.
TEST(BannerProcessAtTheStart, WaitsOneSecondInAll) {
    ManualScheduler scheduler;
    const auto before = std::chrono::steady_clock::now();
    const auto process = std::make_shared<BannerProcess>(scheduler);
    EXPECT_FALSE(process->isTrusted());
    EXPECT_GE(std::chrono::steady_clock::now() - before, std::chrono::seconds(1));
    for (int question = 0; question < 99; ++question)
        EXPECT_EQ(process->pid(), std::nullopt);
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::minutes(1));
}

TEST(BannerProcessAtTheStart, LaunchesWhenTheAnswerCameTooLate) {
    ManualScheduler scheduler;
    const auto process = std::make_shared<BannerProcess>(scheduler, std::chrono::milliseconds(1));
    std::vector<qint32> launched;
    const auto token = process->onLaunch([&](qint32 pid) { launched.push_back(pid); });
    EXPECT_FALSE(process->isTrusted());
    process->setService({true, BannerOwner{pid, 1}});
    scheduler.settle();
    EXPECT_THAT(launched, ElementsAre(pid));
    EXPECT_TRUE(process->isTrusted());
}

} // namespace
} // namespace tessarine

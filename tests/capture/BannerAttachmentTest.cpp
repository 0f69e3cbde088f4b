#include "capture/BannerLayerFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace tessarine {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace testing;

// What keeps the observer attached.
class BannerAttachmentTest : public BannerLayerFixture {};

// Sleep and wake

TEST_F(BannerAttachmentTest, SleepDetaches) {
    launch();
    post(WorkspaceEvent::willSleep);
    EXPECT_FALSE(listener_->hasAXObserver());
    EXPECT_EQ(listener_->observedPid(), 0);
    EXPECT_EQ(system_.accessibility.attachedObservers(), 0U);
    EXPECT_EQ(status(), u"Inactive (sleep)"_qs);
    EXPECT_THAT(logged(), ElementsAre(attached(), sleeping));
}

TEST_F(BannerAttachmentTest, AReactionIsATaskOfItsOwn) {
    launch();
    system_.workspace.post(WorkspaceEvent::willSleep);
    EXPECT_TRUE(listener_->hasAXObserver());
    system_.scheduler.settle();
    EXPECT_FALSE(listener_->hasAXObserver());
}

TEST_F(BannerAttachmentTest, WakeAttachesAfterTwoSeconds) {
    launch();
    post(WorkspaceEvent::willSleep);
    post(WorkspaceEvent::didWake);
    EXPECT_EQ(status(), u"Restarting after wake..."_qs);
    advance(1.75);
    EXPECT_FALSE(listener_->hasAXObserver());
    EXPECT_EQ(status(), u"Restarting after wake..."_qs);
    advance(0.25);
    EXPECT_EQ(status(), u"Active (pid 501)"_qs);
    EXPECT_EQ(scans(), 2);
    EXPECT_THAT(logged(), ElementsAre(attached(), sleeping, woken, attached()));
}

TEST_F(BannerAttachmentTest, WakeWithoutASleepKeepsTheObserverUntilTheNewOneComes) {
    launch();
    post(WorkspaceEvent::didWake);
    EXPECT_TRUE(listener_->hasAXObserver());
    EXPECT_EQ(status(), u"Restarting after wake..."_qs);
    advance(2);
    EXPECT_EQ(system_.accessibility.attachedObservers(), 1U);
    EXPECT_EQ(status(), u"Active (pid 501)"_qs);
}

TEST_F(BannerAttachmentTest, WakeWithThePermissionRevokedStaysRestarting) {
    launch();
    post(WorkspaceEvent::willSleep);
    system_.accessibility.trusted = false;
    post(WorkspaceEvent::didWake);
    advance(60);
    EXPECT_FALSE(listener_->hasAXObserver());
    EXPECT_EQ(status(), u"Restarting after wake..."_qs);
    EXPECT_THAT(logged(), ElementsAre(attached(), sleeping, woken, skipped));
}

TEST_F(BannerAttachmentTest, WakeWithoutABannerProcessSearchesForIt) {
    launch();
    post(WorkspaceEvent::willSleep);
    endBannerProcess();
    post(WorkspaceEvent::didWake);
    advance(4);
    EXPECT_EQ(status(), u"Restarting after wake..."_qs);
    runBannerProcess(502);
    advance(1);
    EXPECT_EQ(status(), u"Active (pid 502)"_qs);
    EXPECT_THAT(logged(), ElementsAre(attached(), sleeping, woken, attached(502)));
}

TEST_F(BannerAttachmentTest, WakeDoesNothingForAListenerThatIsGoneMeanwhile) {
    launch();
    post(WorkspaceEvent::didWake);
    listener_.reset();
    advance(60);
    EXPECT_EQ(scans(), 1);
    EXPECT_THAT(logged(), ElementsAre(attached(), woken));
}

TEST_F(BannerAttachmentTest, TheDatabaseLayersSleepThroughASleep) {
    launch();
    post(WorkspaceEvent::willSleep);
    advance(30);
    EXPECT_EQ(diagnostics_->dbStatus(), u"Polling every 30s"_qs);
    EXPECT_TRUE(std::any_of(diagnostics_->entries().begin(), diagnostics_->entries().end(),
                            [](const DiagnosticEntry& entry) {
                                return entry.message.startsWith(u"Polling usernoted DB"_qs);
                            }));
}

// The banner process ending and starting

TEST_F(BannerAttachmentTest, TheEndOfTheBannerProcessDetaches) {
    launch();
    post(WorkspaceEvent::didTerminateApplication, process(pid));
    advance(60);
    EXPECT_FALSE(listener_->hasAXObserver());
    EXPECT_EQ(listener_->observedPid(), 0);
    EXPECT_EQ(status(), u"Inactive (process terminated)"_qs);
    EXPECT_THAT(logged(), ElementsAre(attached(), terminated));
}

TEST_F(BannerAttachmentTest, ALaunchOfTheBannerProcessAttachesAfterOneSecond) {
    launch();
    post(WorkspaceEvent::didTerminateApplication, process(pid));
    runBannerProcess(502);
    post(WorkspaceEvent::didLaunchApplication, process(502));
    EXPECT_EQ(status(), u"Inactive (process terminated)"_qs);
    advance(0.75);
    EXPECT_FALSE(listener_->hasAXObserver());
    advance(0.25);
    EXPECT_EQ(listener_->observedPid(), 502);
    EXPECT_EQ(status(), u"Active (pid 502)"_qs);
    EXPECT_THAT(logged(), ElementsAre(attached(), terminated, launched(502), attached(502)));
}

TEST_F(BannerAttachmentTest, AfterARestartTheNewProcessIsScanned) {
    launch();
    post(WorkspaceEvent::didTerminateApplication, process(pid));
    runBannerProcess(502);
    post(WorkspaceEvent::didLaunchApplication, process(502));
    advance(1);
    system_.accessibility.addBanner(502, u"Mail"_qs, {u"new"_qs});
    send(); // of the old one: it sets the throttle
    advance(1);
    send(system_.accessibility.application(502));
    EXPECT_THAT(stored(), ElementsAre(u"new"_qs));
}

TEST_F(BannerAttachmentTest, ALaunchWithThePidThatIsObservedDoesNothing) {
    launch();
    post(WorkspaceEvent::didLaunchApplication, process(pid));
    advance(60);
    EXPECT_EQ(scans(), 1);
    EXPECT_THAT(logged(), ElementsAre(attached()));
}

TEST_F(BannerAttachmentTest, ALaunchWithThePermissionRevokedIsSkipped) {
    launch();
    post(WorkspaceEvent::didTerminateApplication, process(pid));
    system_.accessibility.trusted = false;
    post(WorkspaceEvent::didLaunchApplication, process(502));
    advance(60);
    EXPECT_EQ(status(), u"Inactive (process terminated)"_qs);
    EXPECT_THAT(logged(), ElementsAre(attached(), terminated, launched(502), skipped));
}

TEST_F(BannerAttachmentTest, ALaunchDoesNothingForAListenerThatIsGoneMeanwhile) {
    launch();
    post(WorkspaceEvent::didLaunchApplication, process(502));
    listener_.reset();
    advance(60);
    EXPECT_EQ(scans(), 1);
}

TEST_F(BannerAttachmentTest, ALaunchDuringTheSearchLeavesOneObserver) {
    endBannerProcess();
    launch();
    advance(1);
    runBannerProcess(pid);
    post(WorkspaceEvent::didLaunchApplication, process(pid));
    advance(60);
    EXPECT_EQ(system_.accessibility.attachedObservers(), 1U);
    EXPECT_EQ(status(), u"Active (pid 501)"_qs);
}

struct OtherApplication {
    const char* name;
    std::optional<RunningApplication> application;
};

void PrintTo(const OtherApplication& other, std::ostream* out) {
    *out << other.name;
}

class EventsOfOthers : public BannerAttachmentTest,
                       public ::testing::WithParamInterface<OtherApplication> {};

TEST_P(EventsOfOthers, AnEndChangesNothing) {
    launch();
    post(WorkspaceEvent::didTerminateApplication, GetParam().application);
    advance(60);
    EXPECT_TRUE(listener_->hasAXObserver());
    EXPECT_EQ(status(), u"Active (pid 501)"_qs);
    EXPECT_THAT(logged(), ElementsAre(attached()));
}

TEST_P(EventsOfOthers, ALaunchChangesNothing) {
    launch();
    post(WorkspaceEvent::didLaunchApplication, GetParam().application);
    advance(60);
    EXPECT_EQ(scans(), 1);
    EXPECT_THAT(logged(), ElementsAre(attached()));
}

INSTANTIATE_TEST_SUITE_P(
    Applications, EventsOfOthers,
    ::testing::Values(OtherApplication{"AnotherId", RunningApplication{502, u"com.example.mail"_qs,
                                                                       std::nullopt}},
                      OtherApplication{"AnotherLetterCase",
                                       RunningApplication{502, u"com.apple.NotificationCenterUI"_qs,
                                                          std::nullopt}},
                      OtherApplication{
                          "TheObservedPidUnderAnotherId",
                          RunningApplication{pid, u"com.example.mail"_qs, std::nullopt}},
                      OtherApplication{"NoId", RunningApplication{502, QString(), std::nullopt}},
                      OtherApplication{"NoApplication", std::nullopt}),
    [](const ::testing::TestParamInfo<OtherApplication>& info) {
        return std::string(info.param.name);
    });

// The observations

TEST_F(BannerAttachmentTest, ConstructionObservesNothing) {
    EXPECT_EQ(system_.workspace.observers(), 0U);
}

TEST_F(BannerAttachmentTest, TheWorkspaceIsObservedWithoutThePermissionToo) {
    system_.accessibility.trusted = false;
    launch();
    EXPECT_EQ(system_.workspace.observers(), 4U);
}

TEST_F(BannerAttachmentTest, TheDestructorRemovesTheFourObservations) {
    launch();
    ASSERT_EQ(system_.workspace.observers(), 4U);
    listener_.reset();
    EXPECT_EQ(system_.workspace.observers(), 0U);
}

TEST_F(BannerAttachmentTest, AnEventOnItsWayToAListenerThatIsGoneSaysNothing) {
    launch();
    system_.workspace.post(WorkspaceEvent::willSleep);
    listener_.reset();
    system_.scheduler.settle();
    EXPECT_EQ(status(), u"Active (pid 501)"_qs);
    EXPECT_THAT(logged(), ElementsAre(attached()));
}

} // namespace
} // namespace tessarine

#include "capture/BannerLayerFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessarine {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace testing;

// Attaching to the banner process, and its events.
class BannerLayerTest : public BannerLayerFixture {};

// Attaching

TEST_F(BannerLayerTest, AttachesAtStart) {
    launch();
    EXPECT_TRUE(listener_->hasAXObserver());
    EXPECT_EQ(listener_->observedPid(), pid);
    EXPECT_EQ(system_.accessibility.attachedObservers(), 1U);
    EXPECT_EQ(status(), u"Active (pid 501)"_qs);
    EXPECT_THAT(logged(), ElementsAre(attached()));
}

TEST_F(BannerLayerTest, RegistersTheFourEventsOnTheRootInTheirOrder) {
    launch();
    const AXElementRef root = system_.accessibility.application(pid);
    using Registration = SimulatedAccessibility::Registration;
    EXPECT_THAT(system_.accessibility.registrations,
                ElementsAre(Registration{pid, root, u"AXWindowCreated"_qs},
                            Registration{pid, root, u"AXUIElementDestroyed"_qs},
                            Registration{pid, root, u"AXValueChanged"_qs},
                            Registration{pid, root, u"AXFocusedUIElementChanged"_qs}));
}

TEST_F(BannerLayerTest, TakesABannerThatIsAlreadyShown) {
    show(u"Mail"_qs, {u"Hello"_qs});
    launch();
    EXPECT_EQ(scans(), 1);
    EXPECT_THAT(stored(), ElementsAre(u"Hello"_qs));
}

TEST_F(BannerLayerTest, ObservesTheFirstOfTwoBannerProcesses) {
    system_.workspace.running = {
        {7, u"com.example.mail"_qs, std::nullopt}, process(502), process(501)};
    launch();
    EXPECT_EQ(listener_->observedPid(), 502);
}

TEST_F(BannerLayerTest, ASecondStartAddsNoObserver) {
    launch();
    listener_->start();
    system_.scheduler.settle();
    EXPECT_EQ(system_.accessibility.attachedObservers(), 1U);
    EXPECT_EQ(system_.workspace.observers(), 4U);
    EXPECT_EQ(scans(), 1);
    EXPECT_THAT(logged(), ElementsAre(attached()));
}

TEST_F(BannerLayerTest, ASecondAttachTakesTheFirstObserverDown) {
    launch();
    listener_->startAXObserver();
    system_.scheduler.settle();
    EXPECT_EQ(system_.accessibility.attachedObservers(), 1U);
    EXPECT_EQ(listener_->observedPid(), pid);
    EXPECT_EQ(scans(), 2);
    EXPECT_THAT(logged(), ElementsAre(attached(), attached()));
}

// The permission

TEST_F(BannerLayerTest, WithoutThePermissionStartWaits) {
    system_.accessibility.trusted = false;
    launch();
    advance(60);
    EXPECT_FALSE(listener_->hasAXObserver());
    EXPECT_EQ(listener_->observedPid(), 0);
    EXPECT_EQ(scans(), 0);
    EXPECT_EQ(status(), u"Waiting for Accessibility permission"_qs);
    EXPECT_THAT(logged(), ElementsAre(deferred));
}

TEST_F(BannerLayerTest, AGrantedPermissionAloneAttachesNothing) {
    system_.accessibility.trusted = false;
    launch();
    system_.accessibility.trusted = true;
    advance(60);
    EXPECT_FALSE(listener_->hasAXObserver());
}

TEST_F(BannerLayerTest, ACallAfterThePermissionAttaches) {
    system_.accessibility.trusted = false;
    launch();
    system_.accessibility.trusted = true;
    listener_->startAXObserver();
    EXPECT_EQ(status(), u"Active (pid 501)"_qs);
    EXPECT_THAT(logged(), ElementsAre(deferred, attached()));
}

TEST_F(BannerLayerTest, ACallWithoutThePermissionIsSkipped) {
    system_.accessibility.trusted = false;
    launch();
    listener_->startAXObserver();
    advance(60);
    EXPECT_FALSE(listener_->hasAXObserver());
    EXPECT_EQ(status(), u"Waiting for Accessibility permission"_qs);
    EXPECT_THAT(logged(), ElementsAre(deferred, skipped));
}

TEST_F(BannerLayerTest, ARevokedPermissionLeavesAnAttachedObserver) {
    launch();
    system_.accessibility.trusted = false;
    listener_->startAXObserver();
    EXPECT_TRUE(listener_->hasAXObserver());
    EXPECT_EQ(status(), u"Active (pid 501)"_qs);
    EXPECT_THAT(logged(), ElementsAre(attached(), skipped));
}

// The search for the banner process

TEST_F(BannerLayerTest, WithoutABannerProcessNothingIsSaid) {
    endBannerProcess();
    launch();
    advance(60);
    EXPECT_FALSE(listener_->hasAXObserver());
    EXPECT_EQ(status(), u"Initializing..."_qs);
    EXPECT_THAT(logged(), IsEmpty());
}

TEST_F(BannerLayerTest, ABannerProcessIsFoundWithinThreeSeconds) {
    endBannerProcess();
    launch();
    advance(0.5);
    runBannerProcess(pid);
    advance(2.25);
    EXPECT_FALSE(listener_->hasAXObserver());
    advance(0.25);
    EXPECT_EQ(status(), u"Active (pid 501)"_qs);
    EXPECT_THAT(logged(), ElementsAre(attached()));
}

TEST_F(BannerLayerTest, TheSearchGoesOnUntilTheProcessIsThereAndThenEnds) {
    endBannerProcess();
    launch();
    advance(301);
    runBannerProcess(pid);
    advance(3);
    EXPECT_TRUE(listener_->hasAXObserver());
    advance(60);
    EXPECT_EQ(scans(), 1);
}

TEST_F(BannerLayerTest, OnlyTheExactIdIsTheBannerProcess) {
    system_.workspace.running = {{pid, u"com.apple.NotificationCenterUI"_qs, std::nullopt}};
    launch();
    advance(60);
    EXPECT_FALSE(listener_->hasAXObserver());
}

TEST_F(BannerLayerTest, APermissionRevokedDuringTheSearchEndsIt) {
    endBannerProcess();
    launch();
    system_.accessibility.trusted = false;
    advance(3);
    system_.accessibility.trusted = true;
    runBannerProcess(pid);
    advance(60);
    EXPECT_FALSE(listener_->hasAXObserver());
    EXPECT_THAT(logged(), ElementsAre(skipped));
}

TEST_F(BannerLayerTest, TheSearchEndsWithTheListener) {
    endBannerProcess();
    launch();
    listener_.reset();
    runBannerProcess(pid);
    advance(60);
    EXPECT_EQ(system_.accessibility.attachedObservers(), 0U);
    EXPECT_THAT(logged(), IsEmpty());
}

// An observer that can't be made

TEST_F(BannerLayerTest, AFailedCreationSaysNothingAndIsNotRepeated) {
    system_.accessibility.refusesObservers = true;
    launch();
    system_.accessibility.refusesObservers = false;
    advance(60);
    EXPECT_FALSE(listener_->hasAXObserver());
    EXPECT_EQ(status(), u"Initializing..."_qs);
    EXPECT_EQ(scans(), 0);
    EXPECT_THAT(logged(), IsEmpty());
}

TEST_F(BannerLayerTest, AfterAFailedCreationALaunchWithTheNotedPidDoesNothing) {
    system_.accessibility.refusesObservers = true;
    launch();
    EXPECT_EQ(listener_->observedPid(), pid);
    system_.accessibility.refusesObservers = false;
    post(WorkspaceEvent::didLaunchApplication, process(pid));
    advance(60);
    EXPECT_FALSE(listener_->hasAXObserver());
    EXPECT_THAT(logged(), IsEmpty());
}

TEST_F(BannerLayerTest, AfterAFailedCreationALaunchWithAnotherPidAttaches) {
    system_.accessibility.refusesObservers = true;
    launch();
    system_.accessibility.refusesObservers = false;
    runBannerProcess(502);
    post(WorkspaceEvent::didLaunchApplication, process(502));
    advance(1);
    EXPECT_THAT(logged(), ElementsAre(launched(502), attached(502)));
}

TEST_F(BannerLayerTest, AfterAFailedCreationAWakeAttaches) {
    system_.accessibility.refusesObservers = true;
    launch();
    system_.accessibility.refusesObservers = false;
    post(WorkspaceEvent::didWake);
    advance(2);
    EXPECT_THAT(logged(), ElementsAre(woken, attached()));
}

TEST_F(BannerLayerTest, AFailedCreationLeavesTheEarlierObserverButNotesTheNewPid) {
    launch();
    system_.accessibility.refusesObservers = true;
    runBannerProcess(502);
    listener_->startAXObserver();
    EXPECT_EQ(listener_->observedPid(), 502);
    EXPECT_TRUE(listener_->hasAXObserver());
    EXPECT_EQ(system_.accessibility.attachedObservers(), 1U);
    EXPECT_EQ(status(), u"Active (pid 501)"_qs);
    send(); // from the process that is no longer noted
    EXPECT_EQ(scans(), 1);
}

// Events and the throttle

class EachEvent : public BannerLayerTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(EachEvent, LeadsToAScan) {
    launch();
    send(QString::fromUtf8(GetParam()));
    EXPECT_EQ(scans(), 2);
}

INSTANTIATE_TEST_SUITE_P(Names, EachEvent,
                         ::testing::Values("AXWindowCreated", "AXUIElementDestroyed",
                                           "AXValueChanged", "AXFocusedUIElementChanged"),
                         [](const auto& info) { return std::string(info.param); });

TEST_F(BannerLayerTest, ABannerThatAppearsIsStored) {
    launch();
    show(u"Mail, Hello, World"_qs, {u"Hello"_qs, u"World"_qs, u"5m ago"_qs});
    send(ax::windowCreated);
    EXPECT_THAT(stored(), ElementsAre(u"Hello"_qs));
}

TEST_F(BannerLayerTest, AnEventIsHandledInATaskOfItsOwn) {
    launch();
    system_.accessibility.send(system_.accessibility.application(pid), ax::windowCreated);
    EXPECT_EQ(system_.scheduler.waitingGlobalTasks(), 0U);
    ASSERT_TRUE(system_.scheduler.runOneMainTask());
    EXPECT_EQ(system_.scheduler.waitingGlobalTasks(), 1U);
}

TEST_F(BannerLayerTest, AScanRunsOnAWorker) {
    launch();
    system_.scheduler.holdGlobalQueues(true);
    send();
    EXPECT_EQ(scans(), 1);
    system_.scheduler.holdGlobalQueues(false);
    system_.scheduler.settle();
    EXPECT_EQ(scans(), 2);
}

TEST_F(BannerLayerTest, TheScanAtAttachingThrottlesNothing) {
    launch();
    send();
    EXPECT_EQ(scans(), 2);
}

TEST_F(BannerLayerTest, AnEventHalfASecondAfterAScanIsDropped) {
    launch();
    send();
    advance(0.5);
    send();
    EXPECT_EQ(scans(), 2);
}

TEST_F(BannerLayerTest, AnEventExactlyOneSecondAfterAScanLeadsToAScan) {
    launch();
    send();
    advance(1.0);
    send();
    EXPECT_EQ(scans(), 3);
}

TEST_F(BannerLayerTest, AnEventJustUnderOneSecondAfterAScanIsDropped) {
    launch();
    send();
    advance(1.0 - 0x1p-20);
    send();
    EXPECT_EQ(scans(), 2);
}

TEST_F(BannerLayerTest, ADroppedEventDoesNotProlongTheThrottle) {
    launch();
    send();
    advance(0.75);
    send();
    advance(0.25);
    send();
    EXPECT_EQ(scans(), 3);
}

TEST_F(BannerLayerTest, ADroppedEventIsNotMadeUpFor) {
    launch();
    send();
    advance(0.5);
    send();
    advance(60);
    EXPECT_EQ(scans(), 2);
}

TEST_F(BannerLayerTest, AWallClockSetBackDoesNotBlindTheLayer) {
    launch();
    send();
    system_.scheduler.setWallClock(ManualScheduler::startOfTime - 86400);
    advance(1.0);
    send();
    EXPECT_EQ(scans(), 3);
}

TEST_F(BannerLayerTest, AWallClockSetForwardDoesNotOpenTheThrottle) {
    launch();
    send();
    system_.scheduler.setWallClock(ManualScheduler::startOfTime + 86400);
    advance(0.5);
    send();
    EXPECT_EQ(scans(), 2);
}

TEST_F(BannerLayerTest, AnEventOfAnotherProcessStartsNoScanButSetsTheThrottle) {
    launch();
    send(std::make_shared<testing::SimulatedElement>(999));
    EXPECT_EQ(scans(), 1);
    advance(0.5);
    send();
    EXPECT_EQ(scans(), 1);
    advance(0.5);
    send();
    EXPECT_EQ(scans(), 2);
}

TEST_F(BannerLayerTest, AnEventOfAnElementThatIsGoneStartsNoScanButSetsTheThrottle) {
    launch();
    const ElementPtr gone = testing::makeElement(pid, u"AXWindow"_qs);
    gone->gone = true;
    send(gone, ax::elementDestroyed);
    advance(0.5);
    send();
    EXPECT_EQ(scans(), 1);
}

TEST_F(BannerLayerTest, TheFirstEventAfterANewAttachIsNotThrottled) {
    launch();
    send();
    listener_->startAXObserver();
    system_.scheduler.settle();
    EXPECT_EQ(scans(), 3);
    send();
    EXPECT_EQ(scans(), 4);
}

TEST_F(BannerLayerTest, AnEventThatArrivesWhileTheObserverGoesStartsNoScan) {
    launch();
    system_.workspace.post(WorkspaceEvent::willSleep);
    send(); // its task comes behind the sleep's
    EXPECT_EQ(scans(), 1);
}

TEST_F(BannerLayerTest, AnEventForAListenerThatIsGoneDoesNothing) {
    launch();
    system_.accessibility.send(system_.accessibility.application(pid), ax::windowCreated);
    listener_.reset();
    system_.scheduler.settle();
    EXPECT_EQ(scans(), 1);
}

} // namespace
} // namespace tessarine

// When the banner process tells its observers that something is to be read.

#include "platform/linux/banners/BannerProcessFixture.h"

namespace tessarine {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::otherPid;
using testing::pid;
using ::testing::SizeIs;

using BannerEventsTest = testing::BannerProcessFixture;

auto areAbout(const std::vector<double>& times) {
    return ::testing::Pointwise(::testing::DoubleNear(1e-9), times);
}

TEST_F(BannerEventsTest, SendsAnEventForEachChange) {
    daemonTakesTheName();
    const auto observer = attach();
    announce(u"one"_qs);
    takenTitles();
    scheduler.advance(1.0);
    announce(u"two"_qs);
    takenTitles();
    scheduler.advance(7.0);
    announce(u"three"_qs);
    EXPECT_THAT(eventTimes, areAbout({0.0, 1.0, 8.0}));
}

TEST_F(BannerEventsTest, WakesNobodyForWhatTheThrottleWouldSwallow) {
    daemonTakesTheName();
    const auto observer = attach();
    announce(u"one"_qs);
    takenTitles();
    scheduler.advance(0.5);
    announceWithoutTurningTheLoop(u"two"_qs);
    EXPECT_FALSE(scheduler.runOneMainTask());
    scheduler.advance(1.0);
    EXPECT_THAT(eventTimes, areAbout({0.0, 1.05}));
    EXPECT_THAT(takenTitles(), ElementsAre(u"two"_qs));
}

TEST_F(BannerEventsTest, NamesAnEventThatHadToWaitAsTheScreenChanged) {
    daemonTakesTheName();
    const auto observer = attach();
    announceWithoutTurningTheLoop(u"one"_qs, 9U);
    scheduler.settle();
    takenTitles();
    scheduler.advance(0.5);
    announceWithoutTurningTheLoop(u"two"_qs, 9U);
    scheduler.advance(1.0);
    EXPECT_THAT(eventNames, ElementsAre(ax::windowCreated, ax::valueChanged));
}

TEST_F(BannerEventsTest, NamesTheEventsAsTheScreenChanges) {
    daemonTakesTheName();
    const auto observer = attach();
    announceWithoutTurningTheLoop(u"one"_qs, 9U);
    scheduler.settle();
    takenTitles();
    scheduler.advance(2.0);
    announceWithoutTurningTheLoop(u"two"_qs, 9U);
    scheduler.settle();
    EXPECT_THAT(eventNames, ElementsAre(ax::windowCreated, ax::valueChanged));
}

TEST_F(BannerEventsTest, SendsOneEventForChangesThatComeTogether) {
    daemonTakesTheName();
    const auto observer = attach();
    for (int i = 0; i < 2000; ++i)
        announceWithoutTurningTheLoop(QString::number(i));
    scheduler.settle();
    EXPECT_THAT(eventTimes, SizeIs(1));
}

TEST_F(BannerEventsTest, SendsNothingWhenNothingIsToBeSeen) {
    daemonTakesTheName();
    const auto observer = attach();
    announce({});
    scheduler.advance(10);
    EXPECT_THAT(eventTimes, IsEmpty());
}

TEST_F(BannerEventsTest, ComesBackWhileSomethingIsLeft) {
    daemonTakesTheName();
    const auto observer = attach();
    announce(u"one"_qs);
    scheduler.advance(3.5);
    EXPECT_THAT(eventTimes, areAbout({0.0, 1.05, 2.1, 3.15}));
}

TEST_F(BannerEventsTest, IsSilentOnceEverythingIsTaken) {
    daemonTakesTheName();
    const auto observer = attach();
    announce(u"one"_qs);
    takenTitles();
    scheduler.advance(60);
    EXPECT_THAT(eventTimes, SizeIs(1));
}

// The third comes 0.3 seconds after the scan for the second.
TEST_F(BannerEventsTest, ComesBackAsSoonAsTheThrottleOfTheLastScanIsOver) {
    daemonTakesTheName();
    const auto observer = attach();
    announce(u"one"_qs);
    takenTitles();
    scheduler.advance(1.2);
    announce(u"two"_qs);
    takenTitles();
    scheduler.advance(0.3);
    announce(u"three"_qs);
    scheduler.advance(1.0);
    EXPECT_THAT(eventTimes, areAbout({0.0, 1.2, 2.25}));
}

TEST_F(BannerEventsTest, RemindsAnObserverOfWhatWasAnnouncedBeforeIt) {
    daemonTakesTheName();
    announce(u"before"_qs);
    const auto observer = attach();
    scheduler.advance(1.1);
    EXPECT_THAT(eventTimes, SizeIs(1));
}

TEST_F(BannerEventsTest, RunsNothingWhileNobodyObserves) {
    daemonTakesTheName();
    announce(u"one"_qs);
    EXPECT_FALSE(scheduler.runOneMainTask());
    scheduler.advance(10);
    attach().reset();
    scheduler.advance(10);
    EXPECT_THAT(eventTimes, IsEmpty());
}

TEST_F(BannerEventsTest, SendsOnlyTheEventsThatWereAskedFor) {
    daemonTakesTheName();
    int events = 0;
    const auto observer =
        accessibility.createObserver(pid, [&](const auto&, const auto&) { ++events; });
    observer->addNotification(accessibility.applicationElement(pid), ax::elementDestroyed);
    observer->addNotification(accessibility.applicationElement(otherPid), ax::windowCreated);
    observer->attachToMainRunLoop();
    announce(u"one"_qs);
    EXPECT_EQ(events, 0);
}

TEST_F(BannerEventsTest, SendsNothingToADestroyedObserver) {
    daemonTakesTheName();
    auto observer = attach();
    announceWithoutTurningTheLoop(u"one"_qs);
    observer.reset();
    scheduler.advance(5);
    EXPECT_THAT(eventTimes, IsEmpty());
}

TEST_F(BannerEventsTest, LetsAnObserverGoInTheMiddleOfItsOwnEvent) {
    daemonTakesTheName();
    std::unique_ptr<AXObserver> observer;
    int events = 0;
    observer = accessibility.createObserver(pid, [&](const auto&, const auto&) {
        ++events;
        observer.reset();
    });
    observer->addNotification(accessibility.applicationElement(pid), ax::windowCreated);
    observer->attachToMainRunLoop();
    announce(u"one"_qs);
    announce(u"two"_qs);
    EXPECT_EQ(events, 1);
}

TEST_F(BannerEventsTest, CanBeObservedOnlyAsTheProcessThatRuns) {
    EXPECT_EQ(attach(), nullptr);
    daemonTakesTheName();
    EXPECT_NE(attach(), nullptr);
    EXPECT_EQ(attach(otherPid), nullptr);
    daemonGoes();
    EXPECT_EQ(attach(), nullptr);
}

} // namespace
} // namespace tessarine

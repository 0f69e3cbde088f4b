// What a scan finds in the windows of the banner process.

#include "platform/linux/banners/BannerProcessFixture.h"

namespace tessarine {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::otherPid;
using testing::pid;
using ::testing::SizeIs;

using BannerProcessTest = testing::BannerProcessFixture;

TEST_F(BannerProcessTest, ShowsABannerAsAWindowWithOneDescribedGroupOfText) {
    daemonTakesTheName();
    announce(u"Ann"_qs);
    const AXElementRef application = accessibility.applicationElement(pid);
    const auto windows = testing::elements(accessibility, application, ax::windows);
    ASSERT_THAT(windows, SizeIs(1));
    EXPECT_EQ(testing::text(accessibility, windows[0], ax::role), u"AXWindow"_qs);
    EXPECT_EQ(accessibility.pid(windows[0]), pid);
    const auto groups = testing::elements(accessibility, windows[0], ax::children);
    ASSERT_THAT(groups, SizeIs(1));
    EXPECT_EQ(testing::text(accessibility, groups[0], ax::role), ax::group);
    EXPECT_EQ(accessibility.pid(groups[0]), pid);
    EXPECT_EQ(testing::text(accessibility, groups[0], ax::description), u"Ann"_qs);
    const auto texts = testing::elements(accessibility, groups[0], ax::children);
    ASSERT_THAT(texts, SizeIs(1));
    EXPECT_EQ(testing::text(accessibility, texts[0], ax::role), ax::staticText);
    EXPECT_EQ(testing::text(accessibility, texts[0], ax::value), u"Ann"_qs);
}

TEST_F(BannerProcessTest, AnswersNothingThatAnElementDoesNotHave) {
    daemonTakesTheName();
    announce(u"one"_qs);
    const AXElementRef application = accessibility.applicationElement(pid);
    const auto window = testing::elements(accessibility, application, ax::windows).front();
    const auto group = testing::elements(accessibility, window, ax::children).front();
    const auto value = testing::elements(accessibility, group, ax::children).front();
    EXPECT_EQ(accessibility.copyAttributeValue(application, ax::value), std::nullopt);
    EXPECT_EQ(accessibility.copyAttributeValue(window, ax::description), std::nullopt);
    EXPECT_EQ(accessibility.copyAttributeValue(group, ax::value), std::nullopt);
    EXPECT_EQ(accessibility.copyAttributeValue(value, ax::children), std::nullopt);
    for (const AXElementRef& other : {application, window, value})
        EXPECT_EQ(accessibility.takeAnnouncement(other), std::nullopt);
    EXPECT_THAT(takenTitles(), ElementsAre(u"one"_qs)) << "nobody has taken it so far";
}

TEST_F(BannerProcessTest, HandsTheAnnouncementOverAsItWasSent) {
    daemonTakesTheName();
    const AnnouncedTexts texts{u"Foo, Inc."_qs, u"Meeting 14:30 - 15:00, Room 5"_qs, u"07:30"_qs};
    process->announce({{":1.1", 1}, 0U, texts, scheduler.uptime()});
    scheduler.advance(12.5);
    EXPECT_THAT(testing::takeAll(accessibility, pid),
                ElementsAre(Announcement{texts.application, texts.title, texts.body,
                                         testing::ManualScheduler::startOfTime}));
}

TEST_F(BannerProcessTest, TellsTheMomentToTheMillisecond) {
    daemonTakesTheName();
    scheduler.advance(0.125);
    announce(u"one"_qs);
    scheduler.advance(0.5);
    announce(u"two"_qs);
    scheduler.advance(100.0625);
    const auto taken = testing::takeAll(accessibility, pid);
    ASSERT_THAT(taken, SizeIs(2));
    EXPECT_EQ(taken[0].moment, testing::ManualScheduler::startOfTime + 0.125);
    EXPECT_EQ(taken[1].moment, testing::ManualScheduler::startOfTime + 0.625);
}

TEST_F(BannerProcessTest, TellsTheMomentBeforeASleepOfTheSystem) {
    daemonTakesTheName();
    announce(u"one"_qs);
    scheduler.sleep(8 * 3600 + 0.25);
    const auto taken = testing::takeAll(accessibility, pid);
    ASSERT_THAT(taken, SizeIs(1));
    EXPECT_EQ(taken[0].moment, testing::ManualScheduler::startOfTime);
}

// The clock was wrong when the banner came.
TEST_F(BannerProcessTest, TellsTheMomentByTheWallClockOfTheReading) {
    daemonTakesTheName();
    announce(u"one"_qs);
    scheduler.advance(2);
    scheduler.setWallClock(testing::ManualScheduler::startOfTime + 3600);
    const auto taken = testing::takeAll(accessibility, pid);
    ASSERT_THAT(taken, SizeIs(1));
    EXPECT_EQ(taken[0].moment, testing::ManualScheduler::startOfTime + 3598);
}

TEST_F(BannerProcessTest, ShowsABannerUntilItIsTaken) {
    daemonTakesTheName();
    announce(u"one"_qs);
    EXPECT_THAT(testing::shownGroups(accessibility, pid), SizeIs(1));
    EXPECT_THAT(testing::shownGroups(accessibility, pid), SizeIs(1)) << "found, but not taken";
    EXPECT_THAT(takenTitles(), ElementsAre(u"one"_qs));
    EXPECT_THAT(testing::shownGroups(accessibility, pid), IsEmpty());
}

TEST_F(BannerProcessTest, LetsABannerBeReadWithoutBeingTaken) {
    daemonTakesTheName();
    announce(u"one"_qs);
    const auto group = testing::shownGroups(accessibility, pid).front();
    testing::text(accessibility, group, ax::description);
    for (const auto& child : testing::elements(accessibility, group, ax::children))
        testing::text(accessibility, child, ax::value);
    EXPECT_THAT(takenTitles(), ElementsAre(u"one"_qs));
}

TEST_F(BannerProcessTest, GivesABannerThatTwoScansHaveFoundToOneOfThem) {
    daemonTakesTheName();
    announce(u"one"_qs);
    const auto group = testing::shownGroups(accessibility, pid).front();
    const auto texts = testing::elements(accessibility, group, ax::children);
    EXPECT_THAT(takenTitles(), ElementsAre(u"one"_qs));
    EXPECT_EQ(accessibility.takeAnnouncement(group), std::nullopt);
    for (const AXElementRef& gone : {group, texts[0]}) {
        EXPECT_EQ(accessibility.pid(gone), std::nullopt);
        EXPECT_EQ(accessibility.copyAttributeValue(gone, ax::role), std::nullopt);
    }
}

TEST_F(BannerProcessTest, HasNoWindowsUnderAnotherPid) {
    daemonTakesTheName();
    announce(u"one"_qs);
    EXPECT_EQ(
        accessibility.copyAttributeValue(accessibility.applicationElement(otherPid), ax::windows),
        std::nullopt);
    EXPECT_EQ(accessibility.pid(accessibility.applicationElement(otherPid)), otherPid);
}

TEST_F(BannerProcessTest, AnswersNothingOnceItIsGone) {
    daemonTakesTheName();
    const AXElementRef application = accessibility.applicationElement(pid);
    daemonGoes();
    EXPECT_EQ(accessibility.copyAttributeValue(application, ax::windows), std::nullopt);
}

TEST_F(BannerProcessTest, AnswersNothingForElementsOfOthers) {
    EXPECT_EQ(accessibility.copyAttributeValue(std::make_shared<AXElement>(), ax::role),
              std::nullopt);
    EXPECT_EQ(accessibility.takeAnnouncement(std::make_shared<AXElement>()), std::nullopt);
    EXPECT_EQ(accessibility.pid(nullptr), std::nullopt);
}

// ---- bursts

struct BannerBurstTest : BannerProcessTest {
    int bursts = 0;

    BannerBurstTest() {
        process->whenABurstIsOver([this] { ++bursts; });
        daemonTakesTheName();
    }

    void announceMany(int count, const QString& text = u"small"_qs) {
        for (int i = 0; i < count; ++i)
            announceWithoutTurningTheLoop(text + QString::number(i));
    }
};

TEST_F(BannerBurstTest, AreToldOnceWhenTheyAreOver) {
    announceMany(5000);
    scheduler.advance(60);
    EXPECT_EQ(bursts, 0) << "nobody has taken them";
    takenTitles();
    EXPECT_EQ(bursts, 0) << "what they lead to goes on";
    scheduler.advance(5);
    EXPECT_EQ(bursts, 1);
    scheduler.advance(60);
    EXPECT_EQ(bursts, 1);
}

TEST_F(BannerBurstTest, ComeAfterAllThatTheyLedToOnTheMainThread) {
    announceMany(5000);
    int tasks = 0;
    for (const AXElementRef& group : testing::shownGroups(accessibility, pid)) {
        accessibility.takeAnnouncement(group);
        scheduler.onMain([&] {
            ++tasks;
            EXPECT_EQ(bursts, 0);
        });
    }
    scheduler.advance(5);
    EXPECT_EQ(tasks, 5000);
    EXPECT_EQ(bursts, 1);
}

TEST_F(BannerBurstTest, AreMadeOfAFewBigOnesToo) {
    announceMany(3, QString(1000000, u'x')); // 6 MB
    takenTitles();
    scheduler.advance(5);
    EXPECT_EQ(bursts, 1);
}

TEST_F(BannerBurstTest, AreNotWhatADayBrings) {
    announceMany(1000);
    takenTitles();
    scheduler.advance(60);
    EXPECT_EQ(bursts, 0);
}

// ---- what is recorded

struct UnheardBannersTest : BannerProcessTest {
    UnheardBannersTest() {
        launches.reset();
        terminations.reset();
        process = std::make_shared<BannerProcess>(scheduler);
        ports = std::make_unique<LinuxAccessibility>(process, std::string());
        daemonTakesTheName();
    }

    std::unique_ptr<AXObserver> observe() {
        auto observer = ports->createObserver(pid, [](const auto&, const auto&) {});
        observer->attachToMainRunLoop();
        return observer;
    }

    std::vector<QString> taken() {
        std::vector<QString> titles;
        for (const Announcement& announcement : testing::takeAll(*ports, pid))
            titles.push_back(announcement.title);
        return titles;
    }

    std::unique_ptr<LinuxAccessibility> ports;
};

TEST_F(UnheardBannersTest, AreNotRecordedBeforeTheFirstObserverIsAttached) {
    announce(u"before"_qs);
    const auto made = ports->createObserver(pid, [](const auto&, const auto&) {});
    announce(u"made, but not attached"_qs);
    made->attachToMainRunLoop();
    announce(u"after"_qs);
    EXPECT_THAT(taken(), ElementsAre(u"after"_qs));
}

// A daemon that the bus starts for the first announcement is observed a second later.
TEST_F(UnheardBannersTest, AreRecordedForWhoeverWaitsForTheLaunch) {
    const auto waiting = process->onLaunch([](qint32) {});
    announce(u"first"_qs);
    EXPECT_THAT(taken(), ElementsAre(u"first"_qs));
}

TEST_F(UnheardBannersTest, AreRecordedOnceSomebodyHasObserved) {
    observe().reset();
    announce(u"while nobody looks"_qs);
    EXPECT_THAT(taken(), ElementsAre(u"while nobody looks"_qs));
}

TEST_F(UnheardBannersTest, AreKeptUpToACount) {
    observe().reset();
    const int most = BannerProcess::mostUnobserved;
    for (int i = 0; i < most + 5; ++i)
        announceWithoutTurningTheLoop(QString::number(i));
    const auto titles = taken();
    ASSERT_THAT(titles, SizeIs(most));
    EXPECT_EQ(titles.front(), u"5"_qs) << "the latest are kept";
}

TEST_F(UnheardBannersTest, AreKeptUpToAnAmountOfText) {
    observe().reset();
    const QString megabyte(500000, u'x');
    for (int i = 0; i < 50; ++i)
        announceWithoutTurningTheLoop(megabyte + QString::number(i));
    EXPECT_THAT(taken(), SizeIs(33)); // 33 times 1,000,012 bytes and no more are within 32 MiB
}

TEST_F(UnheardBannersTest, HaveNoBoundsWhileSomebodyObserves) {
    const auto observer = observe();
    const int more = BannerProcess::mostUnobserved + 5;
    for (int i = 0; i < more; ++i)
        announceWithoutTurningTheLoop(QString::number(i));
    EXPECT_THAT(taken(), SizeIs(more));
}

} // namespace
} // namespace tessarine

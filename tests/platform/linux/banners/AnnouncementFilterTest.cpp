#include "platform/linux/banners/AnnouncementFilter.h"

#include "platform/linux/banners/BannerReading.h"
#include "platform/linux/banners/LinuxAccessibility.h"
#include "support/ManualScheduler.h"
#include "support/Printers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::ManualScheduler;
using ::testing::SizeIs;

constexpr auto freedesktop = NotificationService::freedesktop;
constexpr auto gtk = NotificationService::gtk;

const std::string wellKnown = "org.freedesktop.Notifications";
const std::string gtkWellKnown = "org.gtk.Notifications";
const NameOwner nobody{};
const NameOwner dunst{":1.5", 100};
const NameOwner xfce{":1.9", 200};
const NameOwner shell{":1.12", 300};
const BannerName teaReady{"com.example.Teapot", "tea"};

struct AnnouncementFilterTest : ::testing::Test {
    ManualScheduler scheduler;
    std::shared_ptr<BannerProcess> process = std::make_shared<BannerProcess>(scheduler);
    LinuxAccessibility accessibility{process, {}};
    AnnouncementFilter filter{process};
    std::uint32_t lastSerial = 0;
    std::vector<QString> told; // "+100" for a launch, "-100" for a termination
    const std::shared_ptr<void> launches =
        process->onLaunch([this](qint32 pid) { told.push_back(u"+"_qs + QString::number(pid)); });
    const std::shared_ptr<void> terminations = process->onTermination(
        [this](qint32 pid) { told.push_back(u"-"_qs + QString::number(pid)); });

    // With these changes already reported.
    void start(const NameOwner& first, const NameOwner& second) {
        filter.connected(first, second);
        scheduler.settle();
        told.clear();
    }

    AnnouncementKey announce(const QString& title, const std::string& destination = wellKnown,
                             const BannerId& id = 0U) {
        AnnouncementKey key{":1.20", ++lastSerial};
        if (filter.counts(serviceOf(id), destination))
            filter.announced({key, id, {u"Mail"_qs, title, {}}, filter.uptime()});
        return key;
    }

    // Each of these is a banner of its own.
    AnnouncementKey add(const QString& title, const std::string& destination = gtkWellKnown) {
        return announce(title, destination, BannerName{"com.example.Teapot", title.toStdString()});
    }

    std::vector<Announcement> taken() {
        scheduler.settle();
        return testing::takeAll(accessibility, process->pid().value_or(0));
    }

    std::vector<QString> shown() {
        std::vector<QString> titles;
        for (const Announcement& announcement : taken())
            titles.push_back(announcement.title);
        return titles;
    }
};

TEST_F(AnnouncementFilterTest, CountsWhatIsAnnouncedWhileADaemonHoldsTheName) {
    filter.connected(dunst, nobody);
    announce(u"one"_qs);
    announce(u"two"_qs, dunst.uniqueName);
    EXPECT_THAT(shown(), ElementsAre(u"one"_qs, u"two"_qs));
}

TEST_F(AnnouncementFilterTest, IgnoresCallsToOthers) {
    filter.connected(dunst, nobody);
    announce(u"one"_qs, xfce.uniqueName);
    announce(u"two"_qs, "org.example.Notifications");
    announce(u"three"_qs, {});
    EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(AnnouncementFilterTest, CountsWhatTheDaemonOrTheBusRefuses) {
    filter.connected(dunst, nobody);
    filter.refusedByService(dunst.uniqueName, announce(u"one"_qs));
    filter.refusedByBus(announce(u"two"_qs));
    EXPECT_THAT(shown(), ElementsAre(u"one"_qs, u"two"_qs));
}

TEST_F(AnnouncementFilterTest, CountsWhatADaemonIsStartedFor) {
    filter.connected(nobody, nobody);
    announce(u"one"_qs);
    announce(u"two"_qs);
    EXPECT_THAT(shown(), IsEmpty());
    filter.ownerChanged(freedesktop, dunst);
    announce(u"three"_qs);
    EXPECT_THAT(shown(), ElementsAre(u"one"_qs, u"two"_qs, u"three"_qs));
}

TEST_F(AnnouncementFilterTest, DropsWhatNoDaemonIsStartedFor) {
    filter.connected(nobody, nobody);
    filter.refusedByBus(announce(u"one"_qs));
    filter.ownerChanged(freedesktop, dunst);
    EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(AnnouncementFilterTest, DropsOnlyTheCallThatWasRefused) {
    filter.connected(nobody, nobody);
    announce(u"one"_qs);
    const AnnouncementKey second = announce(u"two"_qs);
    announce(u"three"_qs);
    filter.refusedByBus(second);
    filter.ownerChanged(freedesktop, dunst);
    EXPECT_THAT(shown(), ElementsAre(u"one"_qs, u"three"_qs));
}

TEST_F(AnnouncementFilterTest, HoldsNoCallForANameThatIsNobodys) {
    filter.connected(nobody, nobody);
    announce(u"one"_qs, dunst.uniqueName);
    filter.ownerChanged(freedesktop, dunst);
    EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(AnnouncementFilterTest, DropsWhatWaitsWhenTheBusGoes) {
    filter.connected(nobody, nobody);
    announce(u"one"_qs);
    filter.disconnected();
    filter.connected(dunst, nobody);
    EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(AnnouncementFilterTest, KeepsCountingWhenTheDaemonIsReplaced) {
    filter.connected(dunst, nobody);
    announce(u"one"_qs);
    filter.ownerChanged(freedesktop, xfce);
    announce(u"two"_qs);
    announce(u"three"_qs, dunst.uniqueName);
    EXPECT_THAT(shown(), ElementsAre(u"one"_qs, u"two"_qs));
    EXPECT_EQ(process->pid(), xfce.pid);
}

TEST_F(AnnouncementFilterTest, FollowsTheOwnerOfTheName) {
    filter.connected(dunst, nobody);
    filter.ownerChanged(freedesktop, dunst); // a change that the answer had already
    filter.ownerChanged(freedesktop, nobody);
    filter.ownerChanged(freedesktop, xfce);
    filter.disconnected();
    filter.disconnected();
    filter.connected(xfce, nobody);
    scheduler.settle();
    EXPECT_THAT(told, ElementsAre(u"+100"_qs, u"-100"_qs, u"+200"_qs, u"-200"_qs, u"+200"_qs));
}

TEST_F(AnnouncementFilterTest, SaysOnceThatThereIsNoBus) {
    ManualScheduler idle;
    AnnouncementFilter lonely(std::make_shared<BannerProcess>(idle));
    lonely.disconnected();
    lonely.disconnected();
    EXPECT_FALSE(idle.runOneMainTask());
}

TEST_F(AnnouncementFilterTest, MatchesRepliesToReplacements) {
    filter.connected(dunst, nobody);
    filter.answered(dunst.uniqueName, announce(u"same"_qs), 7);
    announce(u"same"_qs, wellKnown, 7U);
    filter.closed(dunst.uniqueName, 7);
    announce(u"same"_qs, wellKnown, 7U);
    EXPECT_THAT(shown(), ElementsAre(u"same"_qs, u"same"_qs))
        << "the second call repeats the first, the third one stands for a new banner";
}

TEST_F(AnnouncementFilterTest, BelievesNoAnswersAndSignalsOfOthers) {
    filter.connected(dunst, shell);
    for (const std::string& other : {xfce.uniqueName, shell.uniqueName, std::string()}) {
        filter.answered(other, announce(u"same"_qs), 7);
        EXPECT_THAT(shown(), ElementsAre(u"same"_qs));
        announce(u"same"_qs, wellKnown, 9U);
        filter.closed(other, 9);
        announce(u"same"_qs, wellKnown, 9U);
        EXPECT_THAT(shown(), ElementsAre(u"same"_qs)) << "not closed, so it is the same banner";
        announce(u"same"_qs, wellKnown, 7U);
        announce(u"same"_qs, wellKnown, 9U);
        EXPECT_THAT(shown(), ElementsAre(u"same"_qs, u"same"_qs)) << "7 is no number of 9's banner";
        filter.ownerChanged(freedesktop, xfce);
        filter.ownerChanged(freedesktop, dunst);
    }
}

TEST_F(AnnouncementFilterTest, DatesWhatWaitsByItsCall) {
    filter.connected(nobody, nobody);
    announce(u"one"_qs);
    scheduler.advance(20);
    filter.ownerChanged(freedesktop, dunst);
    const auto announcements = taken();
    ASSERT_THAT(announcements, SizeIs(1));
    EXPECT_EQ(announcements[0].moment, ManualScheduler::startOfTime);
}

TEST_F(AnnouncementFilterTest, HoldsTheLatestUpToACount) {
    filter.connected(nobody, nobody);
    const int most = AnnouncementFilter::mostHeld;
    for (int i = 0; i < most + 3; ++i)
        announce(QString::number(i));
    filter.ownerChanged(freedesktop, dunst);
    const auto titles = shown();
    ASSERT_THAT(titles, SizeIs(most));
    EXPECT_EQ(titles.front(), u"3"_qs);
}

TEST_F(AnnouncementFilterTest, HoldsTheLatestUpToAnAmountOfText) {
    filter.connected(nobody, nobody);
    for (int i = 10; i < 60; ++i)
        announce(QString(500000, u'x') + QString::number(i)); // 1,000,012 bytes with the name
    filter.ownerChanged(freedesktop, dunst);
    EXPECT_THAT(shown(), SizeIs(33));
}

TEST_F(AnnouncementFilterTest, CountsWhatIsHeldAgainOnceSomeWasRefused) {
    filter.connected(nobody, nobody);
    const QString megabyte(500000, u'x');
    for (int i = 10; i < 60; ++i)
        filter.refusedByBus(announce(megabyte + QString::number(i)));
    for (int i = 10; i < 43; ++i)
        announce(megabyte + QString::number(i));
    filter.ownerChanged(freedesktop, dunst);
    EXPECT_THAT(shown(), SizeIs(33));
}

TEST(AnnouncementFilterUnheard, CountsNothing) {
    ManualScheduler scheduler;
    const auto process = std::make_shared<BannerProcess>(scheduler);
    AnnouncementFilter filter(process);
    filter.connected(nobody, nobody);
    EXPECT_FALSE(filter.counts(freedesktop, wellKnown));
    const auto waiting = process->onLaunch([](qint32) {});
    EXPECT_TRUE(filter.counts(freedesktop, wellKnown));
}

// ---- two services

TEST_F(AnnouncementFilterTest, CountsCallsToEachServiceByBothOfItsNames) {
    filter.connected(dunst, shell);
    announce(u"one"_qs);
    announce(u"two"_qs, dunst.uniqueName);
    add(u"three"_qs);
    add(u"four"_qs, shell.uniqueName);
    EXPECT_THAT(shown(), ElementsAre(u"one"_qs, u"two"_qs, u"three"_qs, u"four"_qs));
}

// GNOME's service passes each call on to the shell, where the other service lives.
TEST_F(AnnouncementFilterTest, IgnoresWhatOneServicePassesOnToTheOther) {
    filter.connected(dunst, shell);
    announce(u"one"_qs);
    announce(u"one, passed on"_qs, shell.uniqueName);
    announce(u"one, passed on"_qs, "org.gnome.Shell");
    add(u"two"_qs);
    add(u"two, passed on"_qs, dunst.uniqueName);
    add(u"two, passed on"_qs, wellKnown);
    EXPECT_THAT(shown(), ElementsAre(u"one"_qs, u"two"_qs));
}

TEST_F(AnnouncementFilterTest, CountsCallsToAProcessThatIsBothServices) {
    filter.connected(shell, shell);
    announce(u"one"_qs, shell.uniqueName);
    add(u"two"_qs, shell.uniqueName);
    EXPECT_THAT(shown(), ElementsAre(u"one"_qs, u"two"_qs));
}

TEST_F(AnnouncementFilterTest, HoldsCallsForTheServiceThatTheyAreFor) {
    filter.connected(nobody, nobody);
    add(u"for the shell"_qs);
    announce(u"for the daemon"_qs);
    filter.ownerChanged(gtk, shell);
    EXPECT_THAT(shown(), ElementsAre(u"for the shell"_qs));
    filter.ownerChanged(freedesktop, dunst);
    EXPECT_THAT(shown(), ElementsAre(u"for the daemon"_qs));
}

TEST_F(AnnouncementFilterTest, DropsWhatNoSecondServiceIsStartedFor) {
    filter.connected(dunst, nobody);
    filter.refusedByBus(add(u"one"_qs));
    filter.ownerChanged(gtk, shell);
    EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(AnnouncementFilterTest, ForgetsTheIdsOfTheServiceThatChanges) {
    filter.connected(dunst, shell);
    announce(u"same"_qs, wellKnown, 7U);
    announce(u"same"_qs, gtkWellKnown, teaReady);
    filter.ownerChanged(gtk, nobody);
    filter.ownerChanged(gtk, shell);
    announce(u"same"_qs, wellKnown, 7U);
    announce(u"same"_qs, gtkWellKnown, teaReady);
    EXPECT_THAT(shown(), SizeIs(3)) << "the banner of the number 7 is still the same";
}

TEST_F(AnnouncementFilterTest, TakesARemovedNameForANewBanner) {
    filter.connected(nobody, shell);
    announce(u"same"_qs, gtkWellKnown, teaReady);
    filter.removed(teaReady);
    announce(u"same"_qs, gtkWellKnown, teaReady);
    EXPECT_THAT(shown(), SizeIs(2));
}

// ---- which of two is the banner process

TEST_F(AnnouncementFilterTest, IsTheOnlyServiceThatThereIs) {
    start(nobody, shell);
    EXPECT_EQ(process->pid(), shell.pid);
    EXPECT_TRUE(process->isTrusted());
}

TEST_F(AnnouncementFilterTest, IsTheOlderServiceWhereBothAreThere) {
    start(dunst, shell);
    EXPECT_EQ(process->pid(), dunst.pid);
}

TEST_F(AnnouncementFilterTest, StaysWhenTheOtherServiceComesAndGoes) {
    start(nobody, shell);
    filter.ownerChanged(freedesktop, dunst);
    filter.ownerChanged(freedesktop, xfce);
    filter.ownerChanged(freedesktop, nobody);
    scheduler.settle();
    EXPECT_THAT(told, IsEmpty());
    EXPECT_EQ(process->pid(), shell.pid);
}

TEST_F(AnnouncementFilterTest, IsTheOtherServiceOnceTheFirstGoes) {
    start(dunst, shell);
    EXPECT_EQ(process->pid(), dunst.pid);
    filter.ownerChanged(freedesktop, nobody);
    scheduler.settle();
    EXPECT_EQ(process->pid(), shell.pid);
    filter.ownerChanged(freedesktop, dunst);
    scheduler.settle();
    EXPECT_EQ(process->pid(), shell.pid);
    filter.ownerChanged(gtk, nobody);
    filter.ownerChanged(freedesktop, nobody);
    scheduler.settle();
    EXPECT_EQ(process->pid(), std::nullopt);
    EXPECT_THAT(told, ElementsAre(u"-100"_qs, u"+300"_qs, u"-300"_qs, u"+100"_qs, u"-100"_qs));
}

TEST_F(AnnouncementFilterTest, StaysWhenItGivesUpOneOfTwoServices) {
    start(shell, shell);
    filter.ownerChanged(freedesktop, nobody);
    filter.ownerChanged(freedesktop, dunst);
    scheduler.settle();
    EXPECT_THAT(told, IsEmpty());
    EXPECT_EQ(process->pid(), shell.pid);
}

TEST_F(AnnouncementFilterTest, KeepsBannersOfAServiceThatWentForTheOther) {
    filter.connected(dunst, shell);
    announce(u"last words"_qs);
    filter.ownerChanged(freedesktop, nobody);
    EXPECT_THAT(shown(), ElementsAre(u"last words"_qs));
}

} // namespace
} // namespace tessarine

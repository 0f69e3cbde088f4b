#include "platform/linux/AnnouncementFilter.h"

#include "platform/linux/BannerReading.h"
#include "platform/linux/LinuxAccessibility.h"
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

const std::string wellKnown = "org.freedesktop.Notifications";
const NameOwner nobody{};
const NameOwner dunst{":1.5", 100};
const NameOwner xfce{":1.9", 200};

struct AnnouncementFilterTest : ::testing::Test {
    ManualScheduler scheduler;
    std::shared_ptr<BannerProcess> process = std::make_shared<BannerProcess>(scheduler);
    LinuxAccessibility accessibility{process, {}};
    AnnouncementFilter filter{process};
    std::uint32_t lastSerial = 0;

    AnnouncementKey announce(const QString& summary, const std::string& destination = wellKnown) {
        const AnnouncementKey key{":1.20", ++lastSerial};
        filter.announced({key, destination, 0, {u"Mail"_qs, summary, {}}});
        return key;
    }

    std::vector<QString> shown() {
        scheduler.settle();
        std::vector<QString> summaries;
        for (const auto& banner : testing::scan(accessibility, process->pid().value_or(0)))
            summaries.push_back(banner.texts.value(0));
        return summaries;
    }
};

TEST_F(AnnouncementFilterTest, CountsWhatIsAnnouncedWhileADaemonHoldsTheName) {
    filter.connected(dunst);
    announce(u"one"_qs);
    announce(u"two"_qs, dunst.uniqueName);
    EXPECT_THAT(shown(), ElementsAre(u"one"_qs, u"two"_qs));
}

TEST_F(AnnouncementFilterTest, IgnoresCallsToOthers) {
    filter.connected(dunst);
    announce(u"one"_qs, xfce.uniqueName);
    announce(u"two"_qs, "org.example.Notifications");
    announce(u"three"_qs, {});
    EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(AnnouncementFilterTest, CountsWhatTheDaemonOrTheBusRefuses) {
    filter.connected(dunst);
    filter.refusedByDaemon(announce(u"one"_qs));
    filter.refusedByBus(announce(u"two"_qs));
    EXPECT_THAT(shown(), ElementsAre(u"one"_qs, u"two"_qs));
}

TEST_F(AnnouncementFilterTest, CountsWhatADaemonIsStartedFor) {
    filter.connected(nobody);
    announce(u"one"_qs);
    announce(u"two"_qs);
    EXPECT_THAT(shown(), IsEmpty());
    filter.ownerChanged(dunst);
    announce(u"three"_qs);
    EXPECT_THAT(shown(), ElementsAre(u"one"_qs, u"two"_qs, u"three"_qs));
}

TEST_F(AnnouncementFilterTest, DropsWhatNoDaemonIsStartedFor) {
    filter.connected(nobody);
    filter.refusedByBus(announce(u"one"_qs));
    filter.ownerChanged(dunst);
    EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(AnnouncementFilterTest, DropsOnlyTheCallThatWasRefused) {
    filter.connected(nobody);
    announce(u"one"_qs);
    const AnnouncementKey second = announce(u"two"_qs);
    announce(u"three"_qs);
    filter.refusedByBus(second);
    filter.ownerChanged(dunst);
    EXPECT_THAT(shown(), ElementsAre(u"one"_qs, u"three"_qs));
}

TEST_F(AnnouncementFilterTest, HoldsNoCallForANameThatIsNobodys) {
    filter.connected(nobody);
    announce(u"one"_qs, dunst.uniqueName);
    filter.ownerChanged(dunst);
    EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(AnnouncementFilterTest, DropsWhatWaitsWhenTheBusGoes) {
    filter.connected(nobody);
    announce(u"one"_qs);
    filter.disconnected();
    filter.connected(dunst);
    EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(AnnouncementFilterTest, KeepsCountingWhenTheDaemonIsReplaced) {
    filter.connected(dunst);
    announce(u"one"_qs);
    filter.ownerChanged(xfce);
    announce(u"two"_qs);
    announce(u"three"_qs, dunst.uniqueName);
    EXPECT_THAT(shown(), ElementsAre(u"one"_qs, u"two"_qs));
    EXPECT_EQ(process->pid(), xfce.pid);
}

TEST_F(AnnouncementFilterTest, FollowsTheOwnerOfTheName) {
    std::vector<QString> told;
    const auto launches =
        process->onLaunch([&](qint32 pid) { told.push_back(u"+"_qs + QString::number(pid)); });
    const auto terminations =
        process->onTermination([&](qint32 pid) { told.push_back(u"-"_qs + QString::number(pid)); });
    filter.connected(dunst);
    filter.ownerChanged(dunst); // a change that the answer had already
    filter.ownerChanged(nobody);
    filter.ownerChanged(xfce);
    filter.disconnected();
    filter.disconnected();
    filter.connected(xfce);
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
    filter.connected(dunst);
    filter.answered(announce(u"same"_qs), 7);
    filter.announced({{":1.20", 90}, wellKnown, 7, {u"Mail"_qs, u"same"_qs, {}}});
    filter.closed(7);
    filter.announced({{":1.20", 91}, wellKnown, 7, {u"Mail"_qs, u"same"_qs, {}}});
    EXPECT_THAT(shown(), ElementsAre(u"same"_qs, u"same"_qs))
        << "the second call repeats the unread first, the third one stands for a new banner";
}

} // namespace
} // namespace tessarine

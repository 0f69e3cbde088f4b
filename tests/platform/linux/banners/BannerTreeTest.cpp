#include "platform/linux/banners/BannerTree.h"

#include "platform/linux/banners/RecentMap.h"
#include "support/Printers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace tessarine {
namespace {

using namespace Qt::Literals::StringLiterals;

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

struct BannerTreeTest : ::testing::Test {
    BannerTree tree;
    std::uint32_t lastSerial = 0;

    AnnouncementKey nextCall() { return {":1.7", ++lastSerial}; }

    BannerChange announce(const QString& title, const QString& body = {}, const BannerId& id = 0U) {
        return tree.announce({nextCall(), id, {u"Mail"_qs, title, body}, 0});
    }

    // Announces a banner that the daemon gives this number.
    void announceAs(std::uint32_t number, const QString& title) {
        const AnnouncementKey call = nextCall();
        tree.announce({call, 0U, {u"Mail"_qs, title, {}}, 0});
        tree.answered(call, number);
    }

    std::vector<QString> titles() const {
        std::vector<QString> titles;
        for (const auto& state : tree.pending())
            titles.push_back(state->texts.title);
        return titles;
    }

    void takeAll() {
        for (const auto& state : tree.pending())
            tree.take(*state);
    }
};

TEST_F(BannerTreeTest, IsEmptyAtFirst) {
    EXPECT_TRUE(tree.isEmpty());
    EXPECT_THAT(tree.pending(), IsEmpty());
}

TEST_F(BannerTreeTest, ShowsBannersInTheOrderOfTheirAnnouncing) {
    EXPECT_EQ(announce(u"one"_qs), BannerChange::shown);
    EXPECT_EQ(announce(u"two"_qs), BannerChange::shown);
    EXPECT_EQ(announce(u"three"_qs), BannerChange::shown);
    EXPECT_FALSE(tree.isEmpty());
    EXPECT_THAT(titles(), ElementsAre(u"one"_qs, u"two"_qs, u"three"_qs));
}

TEST_F(BannerTreeTest, ShowsTheSameTextOfTwoBannersTwice) {
    announce(u"again"_qs);
    announce(u"again"_qs);
    EXPECT_THAT(titles(), ElementsAre(u"again"_qs, u"again"_qs));
}

TEST_F(BannerTreeTest, HasNoBannerWithoutAnyText) {
    EXPECT_EQ(announce({}), BannerChange::none);
    EXPECT_TRUE(tree.isEmpty());
}

TEST_F(BannerTreeTest, LetsTheBodyOfABannerWithoutATitleLead) {
    announce({}, u"body"_qs);
    EXPECT_EQ(tree.pending().front()->texts, (AnnouncedTexts{u"Mail"_qs, u"body"_qs, {}}));
}

TEST_F(BannerTreeTest, KeepsTextsAsTheyAre) {
    const AnnouncedTexts texts{u"Foo, Inc."_qs, u"Meeting 14:30 - 15:00, Room 5"_qs,
                               u" 5m ago\n"_qs};
    tree.announce({nextCall(), 0U, texts, 17.25});
    EXPECT_EQ(tree.pending().front()->texts, texts);
    EXPECT_EQ(tree.pending().front()->announcedAt, 17.25);
}

TEST_F(BannerTreeTest, KeepsABannerUntilItIsTaken) {
    announce(u"one"_qs);
    announce(u"two"_qs);
    const auto states = tree.pending();
    EXPECT_TRUE(tree.take(*states[0]));
    EXPECT_THAT(titles(), ElementsAre(u"two"_qs));
    EXPECT_TRUE(tree.take(*states[1]));
    EXPECT_TRUE(tree.isEmpty());
}

TEST_F(BannerTreeTest, GivesAStateOnce) {
    announce(u"one"_qs);
    const auto state = tree.pending().front();
    EXPECT_TRUE(tree.take(*state));
    EXPECT_FALSE(tree.take(*state));
}

TEST_F(BannerTreeTest, KeepsWhatIsAnnouncedDuringAScan) {
    announce(u"one"_qs);
    const auto scan = tree.pending();
    announce(u"two"_qs);
    EXPECT_TRUE(tree.take(*scan[0]));
    EXPECT_THAT(titles(), ElementsAre(u"two"_qs));
}

TEST_F(BannerTreeTest, KeepsABannerThatIsClosedAtOnce) {
    announceAs(12, u"gone in a moment"_qs);
    tree.closed(12U);
    EXPECT_THAT(titles(), ElementsAre(u"gone in a moment"_qs));
}

TEST_F(BannerTreeTest, KeepsABannerThatIsClosedBeforeItsIdIsKnown) {
    const AnnouncementKey call = nextCall();
    tree.announce({call, 0U, {{}, u"quick"_qs, {}}, 0});
    tree.closed(3U);
    tree.answered(call, 3);
    EXPECT_THAT(titles(), ElementsAre(u"quick"_qs));
}

TEST_F(BannerTreeTest, KeepsABannerThatTheDaemonRefused) {
    const AnnouncementKey call = nextCall();
    tree.announce({call, 0U, {{}, u"refused"_qs, {}}, 0});
    tree.answered(call, 0);
    EXPECT_THAT(titles(), ElementsAre(u"refused"_qs));
}

TEST_F(BannerTreeTest, BringsATakenBannerBackWithItsNewTexts) {
    announceAs(4, u"10 %"_qs);
    takeAll();
    EXPECT_EQ(announce(u"20 %"_qs, {}, 4U), BannerChange::replaced);
    EXPECT_THAT(titles(), ElementsAre(u"20 %"_qs));
}

TEST_F(BannerTreeTest, BringsATakenBannerBackWithTheSameTexts) {
    announceAs(4, u"still here"_qs);
    takeAll();
    EXPECT_EQ(announce(u"still here"_qs, {}, 4U), BannerChange::replaced);
    EXPECT_THAT(titles(), ElementsAre(u"still here"_qs));
}

TEST_F(BannerTreeTest, ShowsTextsThatWereReplacedBeforeTheyWereTakenFirst) {
    announceAs(4, u"10 %"_qs);
    announce(u"20 %"_qs, {}, 4U);
    announce(u"30 %"_qs, {}, 4U);
    EXPECT_THAT(titles(), ElementsAre(u"10 %"_qs, u"20 %"_qs, u"30 %"_qs));
}

TEST_F(BannerTreeTest, ShowsAnUntakenBannerOnceWhenItIsReplacedByItself) {
    announceAs(4, u"same"_qs);
    EXPECT_EQ(announce(u"same"_qs, {}, 4U), BannerChange::none);
    EXPECT_THAT(titles(), ElementsAre(u"same"_qs));
}

TEST_F(BannerTreeTest, ShowsTextsAgainThatOthersHaveReplaced) {
    announceAs(4, u"on"_qs);
    announce(u"off"_qs, {}, 4U);
    announce(u"on"_qs, {}, 4U);
    EXPECT_THAT(titles(), ElementsAre(u"on"_qs, u"off"_qs, u"on"_qs));
}

TEST_F(BannerTreeTest, TellsBannersOfDifferentIdsApart) {
    announceAs(4, u"same"_qs);
    announceAs(5, u"other"_qs);
    EXPECT_EQ(announce(u"same"_qs, {}, 5U), BannerChange::replaced);
    EXPECT_THAT(titles(), ElementsAre(u"same"_qs, u"other"_qs, u"same"_qs));
}

TEST_F(BannerTreeTest, KnowsABannerByTheIdThatItsSenderAskedFor) {
    EXPECT_EQ(announce(u"same"_qs, {}, 77U), BannerChange::shown);
    EXPECT_EQ(announce(u"same"_qs, {}, 77U), BannerChange::none) << "before any answer";
}

TEST_F(BannerTreeTest, KnowsABannerByTheIdThatTheDaemonGaveInstead) {
    const AnnouncementKey call = nextCall();
    tree.announce({call, 77U, {u"Mail"_qs, u"same"_qs, {}}, 0});
    tree.answered(call, 8);
    EXPECT_EQ(announce(u"same"_qs, {}, 8U), BannerChange::none);
}

TEST_F(BannerTreeTest, TakesAClosedIdForANewBanner) {
    announceAs(4, u"same"_qs);
    tree.closed(4U);
    EXPECT_EQ(announce(u"same"_qs, {}, 4U), BannerChange::shown);
    EXPECT_THAT(titles(), SizeIs(2));
}

TEST_F(BannerTreeTest, TakesIdsOfAnotherDaemonForNewBanners) {
    announceAs(4, u"same"_qs);
    tree.forgetIds(NotificationService::freedesktop);
    EXPECT_EQ(announce(u"same"_qs, {}, 4U), BannerChange::shown);
    EXPECT_THAT(titles(), SizeIs(2));
}

TEST_F(BannerTreeTest, MatchesAnswersByTheirSenderToo) {
    tree.announce({{":1.7", 20}, 0U, {u"Mail"_qs, u"mine"_qs, {}}, 0});
    tree.announce({{":1.8", 20}, 0U, {u"Mail"_qs, u"yours"_qs, {}}, 0});
    tree.answered({":1.8", 20}, 2);
    tree.answered({":1.7", 20}, 1);
    EXPECT_EQ(announce(u"yours"_qs, {}, 2U), BannerChange::none);
    EXPECT_EQ(announce(u"mine"_qs, {}, 1U), BannerChange::none);
}

TEST_F(BannerTreeTest, IgnoresAnswersToOtherCalls) {
    tree.answered({":1.9", 1}, 4);
    EXPECT_EQ(announce(u"new"_qs, {}, 4U), BannerChange::shown);
}

TEST_F(BannerTreeTest, KeepsTextsNoLongerThanUntilTheyAreTaken) {
    announceAs(4, u"big"_qs);
    const std::weak_ptr<const BannerState> state = tree.pending().front();
    takeAll();
    EXPECT_TRUE(state.expired());
}

// ---- banners that their applications name

const BannerName tea{"com.example.Teapot", "tea"};

TEST_F(BannerTreeTest, ReplacesABannerOfTheSameName) {
    EXPECT_EQ(announce(u"10 %"_qs, {}, tea), BannerChange::shown);
    EXPECT_EQ(announce(u"20 %"_qs, {}, tea), BannerChange::replaced);
    EXPECT_THAT(titles(), ElementsAre(u"10 %"_qs, u"20 %"_qs));
}

TEST_F(BannerTreeTest, ShowsANamedBannerOnceWhenItIsReplacedByItself) {
    announce(u"same"_qs, {}, tea);
    EXPECT_EQ(announce(u"same"_qs, {}, tea), BannerChange::none);
    EXPECT_THAT(titles(), SizeIs(1));
}

TEST_F(BannerTreeTest, TellsNamedBannersOfTwoApplicationsApart) {
    announce(u"same"_qs, {}, tea);
    EXPECT_EQ(announce(u"same"_qs, {}, BannerName{"com.example.Kettle", "tea"}),
              BannerChange::shown);
}

TEST_F(BannerTreeTest, TakesTheNameOfARemovedBannerForANewOne) {
    announce(u"same"_qs, {}, tea);
    tree.closed(tea);
    EXPECT_EQ(announce(u"same"_qs, {}, tea), BannerChange::shown);
    EXPECT_THAT(titles(), SizeIs(2));
}

TEST_F(BannerTreeTest, KeepsABannerThatIsRemovedAtOnce) {
    announce(u"gone in a moment"_qs, {}, tea);
    tree.closed(tea);
    EXPECT_THAT(titles(), ElementsAre(u"gone in a moment"_qs));
}

TEST_F(BannerTreeTest, ForgetsTheIdsOfOneServiceOnly) {
    announce(u"same"_qs, {}, tea);
    announceAs(4, u"same"_qs);
    tree.forgetIds(NotificationService::gtk);
    EXPECT_EQ(announce(u"same"_qs, {}, 4U), BannerChange::none);
    EXPECT_EQ(announce(u"same"_qs, {}, tea), BannerChange::shown);
    tree.forgetIds(NotificationService::freedesktop);
    EXPECT_EQ(announce(u"same"_qs, {}, 4U), BannerChange::shown);
    EXPECT_EQ(announce(u"same"_qs, {}, tea), BannerChange::none);
}

// ---- bounds

TEST_F(BannerTreeTest, KeepsTheLatestWithinACount) {
    for (const QString& title : {u"one"_qs, u"two"_qs, u"three"_qs})
        announce(title);
    tree.keepLatest(2, 1000);
    EXPECT_THAT(titles(), ElementsAre(u"two"_qs, u"three"_qs));
}

TEST_F(BannerTreeTest, KeepsTheLatestWithinAnAmountOfText) {
    for (const QString& title : {u"one"_qs, u"two"_qs, u"six"_qs})
        announce(title); // "Mail" and three letters, two bytes each
    tree.keepLatest(10, 28);
    EXPECT_THAT(titles(), ElementsAre(u"two"_qs, u"six"_qs));
    takeAll();
    announce(u"ten"_qs);
    announce(u"two"_qs);
    tree.keepLatest(10, 28);
    EXPECT_THAT(titles(), SizeIs(2)) << "what was taken counts no more";
    tree.keepLatest(10, 13);
    EXPECT_TRUE(tree.isEmpty());
}

// ---- threads

TEST_F(BannerTreeTest, LosesNothingAndGivesNothingTwiceWhenManyThreadsAnnounceAndTake) {
    constexpr int threads = 4;
    constexpr int each = 2000;
    std::atomic<int> taken = 0;
    std::atomic<bool> done = false;
    const auto take = [&] {
        while (!done || !tree.isEmpty()) {
            for (const auto& state : tree.pending())
                taken += tree.take(*state);
        }
    };
    std::thread taker(take);
    std::thread otherTaker(take);
    std::vector<std::thread> announcers;
    announcers.reserve(threads);
    for (int t = 0; t < threads; ++t)
        announcers.emplace_back([this, t] {
            for (std::uint32_t serial = 1; serial <= each; ++serial) {
                const AnnouncementKey call{std::to_string(t), serial};
                tree.announce({call, 0U, {{}, QString::number(serial), {}}, 0});
                tree.answered(call, serial);
                tree.closed(serial);
            }
        });
    for (std::thread& announcer : announcers)
        announcer.join();
    done = true;
    taker.join();
    otherTaker.join();
    EXPECT_EQ(taken, threads * each);
}

TEST(RecentMap, KeepsTheLatestEntries) {
    RecentMap<int, char> map(2);
    map.set(1, 'a');
    map.set(2, 'b');
    map.set(3, 'c');
    EXPECT_EQ(map.size(), 2U);
    EXPECT_EQ(map.find(1), std::nullopt);
    EXPECT_EQ(map.find(2), 'b');
    EXPECT_EQ(map.find(3), 'c');
}

TEST(RecentMap, CountsAnEntrySetAgainAsALateOne) {
    RecentMap<int, char> map(2);
    map.set(1, 'a');
    map.set(2, 'b');
    map.set(1, 'A');
    map.set(3, 'c');
    EXPECT_EQ(map.find(1), 'A');
    EXPECT_EQ(map.find(2), std::nullopt);
}

TEST(RecentMap, GivesTakenEntriesOnce) {
    RecentMap<int, char> map(2);
    map.set(1, 'a');
    EXPECT_EQ(map.take(1), 'a');
    EXPECT_EQ(map.take(1), std::nullopt);
    EXPECT_EQ(map.size(), 0U);
}

TEST(RecentMap, HasRoomAgainOnceCleared) {
    RecentMap<int, char> map(1);
    map.set(1, 'a');
    map.clear();
    map.set(2, 'b');
    EXPECT_EQ(map.find(1), std::nullopt);
    EXPECT_EQ(map.find(2), 'b');
}

} // namespace
} // namespace tessarine

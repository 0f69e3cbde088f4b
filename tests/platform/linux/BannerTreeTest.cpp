#include "platform/linux/BannerTree.h"

#include "platform/linux/RecentMap.h"
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
    double now = 5000;
    BannerTree tree{[this] { return now; }};
    std::uint32_t lastSerial = 0;

    AnnouncementKey nextCall() { return {":1.7", ++lastSerial}; }

    BannerChange announce(const QString& summary, const QString& body = {},
                          std::uint32_t replacesId = 0) {
        return tree.announce(nextCall(), {QStringLiteral("Mail"), summary, body}, replacesId);
    }

    // Announces a banner that the daemon gives this id.
    void announceAs(std::uint32_t id, const QString& summary) {
        const AnnouncementKey call = nextCall();
        tree.announce(call, {QStringLiteral("Mail"), summary, {}}, 0);
        tree.answered(call, id);
    }

    std::vector<QString> unreadSummaries() const {
        std::vector<QString> summaries;
        for (const auto& state : tree.unread())
            summaries.push_back(state->texts.summary);
        return summaries;
    }

    void readAll() {
        for (const auto& state : tree.unread())
            tree.markRead(state->number);
    }
};

TEST_F(BannerTreeTest, IsEmptyAtFirst) {
    EXPECT_TRUE(tree.isEmpty());
    EXPECT_THAT(tree.unread(), IsEmpty());
}

TEST_F(BannerTreeTest, ShowsBannersInTheOrderOfTheirAnnouncing) {
    EXPECT_EQ(announce(u"one"_qs), BannerChange::shown);
    EXPECT_EQ(announce(u"two"_qs), BannerChange::shown);
    EXPECT_EQ(announce(u"three"_qs), BannerChange::shown);
    EXPECT_FALSE(tree.isEmpty());
    EXPECT_THAT(unreadSummaries(), ElementsAre(u"one"_qs, u"two"_qs, u"three"_qs));
}

TEST_F(BannerTreeTest, ShowsTheSameTextOfTwoBannersTwice) {
    announce(u"again"_qs);
    announce(u"again"_qs);
    EXPECT_THAT(unreadSummaries(), ElementsAre(u"again"_qs, u"again"_qs));
}

TEST_F(BannerTreeTest, HasNoBannerWithoutAnyText) {
    EXPECT_EQ(announce({}), BannerChange::none);
    EXPECT_TRUE(tree.isEmpty());
}

TEST_F(BannerTreeTest, KeepsABannerUntilItWasRead) {
    announce(u"one"_qs);
    announce(u"two"_qs);
    const auto states = tree.unread();
    EXPECT_FALSE(tree.markRead(states[0]->number));
    EXPECT_THAT(unreadSummaries(), ElementsAre(u"two"_qs));
    EXPECT_TRUE(tree.markRead(states[1]->number)) << "the last one";
    EXPECT_TRUE(tree.isEmpty());
}

TEST_F(BannerTreeTest, CountsAStateAsReadOnlyOnce) {
    announce(u"one"_qs);
    const std::uint64_t number = tree.unread().front()->number;
    EXPECT_TRUE(tree.markRead(number));
    EXPECT_FALSE(tree.markRead(number));
}

TEST_F(BannerTreeTest, KeepsWhatIsAnnouncedDuringAScan) {
    announce(u"one"_qs);
    const auto scan = tree.unread();
    announce(u"two"_qs);
    EXPECT_FALSE(tree.markRead(scan[0]->number));
    EXPECT_THAT(unreadSummaries(), ElementsAre(u"two"_qs));
}

TEST_F(BannerTreeTest, KeepsABannerThatIsClosedAtOnce) {
    announceAs(12, u"gone in a moment"_qs);
    tree.closed(12);
    EXPECT_THAT(unreadSummaries(), ElementsAre(u"gone in a moment"_qs));
}

TEST_F(BannerTreeTest, KeepsABannerThatIsClosedBeforeItsIdIsKnown) {
    const AnnouncementKey call = nextCall();
    tree.announce(call, {{}, u"quick"_qs, {}}, 0);
    tree.closed(3);
    tree.answered(call, 3);
    EXPECT_THAT(unreadSummaries(), ElementsAre(u"quick"_qs));
}

TEST_F(BannerTreeTest, KeepsABannerThatTheDaemonRefused) {
    const AnnouncementKey call = nextCall();
    tree.announce(call, {{}, u"refused"_qs, {}}, 0);
    tree.answered(call, 0);
    EXPECT_THAT(unreadSummaries(), ElementsAre(u"refused"_qs));
}

TEST_F(BannerTreeTest, BringsAReadBannerBackWithItsNewTexts) {
    announceAs(4, u"10 %"_qs);
    readAll();
    EXPECT_EQ(announce(u"20 %"_qs, {}, 4), BannerChange::replaced);
    EXPECT_THAT(unreadSummaries(), ElementsAre(u"20 %"_qs));
}

TEST_F(BannerTreeTest, BringsAReadBannerBackWithTheSameTexts) {
    announceAs(4, u"still here"_qs);
    readAll();
    EXPECT_EQ(announce(u"still here"_qs, {}, 4), BannerChange::replaced);
    EXPECT_THAT(unreadSummaries(), ElementsAre(u"still here"_qs));
}

TEST_F(BannerTreeTest, ShowsTextsThatWereReplacedBeforeTheyWereReadFirst) {
    announceAs(4, u"10 %"_qs);
    announce(u"20 %"_qs, {}, 4);
    announce(u"30 %"_qs, {}, 4);
    EXPECT_THAT(unreadSummaries(), ElementsAre(u"10 %"_qs, u"20 %"_qs, u"30 %"_qs));
}

TEST_F(BannerTreeTest, ShowsAnUnreadBannerOnceWhenItIsReplacedByItself) {
    announceAs(4, u"same"_qs);
    EXPECT_EQ(announce(u"same"_qs, {}, 4), BannerChange::none);
    EXPECT_THAT(unreadSummaries(), ElementsAre(u"same"_qs));
}

TEST_F(BannerTreeTest, ShowsTextsAgainThatOthersHaveReplaced) {
    announceAs(4, u"on"_qs);
    announce(u"off"_qs, {}, 4);
    announce(u"on"_qs, {}, 4);
    EXPECT_THAT(unreadSummaries(), ElementsAre(u"on"_qs, u"off"_qs, u"on"_qs));
}

TEST_F(BannerTreeTest, TellsBannersOfDifferentIdsApart) {
    announceAs(4, u"same"_qs);
    announceAs(5, u"other"_qs);
    EXPECT_EQ(announce(u"same"_qs, {}, 5), BannerChange::replaced);
    EXPECT_THAT(unreadSummaries(), ElementsAre(u"same"_qs, u"other"_qs, u"same"_qs));
}

TEST_F(BannerTreeTest, KnowsABannerByTheIdThatItsSenderAskedFor) {
    EXPECT_EQ(announce(u"same"_qs, {}, 77), BannerChange::shown);
    EXPECT_EQ(announce(u"same"_qs, {}, 77), BannerChange::none) << "before any answer";
}

TEST_F(BannerTreeTest, KnowsABannerByTheIdThatTheDaemonGaveInstead) {
    const AnnouncementKey call = nextCall();
    tree.announce(call, {QStringLiteral("Mail"), u"same"_qs, {}}, 77);
    tree.answered(call, 8);
    EXPECT_EQ(announce(u"same"_qs, {}, 8), BannerChange::none);
}

TEST_F(BannerTreeTest, TakesAClosedIdForANewBanner) {
    announceAs(4, u"same"_qs);
    tree.closed(4);
    EXPECT_EQ(announce(u"same"_qs, {}, 4), BannerChange::shown);
    EXPECT_THAT(unreadSummaries(), SizeIs(2));
}

TEST_F(BannerTreeTest, TakesIdsOfAnotherDaemonForNewBanners) {
    announceAs(4, u"same"_qs);
    tree.forgetIds();
    EXPECT_EQ(announce(u"same"_qs, {}, 4), BannerChange::shown);
    EXPECT_THAT(unreadSummaries(), SizeIs(2));
}

TEST_F(BannerTreeTest, MatchesAnswersByTheirSenderToo) {
    tree.announce({":1.7", 20}, {QStringLiteral("Mail"), u"mine"_qs, {}}, 0);
    tree.announce({":1.8", 20}, {QStringLiteral("Mail"), u"yours"_qs, {}}, 0);
    tree.answered({":1.8", 20}, 2);
    tree.answered({":1.7", 20}, 1);
    EXPECT_EQ(announce(u"yours"_qs, {}, 2), BannerChange::none);
    EXPECT_EQ(announce(u"mine"_qs, {}, 1), BannerChange::none);
}

TEST_F(BannerTreeTest, IgnoresAnswersToOtherCalls) {
    tree.answered({":1.9", 1}, 4);
    EXPECT_EQ(announce(u"new"_qs, {}, 4), BannerChange::shown);
}

TEST_F(BannerTreeTest, KeepsTextsNoLongerThanTheyAreUnread) {
    announceAs(4, u"big"_qs);
    const std::weak_ptr<const BannerState> state = tree.unread().front();
    readAll();
    EXPECT_TRUE(state.expired());
}

TEST_F(BannerTreeTest, StaysReadableForAScanWhileAnotherOneReadsIt) {
    announce(u"one"_qs);
    const auto scan = tree.unread();
    readAll();
    EXPECT_EQ(scan[0]->texts.summary, u"one"_qs);
}

TEST_F(BannerTreeTest, TellsTheAgeFromTheMomentOfAnnouncing) {
    announce(u"summary"_qs, u"body"_qs);
    now += 12.5;
    EXPECT_THAT(tree.unread().front()->shownTexts(now),
                ElementsAre(u"summary"_qs, u"12s ago"_qs, u"body"_qs));
}

TEST_F(BannerTreeTest, LosesNothingWhenManyThreadsAnnounceAndRead) {
    constexpr int threads = 4;
    constexpr int each = 2000;
    std::atomic<int> read = 0;
    std::atomic<bool> done = false;
    std::thread reader([&] {
        while (!done || !tree.isEmpty()) {
            for (const auto& state : tree.unread()) {
                tree.markRead(state->number);
                ++read;
            }
        }
    });
    std::vector<std::thread> announcers;
    for (int t = 0; t < threads; ++t)
        announcers.emplace_back([this, t] {
            for (std::uint32_t serial = 1; serial <= each; ++serial) {
                const AnnouncementKey call{std::to_string(t), serial};
                tree.announce(call, {{}, QString::number(serial), {}}, 0);
                tree.answered(call, serial);
                tree.closed(serial);
            }
        });
    for (std::thread& announcer : announcers)
        announcer.join();
    done = true;
    reader.join();
    EXPECT_EQ(read, threads * each);
}

struct ShownCase {
    const char* name;
    AnnouncedTexts texts;
    QString description;
    QStringList shown;
};

void PrintTo(const ShownCase& shown, std::ostream* out) {
    *out << shown.name;
}

class ShownBannerTexts : public ::testing::TestWithParam<ShownCase> {};

TEST_P(ShownBannerTexts, AreDrawnInOrder) {
    const BannerState state{1, GetParam().texts, 100};
    EXPECT_EQ(state.description(), GetParam().description);
    EXPECT_EQ(state.shownTexts(100.5), GetParam().shown);
}

const ShownCase shownCases[] = {
    {"All",
     {u"Mail"_qs, u"Ann"_qs, u"Hi"_qs},
     u"Mail, Ann, Hi"_qs,
     {u"Ann"_qs, u"Just now"_qs, u"Hi"_qs}},
    {"NoBody", {u"Mail"_qs, u"Ann"_qs, {}}, u"Mail, Ann"_qs, {u"Ann"_qs, u"Just now"_qs}},
    {"NoSummary", {u"Mail"_qs, {}, u"Hi"_qs}, u"Mail, Hi"_qs, {u"Hi"_qs, u"Just now"_qs}},
    {"NoApplication",
     {{}, u"Ann"_qs, u"Hi"_qs},
     u", Ann, Hi"_qs,
     {u"Ann"_qs, u"Just now"_qs, u"Hi"_qs}},
    {"CommaInTheName",
     {u"Bell, Book"_qs, u"Ann"_qs, {}},
     u"Bell, Book, Ann"_qs,
     {u"Ann"_qs, u"Just now"_qs}},
    {"AgeAsText",
     {u"Mail"_qs, u"9223372036854775807d ago"_qs, u"3m ago"_qs},
     u"Mail, 9223372036854775807d ago, 3m ago"_qs,
     {u"9223372036854775807d ago"_qs, u"Just now"_qs, u"3m ago"_qs}},
    {"LineFeeds",
     {u"Mail"_qs, u"a\nb"_qs, u"c\n"_qs},
     u"Mail, a\nb, c\n"_qs,
     {u"a\nb"_qs, u"Just now"_qs, u"c\n"_qs}},
};
INSTANTIATE_TEST_SUITE_P(Cases, ShownBannerTexts, ::testing::ValuesIn(shownCases),
                         [](const auto& info) { return info.param.name; });

class BannerAge : public ::testing::TestWithParam<std::pair<double, const char16_t*>> {};

TEST_P(BannerAge, IsToldInTheLargestWholeUnit) {
    EXPECT_EQ(ageText(GetParam().first), QString::fromUtf16(GetParam().second));
}

INSTANTIATE_TEST_SUITE_P(
    Ages, BannerAge,
    ::testing::Values(std::pair(-1.0, u"Just now"), std::pair(0.0, u"Just now"),
                      std::pair(0.999, u"Just now"), std::pair(1.0, u"1s ago"),
                      std::pair(12.9, u"12s ago"), std::pair(59.9, u"59s ago"),
                      std::pair(60.0, u"1m ago"), std::pair(3599.0, u"59m ago"),
                      std::pair(3600.0, u"1h ago"), std::pair(86399.0, u"23h ago"),
                      std::pair(86400.0, u"1d ago"), std::pair(8640000.0, u"100d ago")));

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

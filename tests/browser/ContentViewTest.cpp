#include "browser/BrowserFixture.h"

#include <QSignalSpy>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;
using Face = BrowserList::Face;

class ContentViewTest : public BrowserTest {};

// Faces

TEST_F(ContentViewTest, LoadsUntilTheFirstListCame) {
    ContentView fresh(browserServices());
    fresh.appear();
    EXPECT_EQ(fresh.list()->face(), Face::Loading);
}

TEST_F(ContentViewTest, WaitsOverAnEmptyHoard) {
    ContentView fresh(browserServices());
    fresh.appear();
    listener->start();
    system.scheduler.settle();
    EXPECT_EQ(fresh.list()->face(), Face::Waiting);
    EXPECT_FALSE(fresh.list()->hasNotifications());
}

TEST_F(ContentViewTest, ShowsWhatTheHoardHolds) {
    store(u"Mail"_qs, u"Hello"_qs, 1);
    ContentView fresh(browserServices());
    fresh.appear();
    listener->start();
    system.scheduler.settle();
    EXPECT_EQ(fresh.list()->face(), Face::List);
    EXPECT_EQ(fresh.list()->lines()->rowCount(), 1);
}

TEST_F(ContentViewTest, TakesAListThatWasThereBefore) {
    storeMany(3);
    EXPECT_EQ(open().list()->face(), Face::List);
    EXPECT_EQ(view->list()->lines()->rowCount(), 3);
}

// Hidden and shown again

TEST_F(ContentViewTest, DerivesNothingWhileItIsHidden) {
    storeMany(3);
    open();
    view->disappear();
    int told = 0;
    QObject::connect(view->list(), &BrowserList::listChanged, [&told] { ++told; });
    store(u"Chat"_qs, u"New"_qs, 0);
    reload();
    EXPECT_EQ(told, 0);
    EXPECT_EQ(view->list()->lines()->rowCount(), 3);
    view->appear();
    EXPECT_GT(told, 0);
    EXPECT_EQ(view->list()->lines()->rowCount(), 4);
    EXPECT_EQ(view->list()->uniqueApps(), QStringList({u"Chat"_qs, u"Mail"_qs}));
}

TEST_F(ContentViewTest, ShowsAnEmptiedHoardAsWaitingAfterItWasHidden) {
    storeMany(3);
    open();
    view->disappear();
    listener->setNotifications({});
    view->appear();
    EXPECT_EQ(view->list()->face(), Face::Waiting);
}

TEST_F(ContentViewTest, CountsTheHoardAnewEachTimeItIsShown) {
    storeMany(600);
    open();
    view->disappear();
    ASSERT_TRUE(testing::DatabaseFile(hoard.path())
                    .run(u"INSERT INTO notifications (title) VALUES ('old'), ('older')"_qs));
    view->appear();
    EXPECT_EQ(view->list()->hoardTotalCount(), 602);
}

TEST_F(ContentViewTest, ReadsAheadWhatLoadOlderWillAskFor) {
    storeMany(2600);
    open();
    system.scheduler.settle();
    view->list()->loadOlder();
    EXPECT_EQ(system.scheduler.waitingGlobalTasks(), 1U);
    system.scheduler.settle();
    EXPECT_EQ(system.scheduler.waitingGlobalTasks(), 0U);
    view->list()->loadOlder();
    EXPECT_EQ(listener->notifications().size(), 1500U);
}

TEST_F(ContentViewTest, ReadsNothingAheadWhereEverythingIsLoaded) {
    storeMany(3);
    open();
    EXPECT_EQ(system.scheduler.waitingGlobalTasks(), 0U);
}

TEST_F(ContentViewTest, ShowsAFilterThatNothingPassesAsNoResults) {
    storeMany(3);
    open().list()->setSearchText(u"nowhere"_qs);
    EXPECT_EQ(view->list()->face(), Face::NoResults);
    view->list()->setSearchText({});
    EXPECT_EQ(view->list()->face(), Face::List);
}

TEST_F(ContentViewTest, TellsAnEmptyListFromOneWithoutResultsByTheLoadedRows) {
    open().list()->setSearchText(u"nowhere"_qs);
    reload();
    EXPECT_EQ(view->list()->face(), Face::Waiting);
}

// Filter, sort, group

TEST_F(ContentViewTest, StartsUnfilteredNewestFirstAndUngrouped) {
    storeMany(2);
    open();
    EXPECT_EQ(view->list()->selectedApp(), u"All"_qs);
    EXPECT_EQ(view->list()->sortMode(), SortMode::newest);
    EXPECT_EQ(view->list()->groupMode(), GroupMode::none);
    EXPECT_EQ(view->list()->loadLimit(), 500);
    EXPECT_EQ(shown(), QStringList({u"Title 0"_qs, u"Title 1"_qs}));
}

TEST_F(ContentViewTest, ASearchNarrowsWithinTheChosenApp) {
    store(u"Mail"_qs, u"café today"_qs, 1);
    store(u"Chat"_qs, u"café tomorrow"_qs, 2);
    open().list()->setSelectedApp(u"Mail"_qs);
    view->list()->setSearchText(u"CAFÉ"_qs);
    EXPECT_EQ(shown(), QStringList(u"café today"_qs));
    view->list()->setSearchText(u"cafe"_qs);
    EXPECT_EQ(shown(), QStringList());
}

TEST_F(ContentViewTest, ChoicesDoNotNarrowWithTheFilter) {
    store(u"Mail"_qs, u"a"_qs, 1);
    store(u"Chat"_qs, u"b"_qs, 2);
    open().list()->setSelectedApp(u"Mail"_qs);
    EXPECT_EQ(view->list()->uniqueApps(), QStringList({u"Chat"_qs, u"Mail"_qs}));
    EXPECT_EQ(view->list()->appLabels(),
              QStringList({u"toolbar.app.all"_qs, u"Chat"_qs, u"Mail"_qs}));
    EXPECT_EQ(view->list()->selectedAppIndex(), 2);
}

TEST_F(ContentViewTest, AnAppWhoseRowsAreGoneStaysChosenUntilTheUserPicksAnother) {
    store(u"Mail"_qs, u"a"_qs, 1);
    const qint64 chat = store(u"Chat"_qs, u"b"_qs, 2);
    open().list()->setSelectedApp(u"Chat"_qs);
    hoard.deleteNotification(chat);
    reload();
    EXPECT_EQ(view->list()->face(), Face::NoResults);
    EXPECT_EQ(view->list()->selectedAppIndex(), -1);
    EXPECT_EQ(view->list()->selectedAppLabel(), u"Chat"_qs);
    view->list()->setSelectedAppIndex(0);
    EXPECT_EQ(view->list()->face(), Face::List);
}

TEST_F(ContentViewTest, APinnedRowOfLastYearIsLoadedAndStandsLast) {
    const qint64 old = store(u"Mail"_qs, u"old"_qs, 400.0 * 86400);
    hoard.togglePin(old);
    storeMany(600);
    open();
    ASSERT_EQ(shown().size(), 500);
    EXPECT_EQ(shown().last(), u"old"_qs);
}

TEST_F(ContentViewTest, TellsAViewToBeginAtItsTopOnlyWhenTheUserWantsAnotherList) {
    storeMany(3);
    open();
    const QSignalSpy changes(view->list(), &BrowserList::derivationChanged);
    reload();
    EXPECT_EQ(changes.count(), 0);
    view->list()->setSearchText(u"T"_qs);
    view->list()->setSortMode(SortMode::oldest);
    view->list()->setGroupMode(GroupMode::app);
    view->list()->setSelectedApp(u"Mail"_qs);
    EXPECT_EQ(changes.count(), 4);
    view->list()->setSearchText(u"T"_qs);
    view->list()->setSortMode(SortMode::oldest);
    EXPECT_EQ(changes.count(), 4);
}

TEST_F(ContentViewTest, AGroupOpensAndClosesAndAnotherGroupingForgetsIt) {
    store(u"Mail"_qs, u"a"_qs, 1);
    store(u"Chat"_qs, u"b"_qs, 2);
    open().list()->setGroupMode(GroupMode::app);
    EXPECT_EQ(view->list()->lines()->rowCount(), 4);
    view->list()->toggleGroup(u"Mail"_qs);
    system.scheduler.advance(0.25); // its rows fade
    EXPECT_EQ(view->list()->lines()->rowCount(), 3);
    view->list()->setSearchText(u"b"_qs); // the group goes
    view->list()->setSearchText({});      // and comes back collapsed
    EXPECT_EQ(view->list()->lines()->rowCount(), 3);
    view->list()->setGroupMode(GroupMode::date);
    view->list()->setGroupMode(GroupMode::app);
    EXPECT_EQ(view->list()->lines()->rowCount(), 4);
    EXPECT_TRUE(view->list()->collapsedGroups().isEmpty());
}

TEST_F(ContentViewTest, RowsOfAGroupAreThereWhileTheyFade) {
    using Role = NotificationListModel::Role;
    storeMany(2);
    open().list()->setGroupMode(GroupMode::app);
    const NotificationListModel& lines = *view->list()->lines();
    const auto isLast = [&](Role role) { return lines.data(lines.index(2), int(role)).toBool(); };
    EXPECT_FALSE(isLast(Role::IsArriving));
    view->list()->toggleGroup(u"Mail"_qs);
    EXPECT_TRUE(lines.header(0).isCollapsed);
    EXPECT_TRUE(isLast(Role::IsLeaving));
    system.scheduler.advance(0.125);
    view->list()->toggleGroup(u"Mail"_qs);
    EXPECT_FALSE(isLast(Role::IsLeaving));
    EXPECT_TRUE(isLast(Role::IsArriving));
    system.scheduler.advance(0.125); // the first toggle's time is over, the second's isn't
    EXPECT_TRUE(isLast(Role::IsArriving));
    system.scheduler.advance(0.125);
    EXPECT_FALSE(isLast(Role::IsArriving));
    view->list()->toggleGroup(u"Mail"_qs);
    system.scheduler.advance(0.125);
    EXPECT_EQ(lines.rowCount(), 3);
    system.scheduler.advance(0.125);
    EXPECT_EQ(lines.rowCount(), 1);
}

TEST_F(ContentViewTest, AnotherGroupingEndsAFadeAtOnce) {
    storeMany(2);
    open().list()->setGroupMode(GroupMode::app);
    view->list()->toggleGroup(u"Mail"_qs);
    view->list()->setGroupMode(GroupMode::none);
    view->list()->setGroupMode(GroupMode::app);
    const NotificationListModel& lines = *view->list()->lines();
    EXPECT_FALSE(lines.data(lines.index(1), int(NotificationListModel::Role::IsArriving)).toBool());
    EXPECT_EQ(lines.rowCount(), 3);
    system.scheduler.advance(1);
    EXPECT_EQ(lines.rowCount(), 3);
}

// Loaded and stored

TEST_F(ContentViewTest, TwelveHundredRowsAreLoadedInStepsThatSurviveACapture) {
    storeMany(1200);
    open();
    EXPECT_EQ(view->list()->counterText(), u"toolbar.notifCount.truncated"_qs);
    EXPECT_EQ(shown().size(), 500);
    EXPECT_EQ(view->list()->hoardTotalCount(), 1200);
    view->list()->loadOlder();
    EXPECT_EQ(shown().size(), 1000);
    EXPECT_TRUE(view->list()->canLoadOlder());
    reload(); // a capture
    EXPECT_EQ(shown().size(), 500);
    EXPECT_EQ(view->list()->loadLimit(), 1000);
    EXPECT_TRUE(view->list()->canLoadOlder());
    view->list()->loadOlder();
    EXPECT_EQ(view->list()->loadLimit(), 1500);
    EXPECT_EQ(shown().size(), 1200);
    EXPECT_FALSE(view->list()->canLoadOlder());
    EXPECT_EQ(view->list()->counterText(), u"toolbar.notifCount"_qs);
}

TEST_F(ContentViewTest, TheTotalIsReadAgainOnlyWhenTheNumberOfLoadedRowsChanges) {
    storeMany(500);
    open();
    EXPECT_FALSE(view->list()->canLoadOlder());
    store(u"Mail"_qs, u"one more"_qs, -1);
    reload(); // still 500 rows
    EXPECT_EQ(view->list()->hoardTotalCount(), 500);
    EXPECT_FALSE(view->list()->canLoadOlder());
    view->appear();
    EXPECT_TRUE(view->list()->canLoadOlder());
}

// Privacy

TEST_F(ContentViewTest, SearchReadsWhatAMaskedRowHides) {
    store(u"Mail"_qs, u"secret"_qs, 1);
    preferences.setGlobalPrivacyMode(true);
    open().list()->setSearchText(u"secret"_qs);
    EXPECT_EQ(view->list()->face(), Face::List);
    const auto isPrivate = [&] {
        return view->list()
            ->lines()
            ->data(view->list()->lines()->index(0), int(NotificationListModel::Role::IsPrivate))
            .toBool();
    };
    EXPECT_TRUE(isPrivate());
    const QSignalSpy changes(view->list()->lines(), &QAbstractItemModel::dataChanged);
    preferences.setGlobalPrivacyMode(false);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_FALSE(isPrivate());
    preferences.setPrivacyApps({u"com.example.Mail"_qs});
    EXPECT_TRUE(isPrivate());
}

} // namespace
} // namespace tessarine::testing

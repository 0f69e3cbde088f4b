#include "browser/BrowserFixture.h"
#include "shared/DayKey.h"

#include <QSignalSpy>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;
using Face = ContentView::Face;

class ContentViewTest : public BrowserTest {};

// Faces

TEST_F(ContentViewTest, LoadsUntilTheFirstListCame) {
    const ContentView fresh(services());
    EXPECT_EQ(fresh.face(), Face::Loading);
}

TEST_F(ContentViewTest, WaitsOverAnEmptyHoard) {
    ContentView fresh(services());
    listener->start();
    system.scheduler.settle();
    EXPECT_EQ(fresh.face(), Face::Waiting);
    EXPECT_FALSE(fresh.hasNotifications());
}

TEST_F(ContentViewTest, ShowsWhatTheHoardHolds) {
    store(u"Mail"_qs, u"Hello"_qs, 1);
    ContentView fresh(services());
    listener->start();
    system.scheduler.settle();
    EXPECT_EQ(fresh.face(), Face::List);
    EXPECT_EQ(fresh.lines()->rowCount(), 1);
}

TEST_F(ContentViewTest, TakesAListThatWasThereBefore) {
    storeMany(3);
    EXPECT_EQ(open().face(), Face::List);
    EXPECT_EQ(view->lines()->rowCount(), 3);
}

TEST_F(ContentViewTest, ShowsAFilterThatNothingPassesAsFruitless) {
    storeMany(3);
    open().setSearchText(u"nowhere"_qs);
    EXPECT_EQ(view->face(), Face::Fruitless);
    view->setSearchText({});
    EXPECT_EQ(view->face(), Face::List);
}

TEST_F(ContentViewTest, TellsAnEmptyListFromAFruitlessOneByTheLoadedRows) {
    open().setSearchText(u"nowhere"_qs);
    reload();
    EXPECT_EQ(view->face(), Face::Waiting);
}

// Filter, sort, group

TEST_F(ContentViewTest, StartsUnfilteredNewestFirstAndUngrouped) {
    storeMany(2);
    open();
    EXPECT_EQ(view->selectedApp(), u"All"_qs);
    EXPECT_EQ(view->sortMode(), SortMode::newest);
    EXPECT_EQ(view->groupMode(), GroupMode::none);
    EXPECT_EQ(view->loadLimit(), 500);
    EXPECT_EQ(shown(), QStringList({u"Title 0"_qs, u"Title 1"_qs}));
}

TEST_F(ContentViewTest, ASearchNarrowsWithinTheChosenApp) {
    store(u"Mail"_qs, u"café today"_qs, 1);
    store(u"Chat"_qs, u"café tomorrow"_qs, 2);
    open().setSelectedApp(u"Mail"_qs);
    view->setSearchText(u"CAFÉ"_qs);
    EXPECT_EQ(shown(), QStringList(u"café today"_qs));
    view->setSearchText(u"cafe"_qs);
    EXPECT_EQ(shown(), QStringList());
}

TEST_F(ContentViewTest, ChoicesDoNotNarrowWithTheFilter) {
    store(u"Mail"_qs, u"a"_qs, 1);
    store(u"Chat"_qs, u"b"_qs, 2);
    open().setSelectedApp(u"Mail"_qs);
    EXPECT_EQ(view->apps(), QStringList({u"Chat"_qs, u"Mail"_qs}));
    EXPECT_EQ(view->property("appLabels").toStringList(),
              QStringList({u"toolbar.app.all"_qs, u"Chat"_qs, u"Mail"_qs}));
    EXPECT_EQ(view->property("selectedAppIndex").toInt(), 2);
}

TEST_F(ContentViewTest, AnAppWhoseRowsAreGoneStaysChosenUntilTheUserPicksAnother) {
    store(u"Mail"_qs, u"a"_qs, 1);
    const qint64 chat = store(u"Chat"_qs, u"b"_qs, 2);
    open().setSelectedApp(u"Chat"_qs);
    hoard.deleteNotification(chat);
    reload();
    EXPECT_EQ(view->face(), Face::Fruitless);
    EXPECT_EQ(view->property("selectedAppIndex").toInt(), -1);
    EXPECT_EQ(view->property("selectedAppLabel").toString(), u"Chat"_qs);
    view->setProperty("selectedAppIndex", 0);
    EXPECT_EQ(view->face(), Face::List);
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
    const QSignalSpy changes(view.get(), &ContentView::derivationChanged);
    reload();
    EXPECT_EQ(changes.count(), 0);
    view->setSearchText(u"T"_qs);
    view->setSortMode(SortMode::oldest);
    view->setGroupMode(GroupMode::app);
    view->setSelectedApp(u"Mail"_qs);
    EXPECT_EQ(changes.count(), 4);
    view->setSearchText(u"T"_qs);
    view->setSortMode(SortMode::oldest);
    EXPECT_EQ(changes.count(), 4);
}

TEST_F(ContentViewTest, AGroupOpensAndClosesAndAnotherGroupingForgetsIt) {
    store(u"Mail"_qs, u"a"_qs, 1);
    store(u"Chat"_qs, u"b"_qs, 2);
    open().setGroupMode(GroupMode::app);
    EXPECT_EQ(view->lines()->rowCount(), 4);
    view->toggleGroup(u"Mail"_qs);
    system.scheduler.advance(0.2); // its rows fade
    EXPECT_EQ(view->lines()->rowCount(), 3);
    view->setSearchText(u"b"_qs); // the group goes
    view->setSearchText({});      // and comes back collapsed
    EXPECT_EQ(view->lines()->rowCount(), 3);
    view->setGroupMode(GroupMode::date);
    view->setGroupMode(GroupMode::app);
    EXPECT_EQ(view->lines()->rowCount(), 4);
    EXPECT_TRUE(view->collapsedGroups().isEmpty());
}

TEST_F(ContentViewTest, RowsOfAGroupAreThereWhileTheyFade) {
    using Role = NotificationListModel::Role;
    storeMany(2);
    open().setGroupMode(GroupMode::app);
    const NotificationListModel& lines = *view->lines();
    const auto isLast = [&](Role role) { return lines.data(lines.index(2), int(role)).toBool(); };
    EXPECT_FALSE(isLast(Role::IsArriving));
    view->toggleGroup(u"Mail"_qs);
    EXPECT_TRUE(lines.header(0).isCollapsed);
    EXPECT_TRUE(isLast(Role::IsLeaving));
    system.scheduler.advance(0.1);
    view->toggleGroup(u"Mail"_qs);
    EXPECT_FALSE(isLast(Role::IsLeaving));
    EXPECT_TRUE(isLast(Role::IsArriving));
    system.scheduler.advance(0.1); // the first toggle's time is over, the second's isn't
    EXPECT_TRUE(isLast(Role::IsArriving));
    system.scheduler.advance(0.1);
    EXPECT_FALSE(isLast(Role::IsArriving));
    view->toggleGroup(u"Mail"_qs);
    system.scheduler.advance(0.1);
    EXPECT_EQ(lines.rowCount(), 3);
    system.scheduler.advance(0.1);
    EXPECT_EQ(lines.rowCount(), 1);
}

TEST_F(ContentViewTest, AnotherGroupingEndsAFadeAtOnce) {
    storeMany(2);
    open().setGroupMode(GroupMode::app);
    view->toggleGroup(u"Mail"_qs);
    view->setGroupMode(GroupMode::none);
    view->setGroupMode(GroupMode::app);
    const NotificationListModel& lines = *view->lines();
    EXPECT_FALSE(lines.data(lines.index(1), int(NotificationListModel::Role::IsArriving)).toBool());
    EXPECT_EQ(lines.rowCount(), 3);
    system.scheduler.advance(1);
    EXPECT_EQ(lines.rowCount(), 3);
}

// Loaded and stored

TEST_F(ContentViewTest, TwelveHundredRowsAreLoadedInStepsThatSurviveACapture) {
    storeMany(1200);
    open();
    EXPECT_EQ(view->counterText(), u"toolbar.notifCount.truncated"_qs);
    EXPECT_EQ(shown().size(), 500);
    EXPECT_EQ(view->hoardTotalCount(), 1200);
    view->loadOlder();
    EXPECT_EQ(shown().size(), 1000);
    EXPECT_TRUE(view->canLoadOlder());
    reload(); // a capture
    EXPECT_EQ(shown().size(), 500);
    EXPECT_EQ(view->loadLimit(), 1000);
    EXPECT_TRUE(view->canLoadOlder());
    view->loadOlder();
    EXPECT_EQ(view->loadLimit(), 1500);
    EXPECT_EQ(shown().size(), 1200);
    EXPECT_FALSE(view->canLoadOlder());
    EXPECT_EQ(view->counterText(), u"toolbar.notifCount"_qs);
}

TEST_F(ContentViewTest, TheTotalIsReadAgainOnlyWhenTheNumberOfLoadedRowsChanges) {
    storeMany(500);
    open();
    EXPECT_FALSE(view->canLoadOlder());
    store(u"Mail"_qs, u"one more"_qs, -1);
    reload(); // still 500 rows
    EXPECT_EQ(view->hoardTotalCount(), 500);
    EXPECT_FALSE(view->canLoadOlder());
    view->appear();
    EXPECT_TRUE(view->canLoadOlder());
}

// Selection

class SelectionTest : public ContentViewTest {
protected:
    SelectionTest() {
        storeMany(10);
        open().enterSelectionMode();
    }
};

TEST_F(SelectionTest, BeginsEmptyAndEndsEmpty) {
    EXPECT_TRUE(view->selectionMode());
    view->toggleSelection(idOf(u"Title 1"_qs));
    EXPECT_EQ(view->selectedCount(), 1);
    view->exitSelectionMode();
    EXPECT_FALSE(view->selectionMode());
    EXPECT_EQ(view->selectedCount(), 0);
    view->toggleSelection(idOf(u"Title 1"_qs));
    view->enterSelectionMode();
    EXPECT_EQ(view->selectedCount(), 0);
}

TEST_F(SelectionTest, SelectAllSelectsTheRestAndThenNothing) {
    for (int i = 0; i < 3; ++i)
        view->toggleSelection(idOf(u"Title %1"_qs.arg(i)));
    EXPECT_FALSE(view->everySelected());
    view->selectAllVisible();
    EXPECT_EQ(view->selectedCount(), 10);
    EXPECT_TRUE(view->everySelected());
    view->selectAllVisible();
    EXPECT_EQ(view->selectedCount(), 0);
}

TEST_F(SelectionTest, StaleIdsOfTheSameNumberCountAsEveryRow) {
    view->selectAllVisible();
    reload();
    EXPECT_TRUE(view->everySelected());
}

TEST_F(SelectionTest, ACaptureLeavesTheCountAndDeletesNothing) {
    view->toggleSelection(idOf(u"Title 1"_qs));
    view->toggleSelection(idOf(u"Title 2"_qs));
    store(u"Mail"_qs, u"new"_qs, -1);
    reload();
    EXPECT_EQ(view->selectedCount(), 2);
    for (int line = 0; line < view->lines()->rowCount(); ++line)
        EXPECT_FALSE(
            view->lines()
                ->data(view->lines()->index(line), int(NotificationListModel::Role::IsSelected))
                .toBool());
    view->deleteSelected();
    EXPECT_EQ(hoard.totalCount(), 11);
    EXPECT_FALSE(view->selectionMode());
}

TEST_F(SelectionTest, DeleteSelectedTakesRowsThatASearchHasHiddenSince) {
    view->toggleSelection(idOf(u"Title 3"_qs));
    view->toggleSelection(idOf(u"Title 4"_qs));
    view->setSearchText(u"Title 3"_qs);
    view->deleteSelected();
    view->setSearchText({});
    EXPECT_EQ(shown().size(), 8);
    EXPECT_FALSE(shown().contains(u"Title 4"_qs));
    EXPECT_FALSE(view->selectionMode());
}

TEST_F(SelectionTest, AnAppAndADayAddTheirVisibleRows) {
    store(u"Chat"_qs, u"hello"_qs, 3.0 * 86400);
    reload();
    view->selectApp(u"Chat"_qs);
    EXPECT_EQ(view->selectedCount(), 1);
    view->selectDay(dayKey(system.scheduler.now() - 5));
    EXPECT_EQ(view->selectedCount(), 11);
    view->selectDay(u"1999-01-01"_qs);
    EXPECT_EQ(view->selectedCount(), 11);
}

TEST_F(SelectionTest, PresetsAddUpWithinTheFilterAndCloseThePopover) {
    store(u"Chat"_qs, u"yesterday"_qs, 86400);
    store(u"Chat"_qs, u"last week"_qs, 6.0 * 86400);
    store(u"News"_qs, u"news"_qs, 6.0 * 86400);
    reload();
    view->setSelectedApp(u"Chat"_qs);
    view->setShowDatePickerPopover(true);
    view->onSelectPreset(1); // yesterday
    EXPECT_FALSE(view->showDatePickerPopover());
    EXPECT_EQ(view->selectedIds(), QSet<QUuid>{idOf(u"yesterday"_qs)});
    view->onSelectPreset(2); // the last seven days
    EXPECT_EQ(view->selectedIds(), (QSet<QUuid>{idOf(u"yesterday"_qs), idOf(u"last week"_qs)}));
    view->onSelectPreset(0); // today: nothing of this app
    EXPECT_EQ(view->selectedCount(), 2);
}

TEST_F(SelectionTest, RangesIncludeBothEnds) {
    const double now = system.scheduler.now();
    view->selectRange(now - 4, now - 2);
    EXPECT_EQ(view->selectedIds(),
              (QSet<QUuid>{idOf(u"Title 2"_qs), idOf(u"Title 3"_qs), idOf(u"Title 4"_qs)}));
}

TEST_F(SelectionTest, AGroupIsSelectedAndDeselectedWhole) {
    store(u"Chat"_qs, u"hello"_qs, 1);
    reload();
    view->setGroupMode(GroupMode::app);
    view->selectGroup(u"Mail"_qs);
    EXPECT_EQ(view->selectedCount(), 10);
    EXPECT_EQ(view->lines()->header(view->lines()->headerBelow(0)).selectedCount, 10);
    view->toggleSelection(idOf(u"hello"_qs));
    view->deselectGroup(u"Mail"_qs);
    EXPECT_EQ(view->selectedIds(), QSet<QUuid>{idOf(u"hello"_qs)});
}

TEST_F(SelectionTest, TheDaysOnOfferStayEmptyWithoutAText) {
    EXPECT_TRUE(view->property("hasDays").toBool());
    EXPECT_TRUE(view->property("popoverMonths").toList().isEmpty());
}

TEST_F(SelectionTest, TheTitleOfDeleteAllCountsTheLoadedRows) {
    storeMany(1000);
    reload();
    EXPECT_EQ(listener->notifications().size(), 500U);
    view->deleteEverything();
    EXPECT_EQ(hoard.totalCount(), 0);
}

// Deletion and pins

TEST_F(ContentViewTest, OneRowOfAFullListMakesRoomForAnOlderOne) {
    storeMany(501);
    open().deleteNotification(idOf(u"Title 7"_qs));
    EXPECT_EQ(shown().size(), 500);
    EXPECT_TRUE(shown().contains(u"Title 500"_qs));
    EXPECT_FALSE(shown().contains(u"Title 7"_qs));
}

TEST_F(ContentViewTest, DeletingTheChosenAppFallsBackToAll) {
    store(u"Mail"_qs, u"a"_qs, 1);
    store(u"Chat"_qs, u"b"_qs, 2);
    open().setSelectedApp(u"Chat"_qs);
    view->setGroupMode(GroupMode::app);
    view->toggleGroup(u"Chat"_qs);
    view->deleteGroup(u"Chat"_qs);
    EXPECT_EQ(view->selectedApp(), u"All"_qs);
    EXPECT_FALSE(view->collapsedGroups().contains(u"Chat"_qs));
    EXPECT_EQ(shown(), QStringList(u"a"_qs));
}

TEST_F(ContentViewTest, DeletingADayLeavesTheFilterAndClearsTheSelection) {
    store(u"Mail"_qs, u"today"_qs, 1);
    store(u"Mail"_qs, u"before"_qs, 2.0 * 86400);
    open().setSelectedApp(u"Mail"_qs);
    view->setGroupMode(GroupMode::date);
    view->enterSelectionMode();
    view->toggleSelection(idOf(u"before"_qs));
    view->deleteGroup(dayKey(system.scheduler.now()));
    EXPECT_EQ(shown(), QStringList(u"before"_qs));
    EXPECT_EQ(view->selectedApp(), u"Mail"_qs);
    EXPECT_EQ(view->selectedCount(), 0);
    EXPECT_TRUE(view->selectionMode());
}

TEST_F(ContentViewTest, DeletingEverythingStartsOver) {
    storeMany(1100);
    open().loadOlder();
    view->loadOlder();
    EXPECT_EQ(view->loadLimit(), 1500);
    view->setSelectedApp(u"Mail"_qs);
    view->setGroupMode(GroupMode::app);
    view->toggleGroup(u"Mail"_qs);
    view->enterSelectionMode();
    view->deleteEverything();
    EXPECT_EQ(view->loadLimit(), 500);
    EXPECT_EQ(view->selectedApp(), u"All"_qs);
    EXPECT_TRUE(view->collapsedGroups().isEmpty());
    EXPECT_FALSE(view->selectionMode());
    EXPECT_EQ(view->face(), Face::Waiting);
    EXPECT_EQ(view->hoardTotalCount(), 0);
}

TEST_F(ContentViewTest, APinChangesTheBadgeAndNotThePlace) {
    storeMany(3);
    open().togglePinned(idOf(u"Title 1"_qs));
    EXPECT_EQ(shown(), QStringList({u"Title 0"_qs, u"Title 1"_qs, u"Title 2"_qs}));
    EXPECT_TRUE(view->filteredNotifications()[1].pinned);
    view->togglePinned(idOf(u"Title 1"_qs));
    EXPECT_FALSE(view->filteredNotifications()[1].pinned);
}

TEST_F(ContentViewTest, WhatActsOnARowThatIsGoneDoesNothing) {
    storeMany(2);
    open();
    const QUuid stale = idOf(u"Title 1"_qs);
    reload();
    view->togglePinned(stale);
    view->deleteNotification(stale);
    view->openInApp(stale);
    EXPECT_FALSE(view->copyToPasteboard(stale));
    EXPECT_TRUE(view->menuOf(stale).isEmpty());
    EXPECT_EQ(hoard.totalCount(), 2);
    EXPECT_FALSE(view->hasInlineBanner());
}

// Focus and preview

TEST_F(ContentViewTest, AReloadEndsTheFocusAndThePreview) {
    storeMany(2);
    open().onSingleTap(idOf(u"Title 1"_qs));
    view->setShowPreview(true);
    EXPECT_TRUE(view->isPreviewing());
    reload();
    EXPECT_FALSE(view->focusedNotification());
    EXPECT_FALSE(view->isPreviewing());
    view->setShowPreview(true); // nothing to show
    EXPECT_FALSE(view->isPreviewing());
}

TEST_F(ContentViewTest, ARowThatTheFilterHidesIsNotFocusedThoughItsIdStays) {
    storeMany(2);
    open().onSingleTap(idOf(u"Title 1"_qs));
    view->setSearchText(u"Title 0"_qs);
    EXPECT_FALSE(view->focusedNotification());
    view->setSearchText({});
    ASSERT_TRUE(view->focusedNotification());
    EXPECT_EQ(view->focusedNotification()->title, u"Title 1"_qs);
}

TEST_F(ContentViewTest, ThePreviewShowsAMaskedRowInClear) {
    store(u"Mail"_qs, u"secret"_qs, 1, u"text"_qs);
    preferences.setGlobalPrivacyMode(true);
    open().onSingleTap(idOf(u"secret"_qs));
    view->setShowPreview(true);
    EXPECT_EQ(view->preview().value(u"title"_qs), u"secret"_qs);
    EXPECT_EQ(view->preview().value(u"body"_qs), u"text"_qs);
}

TEST_F(ContentViewTest, ThePreviewsCopyClosesItUnlessThereIsNothingToCopy) {
    store(u"Mail"_qs, u"title"_qs, 1, u"body"_qs);
    store(u"Mail"_qs, {}, 2);
    open().onSingleTap(idOf(u"title"_qs));
    view->setShowPreview(true);
    view->copyPreview();
    EXPECT_EQ(pasteboard, QStringList(u"title\nbody"_qs));
    EXPECT_FALSE(view->isPreviewing());
    view->onSingleTap(idOf({}));
    view->setShowPreview(true);
    view->copyPreview();
    EXPECT_EQ(pasteboard.size(), 1);
    EXPECT_TRUE(view->isPreviewing());
}

TEST_F(ContentViewTest, CopiesABodyAloneWithoutALeadingLineFeed) {
    store(u"Mail"_qs, {}, 1, u"body"_qs);
    open();
    EXPECT_TRUE(view->copyToPasteboard(idOf({})));
    EXPECT_EQ(pasteboard, QStringList(u"body"_qs));
}

// Opening and banners

TEST_F(ContentViewTest, AnAppThatIsNotThereGivesABanner) {
    store(u"Ghost"_qs, u"boo"_qs, 1);
    open().onDoubleTap(idOf(u"boo"_qs));
    ASSERT_TRUE(view->hasInlineBanner());
    EXPECT_EQ(view->inlineBanner().icon, u"iphone"_qs);
    EXPECT_TRUE(view->inlineBanner().isWarning());
    EXPECT_EQ(view->focusedNotification()->title, u"boo"_qs);
}

TEST_F(ContentViewTest, TheMenusOpenLeavesTheFocus) {
    storeMany(2);
    open().onSingleTap(idOf(u"Title 0"_qs));
    view->openInApp(idOf(u"Title 1"_qs));
    EXPECT_EQ(view->focusedNotification()->title, u"Title 0"_qs);
}

TEST_F(ContentViewTest, ADoubleClickInSelectionModeOpensNothing) {
    storeMany(1);
    open().enterSelectionMode();
    view->onDoubleTap(idOf(u"Title 0"_qs));
    EXPECT_FALSE(view->hasInlineBanner());
}

TEST_F(ContentViewTest, ABannerGoesAfterFourSeconds) {
    open().showBanner(deepLinkBanner(u"Mail"_qs));
    EXPECT_FALSE(view->inlineBanner().isWarning());
    system.scheduler.advance(3.9);
    EXPECT_TRUE(view->hasInlineBanner());
    system.scheduler.advance(0.2);
    EXPECT_FALSE(view->hasInlineBanner());
}

TEST_F(ContentViewTest, ASecondBannerStaysForItsOwnFourSeconds) {
    open().showBanner(deepLinkBanner(u"Mail"_qs));
    system.scheduler.advance(2);
    view->showBanner(deepLinkBanner(u"Chat"_qs));
    system.scheduler.advance(3.9);
    EXPECT_TRUE(view->hasInlineBanner());
    system.scheduler.advance(0.2);
    EXPECT_FALSE(view->hasInlineBanner());
}

TEST_F(ContentViewTest, ABannerAfterADismissedOneIsNotCutShort) {
    open().showBanner(deepLinkBanner(u"Mail"_qs));
    system.scheduler.advance(1);
    view->dismissBanner();
    EXPECT_FALSE(view->hasInlineBanner());
    system.scheduler.advance(1);
    view->showBanner(deepLinkBanner(u"Chat"_qs));
    system.scheduler.advance(3.5);
    EXPECT_TRUE(view->hasInlineBanner());
}

TEST_F(ContentViewTest, ABannerWhoseViewIsGoneEndsSilently) {
    open().showBanner(deepLinkBanner(u"Mail"_qs));
    view.reset();
    system.scheduler.advance(5);
}

TEST(Banners, OfUnknownSourcesNameTheirId) {
    CapturedNotification row;
    row.appBundleId = u"app_id_17"_qs;
    row.appName = u"app_id_17"_qs;
    EXPECT_EQ(notInstalledBanner(row).icon, u"questionmark.app"_qs);
    EXPECT_EQ(notInstalledBanner(row).title, u"banner.notInstalled.unknownTitle"_qs);
    row.appBundleId = u"com.example.app_id_"_qs;
    EXPECT_EQ(notInstalledBanner(row).icon, u"iphone"_qs);
    EXPECT_EQ(deepLinkBanner(u"Mail"_qs).icon, u"arrow.up.forward.app"_qs);
}

// Export

TEST_F(ContentViewTest, AnExportGetsTheWholeListWhateverIsShown) {
    storeMany(5);
    open().setSearchText(u"Title 3"_qs);
    const QSignalSpy made(view.get(), &ContentView::exportSheetMade);
    view->setShowExportSheet(true);
    view->setShowExportSheet(true); // is open already
    EXPECT_EQ(made.count(), 1);
    EXPECT_EQ(exported, listener->notifications());
    ASSERT_NE(view->exportSheet(), nullptr);
    EXPECT_EQ(view->exportSheet()->count(), 5);
    view->exportSheet()->cancel();
    EXPECT_FALSE(view->showExportSheet());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(view->exportSheet(), nullptr);
}

// Privacy

TEST_F(ContentViewTest, SearchReadsWhatAMaskedRowHides) {
    store(u"Mail"_qs, u"secret"_qs, 1);
    preferences.setGlobalPrivacyMode(true);
    open().setSearchText(u"secret"_qs);
    EXPECT_EQ(view->face(), Face::List);
    const auto isPrivate = [&] {
        return view->lines()
            ->data(view->lines()->index(0), int(NotificationListModel::Role::IsPrivate))
            .toBool();
    };
    EXPECT_TRUE(isPrivate());
    const QSignalSpy changes(view->lines(), &QAbstractItemModel::dataChanged);
    preferences.setGlobalPrivacyMode(false);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_FALSE(isPrivate());
    preferences.setPrivacyApps({u"com.example.Mail"_qs});
    EXPECT_TRUE(isPrivate());
}

} // namespace
} // namespace tessarine::testing

#include "browser/BrowserFixture.h"
#include "support/TimeZoneScope.h"

#include <QSignalSpy>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;
using Face = BrowserList::Face;

class ContentViewActionsTest : public BrowserTest {};

// Deletion and pins

TEST_F(ContentViewActionsTest, OneRowOfAFullListMakesRoomForAnOlderOne) {
    storeMany(501);
    open().actions()->deleteNotification(idOf(u"Title 7"_qs));
    EXPECT_EQ(shown().size(), 500);
    EXPECT_TRUE(shown().contains(u"Title 500"_qs));
    EXPECT_FALSE(shown().contains(u"Title 7"_qs));
}

TEST_F(ContentViewActionsTest, DeletingTheChosenAppFallsBackToAll) {
    store(u"Mail"_qs, u"a"_qs, 1);
    store(u"Chat"_qs, u"b"_qs, 2);
    open().list()->setSelectedApp(u"Chat"_qs);
    view->list()->setGroupMode(GroupMode::app);
    view->list()->toggleGroup(u"Chat"_qs);
    view->actions()->deleteGroup(u"Chat"_qs);
    EXPECT_EQ(view->list()->selectedApp(), u"All"_qs);
    EXPECT_FALSE(view->list()->collapsedGroups().contains(u"Chat"_qs));
    EXPECT_EQ(shown(), QStringList(u"a"_qs));
}

TEST_F(ContentViewActionsTest, DeletingADayLeavesTheFilterAndClearsTheSelection) {
    const TimeZoneScope zone("UTC");
    store(u"Mail"_qs, u"today"_qs, 1);
    store(u"Mail"_qs, u"before"_qs, 2.0 * 86400);
    open().list()->setSelectedApp(u"Mail"_qs);
    view->list()->setGroupMode(GroupMode::date);
    view->selection()->enterSelectionMode();
    view->selection()->toggleSelection(idOf(u"before"_qs));
    view->actions()->deleteGroup(u"2025-11-16"_qs); // the scheduler's day
    EXPECT_EQ(shown(), QStringList(u"before"_qs));
    EXPECT_EQ(view->list()->selectedApp(), u"Mail"_qs);
    EXPECT_EQ(view->selection()->selectedCount(), 0);
    EXPECT_TRUE(view->selection()->selectionMode());
}

TEST_F(ContentViewActionsTest, DeletingEverythingStartsOver) {
    storeMany(1100);
    open().list()->loadOlder();
    view->list()->loadOlder();
    EXPECT_EQ(view->list()->loadLimit(), 1500);
    view->list()->setSelectedApp(u"Mail"_qs);
    view->list()->setGroupMode(GroupMode::app);
    view->list()->toggleGroup(u"Mail"_qs);
    view->selection()->enterSelectionMode();
    view->selection()->deleteEverything();
    EXPECT_EQ(view->list()->loadLimit(), 500);
    EXPECT_EQ(view->list()->selectedApp(), u"All"_qs);
    EXPECT_TRUE(view->list()->collapsedGroups().isEmpty());
    EXPECT_FALSE(view->selection()->selectionMode());
    EXPECT_EQ(view->list()->face(), Face::Waiting);
    EXPECT_EQ(view->list()->hoardTotalCount(), 0);
}

TEST_F(ContentViewActionsTest, APinChangesTheBadgeAndNotThePlace) {
    storeMany(3);
    open().actions()->togglePinned(idOf(u"Title 1"_qs));
    EXPECT_EQ(shown(), QStringList({u"Title 0"_qs, u"Title 1"_qs, u"Title 2"_qs}));
    EXPECT_TRUE(view->list()->filteredNotifications()[1].pinned);
    view->actions()->togglePinned(idOf(u"Title 1"_qs));
    EXPECT_FALSE(view->list()->filteredNotifications()[1].pinned);
}

TEST_F(ContentViewActionsTest, WhatActsOnARowThatIsGoneDoesNothing) {
    storeMany(2);
    open();
    const QUuid stale = idOf(u"Title 1"_qs);
    reload();
    view->actions()->togglePinned(stale);
    view->actions()->deleteNotification(stale);
    view->actions()->openInApp(stale);
    EXPECT_FALSE(view->actions()->copyToPasteboard(stale));
    EXPECT_TRUE(view->actions()->menuOf(stale).isEmpty());
    EXPECT_EQ(hoard.totalCount(), 2);
    EXPECT_FALSE(view->overlays()->hasInlineBanner());
}

// Focus and preview

TEST_F(ContentViewActionsTest, AReloadEndsTheFocusAndThePreview) {
    storeMany(2);
    open().actions()->onSingleTap(idOf(u"Title 1"_qs));
    view->actions()->setShowPreview(true);
    EXPECT_TRUE(view->actions()->isPreviewing());
    reload();
    EXPECT_FALSE(view->actions()->focusedNotification());
    EXPECT_FALSE(view->actions()->isPreviewing());
    view->actions()->setShowPreview(true); // nothing to show
    EXPECT_FALSE(view->actions()->isPreviewing());
}

TEST_F(ContentViewActionsTest, ARowThatTheFilterHidesIsNotFocusedThoughItsIdStays) {
    storeMany(2);
    open().actions()->onSingleTap(idOf(u"Title 1"_qs));
    view->list()->setSearchText(u"Title 0"_qs);
    EXPECT_FALSE(view->actions()->focusedNotification());
    view->list()->setSearchText({});
    ASSERT_TRUE(view->actions()->focusedNotification());
    EXPECT_EQ(view->actions()->focusedNotification()->title, u"Title 1"_qs);
}

TEST_F(ContentViewActionsTest, ThePreviewShowsAMaskedRowInClear) {
    store(u"Mail"_qs, u"secret"_qs, 1, u"text"_qs);
    preferences.setGlobalPrivacyMode(true);
    open().actions()->onSingleTap(idOf(u"secret"_qs));
    view->actions()->setShowPreview(true);
    EXPECT_EQ(view->actions()->preview().title, u"secret"_qs);
    EXPECT_EQ(view->actions()->preview().body, u"text"_qs);
}

TEST_F(ContentViewActionsTest, ThePreviewsCopyClosesItUnlessThereIsNothingToCopy) {
    store(u"Mail"_qs, u"title"_qs, 1, u"body"_qs);
    store(u"Mail"_qs, {}, 2);
    open().actions()->onSingleTap(idOf(u"title"_qs));
    view->actions()->setShowPreview(true);
    view->actions()->copyPreview();
    EXPECT_EQ(pasteboard, QStringList(u"title\nbody"_qs));
    EXPECT_FALSE(view->actions()->isPreviewing());
    view->actions()->onSingleTap(idOf({}));
    view->actions()->setShowPreview(true);
    view->actions()->copyPreview();
    EXPECT_EQ(pasteboard.size(), 1);
    EXPECT_TRUE(view->actions()->isPreviewing());
}

TEST_F(ContentViewActionsTest, CopiesABodyAloneWithoutALeadingLineFeed) {
    store(u"Mail"_qs, {}, 1, u"body"_qs);
    open();
    EXPECT_TRUE(view->actions()->copyToPasteboard(idOf({})));
    EXPECT_EQ(pasteboard, QStringList(u"body"_qs));
}

// Opening and banners

TEST_F(ContentViewActionsTest, AnAppThatIsNotThereGivesABanner) {
    store(u"Ghost"_qs, u"boo"_qs, 1);
    open().actions()->onDoubleTap(idOf(u"boo"_qs));
    ASSERT_TRUE(view->overlays()->hasInlineBanner());
    EXPECT_EQ(view->overlays()->inlineBanner().icon, u"iphone"_qs);
    EXPECT_TRUE(view->overlays()->inlineBanner().isWarning());
    EXPECT_EQ(view->actions()->focusedNotification()->title, u"boo"_qs);
}

TEST_F(ContentViewActionsTest, AnAppThatIsThereOpensWithoutABanner) {
    system.workspace.installed[u"com.example.Mail"_qs] = u"/Applications/Mail.app"_qs;
    store(u"Mail"_qs, u"hello"_qs, 1);
    open().actions()->onDoubleTap(idOf(u"hello"_qs));
    EXPECT_EQ(system.workspace.openedApplications, QStringList(u"/Applications/Mail.app"_qs));
    EXPECT_FALSE(view->overlays()->hasInlineBanner());
}

TEST_F(ContentViewActionsTest, AnAppThatIsShownThePlaceGivesAnInfoBanner) {
    system.workspace.installed[u"com.apple.iCal"_qs] = u"/Applications/Calendar.app"_qs;
    CapturedNotification row;
    row.noteId = 1;
    row.appBundleId = u"com.apple.iCal"_qs;
    row.appName = u"Calendar"_qs;
    row.title = u"Dentist"_qs;
    row.timestamp = system.scheduler.now();
    ASSERT_TRUE(hoard.insert(row));
    open().actions()->onDoubleTap(idOf(u"Dentist"_qs));
    EXPECT_EQ(system.workspace.openedURLs.size(), 1);
    ASSERT_TRUE(view->overlays()->hasInlineBanner());
    EXPECT_FALSE(view->overlays()->inlineBanner().isWarning());
    EXPECT_EQ(view->overlays()->inlineBanner().title, deepLinkBanner(u"Calendar"_qs).title);
}

TEST_F(ContentViewActionsTest, AnOpenMenuActsOnItsRowThroughAReload) {
    storeMany(3);
    open();
    const QUuid chosen = idOf(u"Title 1"_qs);
    EXPECT_FALSE(view->actions()->menuOf(chosen).isEmpty());
    reload();
    view->actions()->togglePinned(chosen);
    EXPECT_TRUE(view->list()->filteredNotifications()[1].pinned);
    EXPECT_TRUE(view->actions()->copyToPasteboard(chosen));
    EXPECT_EQ(pasteboard, QStringList(u"Title 1"_qs));
    view->actions()->deleteNotification(chosen);
    EXPECT_EQ(shown(), QStringList({u"Title 0"_qs, u"Title 2"_qs}));
}

TEST_F(ContentViewActionsTest, TheMenusOpenLeavesTheFocus) {
    storeMany(2);
    open().actions()->onSingleTap(idOf(u"Title 0"_qs));
    view->actions()->openInApp(idOf(u"Title 1"_qs));
    EXPECT_EQ(view->actions()->focusedNotification()->title, u"Title 0"_qs);
}

TEST_F(ContentViewActionsTest, ADoubleClickInSelectionModeOpensNothing) {
    storeMany(1);
    open().selection()->enterSelectionMode();
    view->actions()->onDoubleTap(idOf(u"Title 0"_qs));
    EXPECT_FALSE(view->overlays()->hasInlineBanner());
}

TEST_F(ContentViewActionsTest, ABannerGoesAfterFourSeconds) {
    open().overlays()->showBanner(deepLinkBanner(u"Mail"_qs));
    EXPECT_FALSE(view->overlays()->inlineBanner().isWarning());
    system.scheduler.advance(3.9);
    EXPECT_TRUE(view->overlays()->hasInlineBanner());
    system.scheduler.advance(0.2);
    EXPECT_FALSE(view->overlays()->hasInlineBanner());
}

TEST_F(ContentViewActionsTest, ASecondBannerStaysForItsOwnFourSeconds) {
    open().overlays()->showBanner(deepLinkBanner(u"Mail"_qs));
    system.scheduler.advance(2);
    view->overlays()->showBanner(deepLinkBanner(u"Chat"_qs));
    system.scheduler.advance(3.9);
    EXPECT_TRUE(view->overlays()->hasInlineBanner());
    system.scheduler.advance(0.2);
    EXPECT_FALSE(view->overlays()->hasInlineBanner());
}

TEST_F(ContentViewActionsTest, ABannerAfterADismissedOneIsNotCutShort) {
    open().overlays()->showBanner(deepLinkBanner(u"Mail"_qs));
    system.scheduler.advance(1);
    view->overlays()->dismissBanner();
    EXPECT_FALSE(view->overlays()->hasInlineBanner());
    system.scheduler.advance(1);
    view->overlays()->showBanner(deepLinkBanner(u"Chat"_qs));
    system.scheduler.advance(3.5);
    EXPECT_TRUE(view->overlays()->hasInlineBanner());
}

TEST_F(ContentViewActionsTest, ABannerWhoseViewIsGoneEndsSilently) {
    open().overlays()->showBanner(deepLinkBanner(u"Mail"_qs));
    system.scheduler.advance(2);
    view.reset();
    open().overlays()->showBanner(
        deepLinkBanner(u"Chat"_qs)); // where the view that is gone may have been
    const QSignalSpy changes(view->overlays(), &Overlays::inlineBannerChanged);
    system.scheduler.advance(3); // the time of the first one is over
    EXPECT_EQ(changes.count(), 0);
    EXPECT_EQ(view->overlays()->inlineBanner().title, deepLinkBanner(u"Chat"_qs).title);
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

TEST_F(ContentViewActionsTest, AnExportGetsTheWholeListWhateverIsShown) {
    storeMany(5);
    open().list()->setSearchText(u"Title 3"_qs);
    const QSignalSpy made(view->overlays(), &Overlays::exportSheetMade);
    view->overlays()->setShowExportSheet(true);
    view->overlays()->setShowExportSheet(true); // is open already
    EXPECT_EQ(made.count(), 1);
    EXPECT_EQ(exported, listener->notifications());
    ASSERT_NE(view->overlays()->exportSheet(), nullptr);
    EXPECT_EQ(view->overlays()->exportSheet()->count(), 5);
    view->overlays()->exportSheet()->cancel();
    EXPECT_FALSE(view->overlays()->showExportSheet());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(view->overlays()->exportSheet(), nullptr);
}

} // namespace
} // namespace tessarine::testing

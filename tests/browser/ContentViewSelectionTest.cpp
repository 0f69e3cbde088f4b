#include "browser/BrowserFixture.h"
#include "support/TimeZoneScope.h"

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class ContentViewSelectionTest : public BrowserTest {
protected:
    ContentViewSelectionTest() {
        storeMany(10);
        open().selection()->enterSelectionMode();
    }

    const TimeZoneScope zone{"UTC"}; // where it is 15:33:20 on 2025-11-16
};

TEST_F(ContentViewSelectionTest, BeginsEmptyAndEndsEmpty) {
    EXPECT_TRUE(view->selection()->selectionMode());
    view->selection()->toggleSelection(idOf(u"Title 1"_qs));
    EXPECT_EQ(view->selection()->selectedCount(), 1);
    view->selection()->exitSelectionMode();
    EXPECT_FALSE(view->selection()->selectionMode());
    EXPECT_EQ(view->selection()->selectedCount(), 0);
    view->selection()->toggleSelection(idOf(u"Title 1"_qs));
    view->selection()->enterSelectionMode();
    EXPECT_EQ(view->selection()->selectedCount(), 0);
}

TEST_F(ContentViewSelectionTest, SelectAllSelectsTheRestAndThenNothing) {
    for (int i = 0; i < 3; ++i)
        view->selection()->toggleSelection(idOf(u"Title %1"_qs.arg(i)));
    EXPECT_FALSE(view->selection()->everySelected());
    view->selection()->selectAllVisible();
    EXPECT_EQ(view->selection()->selectedCount(), 10);
    EXPECT_TRUE(view->selection()->everySelected());
    view->selection()->selectAllVisible();
    EXPECT_EQ(view->selection()->selectedCount(), 0);
}

TEST_F(ContentViewSelectionTest, StaleIdsOfTheSameNumberCountAsEveryRow) {
    view->selection()->selectAllVisible();
    reload();
    EXPECT_TRUE(view->selection()->everySelected());
}

TEST_F(ContentViewSelectionTest, ACaptureLeavesTheCountAndDeletesNothing) {
    view->selection()->toggleSelection(idOf(u"Title 1"_qs));
    view->selection()->toggleSelection(idOf(u"Title 2"_qs));
    store(u"Mail"_qs, u"new"_qs, -1);
    reload();
    EXPECT_EQ(view->selection()->selectedCount(), 2);
    for (int line = 0; line < view->list()->lines()->rowCount(); ++line)
        EXPECT_FALSE(view->list()
                         ->lines()
                         ->data(view->list()->lines()->index(line),
                                int(NotificationListModel::Role::IsSelected))
                         .toBool());
    view->selection()->deleteSelected();
    EXPECT_EQ(hoard.totalCount(), 11);
    EXPECT_FALSE(view->selection()->selectionMode());
}

TEST_F(ContentViewSelectionTest, DeleteSelectedTakesRowsThatASearchHasHiddenSince) {
    view->selection()->toggleSelection(idOf(u"Title 3"_qs));
    view->selection()->toggleSelection(idOf(u"Title 4"_qs));
    view->list()->setSearchText(u"Title 3"_qs);
    view->selection()->deleteSelected();
    view->list()->setSearchText({});
    EXPECT_EQ(shown().size(), 8);
    EXPECT_FALSE(shown().contains(u"Title 4"_qs));
    EXPECT_FALSE(view->selection()->selectionMode());
}

TEST_F(ContentViewSelectionTest, AnAppAndADayAddTheirVisibleRows) {
    store(u"Chat"_qs, u"hello"_qs, 3.0 * 86400);
    reload();
    view->selection()->selectApp(u"Chat"_qs);
    EXPECT_EQ(view->selection()->selectedCount(), 1);
    view->selection()->selectDay(u"2025-11-16"_qs);
    EXPECT_EQ(view->selection()->selectedCount(), 11);
    view->selection()->selectDay(u"1999-01-01"_qs);
    EXPECT_EQ(view->selection()->selectedCount(), 11);
}

TEST_F(ContentViewSelectionTest, PresetsAddUpWithinTheFilterAndCloseThePopover) {
    store(u"Chat"_qs, u"yesterday"_qs, 86400);
    store(u"Chat"_qs, u"last week"_qs, 6.0 * 86400);
    store(u"News"_qs, u"news"_qs, 6.0 * 86400);
    reload();
    view->list()->setSelectedApp(u"Chat"_qs);
    view->selection()->dates()->setShowDatePickerPopover(true);
    view->selection()->dates()->onSelectPreset(1); // yesterday
    EXPECT_FALSE(view->selection()->dates()->showDatePickerPopover());
    EXPECT_EQ(view->selection()->selectedIds(), QSet<QUuid>{idOf(u"yesterday"_qs)});
    view->selection()->dates()->onSelectPreset(2); // the last seven days
    EXPECT_EQ(view->selection()->selectedIds(),
              (QSet<QUuid>{idOf(u"yesterday"_qs), idOf(u"last week"_qs)}));
    view->selection()->dates()->onSelectPreset(0); // today: nothing of this app
    EXPECT_EQ(view->selection()->selectedCount(), 2);
}

TEST_F(ContentViewSelectionTest, TheLastHalfSecondOfADayIsInNoPresetOfTheTwoDays) {
    const double midnight = system.scheduler.now() - 56000; // 15:33:20 before
    store(u"Chat"_qs, u"late"_qs, system.scheduler.now() - (midnight - 0.5));
    reload();
    view->list()->setSelectedApp(u"Chat"_qs);
    view->selection()->dates()->onSelectPreset(0); // today
    view->selection()->dates()->onSelectPreset(1); // yesterday
    EXPECT_EQ(view->selection()->selectedCount(), 0);
    view->selection()->dates()->onSelectPreset(2); // the last seven days
    EXPECT_EQ(view->selection()->selectedCount(), 1);
}

TEST_F(ContentViewSelectionTest, APresetWithoutALoadedRowSelectsNothingAndCloses) {
    store(u"Chat"_qs, u"yesterday"_qs, 86400);
    storeMany(500, u"News"_qs); // newer, and as many as are loaded
    reload();
    view->selection()->dates()->setShowDatePickerPopover(true);
    view->selection()->dates()->onSelectPreset(1);
    EXPECT_FALSE(view->selection()->dates()->showDatePickerPopover());
    EXPECT_EQ(view->selection()->selectedCount(), 0);
}

TEST_F(ContentViewSelectionTest, RangesIncludeBothEnds) {
    const double now = system.scheduler.now();
    view->selection()->selectRange(now - 4, now - 2);
    EXPECT_EQ(view->selection()->selectedIds(),
              (QSet<QUuid>{idOf(u"Title 2"_qs), idOf(u"Title 3"_qs), idOf(u"Title 4"_qs)}));
}

TEST_F(ContentViewSelectionTest, AGroupIsSelectedAndDeselectedWhole) {
    store(u"Chat"_qs, u"hello"_qs, 1);
    reload();
    view->list()->setGroupMode(GroupMode::app);
    view->selection()->selectGroup(u"Mail"_qs);
    EXPECT_EQ(view->selection()->selectedCount(), 10);
    EXPECT_EQ(view->list()->lines()->header(view->list()->lines()->headerBelow(0)).selectedCount,
              10);
    view->selection()->toggleSelection(idOf(u"hello"_qs));
    view->selection()->deselectGroup(u"Mail"_qs);
    EXPECT_EQ(view->selection()->selectedIds(), QSet<QUuid>{idOf(u"hello"_qs)});
}

TEST_F(ContentViewSelectionTest, TheDaysOnOfferStayEmptyWithoutAText) {
    EXPECT_TRUE(view->selection()->dates()->hasDays());
    EXPECT_TRUE(view->selection()->dates()->months().isEmpty());
}

} // namespace
} // namespace tessarine::testing

#include "support/EventLoop.h"
#include "ui/UiFixture.h"

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class SelectionBarTest : public UiTest {
protected:
    // Ten rows, three of them of another application and four days old.
    SelectionBarTest() {
        NotificationList rows = numbered(10);
        for (std::size_t i = 7; i < 10; ++i) {
            rows[i].appName = u"Chat"_qs;
            rows[i].timestamp -= 4 * 86400.0;
        }
        for (std::size_t i = 0; i < 7; ++i)
            rows[i].timestamp = ManualScheduler::startOfTime - double(i);
        showHoard(rows);
        click(item(u"enterSelection"_qs));
        EXPECT_TRUE(
            turnsUntil([&] { return !isShown(u"appPicker"_qs) && isShown(u"selectAll"_qs); }));
        draw();
    }

    QString count() const { return item(u"selectionCount"_qs).property("text").toString(); }

    void answer(const QString& dialog, const QString& text) {
        ASSERT_TRUE(turnsUntil([&] { return isShown(dialog); }));
        draw();
        QQuickItem* button = entry(text);
        ASSERT_NE(button, nullptr);
        click(*button);
        ASSERT_TRUE(turnsUntil([&] { return isGone(dialog); }));
    }
};

TEST_F(SelectionBarTest, TakesThePlaceOfTheToolbarAndGivesItBack) {
    EXPECT_EQ(count(), u"Nothing selected"_qs);
    EXPECT_FALSE(item(u"deleteSelected"_qs).isEnabled());
    click(item(u"cancelSelection"_qs));
    EXPECT_TRUE(turnsUntil([&] { return isShown(u"appPicker"_qs) && !isShown(u"selectAll"_qs); }));
    EXPECT_FALSE(view().selectionMode());
}

TEST_F(SelectionBarTest, AClickTogglesARow) {
    click(*row(u"Title 9"_qs));
    EXPECT_EQ(count(), u"1 selected"_qs);
    EXPECT_TRUE(row(u"Title 9"_qs)->property("isSelected").toBool());
    EXPECT_TRUE(item(u"deleteSelected"_qs).isEnabled());
    click(*row(u"Title 9"_qs));
    EXPECT_EQ(count(), u"Nothing selected"_qs);
}

TEST_F(SelectionBarTest, SelectAllBecomesDeselectAll) {
    EXPECT_EQ(item(u"selectAll"_qs).property("text").toString(), u"Select All"_qs);
    click(item(u"selectAll"_qs));
    EXPECT_EQ(count(), u"10 selected"_qs);
    EXPECT_EQ(item(u"selectAll"_qs).property("text").toString(), u"Deselect All"_qs);
    click(item(u"selectAll"_qs));
    EXPECT_EQ(count(), u"Nothing selected"_qs);
}

TEST_F(SelectionBarTest, AnAppIsSelectedFromItsMenu) {
    click(item(u"selectByApp"_qs));
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"appMenu"_qs); }));
    draw();
    click(*entry(u"Chat"_qs));
    EXPECT_EQ(count(), u"3 selected"_qs);
}

TEST_F(SelectionBarTest, PresetsAddUpAndCloseThePopover) {
    click(item(u"selectByDate"_qs));
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"datePopover"_qs); }));
    draw();
    EXPECT_FALSE(textsInWindow(*window).contains(u"No days to choose from yet"_qs));
    click(*entry(u"Today"_qs));
    ASSERT_TRUE(turnsUntil([&] { return isGone(u"datePopover"_qs); }));
    EXPECT_EQ(count(), u"7 selected"_qs);
    click(item(u"selectByDate"_qs));
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"datePopover"_qs); }));
    draw();
    click(*entry(u"Last 7 Days"_qs));
    EXPECT_EQ(count(), u"10 selected"_qs);
}

TEST_F(SelectionBarTest, EscapeClosesThePopoverAndNothingElse) {
    click(item(u"selectByDate"_qs));
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"datePopover"_qs); }));
    press(Qt::Key_Escape);
    EXPECT_TRUE(turnsUntil([&] { return isGone(u"datePopover"_qs); }));
    EXPECT_TRUE(view().selectionMode());
    press(Qt::Key_Escape); // passed on
    EXPECT_TRUE(view().selectionMode());
}

TEST_F(SelectionBarTest, DeleteSelectedAsksAndThenDeletes) {
    click(*row(u"Title 9"_qs));
    click(*row(u"Title 8"_qs));
    click(item(u"deleteSelected"_qs));
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"deleteSelectedConfirm"_qs); }));
    draw();
    EXPECT_TRUE(textsInWindow(*window).contains(u"Delete 2 notifications?"_qs));
    answer(u"deleteSelectedConfirm"_qs, u"Delete"_qs);
    EXPECT_EQ(hoard.totalCount(), 8);
    EXPECT_FALSE(view().selectionMode());
    EXPECT_EQ(list().property("count").toInt(), 8);
}

TEST_F(SelectionBarTest, CancelDeletesNothing) {
    click(*row(u"Title 9"_qs));
    click(item(u"deleteSelected"_qs));
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"deleteSelectedConfirm"_qs); }));
    press(Qt::Key_Escape);
    EXPECT_TRUE(turnsUntil([&] { return isGone(u"deleteSelectedConfirm"_qs); }));
    EXPECT_EQ(hoard.totalCount(), 10);
    EXPECT_TRUE(view().selectionMode());
    EXPECT_EQ(count(), u"1 selected"_qs);
}

TEST_F(SelectionBarTest, DeleteAllAsksAndThenEmptiesTheHoard) {
    click(item(u"deleteAll"_qs));
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"deleteAllConfirm"_qs); }));
    draw();
    EXPECT_TRUE(textsInWindow(*window).contains(u"Delete all notifications? (10 loaded)"_qs));
    press(Qt::Key_Escape);
    ASSERT_TRUE(turnsUntil([&] { return isGone(u"deleteAllConfirm"_qs); }));
    EXPECT_EQ(hoard.totalCount(), 10);
    view().setShowDeleteAllConfirm(true);
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"deleteAllConfirm"_qs); }));
    view().deleteEverything();
    EXPECT_EQ(hoard.totalCount(), 0);
    EXPECT_EQ(view().face(), ContentView::Face::Waiting);
}

TEST_F(SelectionBarTest, DeleteAllSpeaksOfTheLoadedRows) {
    for (CapturedNotification& row : numbered(600, 100)) {
        row.noteId = row.dbId;
        ASSERT_TRUE(hoard.insert(row));
    }
    reload();
    draw();
    click(item(u"deleteAll"_qs));
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"deleteAllConfirm"_qs); }));
    draw();
    EXPECT_TRUE(textsInWindow(*window).contains(u"Delete all notifications? (500 loaded)"_qs));
}

TEST_F(SelectionBarTest, ACaptureInTheMiddleLeavesTheCountAndDeletesNothing) {
    click(*row(u"Title 9"_qs));
    reload();
    draw();
    EXPECT_EQ(count(), u"1 selected"_qs);
    EXPECT_FALSE(row(u"Title 9"_qs)->property("isSelected").toBool());
    click(item(u"deleteSelected"_qs));
    answer(u"deleteSelectedConfirm"_qs, u"Delete"_qs);
    EXPECT_EQ(hoard.totalCount(), 10);
    EXPECT_FALSE(view().selectionMode());
}

} // namespace
} // namespace tessarine::testing

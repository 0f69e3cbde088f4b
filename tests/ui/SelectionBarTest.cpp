#include "support/EventLoop.h"
#include "ui/AnimationClock.h"
#include "ui/UiFixture.h"

#include <QTest>

#include <utility>

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

    static QObject& tipOf(const QQuickItem& button) {
        for (QObject* child : button.findChildren<QObject*>()) {
            if (child->inherits("QQuickToolTip"))
                return *child;
        }
        qFatal("the button has no tip");
    }

    // The button of an open dialog: one of the bar may have the same text.
    QQuickItem* buttonIn(const QString& dialog, const QString& text) const {
        const auto* panel = root().findChild<QObject*>(dialog);
        return buttonBelow(*panel->property("contentItem").value<QQuickItem*>(), text);
    }

    static QQuickItem* buttonBelow(const QQuickItem& top, const QString& text) {
        for (QQuickItem* child : top.childItems()) {
            if (child->inherits("QQuickAbstractButton") && child->property("text") == text)
                return child;
            if (QQuickItem* deeper = buttonBelow(*child, text))
                return deeper;
        }
        return nullptr;
    }

    void answer(const QString& dialog, const QString& text) {
        ASSERT_TRUE(turnsUntil([&] { return isShown(dialog); }));
        draw();
        QQuickItem* button = buttonIn(dialog, text);
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
    EXPECT_FALSE(view().selection()->selectionMode());
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

TEST_F(SelectionBarTest, NoTipLiesOverAMenuThatItsButtonOpened) {
    for (const auto& [button, panel] : {std::pair{u"selectByApp"_qs, u"appMenu"_qs},
                                        std::pair{u"selectByDate"_qs, u"datePopover"_qs}}) {
        QQuickItem& opener = item(button);
        QTest::mouseMove(window->window(), opener.mapToScene(QPointF(10, 10)).toPoint());
        draw();
        QObject& tip = tipOf(opener);
        tip.setProperty("delay", 0);
        ASSERT_TRUE(turnsUntil([&] { return tip.property("opened").toBool(); }));
        clickAt(opener, {10, 10});
        ASSERT_TRUE(turnsUntil([&, &panel = panel] { return isShown(panel); }));
        EXPECT_FALSE(tip.property("visible").toBool());
        draw();
        EXPECT_FALSE(tip.property("visible").toBool());
        press(Qt::Key_Escape);
        ASSERT_TRUE(turnsUntil([&, &panel = panel] { return isGone(panel); }));
    }
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

TEST_F(SelectionBarTest, ThePopoverIs240WideAndHangsFromItsButton) {
    click(item(u"selectByDate"_qs));
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"datePopover"_qs); }));
    draw();
    const auto* popover = root().findChild<QObject*>(u"datePopover"_qs);
    const auto* panel = popover->property("background").value<QQuickItem*>();
    EXPECT_EQ(panel->width(), 240);
    const QRectF place = panel->mapRectToScene(panel->boundingRect());
    const QQuickItem& button = item(u"selectByDate"_qs);
    EXPECT_GE(place.top(), button.mapToScene(QPointF(0, button.height())).y());
    EXPECT_TRUE(QRectF(0, 0, 720, 520).contains(place));
    // Every range in its order, and no day: an empty area stands under its heading.
    const auto* content = popover->property("contentItem").value<QQuickItem*>();
    EXPECT_EQ(
        textsIn(*content),
        QStringList({u"Select by Date"_qs, u"Ranges"_qs, u"Today"_qs, u"Yesterday"_qs,
                     u"Last 7 Days"_qs, u"Last 30 Days"_qs, u"This Month"_qs, u"Last Month"_qs,
                     u"This Year"_qs, u"Days"_qs,
                     u"Choices add up: each one adds its notifications to the selection."_qs}));
}

TEST_F(SelectionBarTest, TheDaysOfThePopoverScrollBeyond260) {
    view().selection()->dates()->setShowDatePickerPopover(true);
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"datePopover"_qs); }));
    QQuickItem& days = item(u"days"_qs);
    EXPECT_EQ(days.height(), 0);
    // The program gives no days to show; a column of them stands in for that.
    auto* column = days.property("contentItem").value<QQuickItem*>()->childItems().front();
    column->setProperty("height", 259.0);
    EXPECT_EQ(days.height(), 259);
    column->setProperty("height", 700.0);
    EXPECT_EQ(days.height(), 260);
    EXPECT_EQ(days.property("contentHeight").toDouble(), 700);
}

TEST_F(SelectionBarTest, EscapeClosesThePopoverAndNothingElse) {
    click(item(u"selectByDate"_qs));
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"datePopover"_qs); }));
    press(Qt::Key_Escape);
    EXPECT_TRUE(turnsUntil([&] { return isGone(u"datePopover"_qs); }));
    EXPECT_TRUE(view().selection()->selectionMode());
    press(Qt::Key_Escape); // passed on
    EXPECT_TRUE(view().selection()->selectionMode());
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
    EXPECT_FALSE(view().selection()->selectionMode());
    EXPECT_EQ(list().property("count").toInt(), 8);
}

TEST_F(SelectionBarTest, CancelDeletesNothing) {
    click(*row(u"Title 9"_qs));
    click(item(u"deleteSelected"_qs));
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"deleteSelectedConfirm"_qs); }));
    press(Qt::Key_Escape);
    EXPECT_TRUE(turnsUntil([&] { return isGone(u"deleteSelectedConfirm"_qs); }));
    EXPECT_EQ(hoard.totalCount(), 10);
    EXPECT_TRUE(view().selection()->selectionMode());
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
    EXPECT_TRUE(view().selection()->selectionMode());

    click(item(u"deleteAll"_qs));
    answer(u"deleteAllConfirm"_qs, u"Cancel"_qs);
    EXPECT_EQ(hoard.totalCount(), 10);

    click(item(u"deleteAll"_qs));
    answer(u"deleteAllConfirm"_qs, u"Delete All"_qs);
    EXPECT_EQ(hoard.totalCount(), 0);
    EXPECT_EQ(view().list()->face(), BrowserList::Face::Waiting);
    EXPECT_FALSE(view().selection()->selectionMode());
}

TEST_F(SelectionBarTest, TheQuestionsKeepTheirNumbersWhileTheyFade) {
    AnimationClock clock;
    click(*row(u"Title 9"_qs));
    click(*row(u"Title 8"_qs));
    click(item(u"deleteSelected"_qs));
    clock.turnOn(1000);
    click(*buttonIn(u"deleteSelectedConfirm"_qs, u"Delete"_qs));
    clock.turnOn(50);
    EXPECT_EQ(hoard.totalCount(), 8);
    EXPECT_FALSE(isGone(u"deleteSelectedConfirm"_qs));
    EXPECT_TRUE(textsInWindow(*window).contains(u"Delete 2 notifications?"_qs));
    clock.turnOn(1000);

    view().selection()->enterSelectionMode();
    clock.turnOn(1000);
    click(item(u"deleteAll"_qs));
    clock.turnOn(1000);
    click(*buttonIn(u"deleteAllConfirm"_qs, u"Delete All"_qs));
    clock.turnOn(50);
    EXPECT_EQ(hoard.totalCount(), 0);
    EXPECT_FALSE(isGone(u"deleteAllConfirm"_qs));
    EXPECT_TRUE(textsInWindow(*window).contains(u"Delete all notifications? (8 loaded)"_qs));
    clock.turnOn(1000);
    EXPECT_TRUE(isGone(u"deleteAllConfirm"_qs));
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
    EXPECT_TRUE(textsInWindow(*window).contains(
        u"Everything in the hoard goes, pinned notifications and older ones that are not loaded too. This can’t be undone."_qs));
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
    EXPECT_FALSE(view().selection()->selectionMode());
}

} // namespace
} // namespace tessarine::testing

#include "support/EventLoop.h"
#include "ui/AnimationClock.h"
#include "ui/UiFixture.h"

#include <QTest>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

// How the selection bar and the toolbar take each other's place.
class SelectionModeTest : public UiTest {
protected:
    SelectionModeTest() { showHoard(10); }

    QQuickItem* focused() const { return window->window()->activeFocusItem(); }
    QString focusName() const { return focused() ? focused()->objectName() : QString(); }

    bool showsRing() const { return focused() && focused()->property("visualFocus").toBool(); }

    void focus(const QString& name, Qt::FocusReason reason = Qt::TabFocusReason) {
        item(name).forceActiveFocus(reason);
        draw();
    }

    void enterByKey() {
        focus(u"enterSelection"_qs);
        press(Qt::Key_Return);
        ASSERT_TRUE(view().selection()->selectionMode());
    }

    // The button with this text below an item.
    static QQuickItem* firstBelow(const QQuickItem& top, const QString& text) {
        for (QQuickItem* child : top.childItems()) {
            if (child->inherits("QQuickAbstractButton") && child->property("text") == text)
                return child;
            if (QQuickItem* deeper = firstBelow(*child, text))
                return deeper;
        }
        return nullptr;
    }

    bool barsAreAtRest() {
        return turnsUntil([&] { return isShown(u"appPicker"_qs) != isShown(u"selectAll"_qs); });
    }
};

// The keyboard

TEST_F(SelectionModeTest, TheKeyboardGoesIntoTheSelectionBarAndComesBackToTheTrashButton) {
    enterByKey();
    EXPECT_EQ(focusName(), u"cancelSelection"_qs);
    EXPECT_TRUE(showsRing());
    ASSERT_TRUE(barsAreAtRest());
    EXPECT_EQ(focusName(), u"cancelSelection"_qs);
    press(Qt::Key_Return);
    EXPECT_FALSE(view().selection()->selectionMode());
    EXPECT_EQ(focusName(), u"enterSelection"_qs);
    EXPECT_TRUE(showsRing());
    ASSERT_TRUE(barsAreAtRest());
    EXPECT_EQ(focusName(), u"enterSelection"_qs);
    EXPECT_TRUE(showsRing());
    press(Qt::Key_Space); // and on it goes
    EXPECT_TRUE(view().selection()->selectionMode());
}

TEST_F(SelectionModeTest, TheKeyboardComesBackFromWhereverInTheBarItIs) {
    enterByKey();
    ASSERT_TRUE(barsAreAtRest());
    focus(u"selectAll"_qs);
    view().selection()->exitSelectionMode();
    ASSERT_TRUE(barsAreAtRest());
    EXPECT_EQ(focusName(), u"enterSelection"_qs);
}

TEST_F(SelectionModeTest, AKeyboardThatHasLeftTheBarStaysWhereItWent) {
    enterByKey();
    ASSERT_TRUE(barsAreAtRest());
    focus(u"searchField"_qs);
    view().selection()->exitSelectionMode();
    ASSERT_TRUE(barsAreAtRest());
    EXPECT_EQ(focusName(), u"searchField"_qs);
}

TEST_F(SelectionModeTest, AClickOnTheTrashButtonLeavesTheKeyboardWhereItIs) {
    list().forceActiveFocus();
    click(item(u"enterSelection"_qs));
    EXPECT_TRUE(list().hasActiveFocus());
    ASSERT_TRUE(barsAreAtRest());
    click(item(u"cancelSelection"_qs));
    ASSERT_TRUE(barsAreAtRest());
    EXPECT_TRUE(list().hasActiveFocus());
}

TEST_F(SelectionModeTest, AfterAClickTheKeyboardComesBackFromTheBarToTheList) {
    list().forceActiveFocus();
    click(item(u"enterSelection"_qs));
    ASSERT_TRUE(barsAreAtRest());
    focus(u"cancelSelection"_qs);
    press(Qt::Key_Return);
    ASSERT_TRUE(barsAreAtRest());
    EXPECT_TRUE(list().hasActiveFocus());
}

TEST_F(SelectionModeTest, AnAnsweredDeletionBringsTheKeyboardBackToo) {
    enterByKey();
    ASSERT_TRUE(barsAreAtRest());
    click(*row(u"Title 9"_qs));
    focus(u"deleteSelected"_qs);
    press(Qt::Key_Return);
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"deleteSelectedConfirm"_qs); }));
    press(Qt::Key_Backtab);
    press(Qt::Key_Return);
    EXPECT_EQ(hoard.totalCount(), 9);
    ASSERT_TRUE(turnsUntil([&] { return isGone(u"deleteSelectedConfirm"_qs); }));
    ASSERT_TRUE(barsAreAtRest());
    EXPECT_EQ(focusName(), u"enterSelection"_qs);
}

TEST_F(SelectionModeTest, WithNothingLeftTheKeyboardGoesToTheSearch) {
    enterByKey();
    ASSERT_TRUE(barsAreAtRest());
    focus(u"deleteAll"_qs);
    press(Qt::Key_Return);
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"deleteAllConfirm"_qs); }));
    press(Qt::Key_Backtab);
    press(Qt::Key_Return);
    EXPECT_EQ(hoard.totalCount(), 0);
    ASSERT_TRUE(turnsUntil([&] { return isGone(u"deleteAllConfirm"_qs); }));
    ASSERT_TRUE(barsAreAtRest());
    EXPECT_EQ(focusName(), u"searchField"_qs);
}

// Fades

TEST_F(SelectionModeTest, AToolbarThatFadesTakesNoClicks) {
    AnimationClock clock;
    const QQuickItem& segments = item(u"groupButtons"_qs);
    view().selection()->enterSelectionMode();
    clock.turnOn(100);
    ASSERT_TRUE(segments.isVisible());
    ASSERT_TRUE(isShown(u"selectAll"_qs));
    // Beside the buttons of the selection bar, and through one that is disabled.
    for (const QString& part : {u"App"_qs, u"Date"_qs})
        click(*firstBelow(segments, part));
    EXPECT_EQ(view().list()->groupMode(), GroupMode::none);
}

TEST_F(SelectionModeTest, ASelectionBarThatFadesTakesNoClicksAndTheToolbarDoes) {
    AnimationClock clock;
    view().selection()->enterSelectionMode();
    clock.turnOn(1000);
    view().selection()->exitSelectionMode();
    clock.turnOn(100);
    ASSERT_TRUE(isShown(u"deleteAll"_qs));
    for (const QString& button :
         {u"deleteAll"_qs, u"selectAll"_qs, u"selectByDate"_qs, u"selectByApp"_qs}) {
        clickAt(item(button), {4, 4});
        EXPECT_FALSE(isShown(u"appMenu"_qs)) << button.toStdString();
        press(Qt::Key_Escape); // closes the picker of the toolbar that is there by now
    }
    EXPECT_FALSE(view().selection()->showDeleteAllConfirm());
    EXPECT_FALSE(view().selection()->dates()->showDatePickerPopover());
    EXPECT_EQ(view().selection()->selectedCount(), 0);
    click(*firstBelow(item(u"groupButtons"_qs), u"Date"_qs));
    EXPECT_EQ(view().list()->groupMode(), GroupMode::date);
}

} // namespace
} // namespace tessarine::testing

#include "ui/ThemeFixture.h"

#include <QCursor>
#include <QTest>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class ThemePanelsTest : public ThemeFixture {
protected:
    void SetUp() override {
        load(u"panels"_qs);
        item(u"list"_qs).forceActiveFocus();
    }

    void open(const QString& panel) {
        QMetaObject::invokeMethod(&object(panel), "open");
        EXPECT_TRUE(becomes(panel, "opened", true));
    }

    ::testing::AssertionResult closes(const QString& panel) {
        return becomes(panel, "visible", false);
    }

    // Where the panel lies in the window.
    QRectF place(const QString& panel) {
        const auto* content = object(panel).property("background").value<QQuickItem*>();
        return content->mapRectToScene(content->boundingRect());
    }

    bool isInWindow(const QString& panel) {
        return QRectF(QPointF(), window->size()).contains(place(panel));
    }

    QAccessibleInterface* spokenInWindow(QAccessible::Role role, const QString& name) {
        return spokenBelow(*QAccessible::queryAccessibleInterface(window.get()), role, name);
    }
};

// Menu pickers

class ThemePickerTest : public ThemePanelsTest {
protected:
    void openByKey(const QString& picker, Qt::Key key = Qt::Key_Space) {
        item(picker).forceActiveFocus(Qt::TabFocusReason);
        press(key);
        EXPECT_TRUE(becomes(picker, "opened", true));
    }

    // The row of the open menu with this text.
    QQuickItem* menuRow(const QString& text) {
        return firstBelow(*window->contentItem(), [&](const QQuickItem& child) {
            return child.isVisible() && child.objectName() == u"menuRow" &&
                   child.property("text") == text;
        });
    }
};

TEST_F(ThemePickerTest, ShowsTheTextThatItsOwnerChose) {
    EXPECT_EQ(item(u"short"_qs).property("currentText").toString(), u"Oldest first"_qs);
    EXPECT_EQ(item(u"short"_qs).property("displayText").toString(), u"Oldest first"_qs);
}

TEST_F(ThemePickerTest, ShowsATextThatIsNotInTheList) {
    item(u"short"_qs).setProperty("displayText", u"Gone"_qs);
    EXPECT_NE(firstBelow(item(u"short"_qs),
                         [](const QQuickItem& child) {
                             return child.inherits("QQuickText") &&
                                    child.property("text") == u"Gone"_qs;
                         }),
              nullptr);
    EXPECT_EQ(spoken(item(u"short"_qs)).text(QAccessible::Description), u"Gone"_qs);
}

TEST_F(ThemePickerTest, WithoutAChoiceItIsEmpty) {
    item(u"short"_qs).setProperty("currentIndex", -1);
    EXPECT_EQ(item(u"short"_qs).property("currentText").toString(), QString());
    openByKey(u"short"_qs);
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList()); // nothing was current
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList{u"sort 0"_qs});
}

TEST_F(ThemePickerTest, APressOpensItAndAClickChooses) {
    click(u"short"_qs);
    EXPECT_TRUE(becomes(u"short"_qs, "opened", true));
    QQuickItem* row = menuRow(u"Newest first"_qs);
    ASSERT_NE(row, nullptr);
    QTest::mouseClick(window.get(), Qt::LeftButton, {}, row->mapToScene(QPointF(40, 10)).toPoint());
    EXPECT_EQ(log(), QStringList{u"sort 0"_qs});
    EXPECT_TRUE(becomes(u"short"_qs, "opened", false));
}

TEST_F(ThemePickerTest, ASecondPressClosesIt) {
    click(u"short"_qs);
    EXPECT_TRUE(becomes(u"short"_qs, "opened", true));
    click(u"short"_qs);
    EXPECT_TRUE(becomes(u"short"_qs, "opened", false));
    EXPECT_EQ(log(), QStringList());
}

TEST_F(ThemePickerTest, SpaceReturnEnterAndTheArrowsOpenIt) {
    for (const Qt::Key key :
         {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down, Qt::Key_Up}) {
        openByKey(u"short"_qs, key);
        press(Qt::Key_Escape);
        EXPECT_TRUE(becomes(u"short"_qs, "opened", false)) << key;
    }
    EXPECT_EQ(log(), QStringList());
}

TEST_F(ThemePickerTest, ArrowsBeginAtTheChosenRow) {
    openByKey(u"short"_qs);
    press(Qt::Key_Down);
    press(Qt::Key_Down); // there is none below
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList{u"sort 2"_qs});
    openByKey(u"short"_qs);
    press(Qt::Key_Up);
    press(Qt::Key_Space);
    EXPECT_EQ(log().last(), u"sort 0"_qs);
}

TEST_F(ThemePickerTest, HomeEndAndThePagesGoFar) {
    openByKey(u"long"_qs);
    press(Qt::Key_End);
    press(Qt::Key_PageUp);
    press(Qt::Key_Enter);
    EXPECT_EQ(log(), QStringList{u"app 51"_qs});
    openByKey(u"long"_qs);
    press(Qt::Key_Home);
    press(Qt::Key_PageDown);
    press(Qt::Key_Enter);
    EXPECT_EQ(log().last(), u"app 8"_qs);
}

TEST_F(ThemePickerTest, ALetterGoesToTheRowThatBeginsWithIt) {
    openByKey(u"short"_qs);
    press(Qt::Key_B);
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList{u"sort 2"_qs});
}

TEST_F(ThemePickerTest, TheKeyboardComesBackWithItsRing) {
    openByKey(u"short"_qs);
    press(Qt::Key_Escape);
    EXPECT_EQ(focusName(), u"short"_qs);
    EXPECT_TRUE(showsFocusRing(u"short"_qs));
}

TEST_F(ThemePickerTest, OpenedByThePointerItGivesTheKeyboardBackToTheList) {
    click(u"short"_qs);
    EXPECT_TRUE(becomes(u"short"_qs, "opened", true));
    EXPECT_NE(focusName(), u"list"_qs);
    press(Qt::Key_Escape);
    EXPECT_EQ(focusName(), u"list"_qs);
}

TEST_F(ThemePickerTest, ALongMenuScrollsWithinTheWindowAndShowsTheChosenRow) {
    openByKey(u"long"_qs);
    picture();
    QQuickItem* row = menuRow(u"Application 41"_qs);
    ASSERT_NE(row, nullptr);
    EXPECT_TRUE(
        QRectF(QPointF(), window->size()).contains(row->mapRectToScene(row->boundingRect())));
    EXPECT_EQ(menuRow(u"Application 1"_qs), nullptr); // rows out of sight are not built
}

TEST_F(ThemePickerTest, AScreenReaderSeesABoxAndItsMenu) {
    QAccessibleInterface& box = spoken(item(u"short"_qs));
    EXPECT_EQ(box.role(), QAccessible::Button);
    EXPECT_EQ(box.text(QAccessible::Name), u"Sort"_qs);
    EXPECT_EQ(box.text(QAccessible::Description), u"Oldest first"_qs);
    box.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(becomes(u"short"_qs, "opened", true));
    QAccessibleInterface* chosen = spokenInWindow(QAccessible::MenuItem, u"Oldest first"_qs);
    ASSERT_NE(chosen, nullptr);
    EXPECT_TRUE(chosen->state().checked);
    QAccessibleInterface* other = spokenInWindow(QAccessible::MenuItem, u"Newest first"_qs);
    ASSERT_NE(other, nullptr);
    EXPECT_FALSE(other->state().checked);
    other->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(log(), QStringList{u"sort 0"_qs});
}

TEST_F(ThemePickerTest, DisabledItStaysClosed) {
    item(u"short"_qs).setEnabled(false);
    click(u"short"_qs);
    EXPECT_FALSE(item(u"short"_qs).property("opened").toBool());
}

// Context menus

class ThemeMenuTest : public ThemePanelsTest {
protected:
    void openAt(const QPoint& point) {
        QCursor::setPos(window->mapToGlobal(point));
        QTest::mouseClick(window.get(), Qt::RightButton, {}, point);
        EXPECT_TRUE(becomes(u"menu"_qs, "opened", true));
        picture();
    }
};

TEST_F(ThemeMenuTest, OpensAtThePointer) {
    openAt(QPoint(200, 150));
    EXPECT_EQ(place(u"menu"_qs).topLeft(), QPointF(200, 150));
}

TEST_F(ThemeMenuTest, StaysInTheWindow) {
    openAt(QPoint(610, 395));
    EXPECT_TRUE(isInWindow(u"menu"_qs));
}

TEST_F(ThemeMenuTest, AClickChoosesAnEntry) {
    openAt(QPoint(200, 150));
    click(u"copy"_qs);
    EXPECT_EQ(log(), QStringList{u"copy"_qs});
    EXPECT_TRUE(closes(u"menu"_qs));
}

TEST_F(ThemeMenuTest, ArrowsPassDividersAndReturnChooses) {
    openAt(QPoint(200, 150));
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList{u"copy"_qs});
    EXPECT_TRUE(closes(u"menu"_qs));
}

TEST_F(ThemeMenuTest, SpaceChoosesToo) {
    openAt(QPoint(200, 150));
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    EXPECT_EQ(log(), QStringList{u"pin"_qs});
}

TEST_F(ThemeMenuTest, ADisabledEntryDoesNothing) {
    openAt(QPoint(200, 150));
    click(u"open"_qs);
    EXPECT_EQ(log(), QStringList());
}

TEST_F(ThemeMenuTest, EscapeClosesItAndTheListKeepsTheKeyboard) {
    openAt(QPoint(200, 150));
    EXPECT_NE(focusName(), u"list"_qs);
    press(Qt::Key_Escape);
    EXPECT_TRUE(closes(u"menu"_qs));
    EXPECT_EQ(focusName(), u"list"_qs);
}

TEST_F(ThemeMenuTest, AClickElsewhereClosesItAndDoesNothingElse) {
    openAt(QPoint(200, 150));
    click(u"button"_qs);
    EXPECT_TRUE(closes(u"menu"_qs));
    EXPECT_FALSE(object(u"popover"_qs).property("visible").toBool());
    EXPECT_EQ(focusName(), u"list"_qs);
}

TEST_F(ThemeMenuTest, AChoiceLeavesTheListItsKeyboard) {
    openAt(QPoint(200, 150));
    click(u"copy"_qs);
    EXPECT_EQ(focusName(), u"list"_qs);
}

TEST_F(ThemeMenuTest, AScreenReaderSeesAMenuWithItsEntries) {
    openAt(QPoint(200, 150));
    QAccessibleInterface* entry = spokenInWindow(QAccessible::MenuItem, u"Copy Notification"_qs);
    ASSERT_NE(entry, nullptr);
    entry->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(log(), QStringList{u"copy"_qs});
}

TEST_F(ThemeMenuTest, AnEntryThatIsNotShownTakesNoRoom) {
    openAt(QPoint(200, 100));
    const double before = place(u"menu"_qs).height();
    press(Qt::Key_Escape);
    EXPECT_TRUE(closes(u"menu"_qs));
    item(u"copy"_qs).setVisible(false);
    openAt(QPoint(200, 100));
    EXPECT_EQ(place(u"menu"_qs).height(), before - 26);
}

// Popovers

TEST_F(ThemePanelsTest, APopoverOpensUnderItsButton) {
    click(u"button"_qs);
    EXPECT_TRUE(becomes(u"popover"_qs, "opened", true));
    EXPECT_GE(place(u"popover"_qs).top(), 16 + 26);
    EXPECT_TRUE(isInWindow(u"popover"_qs));
}

TEST_F(ThemePanelsTest, EscapeClosesAPopover) {
    click(u"button"_qs);
    EXPECT_TRUE(becomes(u"popover"_qs, "opened", true));
    press(Qt::Key_Escape);
    EXPECT_TRUE(closes(u"popover"_qs));
    EXPECT_EQ(focusName(), u"list"_qs);
}

TEST_F(ThemePanelsTest, AClickOutsideClosesAPopover) {
    click(u"button"_qs);
    EXPECT_TRUE(becomes(u"popover"_qs, "opened", true));
    QTest::mouseClick(window.get(), Qt::LeftButton, {}, QPoint(600, 400));
    EXPECT_TRUE(closes(u"popover"_qs));
}

TEST_F(ThemePanelsTest, TabStaysInAPopover) {
    open(u"popover"_qs);
    QStringList visited;
    for (int i = 0; i < 4; ++i) {
        press(Qt::Key_Tab);
        visited << focusName();
    }
    EXPECT_EQ(visited, QStringList({u"today"_qs, u"yesterday"_qs, u"today"_qs, u"yesterday"_qs}));
}

// Sheets

TEST_F(ThemePanelsTest, ASheetHasItsIdealSizeInTheMiddle) {
    open(u"sheet"_qs);
    EXPECT_EQ(place(u"sheet"_qs), QRectF(80, 70, 480, 280));
}

TEST_F(ThemePanelsTest, ASheetKeepsWithinItsBoundsAndTheWindow) {
    open(u"sheet"_qs);
    object(u"sheet"_qs).setProperty("idealWidth", 2000);
    EXPECT_EQ(object(u"sheet"_qs).property("width"), 600);
    object(u"sheet"_qs).setProperty("idealWidth", 100);
    EXPECT_EQ(object(u"sheet"_qs).property("width"), 420);
    window->resize(400, 300);
    EXPECT_TRUE(becomes(u"sheet"_qs, "width", 360.0));
    EXPECT_TRUE(becomes(u"sheet"_qs, "height", 260.0));
}

TEST_F(ThemePanelsTest, TheWindowBehindASheetIsDimmed) {
    const QColor before = picture().pixelColor(5, 5);
    open(u"sheet"_qs);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return picture().pixelColor(5, 5).lightness() < before.lightness() * 0.8; }, 20000));
}

TEST_F(ThemePanelsTest, WhatLiesBehindASheetTakesNoClicks) {
    open(u"sheet"_qs);
    click(u"button"_qs);
    EXPECT_FALSE(object(u"popover"_qs).property("visible").toBool());
    EXPECT_TRUE(object(u"sheet"_qs).property("opened").toBool());
}

TEST_F(ThemePanelsTest, TheKeyboardIsInASheetWhileItIsOpen) {
    open(u"sheet"_qs);
    EXPECT_EQ(focusName(), u"sheetField"_qs);
    QStringList visited;
    for (int i = 0; i < 3; ++i) {
        press(Qt::Key_Tab);
        visited << focusName();
    }
    EXPECT_EQ(visited, QStringList({u"sheetOpen"_qs, u"sheetCopy"_qs, u"sheetField"_qs}));
}

TEST_F(ThemePanelsTest, ReturnPressesTheDefaultButtonOfASheet) {
    open(u"sheet"_qs);
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList{u"sheet copy"_qs});
}

TEST_F(ThemePanelsTest, ReturnPressesTheButtonThatHasTheKeyboard) {
    open(u"sheet"_qs);
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList{u"sheet open"_qs});
}

TEST_F(ThemePanelsTest, ADisabledDefaultButtonIsNotPressed) {
    open(u"sheet"_qs);
    item(u"sheetCopy"_qs).setEnabled(false);
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList());
}

TEST_F(ThemePanelsTest, EscapeClosesASheetAndGivesTheKeyboardBack) {
    open(u"sheet"_qs);
    press(Qt::Key_Escape);
    EXPECT_TRUE(closes(u"sheet"_qs));
    EXPECT_EQ(focusName(), u"list"_qs);
}

TEST_F(ThemePanelsTest, ASheetMayRefuseEscape) {
    object(u"sheet"_qs).setProperty("closesOnEscape", false);
    open(u"sheet"_qs);
    press(Qt::Key_Escape);
    EXPECT_TRUE(object(u"sheet"_qs).property("opened").toBool());
}

TEST_F(ThemePanelsTest, AScreenReaderSeesADialogWithItsName) {
    open(u"sheet"_qs);
    EXPECT_NE(spokenInWindow(QAccessible::Dialog, u"Preview"_qs), nullptr);
}

// Alerts

class ThemeAlertTest : public ThemePanelsTest {
protected:
    // The button of the open alert with this text.
    QQuickItem* button(const QString& text) {
        QAccessibleInterface* found = spokenInWindow(QAccessible::Button, text);
        EXPECT_NE(found, nullptr) << text.toStdString();
        return found ? qobject_cast<QQuickItem*>(found->object()) : nullptr;
    }
};

TEST_F(ThemeAlertTest, EscapeCancels) {
    open(u"alert"_qs);
    press(Qt::Key_Escape);
    EXPECT_EQ(log(), QStringList{u"cancel"_qs});
    EXPECT_TRUE(closes(u"alert"_qs));
    EXPECT_EQ(focusName(), u"list"_qs);
}

TEST_F(ThemeAlertTest, ReturnDoesNotDestroyWhereThereIsAnotherAnswer) {
    open(u"alert"_qs);
    EXPECT_FALSE(button(u"Delete"_qs)->property("prominent").toBool());
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList{u"cancel"_qs});
}

TEST_F(ThemeAlertTest, WhatDestroysNeedsAClickOrTab) {
    open(u"alert"_qs);
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList{u"destroy"_qs});
}

TEST_F(ThemeAlertTest, AClickAnswers) {
    open(u"alert"_qs);
    QQuickItem* destroy = button(u"Delete"_qs);
    ASSERT_NE(destroy, nullptr);
    QTest::mouseClick(window.get(), Qt::LeftButton, {},
                      destroy->mapToScene(QPointF(10, 10)).toPoint());
    EXPECT_EQ(log(), QStringList{u"destroy"_qs});
    EXPECT_TRUE(closes(u"alert"_qs));
}

TEST_F(ThemeAlertTest, ReturnGivesTheDefaultAnswer) {
    open(u"notice"_qs);
    EXPECT_TRUE(button(u"OK"_qs)->property("prominent").toBool());
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList{u"ok"_qs});
}

TEST_F(ThemeAlertTest, WithoutAnAnswerThatCancelsEscapeDoesNothing) {
    open(u"notice"_qs);
    press(Qt::Key_Escape);
    EXPECT_EQ(log(), QStringList());
    EXPECT_TRUE(object(u"notice"_qs).property("opened").toBool());
}

TEST_F(ThemeAlertTest, TheOnlyAnswerIsTheDefaultWhateverItDoes) {
    open(u"single"_qs);
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList{u"only"_qs});
}

TEST_F(ThemeAlertTest, AScreenReaderHearsTheQuestion) {
    open(u"alert"_qs);
    QAccessibleInterface* dialog =
        spokenInWindow(QAccessible::Dialog, u"Delete 12 notifications?"_qs);
    ASSERT_NE(dialog, nullptr);
    EXPECT_NE(spokenBelow(*dialog, QAccessible::StaticText,
                          object(u"alert"_qs).property("message").toString()),
              nullptr);
}

} // namespace
} // namespace tessarine::testing

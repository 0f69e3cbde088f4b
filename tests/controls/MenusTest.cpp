#include "controls/PanelsFixture.h"
#include "support/PointerInput.h"

#include <QCursor>
#include <QTest>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

// Menu pickers

class ThemePickerTest : public PanelsTest {
protected:
    void openByKey(const QString& picker, Qt::Key key = Qt::Key_Space) {
        item(picker).forceActiveFocus(Qt::TabFocusReason);
        press(key);
        EXPECT_TRUE(becomes(picker, "opened", true));
    }

    QQuickItem& menuList() {
        return *firstBelow(*window->contentItem(), [](const QQuickItem& child) {
            return child.isVisible() && child.inherits("QQuickListView");
        });
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
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList{u"sort 2"_qs});
    openByKey(u"short"_qs);
    press(Qt::Key_Up);
    press(Qt::Key_Space);
    EXPECT_EQ(log().last(), u"sort 0"_qs);
}

TEST_F(ThemePickerTest, ArrowsGoOnAtTheOtherEnd) {
    openByKey(u"short"_qs);
    press(Qt::Key_Down);
    press(Qt::Key_Down); // there is none below the third
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList{u"sort 0"_qs});
    openByKey(u"short"_qs);
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    press(Qt::Key_Return);
    EXPECT_EQ(log().last(), u"sort 2"_qs);
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
    EXPECT_EQ(box.role(), QAccessible::ComboBox);
    EXPECT_EQ(spokenBelow(box, QAccessible::Button), nullptr); // it is one thing, and not two
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

TEST_F(ThemePickerTest, OpenedAgainItBeginsAtTheChosenRow) {
    openByKey(u"short"_qs);
    press(Qt::Key_Down);
    EXPECT_EQ(litRows(), QStringList{item(u"short"_qs).property("model").toStringList()[2]});
    press(Qt::Key_Escape);
    openByKey(u"short"_qs);
    EXPECT_EQ(litRows(), QStringList{u"Oldest first"_qs});
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList{u"sort 1"_qs}); // what is chosen already
}

TEST_F(ThemePickerTest, OpenedByAKeyItLightsNoRowUnderARestingPointer) {
    openByKey(u"short"_qs);
    const QPoint last = menuRow(item(u"short"_qs).property("model").toStringList()[2])
                            ->mapToScene(QPointF(40, 10))
                            .toPoint();
    press(Qt::Key_Escape);
    QTest::mouseMove(window.get(), last);
    openByKey(u"short"_qs);
    picture();
    EXPECT_EQ(litRows(), QStringList{u"Oldest first"_qs});
    QTest::mouseMove(window.get(), last + QPoint(3, 0));
    picture();
    EXPECT_EQ(litRows(), QStringList{item(u"short"_qs).property("model").toStringList()[2]});
}

TEST_F(ThemePickerTest, WhileItIsOpenItKeepsItsRowsAndItsPlace) {
    openByKey(u"long"_qs);
    press(Qt::Key_End);
    picture();
    const QStringList before = scene->property("manyTexts").toStringList();
    scene->setProperty("manyTexts", QStringList{u"Aardvark"_qs, u"Abacus"_qs} + before);
    item(u"long"_qs).setProperty("currentIndex", 42);
    picture();
    EXPECT_NE(menuRow(u"Application 60"_qs), nullptr);
    EXPECT_EQ(litRows(), QStringList{u"Application 60"_qs});
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList{u"app 61"_qs}); // where the text stands by now
    openByKey(u"long"_qs);
    press(Qt::Key_Home);
    picture();
    EXPECT_NE(menuRow(u"Aardvark"_qs), nullptr);
}

TEST_F(ThemePickerTest, ALongMenuScrollsUnderAFingerAndByTheWheelAndNotUnderTheMouse) {
    item(u"long"_qs).setProperty("currentIndex", 0);
    openByKey(u"long"_qs);
    picture();
    const auto top = [this] { return menuList().property("contentY").toDouble(); };
    const QPoint row = menuRow(u"Application 9"_qs)->mapToScene(QPointF(40, 10)).toPoint();
    dragByMouse(*window, row, row - QPoint(0, 120));
    EXPECT_EQ(top(), 0);
    EXPECT_TRUE(item(u"long"_qs).property("opened").toBool());
    dragByFinger(*window, row, row - QPoint(0, 120));
    const double dragged = top();
    EXPECT_GT(dragged, 0);
    turnWheel(*window, row, -30);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            picture();
            return top() > dragged;
        },
        20000));
}

TEST_F(ThemePickerTest, AChoiceThatHasGoneIsNone) {
    openByKey(u"short"_qs);
    press(Qt::Key_Up);
    scene->setProperty("someTexts", QStringList{u"Oldest first"_qs});
    press(Qt::Key_Return);
    EXPECT_TRUE(becomes(u"short"_qs, "opened", false));
    EXPECT_EQ(log(), QStringList());
}

TEST_F(ThemePickerTest, DisabledItStaysClosed) {
    item(u"short"_qs).setEnabled(false);
    click(u"short"_qs);
    EXPECT_FALSE(item(u"short"_qs).property("opened").toBool());
}

// Context menus

class ThemeMenuTest : public PanelsTest {
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

TEST_F(ThemeMenuTest, ArrowsGoOnAtTheOtherEndAndPassWhatCannotBeChosen) {
    openAt(QPoint(200, 150));
    press(Qt::Key_Up);
    EXPECT_EQ(litRows(), QStringList{u"Delete All from Mail"_qs});
    press(Qt::Key_Down);
    EXPECT_EQ(litRows(), QStringList{u"Pin"_qs});
    press(Qt::Key_Down);
    press(Qt::Key_Down); // past the disabled entry
    EXPECT_EQ(litRows(), QStringList{u"Delete All from Mail"_qs});
    press(Qt::Key_Up);
    EXPECT_EQ(litRows(), QStringList{u"Copy Notification"_qs});
}

TEST_F(ThemeMenuTest, HomeAndEndGoToTheEnds) {
    openAt(QPoint(200, 150));
    press(Qt::Key_End);
    EXPECT_EQ(litRows(), QStringList{u"Delete All from Mail"_qs});
    press(Qt::Key_Home);
    EXPECT_EQ(litRows(), QStringList{u"Pin"_qs});
}

TEST_F(ThemeMenuTest, ASecondRightClickElsewhereClosesIt) {
    openAt(QPoint(200, 150));
    QTest::mouseClick(window.get(), Qt::RightButton, {}, QPoint(500, 350));
    EXPECT_TRUE(closes(u"menu"_qs));
    EXPECT_EQ(focusName(), u"list"_qs);
    EXPECT_EQ(log(), QStringList());
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

TEST_F(ThemeMenuTest, NothingIsLitWhenItOpensAgain) {
    openAt(QPoint(200, 150));
    EXPECT_EQ(litRows(), QStringList());
    press(Qt::Key_Down);
    EXPECT_EQ(litRows(), QStringList{u"Pin"_qs});
    press(Qt::Key_Escape);
    EXPECT_TRUE(closes(u"menu"_qs));
    openAt(QPoint(300, 100));
    EXPECT_EQ(litRows(), QStringList());
    press(Qt::Key_Return);
    press(Qt::Key_Space);
    EXPECT_EQ(log(), QStringList());
}

TEST_F(ThemeMenuTest, NothingIsLitAfterAChoiceByThePointer) {
    openAt(QPoint(200, 150));
    hover(u"copy"_qs);
    EXPECT_EQ(litRows(), QStringList{u"Copy Notification"_qs});
    click(u"copy"_qs);
    EXPECT_TRUE(closes(u"menu"_qs));
    openAt(QPoint(300, 100));
    EXPECT_EQ(litRows(), QStringList());
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList{u"copy"_qs});
}

TEST_F(ThemeMenuTest, LightsNoEntryThatOpenedUnderThePointer) {
    const QPoint corner(610, 395);
    QTest::mouseMove(window.get(), corner - QPoint(2, 2));
    picture();
    openAt(corner);
    picture();
    ASSERT_TRUE(place(u"menu"_qs).contains(corner));
    EXPECT_EQ(litRows(), QStringList());
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList());
    QTest::mouseMove(window.get(), corner - QPoint(1, 0)); // now somebody aims at it
    picture();
    EXPECT_EQ(litRows(), QStringList{u"Delete All from Mail"_qs});
}

TEST_F(ThemeMenuTest, OpenedByAKeyItLightsNoEntryUnderARestingPointer) {
    QTest::mouseMove(window.get(), QPoint(240, 170));
    QMetaObject::invokeMethod(scene.get(), "openMenu", Q_ARG(double, 200), Q_ARG(double, 100));
    EXPECT_TRUE(becomes(u"menu"_qs, "opened", true));
    picture();
    EXPECT_EQ(litRows(), QStringList());
    press(Qt::Key_Return);
    EXPECT_EQ(log(), QStringList());
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

} // namespace
} // namespace tessarine::testing

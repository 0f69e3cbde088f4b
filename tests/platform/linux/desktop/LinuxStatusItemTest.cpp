#include "platform/linux/desktop/LinuxStatusItem.h"

#include "platform/linux/desktop/LinuxStatusPanel.h"
#include "platform/linux/desktop/LinuxSymbols.h"
#include "platform/linux/desktop/PanelPlace.h"
#include "support/EventLoop.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"

#include <QAccessible>
#include <QApplication>
#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::freeBeside;
using testing::SimulatedAppearance;
using testing::turnsUntil;

class StatusItemTest : public ::testing::Test {
protected:
    StatusItemTest() {
        item_.setImage(u"bell.fill"_qs, u"Tessarine"_qs);
        item_.setTitle(u" 5"_qs);
        item_.setTip(u"5 new notifications"_qs);
        item_.setMenuBuilder([this] { return menu(); });
    }

    static LinuxStatusPanel* panel() {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* found = qobject_cast<LinuxStatusPanel*>(widget); found && found->isVisible())
                return found;
        return nullptr;
    }

    StatusMenu menu() {
        return {{u"Built %1 times"_qs.arg(++built_), [this] { ++triggered_; }, u"o"_qs}};
    }

    // The menu that a click on the panel opens.
    static QMenu* openedMenu() {
        QTest::mouseClick(panel(), Qt::LeftButton);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }

    LinuxSymbols symbols_;
    SimulatedAppearance appearance_;
    LinuxStatusItem item_{symbols_, appearance_};
    int built_ = 0;
    int triggered_ = 0;
};

TEST_F(StatusItemTest, WithoutATrayThePanelComesAfterTheGraceTime) {
    item_.show();
    EXPECT_EQ(panel(), nullptr);
    ASSERT_TRUE(turnsUntil([] { return panel() != nullptr; }));
    EXPECT_EQ(panel()->accessibleName(), u"Tessarine, 5 new notifications"_qs);
    item_.setTip({});
    EXPECT_EQ(panel()->accessibleName(), u"Tessarine"_qs);

    for (int click = 1; click <= 2; ++click) {
        QTest::mouseClick(panel(), Qt::LeftButton);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        ASSERT_EQ(menu->actions().size(), 1); // fresh, not added to
        EXPECT_EQ(menu->actions()[0]->text(), u"Built %1 times"_qs.arg(click));
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
        EXPECT_EQ(triggered_, click);
    }
}

TEST_F(StatusItemTest, AScreenReaderFindsTheOpenMenuInThePanelAndChooses) {
    item_.show();
    ASSERT_TRUE(turnsUntil([] { return panel() != nullptr; }));
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(panel());
    EXPECT_EQ(spoken->childCount(), 0);
    spoken->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    ASSERT_EQ(spoken->childCount(), 1);
    QAccessibleInterface* entry = spoken->child(0)->child(0);
    EXPECT_EQ(spoken->indexOfChild(spoken->child(0)), 0);
    EXPECT_EQ(entry->text(QAccessible::Name), u"Built 1 times"_qs);
    entry->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(triggered_, 1);
    EXPECT_EQ(spoken->childCount(), 0); // the menu has closed
}

TEST_F(StatusItemTest, TheMenuShowsTheItemsAsTheyAre) {
    StatusMenuItem switchedOn{u"On"_qs, [] {}};
    switchedOn.isChecked = true;
    StatusMenuItem switchedOff{u"Off"_qs, [] {}};
    switchedOff.isChecked = false;
    item_.setMenuBuilder([=] {
        return StatusMenu{StatusMenuItem::caption(u"Name"_qs),
                          StatusMenuItem::separator(),
                          switchedOn,
                          switchedOff,
                          {u"Help"_qs, [] {}, u"?"_qs}};
    });
    item_.show();
    ASSERT_TRUE(turnsUntil([] { return panel() != nullptr; }));
    const QList<QAction*> shown = openedMenu()->actions();
    ASSERT_EQ(shown.size(), 5);
    EXPECT_FALSE(shown[0]->isEnabled());
    EXPECT_FALSE(shown[0]->isCheckable());
    EXPECT_TRUE(shown[1]->isSeparator());
    EXPECT_TRUE(shown[2]->isCheckable() && shown[2]->isChecked());
    EXPECT_TRUE(shown[3]->isCheckable() && !shown[3]->isChecked());
    EXPECT_EQ(shown[4]->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Question));
    EXPECT_TRUE(shown[4]->isEnabled());
}

TEST_F(StatusItemTest, TheOtherClickOpensNoMenuAndKeepsNone) {
    int others = 0;
    item_.show();
    ASSERT_TRUE(turnsUntil([] { return panel() != nullptr; }));
    QTest::mouseClick(panel(), Qt::MiddleButton); // before there is something for it to do
    item_.setAlternateActivation([&] { ++others; });
    QTest::mouseClick(panel(), Qt::MiddleButton);
    QTest::mouseClick(panel(), Qt::LeftButton, Qt::AltModifier);
    EXPECT_EQ(others, 2);
    EXPECT_EQ(built_, 0);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(StatusItemTest, ThePanelComesBackToWhereTheUserPutIt) {
    testing::SimulatedDefaults defaults;
    defaults.setIntegerList(u"statusPanelOffset"_qs, {300, 200});
    item_.keepPlaceIn(defaults);
    item_.show();
    ASSERT_TRUE(turnsUntil([] { return panel() != nullptr; }));
    EXPECT_EQ(freeBeside(*panel()), QPoint(300, 200));
    panel()->setOffset(QPoint(30, 40));
    Q_EMIT panel()->placed();
    EXPECT_EQ(defaults.integerList(u"statusPanelOffset"_qs), (std::vector<qint64>{30, 40}));
}

TEST_F(StatusItemTest, APlaceThatIsNoneIsTheCorner) {
    testing::SimulatedDefaults defaults;
    defaults.setIntegerList(u"statusPanelOffset"_qs, {300});
    item_.keepPlaceIn(defaults);
    item_.show();
    ASSERT_TRUE(turnsUntil([] { return panel() != nullptr; }));
    EXPECT_EQ(freeBeside(*panel()), QPoint(12, 12));
}

TEST_F(StatusItemTest, AShortcutThatTheMenuShowsWorksWhileItIsOpen) {
    item_.show();
    ASSERT_TRUE(turnsUntil([] { return panel() != nullptr; }));
    QTest::mouseClick(panel(), Qt::LeftButton);
    const QPointer<QWidget> menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    QTest::keyClick(menu, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(triggered_, 0);
    QTest::keyClick(menu, Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(triggered_, 1);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

} // namespace
} // namespace tessarine

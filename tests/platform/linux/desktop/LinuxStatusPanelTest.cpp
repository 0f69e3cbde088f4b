#include "platform/linux/desktop/LinuxStatusPanel.h"

#include "platform/linux/desktop/LinuxSymbols.h"
#include "platform/linux/desktop/PanelPlace.h"
#include "support/EventLoop.h"
#include "support/SimulatedDesktop.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::freeBeside;
using testing::SimulatedAppearance;
using testing::turnsUntil;

class PanelTest : public ::testing::Test {
protected:
    PanelTest() {
        panel_.setContent(u"bell.fill"_qs, u"Tessarine"_qs, u" 5"_qs);
        panel_.setTip(u"5 new notifications"_qs);
        panel_.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&panel_, testing::patienceMs));
    }

    LinuxSymbols symbols_;
    SimulatedAppearance appearance_;
    LinuxStatusPanel panel_{symbols_, appearance_};
    QSignalSpy requests_{&panel_, &LinuxStatusPanel::menuRequested};
};

TEST_F(PanelTest, StandsInTheLowerRightCornerAndKeepsItWhenItGrows) {
    EXPECT_EQ(freeBeside(panel_), QPoint(12, 12));
    const int width = panel_.width();
    panel_.setContent(u"bell.fill"_qs, u"Tessarine"_qs, u" 99+"_qs);
    EXPECT_GT(panel_.width(), width);
    EXPECT_EQ(freeBeside(panel_), QPoint(12, 12));
}

TEST_F(PanelTest, StaysOnTheScreenWhereverItIsPut) {
    panel_.setOffset(QPoint(100000, 100000));
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(panel_.body().topLeft(), room.topLeft());
}

TEST_F(PanelTest, ItsCornersAreRoundAndItsShadowIsSoft) {
    QImage picture(panel_.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    panel_.render(&picture, {}, {}, {});
    const QRect face = panel_.body().translated(-panel_.pos());
    EXPECT_EQ(picture.pixelColor(face.center() + QPoint(0, 12)).alpha(), 255);
    EXPECT_LT(picture.pixelColor(face.topLeft()).alpha(), 128);
    const int near = picture.pixelColor(face.center().x(), face.bottom() + 2).alpha();
    const int far = picture.pixelColor(face.center().x(), face.bottom() + 7).alpha();
    EXPECT_GT(near, far);
    EXPECT_GT(far, 0);
    EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 0);
}

TEST_F(PanelTest, TellsAScreenReaderItsNameAndCount) {
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&panel_);
    EXPECT_EQ(spoken->role(), QAccessible::Button);
    EXPECT_EQ(spoken->text(QAccessible::Name), u"Tessarine, 5 new notifications"_qs);
    EXPECT_EQ(panel_.toolTip(), u"5 new notifications"_qs);
}

TEST_F(PanelTest, EitherMouseButtonAsksForTheMenu) {
    QTest::mouseClick(&panel_, Qt::LeftButton);
    EXPECT_EQ(requests_.count(), 1);
    QTest::mouseClick(&panel_, Qt::RightButton);
    EXPECT_EQ(requests_.count(), 2);
    QTest::mouseClick(&panel_, Qt::BackButton);
    EXPECT_EQ(requests_.count(), 2);
}

TEST_F(PanelTest, AltAndTheMiddleButtonAskForTheOther) {
    const QSignalSpy others(&panel_, &LinuxStatusPanel::alternateRequested);
    QTest::mouseClick(&panel_, Qt::MiddleButton);
    EXPECT_EQ(others.count(), 1);
    QTest::mouseClick(&panel_, Qt::LeftButton, Qt::AltModifier);
    EXPECT_EQ(others.count(), 2);
    QTest::mouseClick(&panel_, Qt::RightButton, Qt::AltModifier);
    EXPECT_EQ(others.count(), 3);
    QTest::keyClick(&panel_, Qt::Key_Return, Qt::AltModifier);
    EXPECT_EQ(others.count(), 4);
    EXPECT_EQ(requests_.count(), 0);
}

TEST_F(PanelTest, SpaceReturnAndTheMenuKeyAskForTheMenu) {
    int expected = 0;
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Menu}) {
        QTest::keyClick(&panel_, key);
        EXPECT_EQ(requests_.count(), ++expected);
    }
    QTest::keyClick(&panel_, Qt::Key_A);
    EXPECT_EQ(requests_.count(), expected);
}

TEST_F(PanelTest, AScreenReaderCanPressIt) {
    QAccessible::queryAccessibleInterface(&panel_)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(turnsUntil([this] { return requests_.count() == 1; }));
}

TEST_F(PanelTest, DraggingMovesItAndOpensNoMenu) {
    const QPoint before = panel_.pos();
    const auto drag = [this](QEvent::Type type, const QPoint& place, Qt::MouseButton button) {
        QMouseEvent event(type, panel_.mapFromGlobal(place), place, button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&panel_, &event);
    };
    const QSignalSpy placings(&panel_, &LinuxStatusPanel::placed);
    drag(QEvent::MouseButtonPress, before + QPoint(20, 20), Qt::LeftButton);
    drag(QEvent::MouseMove, before + QPoint(-180, -80), Qt::NoButton);
    EXPECT_EQ(placings.count(), 0);
    drag(QEvent::MouseButtonRelease, before + QPoint(-180, -80), Qt::LeftButton);
    EXPECT_EQ(placings.count(), 1);
    EXPECT_EQ(panel_.pos(), before + QPoint(-200, -100));
    EXPECT_EQ(requests_.count(), 0);

    const int right = panel_.geometry().right();
    panel_.setContent(u"bell.fill"_qs, u"Tessarine"_qs, {});
    EXPECT_EQ(panel_.geometry().right(), right);
    EXPECT_EQ(panel_.y(), before.y() - 100);
}

} // namespace
} // namespace tessarine

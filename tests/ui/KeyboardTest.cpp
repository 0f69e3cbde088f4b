#include "support/EventLoop.h"
#include "ui/UiFixture.h"

#include <QTest>

namespace tessarine::testing {
namespace {

class KeyboardTest : public UiTest {
protected:
    KeyboardTest() {
        publish(numbered(500));
        makeWindow();
        window->window()->resize(720, 520);
        show();
        window->window()->requestActivate();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window->window(), patienceMs));
    }

    double top() const { return list().property("contentY").toDouble(); }
    const double first = -4; // the margin above the first row
    const double line = 48;
    double page() const { return list().height() - line; }
};

TEST_F(KeyboardTest, TheListHasTheKeyboardFromTheStart) {
    EXPECT_TRUE(list().hasActiveFocus());
    EXPECT_EQ(top(), first);
}

TEST_F(KeyboardTest, ArrowsScrollByALine) {
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(top(), first + 2 * line);
    press(Qt::Key_Up);
    EXPECT_EQ(top(), first + line);
}

TEST_F(KeyboardTest, PagesScrollByTheWindowLessALine) {
    press(Qt::Key_PageDown);
    EXPECT_EQ(top(), first + page());
    press(Qt::Key_Space);
    EXPECT_EQ(top(), first + 2 * page());
    press(Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_EQ(top(), first + page());
    press(Qt::Key_PageUp);
    EXPECT_EQ(top(), first);
}

TEST_F(KeyboardTest, NothingScrollsBeyondTheFirstRow) {
    press(Qt::Key_Up);
    press(Qt::Key_PageUp);
    EXPECT_EQ(top(), first);
}

TEST_F(KeyboardTest, EndShowsTheLastRowAndHomeTheFirst) {
    press(Qt::Key_End);
    EXPECT_NE(row(QStringLiteral("Title 1")), nullptr);
    EXPECT_EQ(row(QStringLiteral("Title 500")), nullptr);
    press(Qt::Key_Home);
    EXPECT_NE(row(QStringLiteral("Title 500")), nullptr);
    EXPECT_EQ(top(), first);
}

TEST_F(KeyboardTest, KeysWithAModifierStayWithTheView) {
    press(Qt::Key_Down, Qt::AltModifier);
    press(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(top(), first);
}

} // namespace
} // namespace tessarine::testing

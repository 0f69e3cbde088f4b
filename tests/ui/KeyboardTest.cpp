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
    // Where the list begins: the margin above its first row. A list that builds its rows as they
    // come into sight learns on the way where that is.
    double first() const { return list().property("originY").toDouble() - 4; }
    const double line = 48;
    // A row that is in sight, and where it lies in the list's room, also a page above it.
    QString titleInTheMiddle() const {
        for (int number = 500; number > 0; --number) {
            QString title = QStringLiteral("Title %1").arg(number);
            if (row(title) && place(title) > 150)
                return title;
        }
        return {};
    }
    double place(const QString& title) const {
        for (int line = 0; line < 500; ++line) {
            QQuickItem* item = nullptr;
            QMetaObject::invokeMethod(&list(), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, item),
                                      Q_ARG(int, line));
            if (item && item->property("title").toString() == title)
                return item->mapToItem(&list(), QPointF(0, 0)).y();
        }
        return -1e9;
    }
    double page() const { return list().height() - line; }
};

TEST_F(KeyboardTest, TheListHasTheKeyboardFromTheStart) {
    EXPECT_TRUE(list().hasActiveFocus());
    EXPECT_EQ(top(), first());
}

TEST_F(KeyboardTest, ArrowsScrollByALine) {
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(top(), first() + 2 * line);
    press(Qt::Key_Up);
    EXPECT_EQ(top(), first() + line);
}

TEST_F(KeyboardTest, PagesScrollByTheWindowLessALine) {
    press(Qt::Key_PageDown);
    EXPECT_EQ(top(), first() + page());
    const QString title = titleInTheMiddle();
    const double before = place(title);
    press(Qt::Key_Space);
    EXPECT_EQ(place(title), before - page());
    press(Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_EQ(place(title), before);
    press(Qt::Key_PageUp);
    EXPECT_EQ(top(), first());
}

// The ring of the list itself; what is in its rows has its own.
class ListRingTest : public KeyboardTest {
protected:
    bool showsRing() const {
        for (const QQuickItem* child : list().parentItem()->childItems()) {
            if (QByteArray(child->metaObject()->className()).startsWith("FocusRing"))
                return child->isVisible();
        }
        return false;
    }
};

TEST_F(ListRingTest, TheListShowsARingForTheKeyboardAlone) {
    EXPECT_FALSE(showsRing());
    item(QStringLiteral("searchField")).forceActiveFocus();
    list().forceActiveFocus(Qt::TabFocusReason);
    EXPECT_TRUE(showsRing());
    click(*row(QStringLiteral("Title 499")));
    EXPECT_TRUE(list().hasActiveFocus());
    item(QStringLiteral("searchField")).forceActiveFocus();
    EXPECT_FALSE(showsRing());
    click(*row(QStringLiteral("Title 499")));
    EXPECT_TRUE(list().hasActiveFocus());
    EXPECT_FALSE(showsRing());
}

TEST_F(KeyboardTest, WhatTakesTheKeyboardIsScrolledIntoSight) {
    view().list()->setGroupMode(GroupMode::app);
    draw();
    const auto chevron = [this]() -> QQuickItem* {
        QQuickItem* header = nullptr;
        QMetaObject::invokeMethod(&list(), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, header),
                                  Q_ARG(int, 0));
        for (QQuickItem* child : header ? header->childItems() : QList<QQuickItem*>()) {
            if (child->inherits("QQuickAbstractButton"))
                return child;
        }
        return nullptr;
    };
    ASSERT_NE(chevron(), nullptr);
    press(Qt::Key_Down); // by 48, so that the header of 28 is above the view
    EXPECT_LT(chevron()->mapToItem(&list(), QPointF()).y(), 0);
    chevron()->forceActiveFocus(Qt::TabFocusReason);
    EXPECT_GE(chevron()->mapToItem(&list(), QPointF()).y(), 0);
}

TEST_F(KeyboardTest, ControlFGoesToTheSearchFieldAndMarksWhatIsThere) {
    view().list()->setSearchText(QStringLiteral("Title 1"));
    press(Qt::Key_F, Qt::ControlModifier);
    QQuickItem& field = item(QStringLiteral("searchField"));
    EXPECT_TRUE(field.hasActiveFocus());
    EXPECT_EQ(field.property("selectedText").toString(), QStringLiteral("Title 1"));
    type(QStringLiteral("2"));
    EXPECT_EQ(view().list()->searchText(), QStringLiteral("2"));
}

TEST_F(KeyboardTest, ControlFDoesNothingUnderAMenu) {
    click(*row(QStringLiteral("Title 499")), Qt::RightButton);
    ASSERT_TRUE(turnsUntil([&] { return isShown(QStringLiteral("rowMenu")); }));
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_FALSE(item(QStringLiteral("searchField")).hasActiveFocus());
}

TEST_F(KeyboardTest, ControlWClosesTheWindow) {
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(KeyboardTest, NothingScrollsBeyondTheFirstRow) {
    press(Qt::Key_Up);
    press(Qt::Key_PageUp);
    EXPECT_EQ(top(), first());
}

TEST_F(KeyboardTest, EndShowsTheLastRowAndHomeTheFirst) {
    press(Qt::Key_End);
    EXPECT_NE(row(QStringLiteral("Title 1")), nullptr);
    EXPECT_EQ(row(QStringLiteral("Title 500")), nullptr);
    press(Qt::Key_Home);
    EXPECT_NE(row(QStringLiteral("Title 500")), nullptr);
    EXPECT_EQ(top(), first());
}

TEST_F(KeyboardTest, KeysWithAModifierStayWithTheView) {
    press(Qt::Key_Down, Qt::AltModifier);
    press(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(top(), first());
}

} // namespace
} // namespace tessarine::testing

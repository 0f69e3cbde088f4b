#include "support/EventLoop.h"
#include "support/PointerInput.h"
#include "ui/UiFixture.h"

#include <QAccessible>
#include <QTest>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class RowTest : public UiTest {
protected:
    void showList(NotificationList content) {
        makeWindow();
        publish(std::move(content));
        window->window()->resize(720, 520);
        show();
        window->window()->grabWindow();
    }

    double top(const QString& title) const { return row(title)->mapToScene(QPointF(0, 0)).y(); }

    static QAccessibleInterface* accessible(QQuickItem* item) {
        return QAccessible::queryAccessibleInterface(item);
    }
};

TEST_F(RowTest, ShowsInitialsAppTimeTitleAndBody) {
    icons.generic = QImage(); // nothing is known of the application
    showList(numbered(1));
    EXPECT_EQ(textsIn(*row(u"Title 1"_qs)),
              QStringList({u"MA"_qs, u"Mail"_qs, u"Nov 16, 2025, 3:33:21\u202fPM"_qs, u"Title 1"_qs,
                           u"Body 1"_qs}));
}

TEST_F(RowTest, LeavesOutAnEmptyTitleAndAnEmptyBody) {
    icons.generic = QImage();
    NotificationList content = numbered(1);
    content[0].title.clear();
    content[0].body.clear();
    showList(content);
    EXPECT_EQ(textsIn(*row({})).size(), 3); // initials, app, time
    EXPECT_EQ(row({})->height(), 36 + 2 * 6);
}

TEST_F(RowTest, ShowsMarkupAsItCame) {
    NotificationList content = numbered(1);
    content[0].title = u"<b>bold</b> &amp; <img src='http://example.com/x.png'>"_qs;
    showList(content);
    EXPECT_TRUE(textsIn(*row(content[0].title)).contains(content[0].title));
    QQuickItem* built = row(content[0].title);
    for (QQuickItem* text : built->findChildren<QQuickItem*>()) {
        if (text->inherits("QQuickText")) {
            EXPECT_EQ(text->property("textFormat").toInt(), Qt::PlainText);
        }
    }
}

TEST_F(RowTest, CutsALongTitleAfterTwoLinesAndALongBodyAfterThree) {
    NotificationList content = numbered(1);
    content[0].title = u"word "_qs.repeated(400);
    content[0].body = u"word "_qs.repeated(400);
    showList(content);
    QList<int> lines;
    for (QQuickItem* text : row(content[0].title)->findChildren<QQuickItem*>())
        if (text->inherits("QQuickText") && text->property("truncated").toBool())
            lines << text->property("lineCount").toInt();
    EXPECT_EQ(lines, QList<int>({2, 3}));
}

TEST_F(RowTest, IsFilledMoreUnderThePointer) {
    showList(numbered(3));
    const QPoint inside = row(u"Title 2"_qs)->mapToScene(QPointF(300, 5)).toPoint();
    QTest::mouseMove(window->window(), QPoint(1, 519));
    const QColor resting = window->window()->grabWindow().pixelColor(inside);
    QTest::mouseMove(window->window(), inside);
    const QColor hovered = window->window()->grabWindow().pixelColor(inside);
    EXPECT_EQ(hovered, theme.colours().controlBackground);
    EXPECT_NE(resting, hovered);
}

TEST_F(RowTest, TellsAScreenReaderItsWholeContent) {
    showList(numbered(1));
    QAccessibleInterface* spoken = accessible(row(u"Title 1"_qs));
    ASSERT_NE(spoken, nullptr);
    EXPECT_EQ(spoken->role(), QAccessible::ListItem);
    EXPECT_EQ(spoken->text(QAccessible::Name),
              u"Mail, Title 1, Body 1, Nov 16, 2025, 3:33:21\u202fPM"_qs);
    EXPECT_EQ(accessible(&list())->role(), QAccessible::List);
    EXPECT_EQ(accessible(&list())->text(QAccessible::Name), u"Notifications"_qs);
}

TEST_F(RowTest, AScreenReaderOpensItsMenuAndItsPreview) {
    showList(numbered(2));
    QAccessibleActionInterface* actions = accessible(row(u"Title 2"_qs))->actionInterface();
    ASSERT_NE(actions, nullptr);
    EXPECT_EQ(actions->actionNames(), QStringList({u"Press"_qs, u"ShowMenu"_qs, u"preview"_qs}));
    actions->doAction(QAccessibleActionInterface::showMenuAction());
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"rowMenu"_qs); }));
    ASSERT_NE(entry(u"Pin"_qs), nullptr);
    press(Qt::Key_Escape);
    ASSERT_TRUE(turnsUntil([&] { return isGone(u"rowMenu"_qs); }));
    actions->doAction(u"preview"_qs);
    EXPECT_EQ(view().actions()->focusedNotification()->title, u"Title 2"_qs);
    EXPECT_TRUE(view().actions()->isPreviewing());
}

TEST_F(RowTest, AScreenReaderFindsOnlyWhatARowDoesAsThingsStand) {
    showList(numbered(1));
    QAccessibleInterface* spoken = accessible(row(u"Title 1"_qs));
    QAccessibleActionInterface* actions = spoken->actionInterface();
    EXPECT_FALSE(spoken->state().checkable);
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(spoken->state().selected);
    preferences.setGlobalPrivacyMode(true);
    EXPECT_EQ(actions->actionNames(), QStringList({u"Press"_qs, u"ShowMenu"_qs}));
    view().selection()->enterSelectionMode();
    EXPECT_EQ(actions->actionNames(), QStringList(u"Press"_qs));
    EXPECT_TRUE(spoken->state().checkable);
    EXPECT_FALSE(spoken->state().checked);
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(spoken->state().checked);
    actions->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_FALSE(isShown(u"rowMenu"_qs));
    const QRect place = spoken->rect();
    EXPECT_TRUE(accessible(&list())->rect().contains(place));
    EXPECT_EQ(place.size(), row(u"Title 1"_qs)->size().toSize());
    EXPECT_EQ(spoken->parent(), accessible(&list()));
    EXPECT_EQ(spoken->window(), window->window());
}

// Each object of a row is made and destroyed at each capture.
TEST_F(RowTest, ARowIsMadeOfThirtyObjectsAtMost) {
    showList(numbered(3));
    int counted = 0;
    for (const QString& title : {u"Title 1"_qs, u"Title 2"_qs, u"Title 3"_qs}) {
        if (row(title)->property("wasHovered").toBool())
            continue; // the pointer lies where another test left it, and the row has a tip
        EXPECT_LE(row(title)->findChildren<QObject*>().size(), 30);
        ++counted;
    }
    EXPECT_GE(counted, 2);
}

// What it shows is in its name already.
TEST_F(RowTest, AScreenReaderFindsNothingInsideARow) {
    QAccessible::setActive(true);
    showList(numbered(1));
    EXPECT_EQ(accessible(row(u"Title 1"_qs))->childCount(), 0);
    preferences.setGlobalPrivacyMode(true);
    view().selection()->enterSelectionMode();
    draw();
    EXPECT_EQ(accessible(row(u"Title 1"_qs))->childCount(), 0);
    view().selection()->exitSelectionMode();
    draw();
    EXPECT_EQ(accessible(row(u"Title 1"_qs))->childCount(), 0);
    QAccessible::setActive(false);
}

TEST_F(RowTest, TellsAScreenReaderThatItIsPinnedAndWhenItsContentIsHidden) {
    NotificationList rows = numbered(1);
    rows[0].pinned = true;
    showList(rows);
    EXPECT_EQ(accessible(row(u"Title 1"_qs))->text(QAccessible::Name),
              u"Mail, Title 1, Body 1, Nov 16, 2025, 3:33:21\u202fPM, Pinned"_qs);
    preferences.setGlobalPrivacyMode(true);
    EXPECT_EQ(accessible(row(u"Title 1"_qs))->text(QAccessible::Name),
              u"Mail, Content hidden, Nov 16, 2025, 3:33:21\u202fPM, Pinned, Click to reveal"_qs);
}

TEST_F(RowTest, TheScrollBarHasAName) {
    showList(numbered(60));
    QAccessibleInterface* bar = nullptr;
    for (QQuickItem* child : list().parentItem()->childItems()) {
        if (child->inherits("QQuickScrollBar"))
            bar = accessible(child);
    }
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(bar->role(), QAccessible::ScrollBar);
    EXPECT_EQ(bar->text(QAccessible::Name), u"Vertical scroll bar"_qs);
}

// An animation would draw a dozen frames at each capture.
TEST_F(RowTest, ACapturedRowIsThereAtOnce) {
    showList(numbered(3));
    publish(numbered(4));
    draw();
    QQuickItem* const captured = row(u"Title 4"_qs);
    ASSERT_NE(captured, nullptr);
    EXPECT_EQ(captured->opacity(), 1);
    int circles = 0;
    for (const QQuickItem* child : captured->childItems()) {
        if (!child->property("checked").isValid())
            continue;
        ++circles;
        EXPECT_EQ(child->opacity(), 0);
        EXPECT_EQ(child->width(), 0);
    }
    EXPECT_EQ(circles, 1);
    EXPECT_EQ(list().property("highlightItem").value<QQuickItem*>(), nullptr);
}

TEST_F(RowTest, NoRowReadsAsFocusedToAScreenReaderWhileNoneIs) {
    showList(numbered(5));
    window->window()->requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window->window(), patienceMs));
    list().forceActiveFocus();
    const auto focusedRows = [this] {
        QStringList titles;
        for (int number = 5; number > 0; --number) {
            const QString title = u"Title %1"_qs.arg(number);
            const QAccessible::State state = accessible(row(title))->state();
            if (state.focused || state.selected)
                titles << title;
        }
        return titles;
    };
    EXPECT_EQ(focusedRows(), QStringList());
    EXPECT_TRUE(accessible(&list())->state().focused); // the list itself has the keyboard
    click(*row(u"Title 3"_qs));
    EXPECT_EQ(focusedRows(), QStringList(u"Title 3"_qs));
    press(Qt::Key_Escape);
    EXPECT_EQ(focusedRows(), QStringList());
    publish(numbered(6));
    draw();
    EXPECT_EQ(focusedRows(), QStringList());
}

TEST_F(RowTest, RowsScrollUnderAFingerAndByTheWheelAndNotUnderTheMouse) {
    showList(numbered(500));
    const auto top = [this] { return list().property("contentY").toDouble(); };
    const double first = top();
    const QPoint middle = row(u"Title 496"_qs)->mapToScene(QPointF(300, 20)).toPoint();
    const QPoint gap = row(u"Title 496"_qs)->mapToScene(QPointF(300, -2)).toPoint();
    const QPoint margin = row(u"Title 496"_qs)->mapToScene(QPointF(3, 20)).toPoint();
    for (const QPoint from : {middle, gap, margin}) {
        dragByMouse(*window->window(), from, from - QPoint(0, 150));
        EXPECT_EQ(top(), first);
    }
    dragByFinger(*window->window(), middle, middle - QPoint(0, 150));
    const double dragged = top();
    EXPECT_GT(dragged, first);
    EXPECT_FALSE(view().actions()->focusedNotification());
    ASSERT_TRUE(turnsUntil([&] {
        draw();
        return !list().property("moving").toBool();
    }));
    const double rested = top();
    turnWheel(*window->window(), middle, -30);
    EXPECT_TRUE(turnsUntil([&] {
        draw();
        return top() > rested;
    }));
}

TEST_F(RowTest, AClickThatTheMouseDragsALittleIsStillAClick) {
    showList(numbered(50));
    const QPoint from = row(u"Title 48"_qs)->mapToScene(QPointF(300, 20)).toPoint();
    dragByMouse(*window->window(), from, from + QPoint(30, 12));
    ASSERT_TRUE(view().actions()->focusedNotification());
    EXPECT_EQ(view().actions()->focusedNotification()->title, u"Title 48"_qs);
}

TEST_F(RowTest, APressThatIsReleasedOutsideItsCardIsNoClick) {
    showList(numbered(50));
    const QPoint inside = row(u"Title 48"_qs)->mapToScene(QPointF(300, 20)).toPoint();
    for (const QPointF outside : {QPointF(3, 20), QPointF(300, -2)}) {
        const QPoint place = row(u"Title 48"_qs)->mapToScene(outside).toPoint();
        dragByMouse(*window->window(), inside, place);
        EXPECT_FALSE(view().actions()->focusedNotification());
        QTest::mouseClick(window->window(), Qt::LeftButton, {}, place);
        EXPECT_FALSE(view().actions()->focusedNotification());
    }
}

TEST_F(RowTest, ARightClickBesideTheCardIsTheRowsToo) {
    showList(numbered(50));
    clickAt(*row(u"Title 48"_qs), {3, 20}, Qt::RightButton);
    EXPECT_TRUE(turnsUntil([&] { return isShown(u"rowMenu"_qs); }));
}

TEST_F(RowTest, RowsOutOfSightAreNotBuilt) {
    showList(numbered(500));
    EXPECT_NE(row(u"Title 500"_qs), nullptr);
    EXPECT_EQ(row(u"Title 250"_qs), nullptr);
    EXPECT_LT(list().property("contentItem").value<QQuickItem*>()->childItems().size(), 60);
}

TEST_F(RowTest, AReloadWithNewIdsMovesNothing) {
    showList(numbered(500));
    list().setProperty("contentY", 5000.0);
    window->window()->grabWindow();
    QQuickItem* content = list().property("contentItem").value<QQuickItem*>();
    const QList<QQuickItem*> built = content->childItems();
    const QVariant place = list().property("contentY");

    publish(numbered(500));
    window->window()->grabWindow();

    EXPECT_EQ(list().property("contentY"), place);
    EXPECT_EQ(content->childItems(), built);
}

TEST_F(RowTest, ANewRowAboveLeavesTheOnesInSightWhereTheyAre) {
    showList(numbered(500));
    list().setProperty("contentY", 5000.0);
    window->window()->grabWindow();
    QString inSight;
    for (int i = 500; i > 0 && inSight.isEmpty(); --i)
        if (const QQuickItem* item = row(u"Title %1"_qs.arg(i));
            item && item->mapToScene(QPointF(0, 0)).y() > 100)
            inSight = u"Title %1"_qs.arg(i);
    ASSERT_FALSE(inSight.isEmpty());
    const double before = top(inSight);

    publish(numbered(501));
    window->window()->grabWindow();

    ASSERT_NE(row(inSight), nullptr);
    EXPECT_EQ(top(inSight), before);
}

TEST_F(RowTest, ANewRowComesIntoSightWhileTheListIsAtItsTop) {
    showList(numbered(500));
    publish(numbered(501));
    window->window()->grabWindow();
    ASSERT_NE(row(u"Title 501"_qs), nullptr);
    EXPECT_EQ(top(u"Title 501"_qs), list().mapToScene(QPointF(0, 4)).y());
}

TEST_F(RowTest, TheLastRowGoneBringsTheNoticeOfAnEmptyHoard) {
    showList(numbered(2));
    publish({});
    window->window()->grabWindow();
    EXPECT_FALSE(list().isVisible());
    EXPECT_TRUE(textsIn(root()).contains(u"No notifications yet"_qs));
}

} // namespace
} // namespace tessarine::testing

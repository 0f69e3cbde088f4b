#include "support/EventLoop.h"
#include "ui/AnimationClock.h"
#include "ui/UiFixture.h"

#include <QTest>

#include <functional>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class RowReactionsTest : public UiTest {
protected:
    RowReactionsTest() { showHoard(5); }

    bool isFocused(const QString& title) const {
        const auto focused = view().actions()->focusedNotification();
        return focused && focused->title == title;
    }

    QQuickItem& rowOf(const QString& title) const {
        QQuickItem* found = row(title);
        if (!found)
            qFatal("no row named %s is in sight", qPrintable(title));
        return *found;
    }

    // The context menu of a row, open.
    void openMenu(const QString& title) {
        click(rowOf(title), Qt::RightButton);
        ASSERT_TRUE(turnsUntil([&] { return isShown(u"rowMenu"_qs); }));
        draw();
    }

    void choose(const QString& text) {
        QQuickItem* chosen = entry(text);
        ASSERT_NE(chosen, nullptr) << text.toStdString();
        click(*chosen);
        ASSERT_TRUE(turnsUntil([&] { return isGone(u"rowMenu"_qs); }));
    }
};

// Focus

TEST_F(RowReactionsTest, AClickFocusesARowAndEscapeTakesTheFocusAway) {
    click(rowOf(u"Title 3"_qs));
    EXPECT_TRUE(isFocused(u"Title 3"_qs));
    EXPECT_TRUE(rowOf(u"Title 3"_qs).property("drawnFocused").toBool());
    press(Qt::Key_Escape);
    EXPECT_FALSE(view().actions()->focusedNotification());
}

TEST_F(RowReactionsTest, EscapeInTheSearchFieldClearsTheFocusAndLeavesTheText) {
    click(rowOf(u"Title 3"_qs));
    click(item(u"searchField"_qs));
    type(u"Title"_qs);
    press(Qt::Key_Escape);
    EXPECT_FALSE(view().actions()->focusedNotification());
    EXPECT_EQ(view().list()->searchText(), u"Title"_qs);
}

TEST_F(RowReactionsTest, TheCopyShortcutCopiesTheFocusedRow) {
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(pasteboard.isEmpty());
    click(rowOf(u"Title 3"_qs));
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(pasteboard, QStringList(u"Title 3\nBody 3"_qs));
}

TEST_F(RowReactionsTest, ACaptureEndsTheFocusSilently) {
    click(rowOf(u"Title 3"_qs));
    reload();
    draw();
    EXPECT_FALSE(rowOf(u"Title 3"_qs).property("drawnFocused").toBool());
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(pasteboard.isEmpty());
}

TEST_F(RowReactionsTest, ADoubleClickOnTheRowOfAnUnknownAppFocusesItAndShowsTheBanner) {
    doubleClick(rowOf(u"Title 2"_qs));
    EXPECT_TRUE(isFocused(u"Title 2"_qs));
    EXPECT_TRUE(view().overlays()->hasInlineBanner());
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"inlineBanner"_qs); }));
    EXPECT_TRUE(turnsUntil([&] {
        draw();
        return textsInWindow(*window).contains(u"Mail is not on this computer"_qs);
    }));
}

TEST_F(RowReactionsTest, TheBannerGoesByItsButton) {
    doubleClick(rowOf(u"Title 2"_qs));
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"inlineBanner"_qs); }));
    QQuickItem& banner = item(u"inlineBanner"_qs);
    ASSERT_TRUE(turnsUntil([&] { return banner.mapToScene(QPointF(0, 0)).y() >= 82; }));
    draw();
    click(item(u"dismissBanner"_qs));
    EXPECT_FALSE(view().overlays()->hasInlineBanner());
    EXPECT_TRUE(turnsUntil([&] { return !isShown(u"inlineBanner"_qs); }));
}

TEST_F(RowReactionsTest, TheBannersButtonTakesItAwayAtOnceAndItsTimeByAndBy) {
    AnimationClock clock;
    const double listTop = list().mapToScene(QPointF(0, 0)).y();
    const auto roomTop = [this] {
        draw();
        return list().mapToScene(QPointF(0, 0)).y();
    };
    view().overlays()->showBanner(deepLinkBanner(u"Mail"_qs));
    clock.turnOn(100);
    const double halfOpen = roomTop();
    EXPECT_GT(halfOpen, listTop);
    clock.turnOn(200);
    EXPECT_GT(roomTop(), halfOpen);
    QTest::mouseClick(window->window(), Qt::LeftButton, {},
                      item(u"dismissBanner"_qs).mapToScene(QPointF(8, 8)).toPoint());
    EXPECT_EQ(roomTop(), listTop);
    EXPECT_FALSE(isShown(u"inlineBanner"_qs));

    view().overlays()->showBanner(deepLinkBanner(u"Mail"_qs));
    clock.turnOn(100); // in the middle of its coming
    draw();
    QTest::mouseClick(window->window(), Qt::LeftButton, {},
                      item(u"dismissBanner"_qs).mapToScene(QPointF(8, 20)).toPoint());
    clock.turnOn(20);
    EXPECT_EQ(roomTop(), listTop);

    view().overlays()->showBanner(deepLinkBanner(u"Mail"_qs));
    clock.turnOn(200);
    const double open = roomTop();
    system.scheduler.advance(4);
    clock.turnOn(100);
    EXPECT_LT(roomTop(), open);
    EXPECT_GT(roomTop(), listTop);
    EXPECT_TRUE(isShown(u"inlineBanner"_qs));
    clock.turnOn(300);
    EXPECT_EQ(roomTop(), listTop);
}

TEST_F(RowReactionsTest, TheBannerGoesByItselfAfterFourSeconds) {
    doubleClick(rowOf(u"Title 2"_qs));
    system.scheduler.advance(2);
    doubleClick(rowOf(u"Title 3"_qs)); // replaces it
    system.scheduler.advance(3);
    EXPECT_TRUE(view().overlays()->hasInlineBanner());
    system.scheduler.advance(1.1);
    EXPECT_FALSE(view().overlays()->hasInlineBanner());
}

// Masks

TEST_F(RowReactionsTest, AMaskedRowShowsNothingOfItsContent) {
    preferences.setGlobalPrivacyMode(true);
    draw();
    const QStringList texts = textsIn(rowOf(u"Title 3"_qs));
    EXPECT_FALSE(texts.contains(u"Title 3"_qs));
    EXPECT_FALSE(texts.contains(u"Body 3"_qs));
    EXPECT_TRUE(texts.contains(u"Click to reveal"_qs));
    EXPECT_TRUE(texts.contains(u"Mail"_qs));
}

TEST_F(RowReactionsTest, AClickRevealsTheNextOneFocuses) {
    preferences.setGlobalPrivacyMode(true);
    draw();
    click(rowOf(u"Title 3"_qs));
    EXPECT_TRUE(textsIn(rowOf(u"Title 3"_qs)).contains(u"Body 3"_qs));
    EXPECT_FALSE(view().actions()->focusedNotification());
    click(rowOf(u"Title 3"_qs));
    EXPECT_TRUE(isFocused(u"Title 3"_qs));
}

TEST_F(RowReactionsTest, WhatIsRevealedComesOutByAndBy) {
    preferences.setGlobalPrivacyMode(true);
    draw();
    QQuickItem& masked = rowOf(u"Title 3"_qs);
    EXPECT_EQ(masked.property("clarity"), 1);
    click(masked);
    EXPECT_LT(masked.property("clarity").toDouble(), 1);
    EXPECT_TRUE(turnsUntil([&] { return masked.property("clarity").toDouble() == 1; }));
}

TEST_F(RowReactionsTest, APinnedRowKeepsItsBadgeUnderTheMask) {
    view().actions()->togglePinned(view().list()->lines()->entries()[2].notification.id);
    preferences.setGlobalPrivacyMode(true);
    draw();
    QStringList badges;
    for (const QQuickItem* badge : rowOf(u"Title 3"_qs).findChildren<QQuickItem*>()) {
        if (badge->isVisible() && badge->property("symbol").isValid() &&
            badge->property("padding").isValid())
            badges << badge->property("symbol").toString();
    }
    EXPECT_EQ(badges, QStringList({u"lock.fill"_qs, u"pin.fill"_qs}));
}

TEST_F(RowReactionsTest, ADoubleClickOnAMaskedRowRevealsAndOpensNothing) {
    preferences.setGlobalPrivacyMode(true);
    draw();
    doubleClick(rowOf(u"Title 3"_qs));
    EXPECT_TRUE(textsIn(rowOf(u"Title 3"_qs)).contains(u"Body 3"_qs));
    EXPECT_FALSE(view().overlays()->hasInlineBanner());
}

TEST_F(RowReactionsTest, SelectionModeLiftsTheMaskAndACaptureBringsItBack) {
    preferences.setGlobalPrivacyMode(true);
    view().selection()->enterSelectionMode();
    draw();
    EXPECT_TRUE(textsIn(rowOf(u"Title 3"_qs)).contains(u"Body 3"_qs));
    view().selection()->exitSelectionMode();
    click(rowOf(u"Title 2"_qs));
    reload(); // in the middle of what may become a double click
    EXPECT_TRUE(turnsUntil([&] {
        draw();
        return !textsIn(rowOf(u"Title 2"_qs)).contains(u"Body 2"_qs);
    }));
}

TEST_F(RowReactionsTest, OneAppsPrivacyMasksItsRowsAlone) {
    preferences.setPrivacyApps({u"com.example.other"_qs});
    draw();
    EXPECT_TRUE(textsIn(rowOf(u"Title 3"_qs)).contains(u"Body 3"_qs));
    preferences.setPrivacyApps({view().list()->filteredNotifications()[0].appBundleId});
    draw();
    EXPECT_FALSE(textsIn(rowOf(u"Title 3"_qs)).contains(u"Body 3"_qs));
}

// A double click with a capture in the middle

class InterruptedDoubleClickTest : public RowReactionsTest {
protected:
    // What comes between the two presses, as quick as both.
    void doubleClickAround(const QString& title, const std::function<void()>& between) {
        const QPoint place = rowOf(title).mapToScene(QPointF(300, 20)).toPoint();
        QTest::mouseClick(window->window(), Qt::LeftButton, {}, place);
        between();
        draw();
        QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
        QTest::mouseClick(window->window(), Qt::LeftButton, {}, place);
        draw();
    }

    bool shows(const QString& title) const {
        return textsIn(rowOf(title)).contains(u"Body "_qs + title.last(1));
    }

    void captureAbove() {
        CapturedNotification fresh = numbered(1, 6)[0];
        fresh.noteId = fresh.dbId;
        ASSERT_TRUE(hoard.insert(fresh));
        reload();
    }

    AnimationClock clock_; // no pause in the test ends the gesture
};

TEST_F(InterruptedDoubleClickTest, RevealsAMaskedRowOnceAndOpensNothing) {
    preferences.setGlobalPrivacyMode(true);
    draw();
    doubleClickAround(u"Title 3"_qs, [this] {
        reload();
        draw();
        EXPECT_TRUE(shows(u"Title 3"_qs)); // not masked again under the pointer
    });
    EXPECT_TRUE(shows(u"Title 3"_qs));
    EXPECT_FALSE(view().overlays()->hasInlineBanner());
    EXPECT_FALSE(view().actions()->focusedNotification());
    clock_.turnOn(1000);
    EXPECT_TRUE(shows(u"Title 3"_qs)); // the second click revealed it after the capture
    reload();
    draw();
    EXPECT_FALSE(shows(u"Title 3"_qs));
}

TEST_F(InterruptedDoubleClickTest, ASingleClickIsMaskedAgainWhenNoSecondOneComes) {
    preferences.setGlobalPrivacyMode(true);
    draw();
    click(rowOf(u"Title 3"_qs));
    reload();
    draw();
    EXPECT_TRUE(shows(u"Title 3"_qs));
    clock_.turnOn(1000);
    draw();
    EXPECT_FALSE(shows(u"Title 3"_qs));
}

TEST_F(InterruptedDoubleClickTest, OpensARowThatWasSeen) {
    doubleClickAround(u"Title 3"_qs, [this] { reload(); });
    EXPECT_TRUE(isFocused(u"Title 3"_qs));
    EXPECT_TRUE(view().overlays()->hasInlineBanner());
}

TEST_F(InterruptedDoubleClickTest, DoesNothingToARowThatCameUnderThePointerMeanwhile) {
    doubleClickAround(u"Title 5"_qs, [this] { captureAbove(); });
    ASSERT_EQ(row(u"Title 6"_qs)->mapToItem(&list(), QPointF(0, 0)).y(), 4);
    EXPECT_FALSE(view().overlays()->hasInlineBanner());
    EXPECT_FALSE(isFocused(u"Title 6"_qs));
}

TEST_F(InterruptedDoubleClickTest, RevealsNoRowThatCameUnderThePointerMeanwhile) {
    preferences.setGlobalPrivacyMode(true);
    draw();
    doubleClickAround(u"Title 5"_qs, [this] { captureAbove(); });
    EXPECT_FALSE(shows(u"Title 6"_qs));
}

// Context menu

TEST_F(RowReactionsTest, TheMenuIsAsWideAsItsWidestEntry) {
    openMenu(u"Title 2"_qs);
    for (const QString& text : {u"Delete This Notification"_qs, u"Delete All from Mail"_qs}) {
        QQuickItem* shown = entry(text);
        ASSERT_NE(shown, nullptr);
        EXPECT_GE(shown->width(), shown->implicitWidth()) << text.toStdString();
    }
}

TEST_F(RowReactionsTest, NoTipLiesOverTheMenu) {
    const QQuickItem& hovered = rowOf(u"Title 2"_qs);
    const QPoint place = hovered.mapToScene(QPointF(200, 20)).toPoint();
    QTest::mouseMove(window->window(), place);
    draw();
    EXPECT_EQ(hovered.property("showsTip"), QVariant(true));
    // Before the next frame, which may be long in coming, a row doesn't know that a menu lies over
    // it.
    QTest::mouseClick(window->window(), Qt::RightButton, {}, place);
    EXPECT_EQ(hovered.property("showsTip"), QVariant(false));
}

TEST_F(RowReactionsTest, TheMenuPinsAndUnpins) {
    openMenu(u"Title 2"_qs);
    choose(u"Pin"_qs);
    EXPECT_TRUE(view().list()->filteredNotifications()[3].pinned);
    openMenu(u"Title 2"_qs);
    choose(u"Unpin"_qs);
    EXPECT_FALSE(view().list()->filteredNotifications()[3].pinned);
}

TEST_F(RowReactionsTest, TheMenuCopies) {
    openMenu(u"Title 2"_qs);
    choose(u"Copy Text"_qs);
    EXPECT_EQ(pasteboard, QStringList(u"Title 2\nBody 2"_qs));
}

TEST_F(RowReactionsTest, TheMenuOpensWithoutTouchingTheFocus) {
    click(rowOf(u"Title 1"_qs));
    openMenu(u"Title 2"_qs);
    choose(u"Open Mail"_qs);
    EXPECT_TRUE(view().overlays()->hasInlineBanner());
    EXPECT_TRUE(isFocused(u"Title 1"_qs));
}

TEST_F(RowReactionsTest, TheMenuDeletesARowAtOnce) {
    openMenu(u"Title 2"_qs);
    choose(u"Delete This Notification"_qs);
    EXPECT_EQ(hoard.totalCount(), 4);
    draw();
    EXPECT_EQ(row(u"Title 2"_qs), nullptr);
}

TEST_F(RowReactionsTest, TheMenuDeletesAnAppAndADay) {
    NotificationList other = numbered(1, 100);
    other[0].noteId = 100;
    other[0].appName = u"Chat"_qs;
    other[0].timestamp += 3 * 86400.0;
    ASSERT_TRUE(hoard.insert(other[0]));
    reload();
    draw();
    openMenu(u"Title 2"_qs);
    choose(u"Delete All from Mail"_qs);
    EXPECT_EQ(hoard.totalCount(), 1);
    draw();
    openMenu(u"Title 100"_qs);
    choose(u"Delete All from Wednesday, November 19, 2025"_qs);
    EXPECT_EQ(hoard.totalCount(), 0);
}

TEST_F(RowReactionsTest, AMenuWithoutRoomLiesBesideThePointerAndNotUnderIt) {
    QQuickItem& last = rowOf(u"Title 1"_qs);
    resizeTo(720, int(last.mapToScene(QPointF(0, last.height())).y()) + 2);
    const QPointF place(last.width() - 20, last.height() - 8);
    clickAt(last, place, Qt::RightButton);
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"rowMenu"_qs); }));
    draw();
    QQuickItem* lowest = entry(u"Delete All from Sunday, November 16, 2025"_qs);
    ASSERT_NE(lowest, nullptr);
    const QPointF pointer = lowest->mapFromItem(&last, place);
    EXPECT_FALSE(lowest->contains(pointer));
    EXPECT_NEAR(pointer.x(), lowest->width(), 20);
    EXPECT_NEAR(pointer.y(), lowest->height(), 20);
}

TEST_F(RowReactionsTest, ACornerOfTheMenuLiesAtThePointerTheFirstTimeToo) {
    const QQuickItem& row = rowOf(u"Title 2"_qs);
    resizeTo(720, int(row.mapToScene(QPointF(0, row.height())).y()) + 40);
    for (const QPointF place : {QPointF(200, 20), QPointF(690, 20)}) {
        const QPoint pointer = row.mapToScene(place).toPoint();
        QTest::mouseClick(window->window(), Qt::RightButton, {}, pointer);
        ASSERT_TRUE(turnsUntil([&] { return isShown(u"rowMenu"_qs); }));
        draw();
        const auto* panel =
            root().findChild<QObject*>(u"rowMenu"_qs)->property("background").value<QQuickItem*>();
        const QRectF menu = panel->mapRectToScene(QRectF(0, 0, panel->width(), panel->height()));
        EXPECT_EQ(menu.bottom(), pointer.y());
        EXPECT_EQ(place.x() < 300 ? menu.left() : menu.right(), pointer.x());
        press(Qt::Key_Escape);
        ASSERT_TRUE(turnsUntil([&] { return isGone(u"rowMenu"_qs); }));
    }
}

TEST_F(RowReactionsTest, ThereIsNoMenuInSelectionMode) {
    view().selection()->enterSelectionMode();
    draw();
    click(rowOf(u"Title 2"_qs), Qt::RightButton);
    QTest::qWait(50);
    EXPECT_FALSE(isShown(u"rowMenu"_qs));
}

TEST_F(RowReactionsTest, AMenuActsOnItsRowThoughACaptureCameWhileItWasOpen) {
    openMenu(u"Title 2"_qs);
    reload();
    choose(u"Delete This Notification"_qs);
    EXPECT_EQ(hoard.totalCount(), 4);
    EXPECT_EQ(row(u"Title 2"_qs), nullptr);
}

} // namespace
} // namespace tessarine::testing

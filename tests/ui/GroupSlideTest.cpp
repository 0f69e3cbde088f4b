#include "support/EventLoop.h"
#include "ui/AnimationClock.h"
#include "ui/UiFixture.h"

#include <QTest>

#include <cmath>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

// What is below a group slides up while the group closes. The window is 520 high.
class GroupSlideTest : public UiTest {
protected:
    GroupSlideTest() {
        makeWindow();
        window->window()->resize(720, 520);
        view().list()->setGroupMode(GroupMode::app);
    }

    // Groups that stand below each other in the order of their names, with so many rows each.
    void showGroups(const std::vector<std::pair<QString, int>>& groups) {
        int count = 0;
        for (const auto& group : groups)
            count += group.second;
        NotificationList rows = numbered(count);
        std::size_t line = 0;
        for (const auto& [name, size] : groups) {
            for (int i = 0; i < size; ++i)
                rows[line++].appName = name;
        }
        publish(rows);
        show();
        draw();
    }

    QList<QQuickItem*> items() const {
        return list().property("contentItem").value<QQuickItem*>()->childItems();
    }

    QQuickItem* header(const QString& title) const {
        for (QQuickItem* item : items()) {
            if (item->property("header").value<GroupHeader>().title == title)
                return item;
        }
        return nullptr;
    }

    // Where a header is seen, in the list; nothing when it isn't made.
    double topOf(const QString& title) const {
        const QQuickItem* item = header(title);
        return item ? item->mapToItem(&list(), QPointF(0, 0)).y() : std::nan("");
    }

    void toggle(QQuickItem& header) { clickAt(header, {18, header.height() / 2}); }

    void finishFade() {
        system.scheduler.advance(0.25);
        draw();
    }

    bool allAtTheirOwnPlaces() const {
        return std::ranges::all_of(items(), [](const QQuickItem* item) {
            const double y = item->mapToItem(item->parentItem(), QPointF(0, 0)).y();
            return y == item->y();
        });
    }

    static constexpr double headerHeight = 28;
    static constexpr double spacing = 4;

    AnimationClock clock;
};

TEST_F(GroupSlideTest, WhatIsBelowAClosingGroupSlidesUpToItsPlace) {
    showGroups({{u"Alpha"_qs, 2}, {u"Beta"_qs, 2}, {u"Gamma"_qs, 2}});
    const double before = topOf(u"Beta"_qs);
    const double between = topOf(u"Gamma"_qs) - before;
    const double after = spacing + headerHeight + spacing;
    toggle(*header(u"Alpha"_qs));
    clock.turnOn(1);
    EXPECT_NEAR(topOf(u"Beta"_qs), before, 1);
    clock.turnOn(99);
    EXPECT_LT(topOf(u"Beta"_qs), before - 30);
    EXPECT_GT(topOf(u"Beta"_qs), after + 30);
    EXPECT_NEAR(topOf(u"Gamma"_qs) - topOf(u"Beta"_qs), between, 0.001);
    EXPECT_EQ(topOf(u"Alpha"_qs), spacing);
    clock.turnOn(300);
    EXPECT_EQ(topOf(u"Beta"_qs), after);
    finishFade();
    EXPECT_EQ(topOf(u"Beta"_qs), after);
    EXPECT_TRUE(allAtTheirOwnPlaces());
}

TEST_F(GroupSlideTest, WhatSlidesIsClickedWhereItIsSeenThenAndLater) {
    showGroups({{u"Alpha"_qs, 2}, {u"Beta"_qs, 2}});
    const auto focuses = [this](const QString& title) {
        click(*row(title));
        return view().actions()->focusedNotification() &&
               view().actions()->focusedNotification()->title == title;
    };
    toggle(*header(u"Alpha"_qs));
    clock.turnOn(100);
    EXPECT_TRUE(focuses(u"Title 2"_qs));
    finishFade();
    EXPECT_TRUE(focuses(u"Title 1"_qs));
}

TEST_F(GroupSlideTest, AGroupLargerThanTheWindowLetsTheNextOneInFromBelow) {
    showGroups({{u"Alpha"_qs, 20'000}, {u"Beta"_qs, 3}});
    toggle(*header(u"Alpha"_qs));
    EXPECT_LT(list().property("count").toInt(), 20); // what could be seen of it fades
    clock.turnOn(1);
    EXPECT_GE(topOf(u"Beta"_qs), list().height() - 1);
    EXPECT_LT(topOf(u"Beta"_qs), list().height() + 100);
    clock.turnOn(299);
    EXPECT_EQ(topOf(u"Beta"_qs), spacing + headerHeight + spacing);
    finishFade();
    EXPECT_EQ(topOf(u"Beta"_qs), spacing + headerHeight + spacing);
    toggle(*header(u"Alpha"_qs));
    EXPECT_EQ(list().property("count").toInt(), 20'005);
}

TEST_F(GroupSlideTest, AViewThatBecomesTooShortSlidesBack) {
    showGroups({{u"Alpha"_qs, 8}, {u"Beta"_qs, 8}});
    list().setProperty("contentY", 400.0);
    draw();
    const double before = topOf(u"Beta"_qs);
    ASSERT_GT(before, 50);
    toggle(*header(u"Beta"_qs));
    clock.turnOn(300);
    EXPECT_EQ(topOf(u"Beta"_qs), before);
    finishFade();
    EXPECT_NEAR(topOf(u"Beta"_qs), before, 1);
    clock.turnOn(100);
    EXPECT_GT(topOf(u"Beta"_qs), before + 10);
    clock.turnOn(300);
    EXPECT_EQ(topOf(u"Beta"_qs), list().height() - headerHeight - spacing);
    EXPECT_TRUE(allAtTheirOwnPlaces());
}

TEST_F(GroupSlideTest, AGroupOpenedInTheMiddleOfItsClosingPutsAllBack) {
    showGroups({{u"Alpha"_qs, 2}, {u"Beta"_qs, 2}});
    const double before = topOf(u"Beta"_qs);
    toggle(*header(u"Alpha"_qs));
    clock.turnOn(100);
    toggle(*header(u"Alpha"_qs));
    EXPECT_EQ(topOf(u"Beta"_qs), before);
    finishFade();
    EXPECT_EQ(topOf(u"Beta"_qs), before);
    EXPECT_TRUE(allAtTheirOwnPlaces());
}

TEST_F(GroupSlideTest, AnotherGroupThatClosesInTheMeantimeEndsTheFirstAtOnce) {
    showGroups({{u"Alpha"_qs, 2}, {u"Beta"_qs, 2}, {u"Gamma"_qs, 2}});
    toggle(*header(u"Alpha"_qs));
    clock.turnOn(100);
    toggle(*header(u"Beta"_qs));
    EXPECT_EQ(topOf(u"Beta"_qs), spacing + headerHeight + spacing);
    clock.turnOn(300);
    EXPECT_EQ(topOf(u"Gamma"_qs), topOf(u"Beta"_qs) + headerHeight + spacing);
    finishFade();
    EXPECT_EQ(topOf(u"Gamma"_qs), topOf(u"Beta"_qs) + headerHeight + spacing);
    EXPECT_EQ(list().property("count").toInt(), 5);
    EXPECT_TRUE(allAtTheirOwnPlaces());
}

TEST_F(GroupSlideTest, ItSlidesByTheKeyboardAndInSelectionModeToo) {
    showGroups({{u"Alpha"_qs, 2}, {u"Beta"_qs, 2}});
    view().selection()->enterSelectionMode();
    clock.turnOn(300);
    const double before = topOf(u"Beta"_qs);
    for (QQuickItem* child : header(u"Alpha"_qs)->childItems()) {
        if (child->property("turn").isValid())
            child->forceActiveFocus(Qt::TabFocusReason);
    }
    press(Qt::Key_Space);
    clock.turnOn(100);
    EXPECT_LT(topOf(u"Beta"_qs), before - 10);
    EXPECT_GT(topOf(u"Beta"_qs), spacing + headerHeight + spacing + 10);
}

TEST_F(GroupSlideTest, TheNextGroupSlidesUpToAPinnedHeader) {
    showGroups({{u"Alpha"_qs, 40}, {u"Beta"_qs, 8}});
    list().setProperty("contentY", 900.0);
    draw();
    toggle(item(u"pinnedHeader"_qs));
    clock.turnOn(100);
    EXPECT_GT(topOf(u"Beta"_qs), headerHeight + spacing);
    EXPECT_LT(topOf(u"Beta"_qs), list().height());
    clock.turnOn(300);
    EXPECT_EQ(topOf(u"Beta"_qs), topOf(u"Alpha"_qs) + headerHeight + spacing);
    finishFade();
    EXPECT_EQ(topOf(u"Beta"_qs), topOf(u"Alpha"_qs) + headerHeight + spacing);
}

TEST_F(GroupSlideTest, AllIsInItsPlaceAtOnceWhereTheDesktopWantsNoMotion) {
    appearance.setReducesMotion(true);
    showGroups({{u"Alpha"_qs, 2}, {u"Beta"_qs, 2}});
    toggle(*header(u"Alpha"_qs));
    EXPECT_EQ(topOf(u"Beta"_qs), spacing + headerHeight + spacing);
    finishFade();
    EXPECT_EQ(topOf(u"Beta"_qs), spacing + headerHeight + spacing);
}

} // namespace
} // namespace tessarine::testing

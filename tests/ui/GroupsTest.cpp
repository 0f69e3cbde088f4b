#include "support/EventLoop.h"
#include "support/PointerInput.h"
#include "ui/AnimationClock.h"
#include "ui/UiFixture.h"

#include <QAccessible>

#include <algorithm>
#include <random>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class GroupsTest : public UiTest {
protected:
    // Alpha and Beta with forty rows each, in turns.
    GroupsTest() {
        NotificationList rows = numbered(80);
        for (std::size_t i = 0; i < rows.size(); ++i)
            rows[i].appName = i % 2 == 0 ? u"Alpha"_qs : u"Beta"_qs;
        showHoard(rows);
        view().list()->setGroupMode(GroupMode::app);
        draw();
    }

    QQuickItem* header(const QString& title) const {
        for (QQuickItem* item : list().property("contentItem").value<QQuickItem*>()->childItems()) {
            if (item->isVisible() && item->property("header").isValid() &&
                item->property("header").value<GroupHeader>().title == title)
                return item;
        }
        return nullptr;
    }

    QString pinnedTitle() const {
        QQuickItem* pinned = findItem(u"pinnedHeader"_qs);
        return pinned ? pinned->property("header").value<GroupHeader>().title : QString();
    }

    void scrollTo(double y) {
        list().setProperty("contentY", y);
        draw();
    }

    void clickChevron(QQuickItem& header) { clickAt(header, {18, header.height() / 2}); }

    // As its chevron does, were it in sight.
    void toggleByHeader(const QString& key) {
        QMetaObject::invokeMethod(header(u"Alpha"_qs), "toggled", Q_ARG(QString, key));
    }

    QQuickItem& chevronOf(QQuickItem& header) const {
        for (QQuickItem* child : header.childItems()) {
            if (child->property("turn").isValid())
                return *child;
        }
        qFatal("the header has no chevron");
    }

    // The items of the list that can be seen, from the top; also such as are on their way out.
    std::vector<QQuickItem*> itemsInSight() const {
        std::vector<QQuickItem*> items;
        const double top = list().property("contentY").toDouble();
        for (QQuickItem* item : list().property("contentItem").value<QQuickItem*>()->childItems()) {
            const bool line =
                item->property("header").isValid() || item->property("notificationId").isValid();
            if (line && item->isVisible() && item->opacity() > 0 &&
                item->y() < top + list().height() && item->y() + item->height() > top)
                items.push_back(item);
        }
        std::ranges::sort(items, {}, &QQuickItem::y);
        return items;
    }

    // Solid lines, one below the other, with nothing between or over them.
    bool isAtRest() const {
        const std::vector<QQuickItem*> items = itemsInSight();
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (items[i]->opacity() != 1)
                return false;
            if (i > 0 && items[i]->y() != items[i - 1]->y() + items[i - 1]->height() + spacing)
                return false;
        }
        return true;
    }

    // What a screen reader finds in the list.
    QAccessibleInterface* spoken(QAccessible::Role role, const QString& name) const {
        const QAccessibleInterface* const all = QAccessible::queryAccessibleInterface(&list());
        for (int index = 0; index < all->childCount(); ++index) {
            QAccessibleInterface* const child = all->child(index);
            if (child->role() == role && child->text(QAccessible::Name) == name)
                return child;
        }
        return nullptr;
    }

    static constexpr double spacing = 4;

    int lines() const { return list().property("count").toInt(); }
};

TEST_F(GroupsTest, AHeaderStandsAboveItsRows) {
    ASSERT_NE(header(u"Alpha"_qs), nullptr);
    EXPECT_TRUE(textsIn(*header(u"Alpha"_qs)).contains(u"Alpha"_qs));
    EXPECT_TRUE(textsIn(*header(u"Alpha"_qs)).contains(u"40"_qs));
    EXPECT_EQ(lines(), 82);
    EXPECT_EQ(pinnedTitle(), QString()); // nothing to pin while the header itself is in sight
}

TEST_F(GroupsTest, TheHeaderStaysAtTheTopWhileItsRowsScroll) {
    scrollTo(300);
    EXPECT_EQ(pinnedTitle(), u"Alpha"_qs);
    EXPECT_EQ(item(u"pinnedHeader"_qs).y(), 0);
}

TEST_F(GroupsTest, TheNextHeaderPushesItOut) {
    scrollTo(1700);
    while (!header(u"Beta"_qs) && list().property("contentY").toDouble() < 4000)
        scrollTo(list().property("contentY").toDouble() + 100);
    ASSERT_NE(header(u"Beta"_qs), nullptr);
    scrollTo(header(u"Beta"_qs)->y() - 10);
    EXPECT_EQ(pinnedTitle(), u"Alpha"_qs);
    QQuickItem& pinned = item(u"pinnedHeader"_qs);
    EXPECT_EQ(pinned.y() + pinned.height(), 10);
    scrollTo(header(u"Beta"_qs)->y() + 30);
    EXPECT_EQ(pinnedTitle(), u"Beta"_qs);
}

TEST_F(GroupsTest, AGroupClosesAndOpensByItsChevron) {
    clickChevron(*header(u"Alpha"_qs));
    system.scheduler.advance(0.25);
    EXPECT_EQ(lines(), 42);
    draw();
    EXPECT_LT(header(u"Beta"_qs)->y(), 60);
    clickChevron(*header(u"Alpha"_qs));
    EXPECT_EQ(lines(), 82);
    EXPECT_TRUE(turnsUntil([&] {
        draw();
        return row(u"Title 80"_qs) && row(u"Title 80"_qs)->opacity() == 1;
    }));
}

TEST_F(GroupsTest, RowsFadeAwayWithTheirGroupAndComeBackWithIt) {
    const auto rowFades = [&] {
        draw();
        const QQuickItem* fading = row(u"Title 80"_qs);
        return fading && fading->opacity() > 0 && fading->opacity() < 1;
    };
    clickChevron(*header(u"Alpha"_qs));
    EXPECT_TRUE(turnsUntil(rowFades));
    EXPECT_FALSE(row(u"Title 80"_qs)->isEnabled());
    system.scheduler.advance(0.25);
    draw();
    EXPECT_EQ(row(u"Title 80"_qs), nullptr);
    EXPECT_EQ(header(u"Beta"_qs)->opacity(), 1);
    clickChevron(*header(u"Alpha"_qs));
    EXPECT_TRUE(turnsUntil(rowFades));
    EXPECT_EQ(header(u"Alpha"_qs)->opacity(), 1);
}

TEST_F(GroupsTest, AListToggledInTheMiddleOfItsFadesComesToRest) {
    std::minstd_rand random(7); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same every time
    for (int round = 0; round < 12; ++round) {
        for (int toggle = 0; toggle < 4; ++toggle) {
            toggleByHeader(random() % 2 == 0 ? u"Alpha"_qs : u"Beta"_qs);
            turnFor(int(random() % 150));
            system.scheduler.advance(double(random() % 3) / 10);
            draw();
        }
        system.scheduler.advance(1);
        EXPECT_TRUE(turnsUntil([&] {
            draw();
            return isAtRest();
        })) << round;
        EXPECT_EQ(itemsInSight().front(), header(u"Alpha"_qs)) << round;
    }
}

TEST_F(GroupsTest, ThePinnedHeaderClosesItsGroup) {
    scrollTo(300);
    clickChevron(item(u"pinnedHeader"_qs));
    system.scheduler.advance(0.25);
    EXPECT_EQ(lines(), 42);
}

TEST_F(GroupsTest, AGroupClosedByItsPinnedHeaderHasItsHeaderAtTheTop) {
    scrollTo(1700);
    while (pinnedTitle() != u"Beta"_qs)
        scrollTo(list().property("contentY").toDouble() + 300);
    scrollTo(list().property("contentY").toDouble() + 600);
    clickChevron(item(u"pinnedHeader"_qs));
    draw();
    ASSERT_NE(header(u"Beta"_qs), nullptr);
    EXPECT_EQ(header(u"Beta"_qs)->y(), list().property("contentY").toDouble());
}

TEST_F(GroupsTest, ThePinnedHeaderHidesTheRowsBelowItFromThePointer) {
    preferences.setGlobalPrivacyMode(true);
    scrollTo(300);
    QQuickItem& pinned = item(u"pinnedHeader"_qs);
    const QPointF place(pinned.width() / 2, pinned.height() / 2);
    clickAt(pinned, place); // over a masked row, that would be revealed, and then focused
    clickAt(pinned, place);
    EXPECT_FALSE(view().actions()->focusedNotification());
    for (const QQuickItem* line : itemsInSight())
        EXPECT_NE(line->property("masked"), QVariant(false));
    view().selection()->enterSelectionMode();
    draw();
    clickAt(pinned, place);
    clickAt(pinned, place, Qt::RightButton);
    EXPECT_EQ(view().selection()->selectedCount(), 0);
    EXPECT_FALSE(isShown(u"rowMenu"_qs));
}

TEST_F(GroupsTest, AHeadersMenuDeletesTheGroup) {
    click(*header(u"Alpha"_qs), Qt::RightButton);
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"groupMenu"_qs); }));
    draw();
    ASSERT_NE(entry(u"Delete All 40 Notifications"_qs), nullptr);
    click(*entry(u"Delete All 40 Notifications"_qs));
    EXPECT_EQ(hoard.totalCount(), 40);
}

TEST_F(GroupsTest, AScreenReaderFindsAHeaderAndOpensItsMenu) {
    QAccessibleInterface* const heading = spoken(QAccessible::Heading, u"Alpha"_qs);
    ASSERT_NE(heading, nullptr);
    EXPECT_EQ(heading->parent(), QAccessible::queryAccessibleInterface(&list()));
    EXPECT_EQ(heading->window(), window->window());
    EXPECT_EQ(heading->rect().size(), header(u"Alpha"_qs)->size().toSize());
    EXPECT_FALSE(heading->state().invisible);
    QAccessibleActionInterface* const actions = heading->actionInterface();
    ASSERT_NE(actions, nullptr);
    EXPECT_EQ(actions->actionNames(), QStringList(u"ShowMenu"_qs));
    actions->doAction(QAccessibleActionInterface::showMenuAction());
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"groupMenu"_qs); }));
    ASSERT_NE(entry(u"Delete All 40 Notifications"_qs), nullptr);
}

TEST_F(GroupsTest, AScreenReaderFindsNoMenuOfAHeaderInSelectionMode) {
    QAccessibleInterface* const heading = spoken(QAccessible::Heading, u"Alpha"_qs);
    ASSERT_NE(heading, nullptr);
    view().selection()->enterSelectionMode();
    EXPECT_EQ(heading->actionInterface()->actionNames(), QStringList());
    heading->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    view().selection()->exitSelectionMode();
    draw();
    EXPECT_TRUE(isGone(u"groupMenu"_qs));
    EXPECT_EQ(heading->actionInterface()->actionNames(), QStringList(u"ShowMenu"_qs));
}

TEST_F(GroupsTest, AScreenReaderClosesAGroupAndOpensItAgain) {
    QAccessibleInterface* const chevron = spoken(QAccessible::Button, u"Hide Alpha"_qs);
    ASSERT_NE(chevron, nullptr);
    chevron->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    system.scheduler.advance(0.25);
    EXPECT_EQ(lines(), 42);
    EXPECT_EQ(chevron->text(QAccessible::Name), u"Show Alpha"_qs);
    chevron->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(lines(), 82);
}

// The pinned one shows what the header in the list says.
TEST_F(GroupsTest, AScreenReaderFindsNoHeaderTwice) {
    scrollTo(20);
    ASSERT_EQ(pinnedTitle(), u"Alpha"_qs);
    EXPECT_NE(spoken(QAccessible::Heading, u"Alpha"_qs), nullptr);
    const QAccessibleInterface* const around =
        QAccessible::queryAccessibleInterface(&list())->parent();
    for (int index = 0; index < around->childCount(); ++index)
        EXPECT_NE(around->child(index)->role(), QAccessible::Heading);
}

TEST_F(GroupsTest, SelectionModeSelectsAGroupByItsButton) {
    view().selection()->enterSelectionMode();
    draw();
    QQuickItem* group = header(u"Alpha"_qs);
    clickAt(*group, {group->width() - 40, group->height() / 2});
    EXPECT_EQ(view().selection()->selectedCount(), 40);
    EXPECT_TRUE(textsIn(*group).contains(u"Deselect All"_qs));
    clickAt(*group, {group->width() - 40, group->height() / 2});
    EXPECT_EQ(view().selection()->selectedCount(), 0);
    click(*group, Qt::RightButton); // no menu now
    EXPECT_FALSE(isShown(u"groupMenu"_qs));
}

TEST_F(GroupsTest, AnotherSearchTellsAGroupThatKeepsItsSizeAndItsFirstRow) {
    NotificationList rows = numbered(3);
    rows[0].body = u"red and blue"_qs;
    rows[1].body = u"red"_qs;
    rows[2].body = u"blue"_qs;
    publish(rows);
    view().selection()->enterSelectionMode();
    view().list()->setSearchText(u"red"_qs);
    draw();
    QQuickItem* group = header(u"Mail"_qs);
    clickAt(*group, {group->width() - 40, group->height() / 2});
    EXPECT_TRUE(textsIn(*group).contains(u"Deselect All"_qs));

    view().list()->setSearchText(u"blue"_qs);
    draw();
    EXPECT_EQ(header(u"Mail"_qs), group);
    EXPECT_TRUE(textsIn(*group).contains(u"Select All"_qs));
    clickAt(*group, {group->width() - 40, group->height() / 2});
    EXPECT_EQ(view().selection()->selectedCount(), 3);
}

TEST_F(GroupsTest, AMouseThatDragsAHeaderScrollsNothing) {
    scrollTo(900);
    const double top = list().property("contentY").toDouble();
    const QPoint pinned = item(u"pinnedHeader"_qs).mapToScene(QPointF(300, 14)).toPoint();
    dragByMouse(*window->window(), pinned, pinned + QPoint(0, 200));
    EXPECT_EQ(list().property("contentY").toDouble(), top);
    scrollTo(list().property("originY").toDouble());
    const QPoint first = header(u"Alpha"_qs)->mapToScene(QPointF(300, 14)).toPoint();
    const double begin = list().property("contentY").toDouble();
    dragByMouse(*window->window(), first + QPoint(0, 200), first);
    dragByMouse(*window->window(), first, first - QPoint(0, 60));
    EXPECT_EQ(list().property("contentY").toDouble(), begin);
}

TEST_F(GroupsTest, ACaptureKeepsThePlaceInTheList) {
    scrollTo(900);
    CapturedNotification fresh = numbered(1, 500)[0];
    fresh.noteId = 500;
    fresh.appName = u"Alpha"_qs;
    ASSERT_TRUE(hoard.insert(fresh));
    QString inSight;
    for (int number = 80; number > 0 && inSight.isEmpty(); --number) {
        const QString title = u"Title %1"_qs.arg(number);
        if (row(title) && row(title)->mapToItem(&list(), QPointF(0, 0)).y() > 60)
            inSight = title;
    }
    const double before = row(inSight)->mapToScene(QPointF(0, 0)).y();
    reload();
    draw();
    ASSERT_NE(row(inSight), nullptr);
    EXPECT_EQ(row(inSight)->mapToScene(QPointF(0, 0)).y(), before);
}

// Icons

class GroupIconsTest : public UiTest {
protected:
    // One group, closed before its rows came, so that no row asks for an icon.
    void showClosedGroup(GroupMode mode) {
        makeWindow();
        view().list()->setGroupMode(mode);
        view().list()->toggleGroup(mode == GroupMode::app ? u"Mail"_qs : u"2025-11-16"_qs);
        system.scheduler.advance(0.25);
        publish(numbered(3));
        window->window()->resize(720, 520);
        show();
        draw();
        ASSERT_EQ(view().list()->lines()->rowCount(), 1);
        system.scheduler.settle();
        draw();
    }
};

TEST_F(GroupIconsTest, AnApplicationsHeaderLooksForItsIcon) {
    showClosedGroup(GroupMode::app);
    EXPECT_EQ(views.icons->cache().keys(), QStringList(u"name:Mail"_qs));
}

TEST_F(GroupIconsTest, ADaysHeaderLooksForNone) {
    showClosedGroup(GroupMode::date);
    EXPECT_EQ(views.icons->cache().keys(), QStringList(u"name:Mail"_qs)); // of its rows alone
    EXPECT_TRUE(textsIn(root()).contains(u"Sunday, November 16, 2025"_qs));
}

TEST_F(GroupsTest, TheChevronTurnsFromTheOtherStateToItsOwn) {
    AnimationClock clock;
    QQuickItem& alpha = *header(u"Alpha"_qs);
    const auto turn = [&] { return chevronOf(alpha).property("turn").toDouble(); };
    clickChevron(alpha);
    clock.turnOn(1);
    EXPECT_GT(turn(), 80); // to the right, and looks downwards still
    clock.turnOn(100);
    EXPECT_GT(turn(), 0);
    EXPECT_LT(turn(), 80);
    clock.turnOn(200);
    EXPECT_EQ(turn(), 0);
    clickChevron(alpha);
    clock.turnOn(1);
    EXPECT_LT(turn(), -80);
    clock.turnOn(300);
    EXPECT_EQ(turn(), 0);
}

TEST_F(GroupsTest, NothingTurnsWhereTheDesktopWantsNoMotion) {
    AnimationClock clock;
    appearance.setReducesMotion(true);
    QQuickItem& alpha = *header(u"Alpha"_qs);
    clickChevron(alpha);
    EXPECT_EQ(chevronOf(alpha).property("turn").toDouble(), 0);
    clickAt(item(u"enterSelection"_qs), {5, 5});
    EXPECT_EQ(item(u"cancelSelection"_qs).parentItem()->parentItem()->opacity(), 1);
}

} // namespace
} // namespace tessarine::testing

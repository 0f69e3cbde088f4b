#include "support/EventLoop.h"
#include "ui/UiFixture.h"

#include <QTest>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

// What opens over the window and is chosen from: opened, moved through, closed, and opened again.
class MenusTest : public UiTest {
protected:
    MenusTest() {
        NotificationList rows = numbered(6);
        rows[1].appName = u"Chat"_qs;
        rows[3].appName = u"Chat"_qs;
        showHoard(rows);
    }

    // The texts of the rows that are lit in whatever menu is open.
    QStringList lit() const { return litBelow(*window->window()->contentItem()); }

    static QStringList litBelow(const QQuickItem& top) {
        QStringList texts;
        for (const QQuickItem* child : top.childItems()) {
            if (!child->isVisible())
                continue;
            const auto* face = child->property("background").value<QQuickItem*>();
            if (face && face->property("lit").toBool())
                texts << child->property("text").toString();
            texts << litBelow(*child);
        }
        return texts;
    }

    QQuickItem& header() const {
        for (QQuickItem* item : list().property("contentItem").value<QQuickItem*>()->childItems()) {
            if (item->isVisible() && item->property("header").isValid())
                return *item;
        }
        qFatal("there is no header");
    }

    void expectNothingHappened() {
        EXPECT_EQ(hoard.totalCount(), 6);
        EXPECT_EQ(view().selection()->selectedCount(), 0);
        EXPECT_EQ(view().list()->selectedApp(), u"All"_qs);
        EXPECT_EQ(view().list()->sortMode(), SortMode::newest);
        EXPECT_TRUE(pasteboard.isEmpty());
        EXPECT_FALSE(view().overlays()->hasInlineBanner());
        for (const CapturedNotification& row : view().list()->filteredNotifications())
            EXPECT_FALSE(row.pinned);
    }
};

struct MenuCase {
    const char* name;    // of the menu, or of the picker that has it
    QString lit;         // when it opens
    bool isPicker;       // opens from a control of its own, that says whether it is open
    bool needsSelection; // stands in the selection bar
};

class EachMenuTest : public MenusTest, public ::testing::WithParamInterface<MenuCase> {
protected:
    const QString name_ = QString::fromLatin1(GetParam().name);

    void SetUp() override {
        if (GetParam().needsSelection)
            view().selection()->enterSelectionMode();
        if (name_ == u"groupMenu")
            view().list()->setGroupMode(GroupMode::app);
        draw();
    }

    void open(bool again) {
        if (name_ == u"rowMenu")
            click(*row(again ? u"Title 2"_qs : u"Title 5"_qs), Qt::RightButton);
        else if (name_ == u"groupMenu")
            click(header(), Qt::RightButton);
        else
            click(item(name_ == u"appMenu" ? u"selectByApp"_qs : name_));
        ASSERT_TRUE(turnsUntil([&] { return isOpen(); }));
        draw();
    }

    bool isOpen() const {
        return GetParam().isPicker ? item(name_).property("opened").toBool() : isShown(name_);
    }

    bool isClosed() const { return GetParam().isPicker ? !isOpen() : isGone(name_); }

    QStringList litAtFirst() const {
        return GetParam().lit.isEmpty() ? QStringList() : QStringList(GetParam().lit);
    }
};

TEST_P(EachMenuTest, OpensForTheSecondTimeAsForTheFirst) {
    open(false);
    EXPECT_EQ(lit(), litAtFirst());
    press(Qt::Key_Down);
    EXPECT_EQ(lit().size(), 1);
    EXPECT_NE(lit(), litAtFirst());
    press(Qt::Key_Escape);
    ASSERT_TRUE(turnsUntil([&] { return isClosed(); }));

    open(true);
    EXPECT_EQ(lit(), litAtFirst());
    press(Qt::Key_Return);
    press(Qt::Key_Enter);
    press(Qt::Key_Space);
    expectNothingHappened();
}

TEST_P(EachMenuTest, OpensForTheSecondTimeAsForTheFirstAfterThePointerWasInIt) {
    open(false);
    press(Qt::Key_Down);
    const QString first = lit().value(0);
    press(Qt::Key_Escape);
    ASSERT_TRUE(turnsUntil([&] { return isClosed(); }));

    open(false);
    QQuickItem* aimedAt = entry(first);
    ASSERT_NE(aimedAt, nullptr);
    const QPoint middle = aimedAt->mapToScene({aimedAt->width() / 2, 12}).toPoint();
    QTest::mouseMove(window->window(), middle);
    draw();
    EXPECT_EQ(lit(), QStringList(first));
    press(Qt::Key_Escape);
    ASSERT_TRUE(turnsUntil([&] { return isClosed(); }));

    open(true);
    EXPECT_EQ(lit(), litAtFirst());
    press(Qt::Key_Return);
    expectNothingHappened();
}

// Where one of several is chosen, that one is where the arrows begin; to choose it changes nothing.
INSTANTIATE_TEST_SUITE_P(Menus, EachMenuTest,
                         ::testing::Values(MenuCase{"rowMenu", {}, false, false},
                                           MenuCase{"groupMenu", {}, false, false},
                                           MenuCase{"appMenu", {}, false, true},
                                           MenuCase{"appPicker", u"All Apps"_qs, true, false},
                                           MenuCase{"sortPicker", u"Newest First"_qs, true, false}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(MenusTest, TheDatePopoverOpensForTheSecondTimeAsForTheFirst) {
    view().selection()->enterSelectionMode();
    draw();
    for (int round = 0; round < 2; ++round) {
        click(item(u"selectByDate"_qs));
        ASSERT_TRUE(turnsUntil([&] { return isShown(u"datePopover"_qs); })) << round;
        press(Qt::Key_Return);
        EXPECT_TRUE(view().selection()->dates()->showDatePickerPopover()) << round;
        press(Qt::Key_Tab);
        const QQuickItem* focused = window->window()->activeFocusItem();
        EXPECT_EQ(focused->property("text").toString(), u"Today"_qs) << round;
        press(Qt::Key_Tab);
        press(Qt::Key_Escape);
        ASSERT_TRUE(turnsUntil([&] { return isGone(u"datePopover"_qs); })) << round;
        expectNothingHappened();
    }
}

TEST_F(MenusTest, ThePreviewOpensForTheSecondTimeAsForTheFirst) {
    click(*row(u"Title 3"_qs));
    for (int round = 0; round < 2; ++round) {
        press(Qt::Key_Space);
        ASSERT_TRUE(turnsUntil([&] { return isShown(u"preview"_qs); })) << round;
        press(Qt::Key_Return);
        expectNothingHappened();
        EXPECT_TRUE(view().actions()->isPreviewing()) << round;
        press(Qt::Key_Tab);
        press(Qt::Key_Tab);
        press(Qt::Key_Space); // closes it, wherever its keyboard is
        ASSERT_TRUE(turnsUntil([&] { return isGone(u"preview"_qs); })) << round;
    }
}

// By the keyboard

class MenuKeyTest : public MenusTest {
protected:
    QRectF placeOf(const QString& menu) const {
        const auto* face =
            root().findChild<QObject*>(menu)->property("background").value<QQuickItem*>();
        return face->mapRectToScene(face->boundingRect());
    }
};

TEST_F(MenuKeyTest, TheMenuKeyOpensTheMenuOfTheFocusedRowUnderItsIcon) {
    click(*row(u"Title 5"_qs));
    press(Qt::Key_Menu);
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"rowMenu"_qs); }));
    draw();
    EXPECT_EQ(lit(), QStringList());
    const QQuickItem& focused = *row(u"Title 5"_qs);
    // The icon is 36 points high, 18 from the row's left edge and 6 from its upper one.
    EXPECT_EQ(placeOf(u"rowMenu"_qs).topLeft(), focused.mapToScene(QPointF(18, 42)));
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(pasteboard, QStringList(u"Title 5\nBody 5"_qs));
}

TEST_F(MenuKeyTest, ShiftF10DoesTheSameAndBringsTheRowIntoSight) {
    NotificationList more = numbered(60, 100);
    for (CapturedNotification& one : more) {
        one.noteId = one.dbId;
        ASSERT_TRUE(hoard.insert(one));
    }
    reload();
    draw();
    click(*row(u"Title 159"_qs));
    press(Qt::Key_End);
    ASSERT_EQ(row(u"Title 159"_qs), nullptr);
    press(Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"rowMenu"_qs); }));
    EXPECT_NE(row(u"Title 159"_qs), nullptr);
}

TEST_F(MenuKeyTest, WithoutAFocusedRowThereIsNone) {
    press(Qt::Key_Menu);
    press(Qt::Key_F10);
    EXPECT_TRUE(isGone(u"rowMenu"_qs));
    expectNothingHappened();
}

TEST_F(MenuKeyTest, OnAHeaderItOpensTheMenuOfTheGroup) {
    view().list()->setGroupMode(GroupMode::app);
    draw();
    click(*row(u"Title 5"_qs)); // the keyboard's place counts, and not the focused row
    for (QQuickItem* child : header().childItems()) {
        if (child->inherits("QQuickAbstractButton") && child->isVisible())
            child->forceActiveFocus(Qt::TabFocusReason);
    }
    press(Qt::Key_Menu);
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"groupMenu"_qs); }));
    EXPECT_TRUE(isGone(u"rowMenu"_qs));
    press(Qt::Key_Escape);
    ASSERT_TRUE(turnsUntil([&] { return isGone(u"groupMenu"_qs); }));
    expectNothingHappened();
}

TEST_F(MenuKeyTest, InSelectionModeThereIsNone) {
    click(*row(u"Title 5"_qs));
    view().selection()->enterSelectionMode();
    draw();
    press(Qt::Key_Menu);
    EXPECT_TRUE(isGone(u"rowMenu"_qs));
}

TEST_F(MenusTest, ASecondRightClickOnAnotherRowClosesTheMenu) {
    click(*row(u"Title 6"_qs), Qt::RightButton);
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"rowMenu"_qs); }));
    clickAt(*row(u"Title 1"_qs), {20, 10}, Qt::RightButton);
    ASSERT_TRUE(turnsUntil([&] { return isGone(u"rowMenu"_qs); }));
    expectNothingHappened();
}

// A capture while something is open

class OpenMenuTest : public MenusTest {
protected:
    // Enough applications for the picker to scroll.
    OpenMenuTest() {
        NotificationList rows = numbered(40, 100);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            rows[i].noteId = rows[i].dbId;
            rows[i].appName = u"Program %1"_qs.arg(10 + int(i));
            EXPECT_TRUE(hoard.insert(rows[i]));
        }
        reload();
        draw();
    }

    void capture(const QString& app) {
        CapturedNotification fresh = numbered(1, ++captured_)[0];
        fresh.noteId = fresh.dbId;
        fresh.appName = app;
        ASSERT_TRUE(hoard.insert(fresh));
        reload();
        draw();
    }

private:
    int captured_ = 1000;
};

TEST_F(OpenMenuTest, AnOpenPickerKeepsItsPlaceWhenACaptureBringsANewApplication) {
    click(item(u"appPicker"_qs));
    ASSERT_TRUE(turnsUntil([&] { return item(u"appPicker"_qs).property("opened").toBool(); }));
    press(Qt::Key_End);
    QQuickItem* aimedAt = entry(u"Program 47"_qs);
    ASSERT_NE(aimedAt, nullptr);
    const QPoint middle = aimedAt->mapToScene({aimedAt->width() / 2, 12}).toPoint();
    QTest::mouseMove(window->window(), middle);
    draw();
    EXPECT_EQ(lit(), QStringList(u"Program 47"_qs));

    capture(u"Aardvark"_qs);
    capture(u"Program 48 and more"_qs);

    EXPECT_EQ(lit(), QStringList(u"Program 47"_qs));
    EXPECT_EQ(entry(u"Program 47"_qs), aimedAt);
    QTest::mouseClick(window->window(), Qt::LeftButton, {}, middle);
    draw();
    EXPECT_EQ(view().list()->selectedApp(), u"Program 47"_qs);
    EXPECT_EQ(list().property("count").toInt(), 1);

    click(item(u"appPicker"_qs));
    press(Qt::Key_Home);
    EXPECT_NE(entry(u"Aardvark"_qs), nullptr); // it is on offer the next time
}

TEST_F(OpenMenuTest, TheMenuOfApplicationsStaysAsItOpenedToo) {
    view().selection()->enterSelectionMode();
    draw();
    click(item(u"selectByApp"_qs));
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"appMenu"_qs); }));
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    const QStringList before = lit();
    ASSERT_EQ(before, QStringList(u"Mail"_qs));
    capture(u"Aardvark"_qs);
    EXPECT_EQ(lit(), before);
    EXPECT_EQ(entry(u"Aardvark"_qs), nullptr);
    press(Qt::Key_Return);
    EXPECT_EQ(view().selection()->selectedCount(), 4);
    click(item(u"selectByApp"_qs));
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"appMenu"_qs); }));
    draw();
    EXPECT_NE(entry(u"Aardvark"_qs), nullptr);
}

TEST_F(OpenMenuTest, ARowsMenuKeepsItsLitEntryThroughACapture) {
    click(*row(u"Title 139"_qs), Qt::RightButton);
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"rowMenu"_qs); }));
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    capture(u"Aardvark"_qs);
    EXPECT_EQ(lit(), QStringList(u"Copy Text"_qs));
    press(Qt::Key_Return);
    EXPECT_EQ(pasteboard, QStringList(u"Title 139\nBody 139"_qs));
}

} // namespace
} // namespace tessarine::testing

#include "controls/ControlsFixture.h"

#include <QTest>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class TabStripTest : public ControlsFixture {
protected:
    void SetUp() override { load(u"tabs"_qs); }

    QQuickItem& tab(const QString& text) {
        QQuickItem* found = firstBelow(*scene, [&](const QQuickItem& child) {
            return child.inherits("QQuickTabButton") && child.property("text") == text;
        });
        if (!found)
            qFatal("There is no tab %s", qPrintable(text));
        return *found;
    }

    void clickTab(const QString& text) {
        const QPointF middle(tab(text).width() / 2, tab(text).height() / 2);
        QTest::mouseClick(window.get(), Qt::LeftButton, {}, tab(text).mapToScene(middle).toPoint());
    }

    void focusTab(const QString& text) { tab(text).forceActiveFocus(Qt::TabFocusReason); }

    QColor inkOf(const QString& text) { return tab(text).property("ink").value<QColor>(); }

    static QQuickItem* shownBelow(const QQuickItem& top, const char* type) {
        return firstBelow(top, [&](const QQuickItem& child) {
            return child.isVisible() && child.inherits(type);
        });
    }
};

TEST_F(TabStripTest, AClickChoosesATab) {
    clickTab(u"Privacy"_qs);
    clickTab(u"Storage"_qs);
    clickTab(u"Storage"_qs);
    EXPECT_EQ(log(), QStringList({u"section 2"_qs, u"section 1"_qs, u"section 1"_qs}));
    EXPECT_TRUE(tab(u"Storage"_qs).property("checked").toBool());
    EXPECT_FALSE(tab(u"Privacy"_qs).property("checked").toBool());
}

TEST_F(TabStripTest, TheSymbolStandsAboveTheText) {
    const QQuickItem* symbol = shownBelow(tab(u"General"_qs), "QQuickImage");
    const QQuickItem* text = shownBelow(tab(u"General"_qs), "QQuickText");
    ASSERT_NE(symbol, nullptr);
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(symbol->size(), QSizeF(18, 18));
    EXPECT_EQ(text->property("font").value<QFont>().pixelSize(), 10);
    EXPECT_GE(text->y(), symbol->y() + 18);
}

TEST_F(TabStripTest, WithoutASymbolATabIsItsTextAlone) {
    EXPECT_EQ(shownBelow(tab(u"Warnings"_qs), "QQuickImage"), nullptr);
    const QQuickItem* text = shownBelow(tab(u"Warnings"_qs), "QQuickText");
    ASSERT_NE(text, nullptr);
    EXPECT_FALSE(text->property("truncated").toBool());
    EXPECT_EQ(text->property("font").value<QFont>().pixelSize(), 12);
}

TEST_F(TabStripTest, TheChosenTabHasTheAccentColour) {
    EXPECT_EQ(inkOf(u"General"_qs), Palette::light().accentLabel);
    EXPECT_EQ(inkOf(u"Storage"_qs), Palette::light().secondaryLabel);
    scene->setProperty("section", 1);
    appearance.setDesktopIsDark(true);
    EXPECT_EQ(inkOf(u"General"_qs), Palette::dark().secondaryLabel);
    EXPECT_EQ(inkOf(u"Storage"_qs), Palette::dark().accentLabel);
}

TEST_F(TabStripTest, TabsAreEquallyWideAndDoNotMoveWhenOneIsChosen) {
    const double place = tab(u"Privacy"_qs).x();
    EXPECT_EQ(tab(u"All"_qs).width(), tab(u"Warnings"_qs).width());
    EXPECT_EQ(tab(u"General"_qs).width(), tab(u"Privacy"_qs).width());
    scene->setProperty("section", 2);
    picture();
    EXPECT_EQ(tab(u"Privacy"_qs).x(), place);
}

TEST_F(TabStripTest, ArrowsGoFromTabToTabAndStopAtTheEnds) {
    focusTab(u"General"_qs);
    press(Qt::Key_Left);
    press(Qt::Key_Right);
    EXPECT_EQ(window->activeFocusItem(), &tab(u"Storage"_qs));
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    EXPECT_EQ(window->activeFocusItem(), &tab(u"Privacy"_qs));
    press(Qt::Key_Left);
    EXPECT_EQ(log(), QStringList({u"section 1"_qs, u"section 2"_qs, u"section 1"_qs}));
}

TEST_F(TabStripTest, FromRightToLeftTheArrowsTurnRound) {
    scene->setProperty("mirrored", true);
    picture();
    EXPECT_GT(tab(u"General"_qs).x(), tab(u"Privacy"_qs).x());
    focusTab(u"General"_qs);
    press(Qt::Key_Left);
    EXPECT_EQ(log(), QStringList{u"section 1"_qs});
}

TEST_F(TabStripTest, TheStripIsOneStopForTabAlsoAfterTheArrows) {
    focus(u"before"_qs);
    press(Qt::Key_Tab);
    EXPECT_EQ(window->activeFocusItem(), &tab(u"General"_qs));
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), u"after"_qs);
    press(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(window->activeFocusItem(), &tab(u"Privacy"_qs));
    press(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(focusName(), u"before"_qs);
}

TEST_F(TabStripTest, ATabThatIsChosenFromOutsideBecomesTheStop) {
    focusTab(u"General"_qs);
    scene->setProperty("section", 2);
    focus(u"before"_qs);
    press(Qt::Key_Tab);
    EXPECT_EQ(window->activeFocusItem(), &tab(u"Privacy"_qs));
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), u"after"_qs);
}

TEST_F(TabStripTest, AScreenReaderSeesAListOfTabs) {
    QAccessibleInterface& strip = spokenItem(u"tabs"_qs);
    EXPECT_EQ(strip.role(), QAccessible::PageTabList);
    EXPECT_EQ(nameOf(u"tabs"_qs), u"Sections"_qs);
    EXPECT_EQ(strip.childCount(), 3);
    QAccessibleInterface* storage = spokenBelow(strip, QAccessible::PageTab, u"Storage"_qs);
    ASSERT_NE(storage, nullptr);
    EXPECT_FALSE(storage->state().selected);
    storage->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(storage->state().selected);
    EXPECT_EQ(log(), QStringList{u"section 1"_qs});
}

TEST_F(TabStripTest, DisabledItStays) {
    scene->setProperty("usable", false);
    clickTab(u"Storage"_qs);
    EXPECT_EQ(log(), QStringList());
}

TEST_F(TabStripTest, TextsTooLongForANarrowStripAreCutWithAnEllipsis) {
    picture();
    EXPECT_EQ(overflowing(u"narrow"_qs), QStringList());
    const QQuickItem* text = shownBelow(item(u"narrow"_qs), "QQuickText");
    ASSERT_NE(text, nullptr);
    EXPECT_TRUE(text->property("truncated").toBool());
}

} // namespace
} // namespace tessarine::testing

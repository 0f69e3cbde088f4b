#include "help/HelpFixture.h"
#include "support/EventLoop.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QTest>

#include <string>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class HelpWindowTest : public HelpFixture {
protected:
    QList<QQuickItem*> sidebarRows() const {
        return items([](const QQuickItem& item) { return isA(item, "HelpSidebarRow"); });
    }

    QList<QQuickItem*> pages() const {
        return items([](const QQuickItem& item) {
            return item.objectName().startsWith(u"page-"_qs) && item.height() > 0;
        });
    }

    // The title of the page that is to be seen, if it is one.
    QString pageTitle() const {
        const auto titles = items([](const QQuickItem& item) { return isA(item, "HelpTitle"); });
        return titles.size() == 1 ? titles.first()->property("text").toString() : QString();
    }

    void show(HelpSection section) {
        view().setSelectedSection(section);
        draw();
    }

    QString focusName() const {
        const QQuickItem* const focus = quickWindow().activeFocusItem();
        return focus ? focus->objectName() : QString();
    }
};

TEST_F(HelpWindowTest, IsAsLargeAsItShouldBeUnderItsTitle) {
    open();
    EXPECT_EQ(quickWindow().size(), QSize(760, 560));
    EXPECT_EQ(quickWindow().title(), u"Tessarine Help"_qs);
}

TEST_F(HelpWindowTest, HasFourteenRowsAtItsSide) {
    open();
    EXPECT_EQ(sidebarRows().size(), 14);
}

class HelpSectionsTest : public HelpWindowTest,
                         public ::testing::WithParamInterface<HelpSection> {};

TEST_P(HelpSectionsTest, ComesByAClickOnItsRow) {
    open();
    view().setSelectedSection(GetParam() == HelpSection::about ? HelpSection::tips
                                                               : HelpSection::about);
    draw();
    click(item(rawValue(GetParam())));
    EXPECT_EQ(pageTitle(), entryOf(GetParam()).title);
}

TEST_P(HelpSectionsTest, ComesByTheArrows) {
    open();
    for (int i = 0; i < int(GetParam()); ++i)
        press(Qt::Key_Down);
    EXPECT_EQ(pageTitle(), entryOf(GetParam()).title);
    EXPECT_EQ(focusName(), rawValue(GetParam()));
}

TEST_P(HelpSectionsTest, TellsAScreenReaderItsTitleAndWhichRowIsChosen) {
    open();
    show(GetParam());
    const auto titles = items([](const QQuickItem& item) { return isA(item, "HelpTitle"); });
    ASSERT_EQ(titles.size(), 1);
    EXPECT_EQ(spoken(*titles.first()).role(), QAccessible::Heading);
    for (QQuickItem* row : sidebarRows()) {
        EXPECT_EQ(spoken(*row).role(), QAccessible::ListItem);
        EXPECT_FALSE(spoken(*row).text(QAccessible::Name).isEmpty());
        EXPECT_EQ(bool(spoken(*row).state().selected), row->objectName() == rawValue(GetParam()));
    }
}

// Each text that is drawn is also said: by itself, or by what it is part of.
TEST_P(HelpSectionsTest, SaysWhatItShows) {
    open();
    show(GetParam());
    QString said;
    const std::function<void(QAccessibleInterface&)> listen = [&](QAccessibleInterface& top) {
        said += top.text(QAccessible::Name) + u'\n' + top.text(QAccessible::Description) + u'\n';
        for (int i = 0; i < top.childCount(); ++i)
            listen(*top.child(i));
    };
    listen(spoken(item(u"page"_qs)));
    for (const QQuickItem* shown : itemsBelow(item(u"page"_qs), &HelpFixture::isText)) {
        const QString text = shown->property("text").toString().remove(u"**"_qs);
        EXPECT_TRUE(said.contains(text)) << text.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Sections, HelpSectionsTest, ::testing::ValuesIn(allHelpSections),
                         [](const auto& info) { return rawValue(info.param).toStdString(); });

TEST_F(HelpWindowTest, StopsAtTheEndsOfTheSections) {
    open();
    press(Qt::Key_Up);
    EXPECT_EQ(view().selectedIndex(), 0);
    press(Qt::Key_End);
    EXPECT_EQ(view().selectedIndex(), 13);
    press(Qt::Key_Down);
    EXPECT_EQ(view().selectedIndex(), 13);
    press(Qt::Key_Home);
    EXPECT_EQ(view().selectedIndex(), 0);
    EXPECT_EQ(focusName(), u"howItWorks"_qs);
}

TEST_F(HelpWindowTest, TabGoesOverTheSectionsAtOnce) {
    open();
    show(HelpSection::privacy);
    item(u"search"_qs).forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), u"privacy"_qs);
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), u"page"_qs);
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), u"reviewNotice"_qs);
}

TEST_F(HelpWindowTest, KeysScrollThePageAndAnotherSectionBeginsAtItsTop) {
    open();
    show(HelpSection::limitations);
    QQuickItem& page = item(u"page"_qs);
    page.forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_PageDown);
    EXPECT_GT(page.property("contentY").toDouble(), 300);
    show(HelpSection::privacy);
    EXPECT_EQ(page.property("contentY").toDouble(), 0);
}

// Search

TEST_F(HelpWindowTest, ShowsWhatAllSectionsHaveOfTheWords) {
    open();
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(focusName(), u"search"_qs);
    type(u"semicolon"_qs);
    QStringList found;
    for (const QQuickItem* page : pages())
        found << page->objectName();
    EXPECT_EQ(found, QStringList({u"page-exporting"_qs, u"page-tips"_qs}));
    EXPECT_EQ(sidebarRows().size(), 14);
    for (QQuickItem* row : sidebarRows())
        EXPECT_FALSE(spoken(*row).state().selected) << row->objectName().toStdString();
}

TEST_F(HelpWindowTest, SaysSoWhenNothingIsFound) {
    open();
    EXPECT_FALSE(isThere(u"nothingFound"_qs));
    press(Qt::Key_F, Qt::ControlModifier);
    type(u"xyzzy"_qs);
    EXPECT_EQ(pages().size(), 0);
    EXPECT_TRUE(isThere(u"nothingFound"_qs));
}

TEST_F(HelpWindowTest, EscapeEndsTheSearchFirstAndClosesThen) {
    open();
    press(Qt::Key_F, Qt::ControlModifier);
    type(u"csv"_qs);
    press(Qt::Key_Escape);
    EXPECT_EQ(view().searchText(), QString());
    EXPECT_EQ(item(u"search"_qs).property("text").toString(), QString());
    EXPECT_TRUE(window->isVisible());
    press(Qt::Key_Escape);
    EXPECT_TRUE(isGone());
}

TEST_F(HelpWindowTest, AClickOnASectionEndsTheSearch) {
    open();
    press(Qt::Key_F, Qt::ControlModifier);
    type(u"csv"_qs);
    click(item(u"exporting"_qs));
    EXPECT_EQ(pageTitle(), u"Exporting"_qs);
    EXPECT_EQ(item(u"search"_qs).property("text").toString(), QString());
    EXPECT_TRUE(texts().contains(u"Name and place"_qs));
}

// The walkthrough

TEST_F(HelpWindowTest, ShowsTheNextStepAfterItsTime) {
    open();
    EXPECT_EQ(scheduler.runningTimers(), 0U);
    show(HelpSection::iphone);
    EXPECT_EQ(item(u"position"_qs).property("text").toString(), u"Step 1 of 5"_qs);
    scheduler.advance(1.8);
    EXPECT_EQ(item(u"position"_qs).property("text").toString(), u"Step 2 of 5"_qs);
    EXPECT_EQ(item(u"screen"_qs).property("text").toString(), u"Notifications"_qs);
}

TEST_F(HelpWindowTest, LeavingTheSectionStopsTheTimer) {
    open();
    show(HelpSection::iphone);
    scheduler.advance(2);
    ASSERT_EQ(scheduler.runningTimers(), 1U);
    show(HelpSection::tips);
    EXPECT_EQ(scheduler.runningTimers(), 0U);
    show(HelpSection::iphone);
    EXPECT_EQ(scheduler.runningTimers(), 1U);
    EXPECT_EQ(item(u"position"_qs).property("text").toString(), u"Step 1 of 5"_qs);
}

TEST_F(HelpWindowTest, ASearchThatHidesTheWalkthroughStopsTheTimer) {
    open();
    show(HelpSection::iphone);
    press(Qt::Key_F, Qt::ControlModifier);
    type(u"csv"_qs);
    EXPECT_EQ(scheduler.runningTimers(), 0U);
}

TEST_F(HelpWindowTest, ClosingTheWindowStopsTheTimer) {
    open();
    show(HelpSection::iphone);
    quickWindow().close();
    EXPECT_TRUE(isGone());
    EXPECT_EQ(scheduler.runningTimers(), 0U);
}

TEST_F(HelpWindowTest, PlaysNothingByItselfWhereTheDesktopWantsNothingToMove) {
    appearance.setReducesMotion(true);
    open();
    show(HelpSection::iphone);
    EXPECT_EQ(scheduler.runningTimers(), 0U);
    bringIntoSight(item(u"playSteps"_qs));
    click(item(u"playSteps"_qs));
    EXPECT_EQ(scheduler.runningTimers(), 1U);
}

TEST_F(HelpWindowTest, StepsByItsButtons) {
    open();
    show(HelpSection::iphone);
    bringIntoSight(item(u"nextStep"_qs));
    click(item(u"nextStep"_qs));
    EXPECT_EQ(view().walkthrough()->animStep(), 1);
    click(item(u"previousStep"_qs));
    click(item(u"previousStep"_qs));
    EXPECT_EQ(view().walkthrough()->animStep(), 4);
    click(item(u"playSteps"_qs));
    EXPECT_EQ(view().walkthrough()->animStep(), 0);
    EXPECT_EQ(spoken(item(u"playSteps"_qs)).text(QAccessible::Name), u"Pause"_qs);
    click(item(u"playSteps"_qs));
    EXPECT_FALSE(view().walkthrough()->isPlaying());
}

// Limitations

TEST_F(HelpWindowTest, ALongWorkaroundWrapsInItsRowBehindABoldWord) {
    open();
    show(HelpSection::limitations);
    const auto labels =
        items([](const QQuickItem& item) { return item.objectName() == u"workaround"_qs; });
    EXPECT_EQ(labels.size(), 21);
    int wrapped = 0;
    for (const QQuickItem* label : labels) {
        const QString text = label->property("text").toString();
        ASSERT_TRUE(text.startsWith(u"**Workaround:** "_qs)) << text.toStdString();
        EXPECT_LE(label->property("paintedWidth").toDouble(), label->width());
        EXPECT_LE(label->property("paintedHeight").toDouble(), label->height() + 0.5);
        const QFont regular = label->property("font").value<QFont>();
        wrapped +=
            label->property("paintedHeight").toDouble() > 1.5 * QFontMetricsF(regular).height();
        QFont bold = regular;
        bold.setBold(true);
        const QString rest = text.sliced(u"**Workaround:**"_qs.size());
        const double expected = QFontMetricsF(bold).horizontalAdvance(u"Workaround:"_qs) +
                                QFontMetricsF(regular).horizontalAdvance(rest);
        const double thin = QFontMetricsF(regular).horizontalAdvance(u"Workaround:"_qs + rest);
        EXPECT_LT(std::abs(label->implicitWidth() - expected), (expected - thin) / 2)
            << text.toStdString();
    }
    EXPECT_GT(wrapped, 0);
}

TEST_F(HelpWindowTest, EachSeverityHasItsSymbolAndItsColour) {
    open();
    show(HelpSection::limitations);
    const Palette& colours = theme.colours();
    const QList<std::pair<QString, QColor>> expected{
        {u"exclamationmark.triangle.fill"_qs, colours.orange},
        {u"exclamationmark.circle"_qs, colours.yellow},
        {u"info.circle"_qs, colours.blue}};
    QSet<int> seen;
    for (const QQuickItem* row :
         items([](const QQuickItem& item) { return isA(item, "LimitationRow"); })) {
        const int severity = row->property("severity").toInt();
        const auto [symbol, tint] = expected.at(severity);
        const auto* const image = row->findChild<QQuickItem*>(u"severity"_qs);
        EXPECT_EQ(image->property("symbol").toString(), symbol);
        EXPECT_EQ(image->property("tint").value<QColor>(), tint);
        seen << severity;
    }
    EXPECT_EQ(seen, QSet<int>({0, 1, 2}));
}

// About and privacy

TEST_F(HelpWindowTest, SaysWhichVersionRunsAndWhoseWorkIsInIt) {
    QCoreApplication::setApplicationVersion(u"4.5.6"_qs);
    open();
    show(HelpSection::about);
    EXPECT_EQ(item(u"version"_qs).property("text").toString(), u"Version 4.5.6"_qs);
    EXPECT_TRUE(texts().contains(u"Sparkle 2.9.0"_qs));
}

TEST_F(HelpWindowTest, ShowsTheAgreementToReadAndToCopy) {
    open();
    show(HelpSection::about);
    click(item(u"reviewAgreement"_qs));
    ASSERT_TRUE(isThere(u"agreementText"_qs));
    QQuickItem& text = item(u"agreementText"_qs);
    EXPECT_EQ(text.property("text").toString(), u"The first line.\n\nThe second one."_qs);
    EXPECT_TRUE(text.property("selectByMouse").toBool());
    press(Qt::Key_Escape);
    EXPECT_TRUE(turnsUntil([this] { return !isThere(u"agreementText"_qs); }));
    ASSERT_TRUE(window && window->isVisible());
    click(item(u"reviewAgreement"_qs));
    ASSERT_TRUE(isThere(u"agreementText"_qs));
    press(Qt::Key_Return);
    EXPECT_TRUE(turnsUntil([this] { return !isThere(u"agreementText"_qs); }));
}

TEST_F(HelpWindowTest, OffersNoAgreementWhereThereIsNone) {
    services.agreementText.clear();
    open();
    show(HelpSection::about);
    EXPECT_FALSE(item(u"reviewAgreement"_qs).isEnabled());
}

TEST_F(HelpWindowTest, LeadsToThePrivacyNotice) {
    open();
    show(HelpSection::privacy);
    item(u"reviewNotice"_qs).forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    EXPECT_EQ(noticesShown, 1);
}

// Windows

TEST_F(HelpWindowTest, EscapeAndTheKeyForItCloseTheWindow) {
    open();
    press(Qt::Key_Escape);
    EXPECT_TRUE(isGone());
    open();
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(isGone());
}

TEST_F(HelpWindowTest, TwoRequestsGiveTwoWindowsOfTheirOwn) {
    const QPointer<ViewWindow> first = open();
    show(HelpSection::tips);
    const QPointer<ViewWindow> second = open();
    EXPECT_NE(first, second);
    EXPECT_EQ(view().selectedSection(), HelpSection::howItWorks);
    EXPECT_EQ(ViewWindow::allVisible().size(), 2U);
    quickWindow().close();
    EXPECT_TRUE(isGone());
    ASSERT_TRUE(first);
    EXPECT_TRUE(first->isVisible());
}

TEST_F(HelpWindowTest, OpenedAndClosedAHundredTimesItLeavesNothing) {
    const auto windows = [] { return QGuiApplication::allWindows().size(); };
    const qsizetype before = windows();
    for (int round = 0; round < 100; ++round) {
        window = makeHelpWindow(services, *engine);
        const QPointer<HelpView> shown = &view();
        window->showAndMakeKey();
        view().setSelectedSection(HelpSection::iphone);
        scheduler.advance(0.1 * round); // the timer is at every point of its interval
        quickWindow().close();
        ASSERT_TRUE(isGone());
        ASSERT_TRUE(shown.isNull());
        ASSERT_EQ(scheduler.runningTimers(), 0U);
    }
    EXPECT_EQ(windows(), before);
}

} // namespace
} // namespace tessarine::testing

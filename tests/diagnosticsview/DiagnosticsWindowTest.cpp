// The window as a user meets it, by mouse and by keyboard.

#include "diagnosticsview/DiagnosticsFixture.h"
#include "support/EventLoop.h"

#include <QAccessible>
#include <QPointer>
#include <QTest>

#include <gmock/gmock.h>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QStringList actionButtons{u"verifyIntegrity"_qs, u"createBackup"_qs, u"copyReport"_qs,
                                u"exportData"_qs, u"exportReport"_qs};

class DiagnosticsWindowTest : public DiagnosticsFixture {
protected:
    // The names of what Tab stops at, in its order, once around.
    QStringList stops() const {
        QStringList names;
        for (int tab = 0; tab < 40; ++tab) {
            press(Qt::Key_Tab);
            const QString name = window().window().activeFocusItem()->objectName();
            if (!names.isEmpty() && name == names.front())
                break;
            names << name;
        }
        return names;
    }

    void focusOn(const QString& name) const {
        for (int tab = 0; tab < 40 && !item(name).hasActiveFocus(); ++tab)
            press(Qt::Key_Tab);
        ASSERT_TRUE(item(name).hasActiveFocus()) << name.toStdString();
    }

    bool isBusy(const QString& name) const { return item(name).property("busy").toBool(); }

    QString inTemporaryFolder(const QString& name) const { return folder.filePath(name); }

    // The message of the first line that is seen whole.
    double topOfLine(const QString& message) const {
        for (const QQuickItem* row :
             item(u"logList"_qs).property("contentItem").value<QQuickItem*>()->childItems()) {
            if (row->property("message").toString() == message)
                return row->mapToItem(&item(u"logList"_qs), QPointF()).y();
        }
        return -1e9;
    }

    QAccessibleInterface& accessible(QQuickItem& shown) const {
        return *QAccessible::queryAccessibleInterface(&shown);
    }

    // Controls that a screen reader comes to and can't name.
    QStringList nameless(QAccessibleInterface& top) const {
        QStringList found;
        for (int i = 0; i < top.childCount(); ++i) {
            QAccessibleInterface* const child = top.child(i);
            if (!child || child->state().invisible)
                continue;
            if (child->state().focusable && child->text(QAccessible::Name).isEmpty())
                found << child->object()->objectName() + u" is nameless"_qs;
            found << nameless(*child);
        }
        return found;
    }
};

// The window

TEST_F(DiagnosticsWindowTest, HasItsTitleAndSize) {
    show();
    EXPECT_EQ(window().window().title(), u"Tessarine Diagnostics"_qs);
    EXPECT_EQ(window().window().size(), QSize(760, 640));
    EXPECT_EQ(window().window().minimumSize(), QSize(600, 480));
}

TEST_F(DiagnosticsWindowTest, IsNeverThereTwice) {
    show();
    const ViewWindow* const first = &window();
    show();
    EXPECT_EQ(&window(), first);
    int windows = 0;
    for (const QWindow* open : QGuiApplication::allWindows())
        windows += open->title() == diagnosticsTitle() ? 1 : 0;
    EXPECT_EQ(windows, 1);
}

TEST_F(DiagnosticsWindowTest, ClosesOnEscapeAndIsGone) {
    show();
    press(Qt::Key_Escape);
    EXPECT_TRUE(turnsUntil([this] { return !isOpen(); }));
}

TEST_F(DiagnosticsWindowTest, ClosesOnEscapeWhereverTheKeyboardIs) {
    show();
    const QStringList names = stops();
    for (const QString& name : names) {
        if (!isOpen())
            show();
        focusOn(name);
        press(Qt::Key_Escape);
        EXPECT_TRUE(turnsUntil([this] { return !isOpen(); })) << name.toStdString();
    }
}

TEST_F(DiagnosticsWindowTest, ClosesOnControlW) {
    show();
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(turnsUntil([this] { return !isOpen(); }));
}

TEST_F(DiagnosticsWindowTest, ComesAnewAfterItWasClosed) {
    show();
    view().log()->setSearchText(u"x"_qs);
    press(Qt::Key_Escape);
    ASSERT_TRUE(turnsUntil([this] { return !isOpen(); }));
    show();
    EXPECT_EQ(view().log()->searchText(), QString());
}

TEST_F(DiagnosticsWindowTest, LeavesNothingBehindHoweverOftenItIsOpened) {
    const auto openAndClose = [this] {
        log(u"a line"_qs);
        ViewWindow& shown = diagnosticsWindow(views.diagnostics(), *views.engine);
        shown.showAndMakeKey();
        draw();
        settle();
        const QList<QPointer<QObject>> made{&shown,     &shown.window(), &shown.root(),
                                            &view(),    view().log(),    view().log()->lines(),
                                            &database()};
        shown.window().close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ASSERT_FALSE(isOpen());
        for (const QPointer<QObject>& object : made)
            ASSERT_TRUE(object.isNull()) << object->metaObject()->className();
        views.engine->collectGarbage();
    };
    openAndClose();
    const auto windows = QGuiApplication::allWindows().size();
    const auto ofApplication = qApp->findChildren<QObject*>().size();
    const auto ofEngine = views.engine->findChildren<QObject*>().size();
    const auto ofStore = diagnostics.findChildren<QObject*>().size();
    for (int i = 0; i < 100; ++i)
        openAndClose();
    EXPECT_EQ(QGuiApplication::allWindows().size(), windows);
    EXPECT_EQ(qApp->findChildren<QObject*>().size(), ofApplication);
    EXPECT_EQ(views.engine->findChildren<QObject*>().size(), ofEngine);
    EXPECT_EQ(diagnostics.findChildren<QObject*>().size(), ofStore);
}

TEST_F(DiagnosticsWindowTest, CountsTheHoardWhenItComesUp) {
    hoard.insert(capture(1));
    hoard.insert(capture(2));
    show();
    EXPECT_THAT(textsIn(item(u"cell0"_qs)), ElementsAre(u"Records"_qs, u"2"_qs));
}

// The status board

TEST_F(DiagnosticsWindowTest, FollowsTheStatusBoard) {
    show();
    diagnostics.setAxStatus(u"Observing"_qs);
    diagnostics.setDbStatus(u"Watching"_qs);
    diagnostics.setCapturedTotal(12);
    diagnostics.setLastSeenRecId(99);
    diagnostics.startPollCountdown();
    draw();
    EXPECT_THAT(textsIn(item(u"axCard"_qs)), ElementsAre(u"AXObserver"_qs, u"Observing"_qs));
    EXPECT_THAT(textsIn(item(u"dbCard"_qs)), ElementsAre(u"usernoted DB"_qs, u"Watching"_qs));
    EXPECT_THAT(textsIn(item(u"recordsCard"_qs)),
                ElementsAre(u"DB Records"_qs, u"0 total · cursor 99"_qs));
    EXPECT_THAT(textsIn(item(u"pollCard"_qs)), ElementsAre(u"Next Poll"_qs, u"30s"_qs));
    EXPECT_THAT(textsIn(item(u"captured"_qs)), ElementsAre(u"12 captured"_qs));
}

TEST_F(DiagnosticsWindowTest, FillsTheRingOnTheWayToTheNextPoll) {
    show();
    EXPECT_EQ(item(u"pollRing"_qs).property("fraction").toDouble(), 1.0);
    diagnostics.startPollCountdown();
    system.scheduler.advance(6);
    EXPECT_DOUBLE_EQ(item(u"pollRing"_qs).property("fraction").toDouble(), 0.2);
}

// The log

TEST_F(DiagnosticsWindowTest, ShowsTheLogNewestFirst) {
    show();
    EXPECT_THAT(textsIn(item(u"noEntries"_qs)), ElementsAre(u"No entries yet"_qs));
    log(u"one"_qs);
    log(u"two"_qs, Level::warning, Category::ax);
    draw();
    EXPECT_EQ(findItem(u"noEntries"_qs), nullptr);
    const QStringList texts = logTexts();
    EXPECT_LT(texts.indexOf(u"two"_qs), texts.indexOf(u"one"_qs));
    EXPECT_GE(texts.indexOf(u"two"_qs), 0);
    EXPECT_TRUE(texts.contains(u"◆"_qs));
    EXPECT_TRUE(texts.contains(u"15:33:20.000"_qs));
}

TEST_F(DiagnosticsWindowTest, ShowsANewLineToWhoeverReadsTheTop) {
    for (int i = 1; i <= 100; ++i)
        log(u"line %1"_qs.arg(i));
    show();
    const double top = topOfLine(u"line 100"_qs);
    for (int i = 101; i <= 130; ++i) {
        log(u"line %1"_qs.arg(i));
        draw();
    }
    EXPECT_EQ(topOfLine(u"line 130"_qs), top);
}

TEST_F(DiagnosticsWindowTest, KeepsThePlaceOfWhoeverReadsFurtherDown) {
    for (int i = 1; i <= 150; ++i)
        log(u"line %1"_qs.arg(i));
    show();
    item(u"logList"_qs).setProperty("contentY", 1000.0);
    draw();
    QString message;
    for (int i = 150; i >= 1 && message.isEmpty(); --i) {
        const double top = topOfLine(u"line %1"_qs.arg(i));
        if (top >= 0 && top < item(u"logList"_qs).height())
            message = u"line %1"_qs.arg(i);
    }
    ASSERT_FALSE(message.isEmpty());
    const double top = topOfLine(message);
    for (int i = 151; i <= 240; ++i) { // beyond the bound too: the oldest lines go
        log(u"line %1"_qs.arg(i));
        draw();
        ASSERT_EQ(topOfLine(message), top) << "after line " << i;
    }
}

TEST_F(DiagnosticsWindowTest, NarrowsTheLogByTypingAndByPills) {
    show();
    log(u"apple"_qs, Level::info, Category::ax);
    log(u"pear"_qs, Level::info, Category::hoard);
    click(u"logSearch"_qs);
    type(u"PEA"_qs);
    EXPECT_TRUE(logTexts().contains(u"pear"_qs));
    EXPECT_FALSE(logTexts().contains(u"apple"_qs));
    click(u"pill0"_qs);
    EXPECT_THAT(textsIn(item(u"noEntries"_qs)),
                ElementsAre(u"No entries yet"_qs, u"No line of the log passes the filter."_qs));
    click(u"pill0"_qs);
    EXPECT_TRUE(logTexts().contains(u"pear"_qs));
}

TEST_F(DiagnosticsWindowTest, NarrowsTheLogByTheKeyboard) {
    show();
    log(u"apple"_qs, Level::info, Category::ax);
    log(u"pear"_qs, Level::info, Category::hoard);
    focusOn(u"pill3"_qs);
    press(Qt::Key_Space);
    EXPECT_EQ(view().log()->selectedCategory(), Category::hoard);
    EXPECT_FALSE(logTexts().contains(u"apple"_qs));
    press(Qt::Key_Return);
    EXPECT_EQ(view().log()->selectedCategory(), std::nullopt);
}

TEST_F(DiagnosticsWindowTest, ScrollsTheLogByTheKeyboard) {
    for (int i = 1; i <= 150; ++i)
        log(u"line %1"_qs.arg(i));
    show();
    focusOn(u"logList"_qs);
    press(Qt::Key_End);
    EXPECT_TRUE(turnsUntil([this] {
        draw();
        return logTexts().contains(u"line 1"_qs);
    }));
}

TEST_F(DiagnosticsWindowTest, ClearsTheLog) {
    show();
    log(u"one"_qs);
    click(u"clearLog"_qs);
    EXPECT_NE(findItem(u"noEntries"_qs), nullptr);
    log(u"two"_qs);
    focusOn(u"clearLog"_qs);
    press(Qt::Key_Space);
    EXPECT_THAT(messages(), IsEmpty());
}

// The tools

TEST_F(DiagnosticsWindowTest, RunsEachActionByMouse) {
    show();
    savePanel.answer = inTemporaryFolder(u"backup.db"_qs);
    click(u"verifyIntegrity"_qs);
    settle();
    click(u"createBackup"_qs);
    settle();
    click(u"copyReport"_qs);
    settle();
    savePanel.answer = inTemporaryFolder(u"report.txt"_qs);
    click(u"exportReport"_qs);
    settle();
    EXPECT_THAT(messages(), ElementsAre(u"Report exported as report.txt"_qs,
                                        u"Report copied to the clipboard"_qs,
                                        u"Backup saved to "_qs + inTemporaryFolder(u"backup.db"_qs),
                                        u"Integrity check passed"_qs));
    EXPECT_EQ(pasteboard.size(), 1);
}

TEST_F(DiagnosticsWindowTest, RunsEachActionByTheKeyboard) {
    show();
    savePanel.answer = inTemporaryFolder(u"backup.db"_qs);
    for (const QString& name : {u"verifyIntegrity"_qs, u"createBackup"_qs, u"copyReport"_qs}) {
        focusOn(name);
        press(Qt::Key_Space);
        EXPECT_TRUE(isBusy(name));
        settle();
        EXPECT_TRUE(item(name).hasActiveFocus()) << name.toStdString();
    }
    savePanel.answer = inTemporaryFolder(u"report.txt"_qs);
    focusOn(u"exportReport"_qs);
    press(Qt::Key_Return);
    settle();
    EXPECT_EQ(messages().size(), 4);
}

TEST_F(DiagnosticsWindowTest, IgnoresASecondPressWhileAnActionRuns) {
    show();
    system.scheduler.holdGlobalQueues(true);
    savePanel.answer = inTemporaryFolder(u"out"_qs);
    for (const QString& name :
         {u"verifyIntegrity"_qs, u"createBackup"_qs, u"copyReport"_qs, u"exportReport"_qs}) {
        const auto before = system.scheduler.waitingGlobalTasks();
        click(name);
        settle();
        EXPECT_TRUE(isBusy(name)) << name.toStdString();
        click(name);
        settle();
        EXPECT_EQ(system.scheduler.waitingGlobalTasks(), before + 1) << name.toStdString();
    }
    system.scheduler.holdGlobalQueues(false);
    settle();
    EXPECT_EQ(messages().size(), 4);
    for (const QString& name :
         {u"verifyIntegrity"_qs, u"createBackup"_qs, u"copyReport"_qs, u"exportReport"_qs})
        EXPECT_FALSE(isBusy(name)) << name.toStdString();
}

TEST_F(DiagnosticsWindowTest, IsReadyAgainAfterAPanelWasCancelled) {
    show();
    click(u"createBackup"_qs);
    click(u"exportReport"_qs);
    settle();
    EXPECT_EQ(savePanel.requests.size(), 2U);
    EXPECT_FALSE(isBusy(u"createBackup"_qs));
    EXPECT_FALSE(isBusy(u"exportReport"_qs));
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(DiagnosticsWindowTest, MayBeClosedWhileTheUserIsAsked) {
    show();
    savePanel.answer = inTemporaryFolder(u"out"_qs);
    savePanel.meanwhile = [this] {
        window().window().close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    click(u"exportReport"_qs);
    system.scheduler.settle();
    EXPECT_FALSE(isOpen());
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(DiagnosticsWindowTest, RefreshesTheFigures) {
    show();
    hoard.insert(capture(1));
    click(u"refresh"_qs);
    settle();
    EXPECT_THAT(textsIn(item(u"cell0"_qs)), ElementsAre(u"Records"_qs, u"1"_qs));
    hoard.insert(capture(2));
    focusOn(u"refresh"_qs);
    press(Qt::Key_Space);
    settle();
    EXPECT_THAT(textsIn(item(u"cell0"_qs)), ElementsAre(u"Records"_qs, u"2"_qs));
}

TEST_F(DiagnosticsWindowTest, SwitchesTheContentOfReports) {
    show();
    click(u"includeContent"_qs);
    EXPECT_TRUE(database().includeNotifContent());
    focusOn(u"includeContent"_qs);
    press(Qt::Key_Space);
    EXPECT_FALSE(database().includeNotifContent());
}

TEST_F(DiagnosticsWindowTest, ExportsDataThroughTheSheet) {
    hoard.insert(capture(1));
    show();
    focusOn(u"exportData"_qs);
    press(Qt::Key_Space);
    const auto* const sheet = window().root().findChild<QObject*>(u"exportSheet"_qs);
    ASSERT_NE(sheet, nullptr);
    ASSERT_TRUE(turnsUntil([&] { return sheet->property("opened").toBool(); }));
    press(Qt::Key_Escape); // the sheet's, and not the window's
    EXPECT_TRUE(turnsUntil([this] { return !database().showDataExportSheet(); }));
    EXPECT_TRUE(turnsUntil([this] { return item(u"exportData"_qs).hasActiveFocus(); }));
    EXPECT_TRUE(isOpen());
}

// Keyboard and screen reader

TEST_F(DiagnosticsWindowTest, IsWalkedThroughInReadingOrder) {
    show();
    EXPECT_EQ(stops(),
              (QStringList{u"clearLog"_qs, u"logSearch"_qs, u"pill0"_qs, u"pill1"_qs, u"pill2"_qs,
                           u"pill3"_qs, u"pill4"_qs, u"logList"_qs, u"refresh"_qs} +
               actionButtons + QStringList{u"includeContent"_qs}));
}

TEST_F(DiagnosticsWindowTest, BringsWhatHasTheKeyboardIntoSight) {
    show();
    window().window().resize(600, 480);
    ASSERT_TRUE(turnsUntil([this] { return window().root().size() == QSizeF(600, 480); }));
    focusOn(u"includeContent"_qs);
    const QQuickItem& toggle = item(u"includeContent"_qs);
    EXPECT_TRUE(turnsUntil([&] {
        return toggle.mapToScene({0, toggle.height()}).y() <= window().root().height();
    }));
}

TEST_F(DiagnosticsWindowTest, NamesEveryControlToAScreenReader) {
    show();
    log(u"a line"_qs);
    draw();
    QAccessibleInterface* const top = QAccessible::queryAccessibleInterface(&window().window());
    ASSERT_NE(top, nullptr);
    EXPECT_EQ(nameless(*top), QStringList());
    for (const QString& name : stops())
        EXPECT_FALSE(accessible(item(name)).text(QAccessible::Name).isEmpty())
            << name.toStdString();
}

TEST_F(DiagnosticsWindowTest, TellsAScreenReaderWhatItShows) {
    show();
    diagnostics.setAxStatus(u"Observing"_qs);
    draw();
    QAccessibleInterface& card = accessible(item(u"axCard"_qs));
    EXPECT_EQ(card.text(QAccessible::Name), u"AXObserver"_qs);
    EXPECT_EQ(card.text(QAccessible::Description), u"Observing"_qs);
    QAccessibleInterface& cell = accessible(item(u"cell0"_qs));
    EXPECT_EQ(cell.text(QAccessible::Name), u"Records"_qs);
    EXPECT_EQ(cell.text(QAccessible::Description), u"0"_qs);
    view().log()->tapPill(1);
    EXPECT_TRUE(accessible(item(u"pill1"_qs)).state().checked);
    EXPECT_EQ(accessible(item(u"pill1"_qs)).text(QAccessible::Name), u"Only DB"_qs);
    EXPECT_EQ(accessible(item(u"pollRing"_qs)).text(QAccessible::Name), u"Next Poll"_qs);
}

TEST_F(DiagnosticsWindowTest, IsWorkedByAScreenReader) {
    show();
    for (const QString& name : {u"verifyIntegrity"_qs, u"copyReport"_qs}) {
        QAccessibleActionInterface* const actions = accessible(item(name)).actionInterface();
        ASSERT_NE(actions, nullptr);
        actions->doAction(QAccessibleActionInterface::pressAction());
        settle();
    }
    EXPECT_EQ(messages().size(), 2);
}

} // namespace
} // namespace tessarine::testing

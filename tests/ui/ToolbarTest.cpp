#include "support/EventLoop.h"
#include "ui/UiFixture.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>

#include <functional>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class ToolbarTest : public UiTest {
protected:
    // Six rows of two applications.
    ToolbarTest() {
        NotificationList rows = numbered(6);
        rows[1].appName = u"Chat"_qs;
        rows[3].appName = u"Chat"_qs;
        rows[3].body = u"Your café is open"_qs;
        showHoard(rows);
    }

    void pick(const QString& picker, const QString& text) {
        click(item(picker));
        ASSERT_TRUE(turnsUntil([&] { return entry(text) != nullptr; }));
        click(*entry(text));
    }

    QString counter() const { return item(u"counter"_qs).property("text").toString(); }
};

TEST_F(ToolbarTest, ATypedSearchNarrowsTheListAndTheCounter) {
    EXPECT_EQ(counter(), u"6 notifications"_qs);
    click(item(u"searchField"_qs));
    type(u"caf"_qs);
    EXPECT_EQ(view().list()->searchText(), u"caf"_qs);
    EXPECT_EQ(list().property("count").toInt(), 1);
    EXPECT_EQ(counter(), u"1 notification"_qs);
}

TEST_F(ToolbarTest, TheClearButtonEmptiesTheSearch) {
    click(item(u"searchField"_qs));
    type(u"zzz"_qs);
    EXPECT_TRUE(textsInWindow(*window).contains(u"No matches"_qs));
    QQuickItem& field = item(u"searchField"_qs);
    clickAt(field, {field.width() - 10, field.height() / 2});
    EXPECT_EQ(view().list()->searchText(), QString());
    EXPECT_EQ(list().property("count").toInt(), 6);
}

TEST_F(ToolbarTest, AnAppIsPicked) {
    pick(u"appPicker"_qs, u"Chat"_qs);
    EXPECT_EQ(view().list()->selectedApp(), u"Chat"_qs);
    EXPECT_EQ(list().property("count").toInt(), 2);
    pick(u"appPicker"_qs, u"All Apps"_qs);
    EXPECT_EQ(view().list()->selectedApp(), u"All"_qs);
}

TEST_F(ToolbarTest, TheOrderIsPicked) {
    pick(u"sortPicker"_qs, u"Oldest First"_qs);
    EXPECT_EQ(view().list()->sortMode(), SortMode::oldest);
    ASSERT_NE(row(u"Title 1"_qs), nullptr);
    EXPECT_LT(row(u"Title 1"_qs)->y(), row(u"Title 6"_qs)->y());
}

TEST_F(ToolbarTest, TheGroupingIsPickedAtOnce) {
    click(*entry(u"Date"_qs));
    EXPECT_EQ(view().list()->groupMode(), GroupMode::date);
    click(*entry(u"App"_qs));
    EXPECT_EQ(view().list()->groupMode(), GroupMode::app);
    click(*entry(u"None"_qs));
    EXPECT_EQ(view().list()->groupMode(), GroupMode::none);
}

TEST_F(ToolbarTest, ExportAndDeleteAreThereOnlyWhileThereAreRows) {
    EXPECT_TRUE(isShown(u"export"_qs));
    EXPECT_TRUE(isShown(u"enterSelection"_qs));
    publish({});
    draw();
    EXPECT_FALSE(isShown(u"export"_qs));
    EXPECT_FALSE(isShown(u"enterSelection"_qs));
}

TEST_F(ToolbarTest, TheExportSheetOpensAndCancelGivesTheKeyboardBack) {
    click(item(u"export"_qs));
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"exportSheet"_qs); }));
    draw();
    press(Qt::Key_Escape);
    EXPECT_TRUE(turnsUntil(
        [&] { return !view().overlays()->showExportSheet() && list().hasActiveFocus(); }));
}

// Export

class ToolbarExportTest : public ToolbarTest {
protected:
    ToolbarExportTest() {
        // The dialog of the desktop runs an event loop of its own, in which anything may happen.
        savePanel.meanwhile = [this] {
            QEventLoop loop;
            QMetaObject::invokeMethod(
                &loop,
                [&] {
                    meanwhile();
                    system.scheduler.advance(10);
                    QMetaObject::invokeMethod(
                        &loop, [&loop] { loop.quit(); }, Qt::QueuedConnection);
                },
                Qt::QueuedConnection);
            loop.exec();
        };
    }

    void openSheet() {
        click(item(u"export"_qs));
        ASSERT_TRUE(turnsUntil([&] { return isShown(u"exportSheet"_qs); }));
        draw();
    }

    // Of the sheet: the toolbar's has another text.
    void pressExport(const QString& name) {
        savePanel.answer = folder.filePath(name);
        QQuickItem* button = entry(u"Export as "_qs + formatName_);
        ASSERT_NE(button, nullptr) << formatName_.toStdString();
        click(*button);
        system.scheduler.settle();
        draw();
    }

    void choose(int card, const QString& name) {
        click(item(u"card%1"_qs.arg(card)));
        formatName_ = name;
    }

    std::function<void()> meanwhile = [] {};

private:
    QString formatName_ = u"CSV"_qs;
};

TEST_F(ToolbarExportTest, RunsAgainAndAgainInEveryFormatWhileItSaysThatItIsDone) {
    openSheet();
    const QStringList names{u"Text"_qs, u"CSV"_qs, u"PDF Report"_qs};
    std::size_t files = 0;
    for (int round = 0; round < 2; ++round) {
        for (int card = 0; card < 3; ++card) {
            choose(card, names[card]);
            for (int again = 0; again < 2; ++again) {
                pressExport(u"file%1"_qs.arg(++files));
                EXPECT_TRUE(QFile::exists(*savePanel.answer)) << files;
                EXPECT_TRUE(item(u"done"_qs).isVisible()) << files;
                EXPECT_EQ(fileViewer.revealed.size(), files);
            }
        }
    }
    system.scheduler.advance(1.4);
    EXPECT_TRUE(view().overlays()->showExportSheet());
    system.scheduler.advance(0.2);
    EXPECT_FALSE(view().overlays()->showExportSheet());
}

TEST_F(ToolbarExportTest, ASheetThatGoesWhileItsPanelIsOpenTakesNothingDownWithIt) {
    openSheet();
    meanwhile = [this] { view().overlays()->setShowExportSheet(false); };
    pressExport(u"file"_qs);
    EXPECT_EQ(savePanel.requests.size(), 1U);
    EXPECT_FALSE(QFile::exists(folder.filePath(u"file"_qs)));
    EXPECT_FALSE(isShown(u"exportSheet"_qs));
    meanwhile = [] {};
    openSheet();
    pressExport(u"file"_qs);
    EXPECT_TRUE(QFile::exists(folder.filePath(u"file"_qs)));
}

TEST_F(ToolbarExportTest, TheKeyboardComesBackToTheButtonItWasOn) {
    item(u"export"_qs).forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"exportSheet"_qs); }));
    press(Qt::Key_Escape);
    EXPECT_TRUE(turnsUntil([&] { return item(u"export"_qs).hasActiveFocus(); }));
    EXPECT_TRUE(item(u"export"_qs).property("visualFocus").toBool());
}

TEST_F(ToolbarTest, ACaptureInTheMiddleOfTypingLeavesTheSearch) {
    click(item(u"searchField"_qs));
    type(u"ca"_qs);
    reload();
    draw();
    EXPECT_TRUE(item(u"searchField"_qs).hasActiveFocus());
    type(u"f"_qs);
    EXPECT_EQ(view().list()->searchText(), u"caf"_qs);
}

TEST_F(ToolbarTest, AnotherListBeginsAtItsTop) {
    showHoard(0);
    publish(numbered(300));
    draw();
    list().setProperty("contentY", 2000.0);
    draw();
    pick(u"sortPicker"_qs, u"Oldest First"_qs);
    EXPECT_TRUE(turnsUntil([&] { return row(u"Title 1"_qs) != nullptr; }));
    EXPECT_EQ(row(u"Title 1"_qs)->mapToItem(&list(), QPointF(0, 0)).y(), 4);
}

TEST_F(ToolbarTest, TheCounterStandsOverAnEmptyListToo) {
    publish({}); // a reading that failed
    draw();
    EXPECT_TRUE(isShown(u"counter"_qs));
    EXPECT_EQ(counter(), u"0 of 6"_qs);
    hoard.deleteAll();
    publish(numbered(1));
    publish({});
    draw();
    EXPECT_EQ(counter(), u"0 notifications"_qs);
}

// Older rows

TEST_F(ToolbarTest, OlderRowsAreLoadedFromTheEndOfTheList) {
    for (int i = 0; i < 520; ++i) {
        CapturedNotification older;
        older.noteId = 1000 + i;
        older.appName = u"Old"_qs;
        older.title = u"Older %1"_qs.arg(i);
        older.timestamp = ManualScheduler::startOfTime - 1000.0 - i;
        ASSERT_TRUE(hoard.insert(older));
    }
    reload();
    draw();
    EXPECT_EQ(counter(), u"500 of 526"_qs);
    view().list()->setSearchText(u"Older 1"_qs); // 1, 10 to 19 and 100 to 199 of those loaded
    EXPECT_EQ(counter(), u"111 of 526"_qs);
    view().list()->setSearchText({});
    draw();
    list().forceActiveFocus();
    press(Qt::Key_End);
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"loadOlder"_qs); }));
    press(Qt::Key_End);
    const double before = list().property("contentY").toDouble();
    click(item(u"loadOlder"_qs));
    EXPECT_EQ(list().property("count").toInt(), 526);
    EXPECT_EQ(counter(), u"526 notifications"_qs);
    EXPECT_FALSE(isShown(u"loadOlder"_qs));
    EXPECT_GE(list().property("contentY").toDouble(), before - 60); // nobody was sent elsewhere
}

// An empty list

class EmptyListTest : public UiTest {
protected:
    void showEmpty() {
        makeWindow();
        show();
        publish({});
        draw();
    }
};

TEST_F(EmptyListTest, PromisesWhatWillBeThere) {
    system.accessibility.trusted = true;
    showEmpty();
    const QStringList texts = textsInWindow(*window);
    EXPECT_TRUE(texts.contains(u"No notifications yet"_qs));
    EXPECT_TRUE(
        texts.contains(u"What your apps announce will be kept here, for as long as you like."_qs));
}

TEST_F(EmptyListTest, SaysThatNothingCanBeSeen) {
    showEmpty();
    EXPECT_TRUE(textsInWindow(*window).contains(
        u"Tessarine can’t see any: it has no access to the session bus, over which notifications come."_qs));
}

TEST_F(EmptyListTest, FollowsTheBusAsItComesAndGoes) {
    const auto says = [this](const QString& text) { return textsInWindow(*window).contains(text); };
    const QString promise =
        u"What your apps announce will be kept here, for as long as you like."_qs;
    showEmpty();
    EXPECT_FALSE(says(promise));
    system.accessibility.trusted = true;
    system.scheduler.advance(1);
    EXPECT_TRUE(says(promise));
    system.accessibility.trusted = false;
    system.scheduler.advance(1);
    EXPECT_FALSE(says(promise));

    window->window()->close(); // nobody is told, and nobody asks
    system.accessibility.trusted = true;
    system.scheduler.advance(5);
    window->showAndMakeKey();
    EXPECT_TRUE(says(promise));
}

TEST_F(EmptyListTest, SaysThatTheHoardCannotBeOpenedAndWhereItIs) {
    ASSERT_TRUE(QDir().mkpath(hoard.path())); // a folder in the file's place
    showEmpty();
    EXPECT_TRUE(textsInWindow(*window).contains(
        u"The hoard can’t be opened, so nothing can be kept: "_qs + hoard.path()));
}

TEST_F(EmptyListTest, AFilterThatNothingPassesHintsAtOlderRows) {
    showHoard(620);
    view().list()->setSearchText(u"Title 7 "_qs);
    draw();
    const QString all = u"No loaded notification matches the search and the chosen app."_qs;
    EXPECT_TRUE(textsInWindow(*window).contains(all + u" Load Older looks further back."_qs));
    click(item(u"loadOlderResults"_qs)); // the rest of the hoard
    EXPECT_TRUE(textsInWindow(*window).contains(all));
    EXPECT_FALSE(isShown(u"loadOlderResults"_qs));
}

} // namespace
} // namespace tessarine::testing

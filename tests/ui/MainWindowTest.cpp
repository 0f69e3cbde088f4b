#include "support/EventLoop.h"
#include "ui/UiFixture.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

const QString frameKey = u"NSWindow Frame MainWindow"_qs;

// The offscreen platform has one screen of 800 x 800 points at normal density.
class MainWindowTest : public UiTest {
protected:
    void remember(const QString& frame) { system.defaults.setText(frameKey, frame); }
    QSize size() const { return window->window()->size(); }
    QString remembered() const { return system.defaults.text(frameKey).value_or(QString()); }
};

TEST_F(MainWindowTest, IsBuiltHiddenWithItsTitleAndFirstSize) {
    makeWindow();
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(window->window()->title(), u"Tessarine"_qs);
    EXPECT_EQ(size(), QSize(760, 520)); // the root view's 720 and 40
    EXPECT_EQ(window->window()->minimumSize(), QSize(720, 400));
}

TEST_F(MainWindowTest, LeavesNoFrameBehindBeforeItIsShown) {
    makeWindow();
    QTest::qWait(0);
    EXPECT_FALSE(system.defaults.contains(frameKey));
}

TEST_F(MainWindowTest, BringsTheSavedSizeBackAndStandsInTheMiddleAllTheSame) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    remember(u"3 7 740 600"_qs);
    makeWindow();
    EXPECT_EQ(size(), QSize(740, 600));
    EXPECT_EQ(window->window()->position(),
              QPoint(room.x() + (room.width() - 740) / 2, room.y() + (room.height() - 600) / 2));
}

class NonsenseFrameTest : public MainWindowTest,
                          public ::testing::WithParamInterface<const char*> {};

TEST_P(NonsenseFrameTest, IsIgnored) {
    remember(QString::fromUtf8(GetParam()));
    makeWindow();
    EXPECT_EQ(size(), QSize(760, 520));
}

INSTANTIATE_TEST_SUITE_P(Frames, NonsenseFrameTest,
                         ::testing::Values("", "wide", "0 0 800", "0 0 800 600 5", "0 0 -800 600",
                                           "0 0 800 0", "0 0 99999999999999999999 600",
                                           "0 0 40000 600", "0 0 800.5 600", "0 0 nan inf",
                                           "-99999 0 800 600"));

TEST_F(MainWindowTest, RaisesASavedSizeToTheMinimum) {
    remember(u"0 0 10 10"_qs);
    makeWindow();
    EXPECT_EQ(size(), QSize(720, 400));
}

TEST_F(MainWindowTest, CutsASavedSizeToTheScreen) {
    const QSize room = QGuiApplication::primaryScreen()->availableSize();
    remember(u"0 0 5000 5000"_qs);
    makeWindow();
    EXPECT_EQ(size(), room);
}

TEST_F(MainWindowTest, SavesItsFrameSomeTimeAfterAChange) {
    makeWindow();
    show();
    window->window()->setGeometry(20, 30, 730, 500);
    EXPECT_NE(remembered(), u"20 30 730 500"_qs);
    EXPECT_TRUE(turnsUntil([this] { return remembered() == u"20 30 730 500"_qs; }));
}

TEST_F(MainWindowTest, SavesAPendingChangeWhenItIsClosed) {
    makeWindow();
    show();
    // On a machine that stalls the change may be saved before anybody can close the window.
    const auto saved = [this] { return remembered().section(u' ', 2); };
    int width = 730;
    QString change;
    do {
        resizeTo(++width, 501);
        change = u"%1 501"_qs.arg(width);
    } while (change == saved() && width < 750);
    ASSERT_NE(saved(), change);
    window->window()->close();
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(saved(), change);
}

TEST_F(MainWindowTest, KeepsTheFrameOfBeforeWhileItFillsTheScreen) {
    makeWindow();
    show();
    window->window()->setGeometry(20, 30, 730, 500);
    ASSERT_TRUE(turnsUntil([this] { return remembered() == u"20 30 730 500"_qs; }));
    window->window()->showMaximized();
    window->window()->close();
    EXPECT_EQ(remembered(), u"20 30 730 500"_qs);
}

TEST_F(MainWindowTest, ComesBackWithItsSizeAndItsPlaceInTheListAfterClosing) {
    publish(numbered(500));
    makeWindow();
    show();
    resizeTo(735, 480);
    list().setProperty("contentY", 3000.0);
    window->window()->grabWindow();
    ASSERT_GT(list().property("contentY").toDouble(), 2000.0);
    const QVariant place = list().property("contentY");

    window->window()->close();
    show();
    window->window()->grabWindow();

    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(size(), QSize(735, 480));
    EXPECT_EQ(list().property("contentY"), place);
}

TEST_F(MainWindowTest, CountsTheHoardAnewEachTimeItIsShown) {
    showHoard(500);
    const auto counter = [this] { return item(u"counter"_qs).property("text").toString(); };
    EXPECT_EQ(counter(), u"500 notifications"_qs);
    for (int round = 1; round <= 2; ++round) {
        window->window()->close();
        CapturedNotification fresh = numbered(1, 1000 + round)[0];
        fresh.noteId = fresh.dbId;
        ASSERT_TRUE(hoard.insert(fresh));
        reload(); // as many rows as before, so the list gives no reason to count
        EXPECT_EQ(view().list()->hoardTotalCount(), 499 + round);
        show();
        draw();
        EXPECT_EQ(counter(), u"500 of %1"_qs.arg(500 + round));
    }
}

TEST_F(MainWindowTest, LetsTheProgramEndWhileItIsShown) {
    makeWindow();
    show();
    QCloseEvent closing;
    QCoreApplication::sendEvent(window->window(), &closing);
    EXPECT_TRUE(closing.isAccepted());
}

} // namespace
} // namespace tessarine::testing

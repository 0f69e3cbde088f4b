#include "core/AppDelegate.h"

#include "support/EventLoop.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"
#include "support/WindowPicture.h"

#include <QMenu>
#include <QPointer>
#include <QQuickItem>
#include <QQuickView>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class AppDelegateTest : public ::testing::Test {
protected:
    // The program as a new process builds it, up to the launch.
    AppDelegateTest() {
        system.defaults.setBoolean(u"NSQuitAlwaysKeepsWindows"_qs, true);
        system.defaults.setText(u"appearanceMode"_qs, u"dark"_qs);
        services.emplace(system.platform);
        views.emplace(*services, desktop.desktop, [](const QString&) {});
        delegate.emplace(*views);
    }

    void launch() {
        delegate->applicationDidFinishLaunching();
        system.scheduler.settle();
    }

    // The menu of the status item, as a click opens it.
    void chooseInStatusMenu(const QString& text) {
        QMenu menu;
        desktop.statusItem.menuBuilder(menu);
        for (QAction* action : menu.actions()) {
            if (action->text() == text)
                return action->trigger();
        }
        FAIL() << "no such entry";
    }

    QWindow* window() const { return delegate->mainWindow()->window(); }

    QTemporaryDir folder;
    testing::SimulatedPlatform system{folder.path()};
    testing::SimulatedDesktop desktop;
    std::optional<Services> services;
    std::optional<ViewServices> views;
    std::optional<AppDelegate> delegate;
};

TEST_F(AppDelegateTest, DoesNothingBeforeTheApplicationRuns) {
    EXPECT_FALSE(desktop.application.isAccessory);
    EXPECT_FALSE(desktop.statusItem.shown);
    EXPECT_EQ(delegate->mainWindow(), nullptr);
    EXPECT_FALSE(services->listener->isStarted());
    EXPECT_FALSE(QFile::exists(services->hoard.path()));
}

TEST_F(AppDelegateTest, TakesNoPlaceAmongTheApplications) {
    launch();
    EXPECT_TRUE(desktop.application.isAccessory);
}

TEST_F(AppDelegateTest, LetsNoSystemBringItsWindowsBack) {
    launch();
    EXPECT_FALSE(system.defaults.boolean(u"NSQuitAlwaysKeepsWindows"_qs));
}

TEST_F(AppDelegateTest, GivesMemoryBackSomeTimeAfterTheWindowWasClosed) {
    services->preferences.setLaunchLoginPromptSuppressed(true);
    launch();
    delegate->showMainWindow();
    system.scheduler.advance(10);
    EXPECT_EQ(desktop.application.memoryReturns, 0);
    window()->close();
    EXPECT_EQ(desktop.application.memoryReturns, 0);
    system.scheduler.advance(3);
    EXPECT_EQ(desktop.application.memoryReturns, 1);
}

TEST_F(AppDelegateTest, GivesNoMemoryBackWhenTheWindowWasOpenedAgain) {
    launch();
    delegate->showMainWindow();
    window()->close();
    delegate->showMainWindow();
    system.scheduler.advance(3);
    EXPECT_EQ(desktop.application.memoryReturns, 0);
}

TEST_F(AppDelegateTest, GivesNoMemoryBackWhileAnotherWindowIsOpen) {
    services->preferences.setLaunchLoginPromptSuppressed(true);
    launch();
    delegate->showMainWindow();
    delegate->checkForUpdates();
    window()->close();
    system.scheduler.advance(3);
    EXPECT_EQ(desktop.application.memoryReturns, 0);
    ViewWindow::allVisible().front()->window().close();
    system.scheduler.advance(3);
    EXPECT_EQ(desktop.application.memoryReturns, 1);
}

TEST_F(AppDelegateTest, LooksAsTheSettingsSay) {
    launch();
    EXPECT_EQ(desktop.appearance.appearance, Appearance::dark);
}

TEST_F(AppDelegateTest, StartsSilentWithAStatusItemAndAHiddenWindow) {
    launch();
    EXPECT_TRUE(desktop.statusItem.shown);
    EXPECT_FALSE(window()->isVisible());
    EXPECT_THAT(desktop.application.activated, IsEmpty());
}

TEST_F(AppDelegateTest, CapturesAfterTheLaunch) {
    launch();
    EXPECT_TRUE(services->listener->isStarted());
}

TEST_F(AppDelegateTest, ShowsTheMainWindowInFrontOfOtherPrograms) {
    launch();
    delegate->showMainWindow();
    EXPECT_TRUE(window()->isVisible());
    EXPECT_THAT(desktop.application.activated, ElementsAre(window()));
}

TEST_F(AppDelegateTest, TakesAllAsSeenWhenTheWindowIsShown) {
    launch();
    services->listener->setNotifications(NotificationList(3));
    ASSERT_EQ(desktop.statusItem.title, u" 3"_qs);
    delegate->showMainWindow();
    EXPECT_EQ(desktop.statusItem.title, QString());
}

TEST_F(AppDelegateTest, LeavesAHiddenWindowHiddenAtASecondStart) {
    launch();
    delegate->activate();
    EXPECT_FALSE(window()->isVisible());
    EXPECT_THAT(desktop.application.activated, IsEmpty());
}

TEST_F(AppDelegateTest, BringsAnOpenWindowToTheFrontAtASecondStart) {
    launch();
    delegate->showMainWindow();
    desktop.application.activated.clear();
    delegate->activate();
    EXPECT_THAT(desktop.application.activated, ElementsAre(window()));
}

TEST_F(AppDelegateTest, SurvivesASecondStartDuringTheLaunch) {
    delegate->activate();
    EXPECT_THAT(desktop.application.activated, IsEmpty());
}

TEST_F(AppDelegateTest, GoesOnCapturingWithItsWindowClosed) {
    launch();
    delegate->showMainWindow();
    window()->close();
    CapturedNotification row;
    row.noteId = 1;
    row.title = u"later"_qs;
    ASSERT_TRUE(services->hoard.insert(row));
    services->listener->setNotifications(services->hoard.fetchRecent(500));
    EXPECT_EQ(desktop.statusItem.title, u" 1"_qs);
    delegate->showMainWindow();
    EXPECT_TRUE(window()->isVisible());
    EXPECT_EQ(delegate->mainWindow()->content().list()->filteredNotifications().size(), 1U);
}

TEST_F(AppDelegateTest, AsksAboutTheLoginAfterTheLaunch) {
    launch();
    EXPECT_EQ(delegate->permissionFlow()->launchPromptWindow(), nullptr);
    system.scheduler.advance(0.6);
    EXPECT_NE(delegate->permissionFlow()->launchPromptWindow(), nullptr);
}

TEST_F(AppDelegateTest, LeavesUpdatesToTheSystemThatHasAnUpdater) {
    desktop.updater.isOwn = true;
    launch();
    chooseInStatusMenu(u"Check for Updates…"_qs);
    EXPECT_EQ(desktop.updater.checks, 1);
    EXPECT_THAT(ViewWindow::allVisible(), IsEmpty());
}

TEST_F(AppDelegateTest, SaysWhichVersionRunsAndHowNewOnesCome) {
    QCoreApplication::setApplicationVersion(u"4.5.6"_qs);
    launch();
    for (int time = 0; time < 2; ++time) {
        chooseInStatusMenu(u"Check for Updates…"_qs);
        ASSERT_EQ(ViewWindow::allVisible().size(), 1U);
        ViewWindow& notice = *ViewWindow::allVisible().front();
        EXPECT_EQ(&notice, ViewWindow::titled(u"Tessarine Updates"_qs));
        EXPECT_EQ(notice.root().findChild<QObject*>(u"version"_qs)->property("text").toString(),
                  u"Tessarine 4.5.6"_qs);
        EXPECT_EQ(desktop.application.activated.back(), &notice.window());
        ASSERT_TRUE(QTest::qWaitForWindowActive(&notice.window(), testing::patienceMs));
        QTest::keyClick(&notice.window(), time == 0 ? Qt::Key_Escape : Qt::Key_Return);
        EXPECT_THAT(ViewWindow::allVisible(), IsEmpty());
    }
}

TEST_F(AppDelegateTest, OpensAWindowOfTheHelpAtEachRequest) {
    launch();
    delegate->showHelp();
    delegate->showHelp();
    const std::vector<ViewWindow*> windows = ViewWindow::allVisible();
    ASSERT_EQ(windows.size(), 2U);
    for (ViewWindow* help : windows) {
        EXPECT_EQ(help->window().title(), u"Tessarine Help"_qs);
        EXPECT_EQ(help->window().size(), QSize(760, 560));
    }
    EXPECT_EQ(desktop.application.activated.size(), 2U);
    for (ViewWindow* help : windows)
        help->window().close();
    EXPECT_THAT(ViewWindow::allVisible(), IsEmpty());
}

TEST_F(AppDelegateTest, LetsAClosedWindowOfTheHelpGoAndGivesItsMemoryBack) {
    services->preferences.setLaunchLoginPromptSuppressed(true);
    launch();
    delegate->showHelp();
    const QPointer<ViewWindow> help = ViewWindow::allVisible().front();
    help->window().close();
    EXPECT_TRUE(testing::turnsUntil([&] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return help.isNull();
    }));
    system.scheduler.advance(3);
    EXPECT_EQ(desktop.application.memoryReturns, 1);
}

class UpdatePicturesTest : public AppDelegateTest,
                           public ::testing::WithParamInterface<const char*> {};

TEST_P(UpdatePicturesTest, NothingIsCutInTheNoticeOfUpdates) {
    QCoreApplication::setApplicationVersion(u"4.5.6"_qs);
    launch();
    delegate->applyAppearance(QLatin1String(GetParam()));
    delegate->checkForUpdates();
    QQuickView& notice = ViewWindow::allVisible().front()->window();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&notice, testing::patienceMs));
    const QImage picture = testing::stillPicture(notice);
    const QRectF bounds(QPointF(), notice.size());
    EXPECT_EQ(testing::textsOutside(*notice.contentItem(), bounds), QStringList());
    const auto* const close = notice.rootObject()->findChild<QQuickItem*>(u"close"_qs);
    EXPECT_TRUE(bounds.contains(close->mapRectToScene(close->boundingRect())));
    const QString name = u"updates-%1@%2x.png"_qs.arg(QLatin1String(GetParam()))
                             .arg(notice.effectiveDevicePixelRatio());
    EXPECT_TRUE(testing::savePicture(picture, QStringLiteral(PICTURES_FOLDER), name));
}

INSTANTIATE_TEST_SUITE_P(Pictures, UpdatePicturesTest, ::testing::Values("light", "dark"),
                         [](const auto& info) { return std::string(info.param); });

TEST_F(AppDelegateTest, FollowsTheModeThatItIsTold) {
    launch();
    delegate->applyAppearance(u"light"_qs);
    EXPECT_EQ(desktop.appearance.appearance, Appearance::light);
    delegate->applyAppearance(u"auto"_qs);
    EXPECT_EQ(desktop.appearance.appearance, Appearance::system);
}

} // namespace
} // namespace tessarine

#include "core/AppDelegate.h"

#include "support/EventLoop.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"

#include <QMenu>
#include <QPointer>
#include <QQuickWindow>
#include <QTemporaryDir>

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

TEST_F(AppDelegateTest, BuildsThePreferencesAtTheFirstRequestAndKeepsThem) {
    launch();
    EXPECT_EQ(delegate->preferencesWindow(), nullptr);
    delegate->showPreferences();
    const QPointer<QWindow> preferences = delegate->preferencesWindow()->window();
    EXPECT_TRUE(preferences->isVisible());
    delegate->showPreferences();
    preferences->close();
    EXPECT_FALSE(preferences->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    delegate->showPreferences();
    EXPECT_EQ(delegate->preferencesWindow()->window(), preferences);
    EXPECT_TRUE(preferences->isVisible());
}

TEST_F(AppDelegateTest, RaisesThePreferencesAtEachRequest) {
    launch();
    delegate->showPreferences();
    QWindow* const preferences = delegate->preferencesWindow()->window();
    delegate->showMainWindow();
    delegate->showPreferences();
    EXPECT_THAT(desktop.application.activated, ElementsAre(preferences, window(), preferences));
}

TEST_F(AppDelegateTest, BringsOpenPreferencesToTheFrontAtASecondStart) {
    launch();
    delegate->showPreferences();
    desktop.application.activated.clear();
    delegate->activate();
    EXPECT_THAT(desktop.application.activated,
                ElementsAre(delegate->preferencesWindow()->window()));
}

TEST_F(AppDelegateTest, TheMenuLeadsToThePreferences) {
    launch();
    chooseInStatusMenu(u"Preferences…"_qs);
    ASSERT_NE(delegate->preferencesWindow(), nullptr);
    EXPECT_TRUE(delegate->preferencesWindow()->isVisible());
    EXPECT_FALSE(window()->isVisible());
}

TEST_F(AppDelegateTest, GoesOnCapturingWhenThePreferencesAreClosed) {
    launch();
    delegate->showPreferences();
    delegate->preferencesWindow()->window()->close();
    CapturedNotification row;
    row.noteId = 1;
    row.title = u"later"_qs;
    ASSERT_TRUE(services->hoard.insert(row));
    services->listener->setNotifications(services->hoard.fetchRecent(500));
    EXPECT_EQ(desktop.statusItem.title, u" 1"_qs);
}

TEST_F(AppDelegateTest, GivesMemoryBackOnceTheLastOfItsWindowsWasClosed) {
    launch();
    delegate->showMainWindow();
    delegate->showPreferences();
    delegate->preferencesWindow()->window()->close();
    system.scheduler.advance(3);
    EXPECT_EQ(desktop.application.memoryReturns, 0);
    window()->close();
    system.scheduler.advance(3);
    EXPECT_EQ(desktop.application.memoryReturns, 1);
}

TEST_F(AppDelegateTest, ThePreferencesSwitchAppearanceAndLoginItem) {
    launch();
    delegate->showPreferences();
    GeneralSettings& general = *delegate->preferencesWindow()->view().general();
    general.chooseAppearance(1);
    system.scheduler.settle();
    EXPECT_EQ(desktop.appearance.appearance, Appearance::light);
    general.setLaunchAtLogin(true);
    EXPECT_EQ(system.loginItem.current, LoginItemStatus::enabled);
    EXPECT_TRUE(general.launchAtLogin());
    general.setLaunchAtLogin(false);
    EXPECT_EQ(system.loginItem.current, LoginItemStatus::notRegistered);
}

TEST_F(AppDelegateTest, FollowsTheModeThatItIsTold) {
    launch();
    delegate->applyAppearance(u"light"_qs);
    EXPECT_EQ(desktop.appearance.appearance, Appearance::light);
    delegate->applyAppearance(u"auto"_qs);
    EXPECT_EQ(desktop.appearance.appearance, Appearance::system);
}

} // namespace
} // namespace tessarine

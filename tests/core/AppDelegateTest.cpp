#include "core/DelegateFixture.h"
#include "diagnosticsview/DiagnosticsWindow.h"
#include "support/EventLoop.h"
#include "support/WindowPicture.h"

#include <QFile>
#include <QPixmapCache>
#include <QPointer>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>

#include <gmock/gmock.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class AppDelegateTest : public testing::DelegateFixture {
protected:
    QWindow* window() const { return delegate->mainWindow()->window(); }
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

TEST_F(AppDelegateTest, ForgetsPicturesOfDialogsSomeTimeAfterTheWindowWasClosed) {
    launch();
    delegate->showMainWindow();
    QPixmap picture(8, 8);
    picture.fill(Qt::red);
    ASSERT_TRUE(QPixmapCache::insert(u"of a dialog"_qs, picture));
    system.scheduler.advance(10);
    EXPECT_TRUE(QPixmapCache::find(u"of a dialog"_qs, nullptr));
    window()->close();
    system.scheduler.advance(3);
    EXPECT_FALSE(QPixmapCache::find(u"of a dialog"_qs, nullptr));
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
    services->preferences.setLaunchLoginPromptSuppressed(false);
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

TEST_F(AppDelegateTest, ShowsOneDiagnosticsWindowHoweverOftenItIsAskedFor) {
    launch();
    delegate->showDiagnostics();
    const ViewWindow* const shown = ViewWindow::titled(u"Tessarine Diagnostics"_qs);
    ASSERT_NE(shown, nullptr);
    EXPECT_TRUE(shown->isVisible());
    delegate->showDiagnostics();
    EXPECT_EQ(ViewWindow::titled(u"Tessarine Diagnostics"_qs), shown);
    EXPECT_THAT(desktop.application.activated, ElementsAre(&shown->window(), &shown->window()));
    EXPECT_FALSE(window()->isVisible());
}

TEST_F(AppDelegateTest, GoesOnAndGivesMemoryBackWhenTheDiagnosticsWereClosed) {
    launch();
    delegate->showDiagnostics();
    ViewWindow::titled(u"Tessarine Diagnostics"_qs)->window().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(ViewWindow::titled(u"Tessarine Diagnostics"_qs), nullptr);
    system.scheduler.advance(3);
    EXPECT_EQ(desktop.application.memoryReturns, 1);
    EXPECT_TRUE(services->listener->isStarted());
}

TEST_F(AppDelegateTest, BringsOpenDiagnosticsToTheFrontAtASecondStart) {
    launch();
    delegate->showDiagnostics();
    desktop.application.activated.clear();
    delegate->activate();
    EXPECT_EQ(desktop.application.activated.size(), 1U);
}

TEST_F(AppDelegateTest, TakesAnOpenDiagnosticsWindowAlong) {
    launch();
    delegate->showDiagnostics();
    delegate.reset();
    EXPECT_EQ(ViewWindow::titled(u"Tessarine Diagnostics"_qs), nullptr);
}

TEST_F(AppDelegateTest, ShowsInTheDiagnosticsWhatTheProgramLogs) {
    launch();
    delegate->showDiagnostics();
    const auto* const view =
        ViewWindow::titled(u"Tessarine Diagnostics"_qs)->findChild<DiagnosticsView*>();
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->captured(), u"0 captured"_qs);
    services->diagnostics.setCapturedTotal(5);
    EXPECT_EQ(view->captured(), u"5 captured"_qs);
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

TEST_F(AppDelegateTest, BeforeTheUserHasAgreedEverythingLeadsToTheGuide) {
    services->preferences.setHasAcceptedEULA(false);
    launch();
    system.scheduler.advance(0.4);
    QWindow* const guide = &delegate->onboardingFlow().onboardingWindow()->window();
    for (const QString& text : {u"Open Hoard"_qs, u"Welcome Guide…"_qs, u"Preferences…"_qs}) {
        desktop.application.activated.clear();
        chooseInStatusMenu(text);
        EXPECT_THAT(desktop.application.activated, ElementsAre(guide));
    }
    desktop.statusItem.alternateActivation();
    EXPECT_EQ(ViewWindow::allVisible().size(), 1U);
    EXPECT_FALSE(QFile::exists(services->hoard.path()));
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

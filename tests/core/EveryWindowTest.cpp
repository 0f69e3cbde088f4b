// What holds for each window of the program alike.

#include "core/DelegateFixture.h"
#include "diagnosticsview/DiagnosticsWindow.h"
#include "help/HelpView.h"
#include "support/EventLoop.h"

#include <QQuickView>

#include <string>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

enum class Opened {
    browser,
    browserWithBanner,
    preferences,
    excludedApps,
    diagnostics,
    help,
    updates,
    guide,
    privacyNotice,
    fullDiskAccess,
    loginPrompt,
};

constexpr const char* nameOf(Opened opened) {
    constexpr const char* names[] = {
        "browser",    "browserWithBanner", "preferences", "excludedApps",  "diagnostics",
        "help",       "updates",           "guide",       "privacyNotice", "fullDiskAccess",
        "loginPrompt"};
    return names[int(opened)];
}

class EveryWindowTest : public testing::DelegateFixture,
                        public ::testing::WithParamInterface<Opened> {
protected:
    EveryWindowTest() {
        if (GetParam() == Opened::loginPrompt)
            services->preferences.setLaunchLoginPromptSuppressed(false);
    }

    void open() {
        switch (GetParam()) {
        case Opened::browser:
            return delegate->showMainWindow();
        case Opened::browserWithBanner:
            delegate->showMainWindow();
            return delegate->mainWindow()->content().overlays()->showBanner(
                deepLinkBanner(u"Mail"_qs));
        case Opened::preferences:
            return delegate->showPreferences();
        case Opened::excludedApps:
            delegate->showPreferences();
            return delegate->preferencesWindow()->view().general()->setShowExcludedAppsSheet(true);
        case Opened::diagnostics:
            return delegate->showDiagnostics();
        case Opened::help:
            delegate->showHelp();
            return ViewWindow::allVisible().back()->findChild<HelpView*>()->setSelectedSection(
                HelpSection::iphone);
        case Opened::updates:
            return delegate->checkForUpdates();
        case Opened::guide:
            return delegate->onboardingFlow().showOnboarding(OnboardingFlow::Guide::later, 1);
        case Opened::privacyNotice:
            return delegate->onboardingFlow().showPrivacyNotice();
        case Opened::fullDiskAccess:
            return chooseInStatusMenu(u"Access to a Database…"_qs);
        case Opened::loginPrompt:
            return system.scheduler.advance(PermissionFlow::promptDelay);
        }
    }

    static void closeAll() {
        for (ViewWindow* open : ViewWindow::allVisible())
            open->window().close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

TEST_P(EveryWindowTest, GivesItsMemoryBackSomeTimeAfterItWasClosed) {
    launch();
    open();
    ASSERT_EQ(ViewWindow::allVisible().size(), 1U);
    system.scheduler.advance(10);
    EXPECT_EQ(desktop.application.memoryReturns, 0);
    closeAll();
    EXPECT_EQ(desktop.application.memoryReturns, 0);
    system.scheduler.advance(3);
    EXPECT_EQ(desktop.application.memoryReturns, 1);
}

class WindowTimersTest : public EveryWindowTest {};

// The scheduler's timers at every phase of theirs, those of the views at many of a frame's.
TEST_P(WindowTimersTest, OpenedAndClosedTwoHundredTimesNothingOfItTicksAnyMore) {
    launch();
    open();
    closeAll();
    system.scheduler.advance(60);
    const std::size_t timers = system.scheduler.runningTimers();
    const std::size_t windows = std::size_t(QGuiApplication::allWindows().size());
    for (int phase = 0; phase < 200; ++phase) {
        open();
        system.scheduler.advance(0.01 * phase);
        testing::turnFor(phase % 10);
        closeAll();
        system.scheduler.advance(0.003 * phase);
    }
    system.scheduler.advance(60);
    testing::turnFor(300);
    EXPECT_EQ(system.scheduler.runningTimers(), timers);
    EXPECT_EQ(std::size_t(QGuiApplication::allWindows().size()), windows);
}

const auto reopened =
    ::testing::Values(Opened::browser, Opened::browserWithBanner, Opened::preferences,
                      Opened::excludedApps, Opened::diagnostics, Opened::help, Opened::updates,
                      Opened::guide, Opened::privacyNotice, Opened::fullDiskAccess);

std::string openedName(const ::testing::TestParamInfo<Opened>& info) {
    return nameOf(info.param);
}

INSTANTIATE_TEST_SUITE_P(Windows, EveryWindowTest, reopened, openedName);
INSTANTIATE_TEST_SUITE_P(Prompt, EveryWindowTest, ::testing::Values(Opened::loginPrompt),
                         openedName);

// The question about the login comes once in a process.
INSTANTIATE_TEST_SUITE_P(Windows, WindowTimersTest, reopened, openedName);

} // namespace
} // namespace tessarine

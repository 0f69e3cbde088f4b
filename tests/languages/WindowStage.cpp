#include "diagnosticsview/DiagnosticsView.h"
#include "diagnosticsview/DiagnosticsWindow.h"
#include "help/HelpView.h"
#include "languages/WindowScenes.h"
#include "support/EventLoop.h"
#include "support/WindowDriver.h"

#include <QTest>

namespace tessarine::testing {

using namespace Qt::StringLiterals;

WindowStage::WindowStage() {
    desktop.appearance.motionIsReduced = true;
    launch();
}

QQuickWindow& WindowStage::shown() {
    QQuickView& window = ViewWindow::allVisible().back()->window();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window, patienceMs));
    system.scheduler.settle();
    window.grabWindow();
    return window;
}

DiagnosticsView& WindowStage::diagnostics() {
    return *ViewWindow::titled(diagnosticsTitle())->findChild<DiagnosticsView*>();
}

HelpView& WindowStage::help() {
    return *ViewWindow::allVisible().back()->findChild<HelpView*>();
}

QQuickItem& WindowStage::item(const QString& name) {
    return WindowDriver(shown()).item(name);
}

void WindowStage::click(const QString& name, Qt::MouseButton button) {
    clickOn(item(name), button);
}

void WindowStage::openMenuOf(const QString& name) {
    QMetaObject::invokeMethod(&item(name), "open");
}

void WindowStage::clickFirstRow(Qt::MouseButton button) {
    QQuickItem* row = nullptr;
    QMetaObject::invokeMethod(&item(u"list"_qs), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, row),
                              Q_ARG(int, 0));
    clickOn(*row, button);
}

void WindowStage::clickOn(QQuickItem& item, Qt::MouseButton button) {
    QQuickWindow& window = shown();
    QTest::mouseClick(&window, button, {},
                      item.mapToScene({item.width() / 2, item.height() / 2}).toPoint());
}

void WindowStage::scrollToTheEnd(const QString& name) {
    QQuickItem& area = item(name);
    area.setProperty("contentY", area.property("contentHeight").toDouble() - area.height());
}

void WindowStage::resize(int width, int height) {
    shown().resize(width, height);
    ASSERT_TRUE(turnsUntil(
        [&] { return ViewWindow::allVisible().back()->root().size() == QSizeF(width, height); }));
}

void WindowStage::store(const QString& app, const QString& title, const QString& body) {
    CapturedNotification row;
    row.noteId = ++lastNoteId_;
    row.appName = app;
    row.appBundleId = u"com.example."_qs + app.toLower();
    row.title = title;
    row.body = body;
    row.timestamp = ManualScheduler::startOfTime - 40000.0 * double(lastNoteId_);
    ASSERT_TRUE(services->hoard.insert(row));
}

void WindowStage::storeRows() {
    store(u"Mail"_qs, u"Anna"_qs, u"The minutes"_qs);
    store(u"Calendar"_qs, u"Dentist"_qs, u"Tomorrow"_qs);
    store(u"Mail"_qs, u"Tom"_qs, u"On my way"_qs);
    services->listener->setNotifications(services->hoard.fetchRecent(500));
}

void WindowStage::openBrowser() {
    storeRows();
    delegate->showMainWindow();
    shown();
}

void WindowStage::openTab(PrefTab tab) {
    delegate->showPreferences();
    preferences().setSelectedTab(tab);
    shown();
}

void WindowStage::openExcludedApps() {
    openTab(PrefTab::general);
    preferences().general()->setShowExcludedAppsSheet(true);
    shown();
}

void WindowStage::openDiagnostics() {
    delegate->showDiagnostics();
    services->diagnostics.setAxStatus(u"Active (pid 4711)"_qs);
    services->diagnostics.setDbStatus(u"Watcher active (WAL)"_qs);
    services->diagnostics.startPollCountdown();
    services->diagnostics.log(u"Stored 3 records"_qs, Level::success, Category::usernoted);
    shown();
}

void WindowStage::openHelp(HelpSection section) {
    delegate->showHelp();
    help().setSelectedSection(section);
    shown();
}

void WindowStage::openLoginPrompt() {
    services->preferences.setLaunchLoginPromptSuppressed(false);
    openGuide(OnboardingFlow::Guide::later, 1); // it looks each second, and then runs the checks
    system.scheduler.advance(1 + PermissionFlow::promptDelay);
    delegate->onboardingFlow().onboardingWindow()->window().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void WindowStage::openGuide(OnboardingFlow::Guide guide, int step) {
    delegate->onboardingFlow().showOnboarding(guide, step);
    shown();
}

void WindowStage::openFullDiskAccess() {
    chooseInStatusMenu(qtTrId("menu.fullDiskAccess"));
    shown();
}

} // namespace tessarine::testing

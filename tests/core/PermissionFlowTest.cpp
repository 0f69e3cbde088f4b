#include "core/PermissionFlow.h"

#include "support/EventLoop.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"
#include "support/WindowPicture.h"

#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QFileInfo>
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

class PermissionFlowTest : public ::testing::Test {
public:
    ~PermissionFlowTest() override {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

protected:
    PermissionFlowTest() {
        QDir().mkpath(QFileInfo(database).path());
        allowDatabase(true);
        system.accessibility.trusted = true;
    }

    // The system's database is there, and may be read or not.
    void allowDatabase(bool allowed) const {
        QFile file(database);
        if (allowed)
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        else
            EXPECT_TRUE(file.remove());
    }

    // The checks, and the time after which the question comes.
    void check() {
        flow.runPermissionChecks();
        scheduler.advance(0.6);
    }

    QQuickView& window() const { return flow.launchPromptWindow()->window(); }

    // On its window, of the part with this name.
    static QRectF placeIn(const ViewWindow& window, const char* name) {
        const auto* const part = window.root().findChild<QQuickItem*>(QLatin1String(name));
        return part ? part->mapRectToScene(part->boundingRect()) : QRectF();
    }

    bool overlap(const char* one, const char* other) const {
        const ViewWindow& prompt = *flow.launchPromptWindow();
        return placeIn(prompt, one).intersects(placeIn(prompt, other));
    }

    static void clickIn(const ViewWindow& window, const char* name) {
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window.window(), testing::patienceMs));
        QTest::mouseClick(&window.window(), Qt::LeftButton, {},
                          placeIn(window, name).center().toPoint());
    }

    void click(const char* name) const { clickIn(*flow.launchPromptWindow(), name); }

    void press(Qt::Key key) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window(), testing::patienceMs));
        QTest::keyClick(&window(), key);
    }

    QTemporaryDir folder;
    const QString database =
        folder.path() + u"/Library/Group Containers/group.com.apple.usernoted/db2/db"_qs;
    testing::SimulatedPlatform system{folder.path()};
    testing::SimulatedDesktop desktop{makeSymbols()};
    Services services{system.platform};
    ViewServices views{services, desktop.desktop, [](const QString&) {}};
    LaunchAgentManager launchAgent{system.loginItem, system.fileSystem, [](const QString&) {}};
    testing::ManualScheduler& scheduler = system.scheduler;
    int guides = 0;
    PermissionFlow flow{views, launchAgent, [this] { ++guides; }};
};

TEST_F(PermissionFlowTest, AsksAboutTheLoginAfterSixTenthsOfASecond) {
    flow.runPermissionChecks();
    scheduler.advance(0.59);
    EXPECT_EQ(flow.launchPromptWindow(), nullptr);
    scheduler.advance(0.01);
    ASSERT_NE(flow.launchPromptWindow(), nullptr);
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().title(), u"Tessarine"_qs);
    EXPECT_EQ(window().size(), QSize(440, 300));
    EXPECT_THAT(desktop.application.activated, ElementsAre(&window()));
}

TEST_F(PermissionFlowTest, AsksWhereTheUserHasToApproveOrTheProgramIsGone) {
    for (const auto status : {LoginItemStatus::requiresApproval, LoginItemStatus::notFound}) {
        system.loginItem.current = status;
        check();
        ASSERT_NE(flow.launchPromptWindow(), nullptr);
        click("enable");
        EXPECT_EQ(flow.launchPromptWindow(), nullptr);
    }
}

TEST_F(PermissionFlowTest, AsksNothingWhereItIsEnabledWhateverTheSettingSays) {
    system.loginItem.current = LoginItemStatus::enabled;
    for (const bool isSuppressed : {false, true}) {
        services.preferences.setLaunchLoginPromptSuppressed(isSuppressed);
        check();
        EXPECT_EQ(flow.launchPromptWindow(), nullptr);
    }
}

TEST_F(PermissionFlowTest, AsksOnceForChecksThatFollowEachOther) {
    flow.runPermissionChecks();
    flow.runPermissionChecks();
    scheduler.advance(0.6);
    const ViewWindow* const first = flow.launchPromptWindow();
    check();
    EXPECT_EQ(flow.launchPromptWindow(), first);
    EXPECT_EQ(desktop.application.activated.size(), 1U);
}

TEST_F(PermissionFlowTest, EnableRegistersAndCloses) {
    check();
    click("enable");
    EXPECT_EQ(flow.launchPromptWindow(), nullptr);
    EXPECT_TRUE(launchAgent.isEnabled());
    EXPECT_THAT(ViewWindow::allVisible(), IsEmpty());
    check();
    EXPECT_EQ(flow.launchPromptWindow(), nullptr);
}

TEST_F(PermissionFlowTest, AFailedRegistrationClosesTooAndIsAskedAgain) {
    check();
    system.loginItem.nextFailure = u"no room"_qs;
    click("enable");
    EXPECT_EQ(flow.launchPromptWindow(), nullptr);
    EXPECT_FALSE(launchAgent.isEnabled());
    check();
    EXPECT_NE(flow.launchPromptWindow(), nullptr);
}

TEST_F(PermissionFlowTest, NotNowLastsForThisProcessAndEndsTheChecks) {
    check();
    click("notNow");
    EXPECT_TRUE(flow.launchAtLoginPromptDismissedThisSession());
    EXPECT_FALSE(services.preferences.launchLoginPromptSuppressed());
    EXPECT_FALSE(launchAgent.isEnabled());
    check();
    EXPECT_EQ(flow.launchPromptWindow(), nullptr);

    PermissionFlow nextProcess{views, launchAgent, [] {}};
    nextProcess.runPermissionChecks();
    scheduler.advance(0.6);
    EXPECT_NE(nextProcess.launchPromptWindow(), nullptr);
}

TEST_F(PermissionFlowTest, NeverIsForLaterProcessesTooAndLeavesTheMenuItsEntry) {
    check();
    click("dontAsk");
    EXPECT_TRUE(services.preferences.launchLoginPromptSuppressed());
    EXPECT_FALSE(flow.launchAtLoginPromptDismissedThisSession());
    PermissionFlow nextProcess{views, launchAgent, [] {}};
    nextProcess.runPermissionChecks();
    scheduler.advance(10);
    EXPECT_EQ(nextProcess.launchPromptWindow(), nullptr);
    launchAgent.toggle();
    EXPECT_TRUE(launchAgent.isEnabled());
}

TEST_F(PermissionFlowTest, OneThatWasClosedByItsFrameStandsInTheWayOfAnother) {
    check();
    window().close();
    check();
    EXPECT_FALSE(window().isVisible());
    EXPECT_FALSE(flow.launchAtLoginPromptDismissedThisSession());
}

TEST_F(PermissionFlowTest, ReturnSaysYesAndEscapeNotNow) {
    check();
    press(Qt::Key_Return);
    EXPECT_TRUE(launchAgent.isEnabled());
    launchAgent.unregisterMainApp();
    check();
    press(Qt::Key_Escape);
    EXPECT_TRUE(flow.launchAtLoginPromptDismissedThisSession());
}

TEST_F(PermissionFlowTest, TabGoesThroughTheAnswersInTheOrderOfReading) {
    check();
    QStringList order;
    for (int step = 0; step < 3; ++step) {
        press(Qt::Key_Tab);
        order << window().activeFocusItem()->objectName();
    }
    EXPECT_EQ(order, QStringList({u"dontAsk"_qs, u"notNow"_qs, u"enable"_qs}));
    press(Qt::Key_Backtab);
    press(Qt::Key_Space);
    EXPECT_TRUE(flow.launchAtLoginPromptDismissedThisSession());
}

TEST_F(PermissionFlowTest, AScreenReaderCanNameWhatIsAsked) {
    check();
    QAccessibleInterface* const spoken =
        QAccessible::queryAccessibleInterface(window().rootObject());
    EXPECT_EQ(spoken->role(), QAccessible::Dialog);
    EXPECT_EQ(spoken->text(QAccessible::Name), u"Start Tessarine when you log in?"_qs);
}

TEST_F(PermissionFlowTest, AskedTwoHundredTimesItLeavesNothing) {
    const auto objects = [] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return QGuiApplication::allWindows().size();
    };
    const qsizetype before = objects();
    for (int round = 0; round < 200; ++round) {
        system.loginItem.nextFailure = u"no room"_qs;
        check();
        scheduler.advance(0.005 * round);
        QMetaObject::invokeMethod(
            flow.launchPromptWindow()->root().findChild<QObject*>(u"enable"_qs), "clicked");
        ASSERT_EQ(flow.launchPromptWindow(), nullptr);
    }
    EXPECT_EQ(objects(), before);
}

// What the system must grant

TEST_F(PermissionFlowTest, WithoutAccessToBannersTheGuideComesAndNothingElse) {
    system.accessibility.trusted = false;
    allowDatabase(false);
    flow.runPermissionChecks();
    scheduler.advance(10);
    EXPECT_EQ(guides, 1);
    EXPECT_EQ(system.accessibility.prompts, 1);
    EXPECT_EQ(flow.launchPromptWindow(), nullptr);
    EXPECT_EQ(flow.permissionWindow(), nullptr);
}

TEST_F(PermissionFlowTest, AccessThatCameLaterIsTakenWithoutAnotherStart) {
    system.accessibility.trusted = false;
    services.listener->start();
    scheduler.settle();
    EXPECT_FALSE(services.listener->hasAXObserver());
    system.accessibility.trusted = true;
    system.workspace.running = {{42, u"com.apple.notificationcenterui"_qs, {}}};
    flow.runPermissionChecks();
    scheduler.settle();
    EXPECT_TRUE(services.listener->hasAXObserver());
}

TEST_F(PermissionFlowTest, TheDatabaseIsAskedForBeforeTheLogin) {
    allowDatabase(false);
    flow.runPermissionChecks();
    scheduler.advance(0.3);
    ASSERT_NE(flow.permissionWindow(), nullptr);
    EXPECT_EQ(flow.permissionWindow()->window().size(), QSize(500, 520));
    EXPECT_EQ(flow.permissionWindow()->window().minimumSize(), QSize(480, 400));
    EXPECT_EQ(flow.permissionWindow()->window().title(), qtTrId("window.title.fda"));
    EXPECT_EQ(flow.launchPromptWindow(), nullptr);
    scheduler.advance(0.31);
    EXPECT_NE(flow.launchPromptWindow(), nullptr);
}

TEST_F(PermissionFlowTest, ASkipIsForLaterProcessesTooAndTheLoginIsAskedForAllTheSame) {
    allowDatabase(false);
    check();
    click("dontAsk");
    services.preferences.setLaunchLoginPromptSuppressed(false);
    clickIn(*flow.permissionWindow(), "skip");
    scheduler.settle();
    EXPECT_EQ(flow.permissionWindow(), nullptr);
    EXPECT_TRUE(system.defaults.boolean(u"fdaSkipped"_qs));
    EXPECT_TRUE(flow.fdaPromptDismissedThisSession());
    scheduler.advance(0.6);
    EXPECT_NE(flow.launchPromptWindow(), nullptr);
    PermissionFlow nextProcess{views, launchAgent, [] {}};
    nextProcess.runPermissionChecks();
    scheduler.advance(10);
    EXPECT_EQ(nextProcess.permissionWindow(), nullptr);
}

TEST_F(PermissionFlowTest, TheMenuBringsItBackAfterASkip) {
    allowDatabase(false);
    check();
    clickIn(*flow.permissionWindow(), "skip");
    scheduler.settle();
    flow.showFullDiskAccessPromptAgain();
    EXPECT_NE(flow.permissionWindow(), nullptr);
    EXPECT_FALSE(system.defaults.boolean(u"fdaSkipped"_qs));
    EXPECT_FALSE(flow.fdaPromptDismissedThisSession());
}

TEST_F(PermissionFlowTest, NotNowKeepsTheDatabaseFromBeingAskedFor) {
    check();
    click("notNow");
    allowDatabase(false);
    flow.runPermissionChecks();
    scheduler.advance(10);
    EXPECT_EQ(flow.permissionWindow(), nullptr);
}

TEST_F(PermissionFlowTest, WhatChangesInTheDelayCounts) {
    allowDatabase(false);
    flow.runPermissionChecks();
    flow.showFullDiskAccessPrompt();
    const ViewWindow* const first = flow.permissionWindow();
    scheduler.advance(0.3);
    EXPECT_EQ(flow.permissionWindow(), first);
}

TEST_F(PermissionFlowTest, TheWindowGoesWhenTheAccessIsThere) {
    allowDatabase(false);
    check();
    click("dontAsk");
    ASSERT_NE(flow.permissionWindow(), nullptr);
    allowDatabase(true);
    scheduler.advance(1);
    scheduler.settle();
    EXPECT_EQ(flow.permissionWindow(), nullptr);
    EXPECT_FALSE(flow.lacksFullDiskAccess());
}

TEST_F(PermissionFlowTest, OnceTheAccessIsThereTheChecksGoOn) {
    allowDatabase(false);
    flow.showFullDiskAccessPrompt();
    EXPECT_EQ(flow.launchPromptWindow(), nullptr);
    allowDatabase(true);
    clickIn(*flow.permissionWindow(), "enabled");
    scheduler.settle();
    EXPECT_EQ(flow.permissionWindow(), nullptr);
    scheduler.advance(0.6);
    EXPECT_NE(flow.launchPromptWindow(), nullptr);
}

TEST_F(PermissionFlowTest, AClaimThatIsNotSoShowsAWarning) {
    allowDatabase(false);
    check();
    clickIn(*flow.permissionWindow(), "enabled");
    scheduler.settle();
    ASSERT_NE(flow.permissionWindow(), nullptr);
    EXPECT_TRUE(
        flow.permissionWindow()->root().findChild<QQuickItem*>(u"notDetected"_qs)->isVisible());
}

// How it looks

class PromptPicturesTest : public PermissionFlowTest,
                           public ::testing::WithParamInterface<const char*> {};

TEST_P(PromptPicturesTest, ShowsEverythingWithinItsBounds) {
    views.theme.applyAppearance(QLatin1String(GetParam()));
    check();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window(), testing::patienceMs));
    const QImage picture = testing::stillPicture(window());
    EXPECT_EQ(testing::textsOutside(*window().contentItem(), QRectF(20, 20, 400, 260)),
              QStringList());
    EXPECT_FALSE(overlap("rows", "dontAsk"));
    EXPECT_FALSE(overlap("dontAsk", "notNow"));
    const QString name = u"loginPrompt-%1@%2x.png"_qs.arg(QLatin1String(GetParam()))
                             .arg(window().effectiveDevicePixelRatio());
    EXPECT_TRUE(testing::savePicture(picture, QStringLiteral(PICTURES_FOLDER), name));
}

TEST_P(PromptPicturesTest, NothingIsCutInTheWindowOfThePermission) {
    views.theme.applyAppearance(QLatin1String(GetParam()));
    allowDatabase(false);
    flow.showFullDiskAccessPrompt();
    const ViewWindow& shown = *flow.permissionWindow();
    shown.window().resize(500, 900);
    clickIn(shown, "enabled");
    const QImage picture = testing::stillPicture(shown.window());
    EXPECT_EQ(testing::textsOutside(*shown.window().contentItem(), QRectF(0, 0, 500, 900)),
              QStringList());
    const QString name = u"fda-%1@%2x.png"_qs.arg(QLatin1String(GetParam()))
                             .arg(shown.window().effectiveDevicePixelRatio());
    EXPECT_TRUE(testing::savePicture(picture, QStringLiteral(PICTURES_FOLDER), name));
}

INSTANTIATE_TEST_SUITE_P(Pictures, PromptPicturesTest, ::testing::Values("light", "dark"),
                         [](const auto& info) { return std::string(info.param); });

} // namespace
} // namespace tessarine

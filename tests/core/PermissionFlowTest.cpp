#include "core/PermissionFlow.h"

#include "support/EventLoop.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"
#include "support/WindowPicture.h"

#include <QAccessible>
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
    // The checks, and the time after which the question comes.
    void check() {
        flow.runPermissionChecks();
        scheduler.advance(0.6);
    }

    QQuickView& window() const { return flow.launchPromptWindow()->window(); }

    // On the window, of the part with this name.
    QRectF place(const char* name) const {
        const auto* const part = window().rootObject()->findChild<QQuickItem*>(QLatin1String(name));
        return part ? part->mapRectToScene(part->boundingRect()) : QRectF();
    }

    bool overlap(const char* one, const char* other) const {
        return place(one).intersects(place(other));
    }

    void click(const char* name) {
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window(), testing::patienceMs));
        QTest::mouseClick(&window(), Qt::LeftButton, {}, place(name).center().toPoint());
    }

    void press(Qt::Key key) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window(), testing::patienceMs));
        QTest::keyClick(&window(), key);
    }

    QTemporaryDir folder;
    testing::SimulatedPlatform system{folder.path()};
    testing::SimulatedDesktop desktop{makeSymbols()};
    Services services{system.platform};
    ViewServices views{services, desktop.desktop, [](const QString&) {}};
    LaunchAgentManager launchAgent{system.loginItem, system.fileSystem, [](const QString&) {}};
    testing::ManualScheduler& scheduler = system.scheduler;
    PermissionFlow flow{views, launchAgent};
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

    PermissionFlow nextProcess{views, launchAgent};
    nextProcess.runPermissionChecks();
    scheduler.advance(0.6);
    EXPECT_NE(nextProcess.launchPromptWindow(), nullptr);
}

TEST_F(PermissionFlowTest, NeverIsForLaterProcessesTooAndLeavesTheMenuItsEntry) {
    check();
    click("dontAsk");
    EXPECT_TRUE(services.preferences.launchLoginPromptSuppressed());
    EXPECT_FALSE(flow.launchAtLoginPromptDismissedThisSession());
    PermissionFlow nextProcess{views, launchAgent};
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

TEST_F(PermissionFlowTest, AskedAHundredTimesItLeavesNothing) {
    const auto objects = [] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return QGuiApplication::allWindows().size();
    };
    const qsizetype before = objects();
    for (int round = 0; round < 100; ++round) {
        system.loginItem.nextFailure = u"no room"_qs;
        check();
        QMetaObject::invokeMethod(
            flow.launchPromptWindow()->root().findChild<QObject*>(u"enable"_qs), "clicked");
        ASSERT_EQ(flow.launchPromptWindow(), nullptr);
    }
    EXPECT_EQ(objects(), before);
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

INSTANTIATE_TEST_SUITE_P(Pictures, PromptPicturesTest, ::testing::Values("light", "dark"),
                         [](const auto& info) { return std::string(info.param); });

} // namespace
} // namespace tessarine

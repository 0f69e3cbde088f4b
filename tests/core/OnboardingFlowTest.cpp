#include "core/OnboardingFlow.h"

#include "support/EventLoop.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"
#include "support/WindowPicture.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickView>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>

#include <tuple>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using Guide = OnboardingFlow::Guide;
using ::testing::ElementsAre;

class OnboardingFlowTest : public ::testing::Test {
public:
    ~OnboardingFlowTest() override {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

protected:
    QQuickView& guide() const { return flow.onboardingWindow()->window(); }

    static QQuickItem* part(QQuickView& window, const QString& name) {
        return window.rootObject()->findChild<QQuickItem*>(name);
    }

    QQuickItem* part(const QString& name) const { return part(guide(), name); }

    void click(const QString& name) const {
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&guide(), testing::patienceMs));
        const QQuickItem* const item = part(name);
        ASSERT_TRUE(item != nullptr && item->isVisible()) << name.toStdString();
        QTest::mouseClick(&guide(), Qt::LeftButton, {},
                          item->mapRectToScene(item->boundingRect()).center().toPoint());
    }

    void press(Qt::Key key) const {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&guide(), testing::patienceMs));
        QTest::keyClick(&guide(), key);
    }

    void scrollToTheEnd() const {
        QQuickItem* const scroller = part(u"agreementScroller"_qs);
        scroller->setProperty("contentY",
                              scroller->property("contentHeight").toDouble() - scroller->height());
    }

    QTemporaryDir folder;
    testing::SimulatedPlatform system{folder.path()};
    testing::SimulatedDesktop desktop{makeSymbols()};
    Services services{system.platform};
    ViewServices views{services, desktop.desktop, [](const QString&) {}};
    PreferencesStore& preferences = services.preferences;
    int checks = 0;
    int finishes = 0;
    int quits = 0;
    OnboardingFlow flow{views, {[this] { ++checks; }, [this] { ++finishes; }, [this] { ++quits; }}};
};

TEST_F(OnboardingFlowTest, TheFirstStartGoesThroughByTheMouse) {
    flow.showOnboarding(Guide::firstRun, 0);
    EXPECT_EQ(guide().title(), u"Welcome to Tessarine"_qs);
    EXPECT_EQ(guide().size(), QSize(580, 640));
    EXPECT_THAT(desktop.application.activated, ElementsAre(&guide()));
    click(u"forward"_qs);
    click(u"agree"_qs); // not yet
    EXPECT_FALSE(part(u"agree"_qs)->property("checked").toBool());
    EXPECT_FALSE(part(u"forward"_qs)->isEnabled());
    scrollToTheEnd();
    click(u"agree"_qs);
    EXPECT_TRUE(part(u"agree"_qs)->property("checked").toBool());
    EXPECT_FALSE(preferences.hasAcceptedEULA());
    click(u"forward"_qs);
    EXPECT_TRUE(preferences.hasAcceptedEULA());
    EXPECT_EQ(finishes, 0);
    click(u"forward"_qs);
    click(u"forward"_qs);
    EXPECT_EQ(finishes, 1);
    EXPECT_EQ(flow.onboardingWindow(), nullptr);
    EXPECT_TRUE(preferences.hasSeenOnboarding());
    EXPECT_TRUE(preferences.hasSeenPrivacyNotice());
    EXPECT_EQ(quits, 0);
}

TEST_F(OnboardingFlowTest, OnlyALaterGuideHasACloseButtonAndBothCanBeResized) {
    for (const Guide kind : {Guide::firstRun, Guide::later}) {
        flow.showOnboarding(kind, 0);
        EXPECT_EQ(guide().flags().testFlag(Qt::WindowCloseButtonHint), kind == Guide::later);
        EXPECT_FALSE(guide().flags().testFlag(Qt::WindowMinimizeButtonHint));
        EXPECT_EQ(guide().size(), QSize(580, 640));
        EXPECT_EQ(guide().minimumSize(), QSize(560, 520));
        EXPECT_GT(guide().maximumWidth(), 10000);
    }
}

TEST_F(OnboardingFlowTest, ThePrivacyNoticeKeepsItsSizeAndIsMadeAnewEachTime) {
    flow.showPrivacyNotice();
    const QPointer<ViewWindow> first = flow.privacyNoticeWindow();
    EXPECT_TRUE(first->window().flags().testFlag(Qt::WindowCloseButtonHint));
    EXPECT_EQ(first->window().minimumSize(), QSize(520, 560));
    EXPECT_EQ(first->window().maximumSize(), QSize(520, 560));
    flow.showPrivacyNotice();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(first, nullptr);
    EXPECT_EQ(ViewWindow::allVisible().size(), 1U);
}

TEST_F(OnboardingFlowTest, BackFromThePageAfterTheAgreementFindsTheBoxTickedAndNoWayFurtherBack) {
    flow.showOnboarding(Guide::firstRun, 1);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&guide(), testing::patienceMs));
    EXPECT_FALSE(part(u"back"_qs)->isVisible());
    scrollToTheEnd();
    click(u"agree"_qs);
    click(u"forward"_qs);
    click(u"back"_qs);
    EXPECT_TRUE(part(u"agreementPage"_qs)->isVisible());
    EXPECT_TRUE(part(u"agree"_qs)->property("checked").toBool());
    EXPECT_FALSE(part(u"back"_qs)->isVisible());
}

TEST_F(OnboardingFlowTest, TheFirstStartGoesThroughByTheKeyboard) {
    flow.showOnboarding(Guide::firstRun, 0);
    press(Qt::Key_Return);
    ASSERT_TRUE(part(u"agreementPage"_qs)->isVisible());
    press(Qt::Key_Return); // the button waits
    ASSERT_TRUE(part(u"agreementPage"_qs)->isVisible());
    // What can't be used yet isn't stopped at: the first stop is the text, which the keys scroll.
    press(Qt::Key_Tab);
    press(Qt::Key_End);
    ASSERT_TRUE(testing::turnsUntil([this] { return part(u"agree"_qs)->isEnabled(); }));
    press(Qt::Key_Tab);
    EXPECT_EQ(guide().activeFocusItem()->objectName(), u"agree"_qs);
    press(Qt::Key_Space);
    press(Qt::Key_Tab);
    EXPECT_EQ(guide().activeFocusItem()->objectName(), u"forward"_qs);
    press(Qt::Key_Return);
    EXPECT_TRUE(part(u"accessibilityPage"_qs)->isVisible());
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    EXPECT_EQ(finishes, 1);
}

TEST_F(OnboardingFlowTest, AWindowThatShowsTheWholeAgreementAsksForNoScrolling) {
    flow.showOnboarding(Guide::firstRun, 1);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&guide(), testing::patienceMs));
    EXPECT_FALSE(part(u"agree"_qs)->isEnabled());
    guide().resize(580, 3000);
    EXPECT_TRUE(testing::turnsUntil([this] { return part(u"agree"_qs)->isEnabled(); }));
}

TEST_F(OnboardingFlowTest, APageThatIsNotShownCountsForNothing) {
    flow.showOnboarding(Guide::firstRun, 0);
    guide().resize(580, 3000);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&guide(), testing::patienceMs));
    testing::turnFor(50);
    EXPECT_FALSE(part(u"agree"_qs)->isEnabled());
}

TEST_F(OnboardingFlowTest, LeavingTheFirstStartWithoutAgreeingEndsTheProgram) {
    flow.showOnboarding(Guide::firstRun, 0);
    guide().close();
    system.scheduler.settle();
    EXPECT_EQ(quits, 1);
    EXPECT_EQ(finishes, 0);
}

TEST_F(OnboardingFlowTest, NoKeyClosesTheFirstStart) {
    flow.showOnboarding(Guide::firstRun, 0);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&guide(), testing::patienceMs));
    QTest::keyClick(&guide(), Qt::Key_W, Qt::ControlModifier);
    QTest::keyClick(&guide(), Qt::Key_Escape);
    EXPECT_TRUE(guide().isVisible());
}

TEST_F(OnboardingFlowTest, OneWhoHasAgreedMayCloseTheGuideAndIsAtWork) {
    flow.showOnboarding(Guide::firstRun, 2);
    preferences.setHasAcceptedEULA(true);
    guide().close();
    system.scheduler.settle();
    EXPECT_EQ(quits, 0);
    EXPECT_EQ(finishes, 1);
    EXPECT_EQ(flow.onboardingWindow(), nullptr);
}

TEST_F(OnboardingFlowTest, LaterTheGuideIsAWindowLikeOthers) {
    preferences.setHasAcceptedEULA(true);
    flow.showOnboarding(Guide::later, 0);
    EXPECT_EQ(part(u"dots"_qs)->property("count").toInt(), 3);
    click(u"forward"_qs);
    EXPECT_TRUE(part(u"accessibilityPage"_qs)->isVisible());
    EXPECT_FALSE(part(u"agreementPage"_qs)->isVisible());
    click(u"back"_qs);
    EXPECT_TRUE(part(u"welcomePage"_qs)->isVisible());
    guide().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(flow.onboardingWindow(), nullptr);
    EXPECT_EQ(finishes, 0);
    EXPECT_EQ(quits, 0);
}

TEST_F(OnboardingFlowTest, ANewGuideTakesThePlaceOfTheOldOne) {
    flow.showOnboarding(Guide::later, 0);
    const QPointer<ViewWindow> first = flow.onboardingWindow();
    flow.showOnboarding(Guide::later, 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(first, nullptr);
    EXPECT_EQ(ViewWindow::allVisible().size(), 1U);
}

TEST_F(OnboardingFlowTest, ThePrivacyNoticeIsClosedByItsButtonAndByKeys) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        flow.showPrivacyNotice();
        QQuickView& notice = flow.privacyNoticeWindow()->window();
        EXPECT_EQ(notice.title(), u"Tessarine and Your Privacy"_qs);
        EXPECT_EQ(notice.size(), QSize(520, 560));
        ASSERT_TRUE(QTest::qWaitForWindowActive(&notice, testing::patienceMs));
        QTest::keyClick(&notice, key);
        EXPECT_EQ(flow.privacyNoticeWindow(), nullptr);
    }
    EXPECT_TRUE(ViewWindow::allVisible().empty());
}

TEST_F(OnboardingFlowTest, OpenedAndClosedTwoHundredTimesTheyLeaveNothingThatTicks) {
    system.accessibility.trusted = true;
    for (int phase = 0; phase < 200; ++phase) {
        flow.showOnboarding(Guide::later, 1);
        system.scheduler.advance(0.005 * phase);
        guide().close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    const int before = checks;
    system.scheduler.advance(10);
    EXPECT_EQ(checks, before);
    EXPECT_EQ(flow.onboardingWindow(), nullptr);
}

TEST_F(OnboardingFlowTest, AScreenReaderIsToldOfTheBoxAndWhatItIsFor) {
    flow.showOnboarding(Guide::firstRun, 1);
    QAccessibleInterface* const box = QAccessible::queryAccessibleInterface(part(u"agree"_qs));
    EXPECT_EQ(box->role(), QAccessible::CheckBox);
    EXPECT_EQ(box->text(QAccessible::Name), u"I have read the agreement and accept it"_qs);
}

// How they look

enum class Shown { welcome, agreement, accessibility, withoutAccess, privacy, notice };

using OnboardingLook = std::tuple<Shown, const char*, Qt::LayoutDirection>;

class OnboardingPicturesTest : public OnboardingFlowTest,
                               public ::testing::WithParamInterface<OnboardingLook> {
protected:
    QQuickView& open(Shown shown) {
        system.accessibility.trusted = shown != Shown::withoutAccess;
        switch (shown) {
        case Shown::welcome:
        case Shown::agreement:
        case Shown::accessibility:
            flow.showOnboarding(Guide::firstRun, int(shown));
            break;
        case Shown::withoutAccess:
            flow.showOnboarding(Guide::later, 1);
            break;
        case Shown::privacy:
            flow.showOnboarding(Guide::later, 2);
            break;
        case Shown::notice:
            flow.showPrivacyNotice();
            return flow.privacyNoticeWindow()->window();
        }
        return guide();
    }
};

TEST_P(OnboardingPicturesTest, NothingIsCut) {
    const auto [shown, mode, direction] = GetParam();
    QGuiApplication::setLayoutDirection(direction);
    views.theme.applyAppearance(QLatin1String(mode));
    QQuickView& window = open(shown);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window, testing::patienceMs));
    const QImage picture = testing::stillPicture(window);
    EXPECT_EQ(testing::textsOutside(*window.contentItem(), QRectF(QPointF(), window.size())),
              QStringList());
    const QString name = u"onboarding%1-%2-%3@%4x.png"_qs.arg(int(shown))
                             .arg(QLatin1String(mode))
                             .arg(direction == Qt::LeftToRight ? u"ltr"_qs : u"rtl"_qs)
                             .arg(window.effectiveDevicePixelRatio());
    EXPECT_TRUE(testing::savePicture(picture, QStringLiteral(PICTURES_FOLDER), name));
}

INSTANTIATE_TEST_SUITE_P(
    Pictures, OnboardingPicturesTest,
    ::testing::Combine(::testing::Values(Shown::welcome, Shown::agreement, Shown::accessibility,
                                         Shown::withoutAccess, Shown::privacy, Shown::notice),
                       ::testing::Values("light", "dark"), ::testing::Values(Qt::LeftToRight)));

INSTANTIATE_TEST_SUITE_P(
    MirroredPictures, OnboardingPicturesTest,
    ::testing::Combine(::testing::Values(Shown::welcome, Shown::agreement, Shown::withoutAccess),
                       ::testing::Values("light"), ::testing::Values(Qt::RightToLeft)));

} // namespace
} // namespace tessarine

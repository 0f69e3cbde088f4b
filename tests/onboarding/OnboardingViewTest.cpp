#include "onboarding/OnboardingView.h"

#include "preferences/PreferencesStore.h"
#include "support/Printers.h"
#include "support/SimulatedPlatform.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <optional>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using Page = OnboardingView::Page;

class OnboardingViewTest : public ::testing::Test {
protected:
    OnboardingViewTest() { system_.accessibility.trusted = false; }

    OnboardingView& open(bool isModal, int startAtStep) {
        view_.emplace(isModal, startAtStep,
                      OnboardingView::Services{system_.accessibility, preferences_,
                                               system_.scheduler, system_.systemSettings,
                                               u"the agreement"_qs, [this] { ++checks_; }},
                      [this] { ++completions_; });
        return *view_;
    }

    QTemporaryDir folder_;
    testing::SimulatedPlatform system_{folder_.path()};
    PreferencesStore preferences_{system_.defaults};
    std::optional<OnboardingView> view_;
    int checks_ = 0;
    int completions_ = 0;
};

TEST_F(OnboardingViewTest, TheFirstStartHasFourPagesAndLaterOnesLeaveTheAgreementOut) {
    OnboardingView& first = open(true, 0);
    EXPECT_EQ(first.stepCount(), 4);
    EXPECT_EQ(first.page(), Page::welcome);
    first.forward();
    EXPECT_EQ(first.page(), Page::agreement);
    first.noteEndOfAgreement();
    first.setEulaAgreed(true);
    first.forward();
    EXPECT_EQ(first.page(), Page::accessibility);
    first.forward();
    EXPECT_EQ(first.page(), Page::privacy);

    OnboardingView& later = open(false, 0);
    EXPECT_EQ(later.stepCount(), 3);
    EXPECT_EQ(later.page(), Page::welcome);
    later.forward();
    EXPECT_EQ(later.page(), Page::accessibility);
    later.forward();
    EXPECT_EQ(later.page(), Page::privacy);
}

struct StartCase {
    bool isModal;
    int startAtStep;
    Page page;
};

class StartStepTest : public OnboardingViewTest, public ::testing::WithParamInterface<StartCase> {};

TEST_P(StartStepTest, OpensAtTheStepThatIsAskedForWhereThereIsOne) {
    EXPECT_EQ(open(GetParam().isModal, GetParam().startAtStep).page(), GetParam().page);
}

INSTANTIATE_TEST_SUITE_P(
    Steps, StartStepTest,
    ::testing::Values(StartCase{true, -1, Page::welcome}, StartCase{true, 1, Page::agreement},
                      StartCase{true, 2, Page::accessibility}, StartCase{true, 3, Page::privacy},
                      StartCase{true, 4, Page::welcome}, StartCase{false, -1, Page::welcome},
                      StartCase{false, 1, Page::accessibility}, StartCase{false, 2, Page::privacy},
                      StartCase{false, 3, Page::welcome}));

TEST_F(OnboardingViewTest, TheAgreementNeedsItsEndSeenAndItsBoxTicked) {
    OnboardingView& view = open(true, 1);
    EXPECT_FALSE(view.canGoForward());
    view.setEulaAgreed(true);
    EXPECT_FALSE(view.eulaAgreed());
    view.forward();
    EXPECT_EQ(view.page(), Page::agreement);
    view.noteEndOfAgreement();
    EXPECT_FALSE(view.canGoForward());
    view.setEulaAgreed(true);
    EXPECT_TRUE(view.canGoForward());
    view.setEulaAgreed(false);
    EXPECT_FALSE(view.canGoForward());
    EXPECT_FALSE(preferences_.hasAcceptedEULA());
}

TEST_F(OnboardingViewTest, AgreeingIsOnDiskBeforeTheNextPageComes) {
    OnboardingView& view = open(true, 1);
    view.noteEndOfAgreement();
    view.setEulaAgreed(true);
    view.forward();
    EXPECT_TRUE(system_.defaults.boolean(u"hasAcceptedEULA"_qs));
    EXPECT_FALSE(system_.defaults.boolean(u"hasSeenOnboarding"_qs));
    EXPECT_EQ(completions_, 0);
}

TEST_F(OnboardingViewTest, NoWayLeadsBackFromTheAgreementAndOneToIt) {
    OnboardingView& view = open(true, 0);
    EXPECT_FALSE(view.offersBack());
    view.forward();
    EXPECT_FALSE(view.offersBack());
    view.back();
    EXPECT_EQ(view.page(), Page::agreement);
    view.noteEndOfAgreement();
    view.setEulaAgreed(true);
    view.forward();
    EXPECT_TRUE(view.offersBack());
    view.back();
    EXPECT_EQ(view.page(), Page::agreement);
    EXPECT_TRUE(view.eulaAgreed());
}

TEST_F(OnboardingViewTest, OpenedBehindTheAgreementTheFirstStartLeadsBackToIt) {
    OnboardingView& view = open(true, 2);
    EXPECT_EQ(view.page(), Page::accessibility);
    EXPECT_TRUE(view.offersBack());
    view.back();
    EXPECT_EQ(view.page(), Page::agreement);
    EXPECT_FALSE(view.canGoForward());
}

TEST_F(OnboardingViewTest, LaterThereIsAWayBackFromTheSecondPage) {
    OnboardingView& view = open(false, 1);
    EXPECT_TRUE(view.offersBack());
    view.back();
    EXPECT_EQ(view.page(), Page::welcome);
    EXPECT_FALSE(view.offersBack());
}

TEST_F(OnboardingViewTest, TheButtonSaysWhereItLeads) {
    OnboardingView& first = open(true, 2);
    system_.accessibility.trusted = true;
    EXPECT_EQ(first.forwardText(), qtTrId("onboarding.btn.continueWithout"));
    system_.scheduler.advance(1);
    EXPECT_EQ(first.forwardText(), qtTrId("onboarding.btn.continue"));
    first.forward();
    EXPECT_EQ(first.forwardText(), qtTrId("onboarding.btn.start"));
    EXPECT_EQ(open(true, 1).forwardText(), qtTrId("onboarding.btn.agreeAndContinue"));
    EXPECT_EQ(open(false, 0).forwardText(), qtTrId("onboarding.btn.continue"));
    EXPECT_EQ(open(false, 2).forwardText(), qtTrId("onboarding.btn.done"));
}

TEST_F(OnboardingViewTest, TheLastButtonEndsTheGuide) {
    open(false, 2).forward();
    EXPECT_EQ(completions_, 1);
    EXPECT_FALSE(preferences_.hasAcceptedEULA());
}

TEST_F(OnboardingViewTest, KnowsAtOnceWhetherTheAccessIsThere) {
    EXPECT_FALSE(open(false, 1).axGranted());
    system_.accessibility.trusted = true;
    EXPECT_TRUE(open(false, 1).axGranted());
}

TEST_F(OnboardingViewTest, LooksEachSecondWhileThePageStandsAndChecksOnceItIsThere) {
    OnboardingView& view = open(false, 1);
    system_.scheduler.advance(3);
    EXPECT_EQ(checks_, 0);
    system_.accessibility.trusted = true;
    system_.scheduler.advance(0.9);
    EXPECT_FALSE(view.axGranted());
    system_.scheduler.advance(0.1);
    EXPECT_TRUE(view.axGranted());
    EXPECT_EQ(checks_, 1);
    system_.scheduler.advance(2);
    EXPECT_EQ(checks_, 3);
    view.forward();
    system_.scheduler.advance(5);
    EXPECT_EQ(checks_, 3);
    view.back();
    system_.scheduler.advance(1);
    EXPECT_EQ(checks_, 4);
    system_.accessibility.trusted = false;
    system_.scheduler.advance(1);
    EXPECT_FALSE(view.axGranted());
    EXPECT_EQ(checks_, 4);
}

TEST_F(OnboardingViewTest, OtherPagesDoNotLook) {
    system_.accessibility.trusted = true;
    open(false, 0);
    system_.scheduler.advance(5);
    open(false, 2);
    system_.scheduler.advance(5);
    EXPECT_EQ(checks_, 0);
}

TEST_F(OnboardingViewTest, NothingTicksOnceTheGuideIsGone) {
    system_.accessibility.trusted = true;
    for (int phase = 0; phase < 200; ++phase) {
        open(false, 1);
        system_.scheduler.advance(0.005 * phase);
        view_.reset();
    }
    const int before = checks_;
    system_.scheduler.advance(10);
    EXPECT_EQ(checks_, before);
}

TEST_F(OnboardingViewTest, TheButtonOpensTheSystemsPageWhereItHasOne) {
    OnboardingView& view = open(false, 1);
    EXPECT_TRUE(view.offersSettings());
    view.openSettings();
    EXPECT_EQ(system_.systemSettings.opened, QStringList(settingsPages::accessibility));
    system_.systemSettings.pages.clear();
    EXPECT_FALSE(view.offersSettings());
}

} // namespace
} // namespace tessarine

#include "core/OnboardingFlow.h"

#include "onboarding/Agreement.h"
#include "onboarding/PrivacyNoticeView.h"

#include <QLocale>
#include <QQuickView>

// In the source that Qt makes for the module. Naming it keeps a static library's types from being
// left out of the program.
void qml_register_types_Tessarine_Onboarding();

namespace tessarine {

namespace {

constexpr QSize guideSize(580, 640);
constexpr QSize smallestGuide(560, 520);
constexpr QSize noticeSize(520, 560);

ViewWindow::Description guideDescription(OnboardingView& view) {
    [[maybe_unused]] const volatile auto types = &qml_register_types_Tessarine_Onboarding;
    WindowFeatures features = WindowFeature::resizable;
    if (!view.isModal())
        features |= WindowFeature::closable;
    return {qtTrId("onboarding.window.title"),
            QStringLiteral("Tessarine/Onboarding/OnboardingGuide"),
            {{QStringLiteral("view"), QVariant::fromValue(&view)}},
            features,
            smallestGuide};
}

ViewWindow::Description noticeDescription(PrivacyNoticeView& view) {
    return {qtTrId("window.title.privacy"),
            QStringLiteral("Tessarine/Onboarding/PrivacyNotice"),
            {{QStringLiteral("view"), QVariant::fromValue(&view)}},
            WindowFeature::closable};
}

} // namespace

OnboardingFlow::OnboardingFlow(ViewServices& views, Actions actions)
    : views_(views)
    , actions_(std::move(actions)) {}

OnboardingFlow::~OnboardingFlow() {
    delete onboardingWindow_;
    delete privacyNoticeWindow_;
}

OnboardingView::Services OnboardingFlow::viewServices() {
    Platform& platform = views_.services.platform;
    return {*platform.accessibility,
            views_.services.preferences,
            *platform.scheduler,
            *platform.systemSettings,
            agreementText(QLocale().uiLanguages()),
            actions_.runPermissionChecks};
}

void OnboardingFlow::showOnboarding(Guide guide, int startAtStep) {
    ViewWindow::dismiss(onboardingWindow_);
    auto* const view = new OnboardingView(guide == Guide::firstRun, startAtStep, viewServices(),
                                          [this, guide] { complete(guide); });
    onboardingWindow_ = new ViewWindow(guideDescription(*view), *views_.engine);
    view->setParent(onboardingWindow_); // goes after the pages that show it
    if (guide == Guide::firstRun)
        QObject::connect(onboardingWindow_, &ViewWindow::closing, view,
                         [this] { windowWillClose(); });
    else
        onboardingWindow_->releaseWhenClosed();
    onboardingWindow_->centre(guideSize);
    views_.bringToFront(*onboardingWindow_);
}

void OnboardingFlow::complete(Guide guide) {
    if (guide == Guide::firstRun) {
        PreferencesStore& preferences = views_.services.preferences;
        preferences.setHasAcceptedEULA(true);
        preferences.setHasSeenOnboarding(true);
        preferences.setHasSeenPrivacyNotice(true);
    }
    ViewWindow::dismiss(onboardingWindow_);
    if (guide == Guide::firstRun)
        actions_.finishStartup();
}

// A window manager closes windows without a close button too. A user who has agreed by then has
// seen what there is to see, and is not left with a program that does nothing. In a moment of its
// own, since an end of the program closes windows as well, and has none of those any more.
void OnboardingFlow::windowWillClose() {
    views_.services.platform.scheduler->onMain(alive_.guard([this] {
        if (!views_.services.preferences.hasAcceptedEULA())
            actions_.quit();
        else if (onboardingWindow_)
            complete(Guide::firstRun);
    }));
}

void OnboardingFlow::showPrivacyNotice() {
    ViewWindow::dismiss(privacyNoticeWindow_);
    auto* const view =
        new PrivacyNoticeView(false, [this] { ViewWindow::dismiss(privacyNoticeWindow_); });
    privacyNoticeWindow_ = new ViewWindow(noticeDescription(*view), *views_.engine);
    view->setParent(privacyNoticeWindow_);
    privacyNoticeWindow_->releaseWhenClosed();
    privacyNoticeWindow_->centre(noticeSize);
    views_.bringToFront(*privacyNoticeWindow_);
}

bool OnboardingFlow::raiseOnboarding() {
    if (onboardingWindow_)
        views_.bringToFront(*onboardingWindow_);
    return onboardingWindow_;
}

} // namespace tessarine

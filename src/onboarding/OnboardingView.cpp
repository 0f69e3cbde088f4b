#include "onboarding/OnboardingView.h"

#include "preferences/PreferencesStore.h"

#include <utility>

namespace tessarine {

namespace {

constexpr int modalSteps = 4;
constexpr int guideSteps = 3; // without the agreement

} // namespace

OnboardingView::OnboardingView(bool isModal, int startAtStep, Services services,
                               std::function<void()> onComplete)
    : isModal_(isModal)
    , services_(std::move(services))
    , agreementText_(services_.agreementText)
    , onComplete_(std::move(onComplete))
    , axGranted_(services_.accessibility.isProcessTrusted())
    , axTimer_(services_.scheduler.every(pollInterval, [this] { poll(); })) {
    if (startAtStep >= 1 && startAtStep < stepCount())
        currentStep_ = startAtStep;
}

int OnboardingView::stepCount() const {
    return isModal_ ? modalSteps : guideSteps;
}

OnboardingView::Page OnboardingView::page() const {
    return Page(isModal_ || currentStep_ == 0 ? currentStep_ : currentStep_ + 1);
}

void OnboardingView::setEulaAgreed(bool agreed) {
    if (!eulaScrolledToBottom_ || eulaAgreed_ == agreed)
        return;
    eulaAgreed_ = agreed;
    Q_EMIT changed();
}

bool OnboardingView::offersBack() const {
    return currentStep_ >= 1 && page() != Page::agreement;
}

bool OnboardingView::canGoForward() const {
    return page() != Page::agreement || eulaAgreed_;
}

QString OnboardingView::forwardText() const {
    switch (page()) {
    case Page::welcome:
        return qtTrId("onboarding.btn.continue");
    case Page::agreement:
        return qtTrId("onboarding.btn.agreeAndContinue");
    case Page::accessibility:
        return axGranted_ ? qtTrId("onboarding.btn.continue")
                          : qtTrId("onboarding.btn.continueWithout");
    case Page::privacy:
        return isModal_ ? qtTrId("onboarding.btn.start") : qtTrId("onboarding.btn.done");
    }
    Q_UNREACHABLE();
}

bool OnboardingView::offersSettings() const {
    return services_.settings.offers(settingsPages::accessibility);
}

void OnboardingView::noteEndOfAgreement() {
    if (std::exchange(eulaScrolledToBottom_, true))
        return;
    Q_EMIT changed();
}

void OnboardingView::back() {
    if (offersBack())
        goTo(currentStep_ - 1);
}

void OnboardingView::forward() {
    if (!canGoForward())
        return;
    if (page() == Page::privacy) {
        onComplete_();
        return;
    }
    // Stored at this moment: a guide that is interrupted later need not ask again.
    if (page() == Page::agreement)
        services_.preferences.setHasAcceptedEULA(true);
    goTo(currentStep_ + 1);
}

void OnboardingView::openSettings() {
    services_.settings.open(settingsPages::accessibility);
}

void OnboardingView::goTo(int step) {
    currentStep_ = step;
    Q_EMIT changed();
}

void OnboardingView::poll() {
    if (page() != Page::accessibility)
        return;
    const bool isGranted = services_.accessibility.isProcessTrusted();
    if (std::exchange(axGranted_, isGranted) != isGranted)
        Q_EMIT changed();
    if (isGranted)
        services_.runPermissionChecks();
}

} // namespace tessarine

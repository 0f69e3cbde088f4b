#pragma once

#include "core/ViewServices.h"
#include "onboarding/OnboardingView.h"
#include "shared/AliveGuard.h"
#include "windows/ViewWindow.h"

#include <QPointer>

#include <functional>

namespace tessarine {

// The windows in which the program explains itself: the guide, which at the first start is also the
// gate, and the privacy notice. Main thread.
class OnboardingFlow {
public:
    struct Actions {
        std::function<void()> runPermissionChecks;
        std::function<void()> finishStartup; // once, when the guide of the first start has ended
        std::function<void()> quit;          // the first start was left without agreeing
    };

    enum class Guide {
        firstRun, // modal: with the agreement, and without a close button
        later,
    };

    // The services outlive the flow.
    OnboardingFlow(ViewServices& views, Actions actions);
    OnboardingFlow(const OnboardingFlow&) = delete;
    OnboardingFlow& operator=(const OnboardingFlow&) = delete;
    ~OnboardingFlow(); // takes its windows with it

    // A new window in place of the one that may be there.
    void showOnboarding(Guide guide, int startAtStep);
    void showPrivacyNotice();

    // The guide that waits for an answer comes to the front. False where there is none.
    bool raiseOnboarding();

    ViewWindow* onboardingWindow() const { return onboardingWindow_; }       // null: not shown
    ViewWindow* privacyNoticeWindow() const { return privacyNoticeWindow_; } // null: not shown

private:
    OnboardingView::Services viewServices();
    void complete(Guide guide);
    void windowWillClose();

    ViewServices& views_;
    Actions actions_;
    QPointer<ViewWindow> onboardingWindow_;
    QPointer<ViewWindow> privacyNoticeWindow_;
    AliveGuard alive_;
};

} // namespace tessarine

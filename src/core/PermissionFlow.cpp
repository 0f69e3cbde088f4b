#include "core/PermissionFlow.h"

#include "onboarding/FullDiskAccessView.h"
#include "platform/DefaultsKeys.h"
#include "shell/LaunchAtLoginPromptView.h"

#include <QQuickView>

// In the sources that Qt makes for the modules. Naming them keeps a static library's types from
// being left out of the program.
void qml_register_types_Tessarine_Onboarding();
void qml_register_types_Tessarine_Shell();

namespace tessarine {

namespace {

constexpr QSize promptSize(440, 300);
constexpr QSize fdaSize(500, 520);
constexpr QSize smallestFda(480, 400);

ViewWindow::Description promptDescription(LaunchAtLoginPromptView& prompt) {
    [[maybe_unused]] const volatile auto types = &qml_register_types_Tessarine_Shell;
    return {QStringLiteral("Tessarine"),
            QStringLiteral("Tessarine/Shell/LaunchAtLoginPrompt"),
            {{QStringLiteral("prompt"), QVariant::fromValue(&prompt)}},
            WindowFeature::closable};
}

ViewWindow::Description fdaDescription(FullDiskAccessView& view) {
    [[maybe_unused]] const volatile auto types = &qml_register_types_Tessarine_Onboarding;
    return {qtTrId("window.title.fda"),
            QStringLiteral("Tessarine/Onboarding/FullDiskAccessGuide"),
            {{QStringLiteral("view"), QVariant::fromValue(&view)}},
            WindowFeature::closable | WindowFeature::resizable,
            smallestFda};
}

} // namespace

PermissionFlow::PermissionFlow(ViewServices& views, const LaunchAgentManager& launchAgent,
                               std::function<void()> showGuide)
    : views_(views)
    , launchAgent_(launchAgent)
    , showGuide_(std::move(showGuide)) {}

PermissionFlow::~PermissionFlow() {
    delete launchPromptWindow_;
    delete permissionWindow_;
}

// Not now, as an answer to the question about the login, ends all questions of this process.
void PermissionFlow::runPermissionChecks() {
    Services& services = views_.services;
    Accessibility& accessibility = *services.platform.accessibility;
    if (!accessibility.isProcessTrusted()) {
        accessibility.promptForTrust();
        showGuide_();
        return;
    }
    if (services.listener->isStarted() && !services.listener->hasAXObserver())
        services.listener->startAXObserver();
    if (launchAtLoginPromptDismissedThisSession_)
        return;
    scheduleLaunchAtLoginPrompt();
    if (!lacksFullDiskAccess() ||
        services.platform.userDefaults->boolean(defaultsKeys::fdaSkipped) ||
        fdaPromptDismissedThisSession_ || permissionWindow_)
        return;
    scheduleFullDiskAccessPrompt();
}

// Login

void PermissionFlow::scheduleLaunchAtLoginPrompt() {
    if (launchAgent_.isEnabled())
        return;
    if (views_.services.preferences.launchLoginPromptSuppressed() || launchPromptWindow_)
        return;
    views_.services.platform.scheduler->onMainAfter(
        promptDelay, alive_.guard([this] { showLaunchAtLoginPrompt(); }));
}

// Checks that follow each other quickly schedule more than one.
void PermissionFlow::showLaunchAtLoginPrompt() {
    if (launchPromptWindow_)
        return;
    auto* const prompt = new LaunchAtLoginPromptView(
        [this] {
            launchAgent_.registerMainApp();
            ViewWindow::dismiss(launchPromptWindow_);
        },
        [this] {
            launchAtLoginPromptDismissedThisSession_ = true;
            ViewWindow::dismiss(launchPromptWindow_);
        },
        [this] {
            views_.services.preferences.setLaunchLoginPromptSuppressed(true);
            ViewWindow::dismiss(launchPromptWindow_);
        });
    launchPromptWindow_ = new ViewWindow(promptDescription(*prompt), *views_.engine);
    prompt->setParent(launchPromptWindow_); // goes after the view that shows it
    launchPromptWindow_->centre(promptSize);
    views_.bringToFront(*launchPromptWindow_);
}

// Files

QString PermissionFlow::fdaPath() const {
    return views_.services.listener->usernotedDbPath();
}

bool PermissionFlow::lacksFullDiskAccess() const {
    return !views_.services.platform.fileSystem->grantsReading(fdaPath());
}

void PermissionFlow::scheduleFullDiskAccessPrompt() {
    views_.services.platform.scheduler->onMainAfter(fdaPromptDelay, alive_.guard([this] {
        if (!fdaPromptDismissedThisSession_ && !permissionWindow_)
            showFullDiskAccessPrompt();
    }));
}

void PermissionFlow::showFullDiskAccessPrompt() {
    ViewWindow::dismiss(permissionWindow_);
    Platform& platform = views_.services.platform;
    const auto later = [this](void (PermissionFlow::*action)()) {
        return [this, action] {
            views_.services.platform.scheduler->onMain(
                alive_.guard([this, action] { (this->*action)(); }));
        };
    };
    auto* const view = new FullDiskAccessView(
        {*platform.fileSystem, *platform.scheduler, *platform.systemSettings, fdaPath()},
        later(&PermissionFlow::onFullDiskAccessEnabled),
        later(&PermissionFlow::onFullDiskAccessSkipped));
    permissionWindow_ = new ViewWindow(fdaDescription(*view), *views_.engine);
    view->setParent(permissionWindow_);
    permissionWindow_->centre(fdaSize);
    views_.bringToFront(*permissionWindow_);
    view->appear();
}

void PermissionFlow::showFullDiskAccessPromptAgain() {
    views_.services.platform.userDefaults->setBoolean(defaultsKeys::fdaSkipped, false);
    fdaPromptDismissedThisSession_ = false;
    showFullDiskAccessPrompt();
}

void PermissionFlow::onFullDiskAccessEnabled() {
    ViewWindow::dismiss(permissionWindow_);
    runPermissionChecks();
}

void PermissionFlow::onFullDiskAccessSkipped() {
    views_.services.platform.userDefaults->setBoolean(defaultsKeys::fdaSkipped, true);
    fdaPromptDismissedThisSession_ = true;
    ViewWindow::dismiss(permissionWindow_);
    scheduleLaunchAtLoginPrompt();
}

} // namespace tessarine

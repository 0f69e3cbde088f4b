#include "core/PermissionFlow.h"

#include "shell/LaunchAtLoginPromptView.h"

#include <QQuickView>

// In the source that Qt makes for the module. Naming it keeps a static library's types from being
// left out of the program.
void qml_register_types_Tessarine_Shell();

namespace tessarine {

namespace {

constexpr QSize promptSize(440, 300);

ViewWindow::Description promptDescription(LaunchAtLoginPromptView& prompt) {
    [[maybe_unused]] const volatile auto types = &qml_register_types_Tessarine_Shell;
    return {QStringLiteral("Tessarine"),
            QStringLiteral("Tessarine/Shell/LaunchAtLoginPrompt"),
            {{QStringLiteral("prompt"), QVariant::fromValue(&prompt)}},
            WindowFeature::closable};
}

} // namespace

PermissionFlow::PermissionFlow(ViewServices& views, const LaunchAgentManager& launchAgent)
    : views_(views)
    , launchAgent_(launchAgent) {}

PermissionFlow::~PermissionFlow() {
    delete launchPromptWindow_;
}

void PermissionFlow::runPermissionChecks() {
    if (launchAtLoginPromptDismissedThisSession_)
        return;
    scheduleLaunchAtLoginPrompt();
}

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
            closeLaunchAtLoginPrompt();
        },
        [this] {
            launchAtLoginPromptDismissedThisSession_ = true;
            closeLaunchAtLoginPrompt();
        },
        [this] {
            views_.services.preferences.setLaunchLoginPromptSuppressed(true);
            closeLaunchAtLoginPrompt();
        });
    launchPromptWindow_ = new ViewWindow(promptDescription(*prompt), *views_.engine);
    prompt->setParent(launchPromptWindow_); // goes after the view that shows it
    launchPromptWindow_->centre(promptSize);
    launchPromptWindow_->showAndMakeKey();
    views_.desktop.application->activate(launchPromptWindow_->window());
}

// From within the window's own handler, so that it can only go later.
void PermissionFlow::closeLaunchAtLoginPrompt() {
    launchPromptWindow_->releaseWhenClosed();
    launchPromptWindow_->window().close();
    launchPromptWindow_.clear();
}

} // namespace tessarine

#include "shell/LaunchAtLoginPromptView.h"

#include <utility>

namespace tessarine {

LaunchAtLoginPromptView::LaunchAtLoginPromptView(Action onEnable, Action onNotNow,
                                                 Action onSuppressed)
    : onEnable_(std::move(onEnable))
    , onNotNow_(std::move(onNotNow))
    , onSuppressed_(std::move(onSuppressed)) {}

void LaunchAtLoginPromptView::enable() {
    answer(onEnable_);
}

void LaunchAtLoginPromptView::notNow() {
    answer(onNotNow_);
}

void LaunchAtLoginPromptView::suppress() {
    answer(onSuppressed_);
}

void LaunchAtLoginPromptView::answer(const Action& action) {
    if (!std::exchange(isAnswered_, true))
        action();
}

} // namespace tessarine

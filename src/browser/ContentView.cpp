#include "browser/ContentView.h"

#include <utility>

namespace tessarine {

ContentView::ContentView(Services services)
    : list_(std::move(services.listener), services.hoard, services.preferences, services.scheduler,
            std::move(services.canSeeNotifications))
    , selection_(list_, services.hoard, services.scheduler)
    , overlays_(list_, services.scheduler, std::move(services.makeExportSheet))
    , actions_({list_, selection_, overlays_, services.hoard, services.launcher,
                std::move(services.setPasteboard)}) {}

} // namespace tessarine

#include "core/ViewServices.h"

#include "apps/AppIconView.h"
#include "windows/ViewEngine.h"

#include <QQmlEngine>
#include <QQuickView>

namespace tessarine {

ViewServices::ViewServices(Services& services, Desktop& desktop, SetPasteboard setPasteboard)
    : services(services)
    , desktop(desktop)
    , setPasteboard(std::move(setPasteboard))
    , theme(*desktop.appearance)
    , icons(AppIconResolver::create(*services.platform.scheduler,
                                    {*services.platform.workspace, *services.platform.fileSystem,
                                     *desktop.applicationIcons, *desktop.symbols}))
    , exports({services.preferences, *services.platform.scheduler, *desktop.savePanel})
    , engine(makeViewEngine(theme, *desktop.symbols))
    , memory(*services.platform.scheduler, *desktop.application, *engine) {
    installAppIcons(*engine, icons);
}

ViewServices::~ViewServices() = default;

void ViewServices::bringToFront(ViewWindow& window) {
    window.showAndMakeKey();
    bringToFront(window.window());
}

void ViewServices::bringToFront(QWindow& shown) {
    memory.watch(shown);
    desktop.application->activate(shown);
}

ContentView::Services ViewServices::browser() {
    return {services.listener,
            services.hoard,
            services.preferences,
            *services.platform.scheduler,
            services.launcher,
            setPasteboard,
            makeExportSheet(),
            [&accessibility = *services.platform.accessibility] {
                return accessibility.isProcessTrusted();
            }};
}

DiagnosticsView::Services ViewServices::diagnostics() {
    return {services.diagnostics, services.hoard,
            services.platform,    services.listener->usernotedDbPath(),
            *desktop.savePanel,   setPasteboard,
            makeExportSheet()};
}

ViewServices::MakeExportSheet ViewServices::makeExportSheet() {
    const ExportOptionsSheet::Services sheet{exports, services.preferences,
                                             *services.platform.scheduler, *desktop.fileViewer};
    return [sheet](NotificationList list, std::function<void()> onDismiss) {
        return std::make_unique<ExportOptionsSheet>(std::move(list), std::move(onDismiss), sheet);
    };
}

} // namespace tessarine

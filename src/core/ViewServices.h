#pragma once

#include "apps/AppIconResolver.h"
#include "browser/ContentView.h"
#include "core/Services.h"
#include "diagnosticsview/DiagnosticsView.h"
#include "export/ExportManager.h"
#include "platform/Desktop.h"
#include "theme/Theme.h"
#include "windows/ViewWindow.h"

#include <QString>

#include <functional>
#include <memory>

class QQmlEngine;

namespace tessarine {

// What all windows share: the look, the icons of applications, the exports, and the engine that
// draws with them. Needs registerUi(). Services and desktop outlive it. Main thread.
struct ViewServices {
    using SetPasteboard = std::function<void(const QString&)>; // replaces its content by plain text

    ViewServices(Services& services, Desktop& desktop, SetPasteboard setPasteboard);
    ViewServices(const ViewServices&) = delete;
    ViewServices& operator=(const ViewServices&) = delete;
    ~ViewServices();

    // Shows the window in front of all others, those of other programs too.
    void bringToFront(ViewWindow& window) const;

    // What the browser works with.
    ContentView::Services browser();

    // What the diagnostics window works with.
    DiagnosticsView::Services diagnostics();

    Services& services;
    Desktop& desktop;
    SetPasteboard setPasteboard;
    Theme theme;
    std::shared_ptr<AppIconResolver> icons;
    ExportManager exports;
    std::unique_ptr<QQmlEngine> engine;

private:
    using MakeExportSheet = DatabaseSectionView::MakeExportSheet;
    MakeExportSheet makeExportSheet();
};

} // namespace tessarine

#pragma once

#include "apps/AppIconResolver.h"
#include "browser/ContentView.h"
#include "core/MemoryReturn.h"
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
class QWindow;

namespace tessarine {

// What all windows share: the look, the icons of applications, the exports, and the engine that
// draws with them. Needs registerUi(). Services and desktop outlive it. Main thread.
struct ViewServices {
    using SetPasteboard = std::function<void(const QString&)>; // replaces its content by plain text

    ViewServices(Services& services, Desktop& desktop, SetPasteboard setPasteboard);
    ViewServices(const ViewServices&) = delete;
    ViewServices& operator=(const ViewServices&) = delete;
    ~ViewServices();

    // Shows the window in front of all others, those of other programs too. Some time after the
    // last such window was closed, what they have used is given back.
    void bringToFront(ViewWindow& window);

    // The same for a window that is shown already.
    void bringToFront(QWindow& shown);

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
    MemoryReturn memory;

private:
    using MakeExportSheet = DatabaseSectionView::MakeExportSheet;
    MakeExportSheet makeExportSheet();
};

} // namespace tessarine

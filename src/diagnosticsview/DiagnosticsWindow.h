#pragma once

#include "diagnosticsview/DiagnosticsView.h"
#include "windows/ViewWindow.h"

class QQmlEngine;

namespace tessarine {

// The window's exact title, by which it is found.
QString diagnosticsTitle();

// The diagnostics window: the one that is there, or else a new one, hidden and in the middle of the
// screen, which is destroyed once it is closed. It counts the hoard whenever it comes up. Services
// and engine outlive it. Main thread.
ViewWindow& diagnosticsWindow(const DiagnosticsView::Services& services, QQmlEngine& engine);

} // namespace tessarine

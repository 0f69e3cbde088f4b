#pragma once

#include "help/HelpView.h"

class QQmlEngine;

namespace tessarine {

class ViewWindow;

// A window of the help, hidden, in the middle of the screen. It belongs to itself: closed, it goes.
// Nothing keeps a second one from being there. The engine outlives it. Main thread.
ViewWindow* makeHelpWindow(HelpView::Services services, QQmlEngine& engine);

} // namespace tessarine

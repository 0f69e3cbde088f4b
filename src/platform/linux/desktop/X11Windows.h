#pragma once

class QWindow;

namespace tessarine {

// What Qt has no word for on X11. Elsewhere none of it does anything. Main thread.

// Whether windows may be translucent: a compositor runs, or the window system is one.
bool isComposited();

// Keeps a window that is not shown yet out of task bars and pagers.
void skipTaskBarAndPager(QWindow& window);

} // namespace tessarine

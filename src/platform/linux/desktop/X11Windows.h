#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>

class QWindow;

namespace tessarine {

// What Qt has no word for on X11. Elsewhere none of it does anything. Main thread.

bool isX11();

// The class of all windows that will be made from now on, where Qt would take the program's name.
void setWindowClass(const QString& name);

// Brings a window to the front with the right that the id of a startup notification gives: that of
// the moment at which the user started something.
void activateByStartup(QWindow& window, const QByteArray& startupId);

// Tells the desktop that what was started under this id has started.
void endStartup(const QByteArray& startupId);

// The X server's time that an id of a startup notification names; 0, which is no time, without one.
std::uint32_t timeOfStartup(const QByteArray& startupId);

// Whether windows may be translucent: a compositor runs, or the window system is one.
bool isComposited();

// Keeps a window that is not shown yet out of task bars and pagers.
void skipTaskBarAndPager(QWindow& window);

} // namespace tessarine

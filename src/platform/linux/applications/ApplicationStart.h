#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <string>

namespace tessarine {

struct DesktopEntry;

// Starts the entry's application, or raises it if it runs: over the session's bus where the
// application answers there, else by its command line, as freedesktop's Desktop Entry Specification
// says. May wait for the bus; any thread. (GIO would ask the bus only for entries that are made for
// it: others that run would start a second time. And its list of terminals is its own.)
void startApplication(const DesktopEntry& entry, const std::string& sessionBus);

// Hands the address to the desktop's opener. Any thread.
void openWithDesktop(const QString& url);

// Hands the address to the portal for that, by which a confined program reaches the desktop's
// opener. False where nobody on the bus took it: there is no portal, or it opens no such address.
// May wait for the bus; any thread.
bool openWithPortal(const QString& url, const std::string& sessionBus);

// The command line inside the terminal emulator that is there. Nothing when there is none.
std::optional<QStringList> inTerminal(const QStringList& command);

// Starts a program that has nothing more to do with this process: in a session of its own, without
// input or output, adopted by the system. No shell reads the words. With an empty folder it starts
// in the user's home. False when it could not be started.
bool startDetached(const QStringList& command, const QString& folder = {});

} // namespace tessarine

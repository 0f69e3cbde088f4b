#include "platform/linux/LinuxDesktop.h"

#include "platform/Desktop.h"
#include "platform/linux/LinuxApplicationIcons.h"
#include "platform/linux/LinuxFileViewer.h"
#include "platform/linux/LinuxSavePanel.h"
#include "platform/linux/LinuxStatusItem.h"
#include "platform/linux/LinuxSymbols.h"
#include "platform/linux/LinuxSystemAppearance.h"

#include <QDBusConnection>
#include <QWindow>

namespace tessarine {

void LinuxApplicationControl::activate(QWindow& window) {
    window.raise();
    window.requestActivate();
}

std::unique_ptr<Desktop> makeDesktop() {
    auto desktop = std::make_unique<Desktop>();
    desktop->symbols = std::make_unique<LinuxSymbols>();
    desktop->applicationIcons = std::make_unique<LinuxApplicationIcons>();
    desktop->appearance = std::make_unique<LinuxSystemAppearance>(QDBusConnection::sessionBus());
    desktop->application = std::make_unique<LinuxApplicationControl>();
    desktop->statusItem =
        std::make_unique<LinuxStatusItem>(*desktop->symbols, *desktop->appearance);
    desktop->savePanel = std::make_unique<LinuxSavePanel>(*desktop->appearance);
    desktop->fileViewer = std::make_unique<LinuxFileViewer>(QDBusConnection::sessionBus());
    return desktop;
}

} // namespace tessarine

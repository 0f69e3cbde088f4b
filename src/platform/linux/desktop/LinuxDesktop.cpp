#include "platform/linux/desktop/LinuxDesktop.h"

#include "platform/Desktop.h"
#include "platform/linux/HeapMemory.h"
#include "platform/linux/applications/LinuxApplicationIcons.h"
#include "platform/linux/desktop/LinuxFileViewer.h"
#include "platform/linux/desktop/LinuxSavePanel.h"
#include "platform/linux/desktop/LinuxStatusItem.h"
#include "platform/linux/desktop/LinuxSystemAppearance.h"

#include <QDBusConnection>
#include <QWindow>

namespace tessarine {

void LinuxApplicationControl::activate(QWindow& window) {
    window.raise();
    window.requestActivate();
}

void LinuxApplicationControl::returnFreeMemory() {
    tessarine::returnFreeMemory();
}

std::unique_ptr<Desktop> makeDesktop() {
    auto desktop = std::make_unique<Desktop>();
    desktop->symbols = makeSymbols();
    desktop->applicationIcons = std::make_unique<LinuxApplicationIcons>();
    desktop->appearance = std::make_unique<LinuxSystemAppearance>(QDBusConnection::sessionBus());
    desktop->application = std::make_unique<LinuxApplicationControl>();
    desktop->statusItem =
        std::make_unique<LinuxStatusItem>(*desktop->symbols, *desktop->appearance);
    desktop->savePanel =
        std::make_unique<LinuxSavePanel>(*desktop->appearance, QDBusConnection::sessionBus());
    desktop->fileViewer = std::make_unique<LinuxFileViewer>(QDBusConnection::sessionBus());
    desktop->updater = std::make_unique<LinuxSoftwareUpdater>();
    return desktop;
}

} // namespace tessarine

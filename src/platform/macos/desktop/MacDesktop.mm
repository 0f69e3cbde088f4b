#include "platform/Desktop.h"
#include "platform/macos/desktop/MacApplicationControl.h"
#include "platform/macos/desktop/MacApplicationIcons.h"
#include "platform/macos/desktop/MacFileViewer.h"
#include "platform/macos/desktop/MacSavePanel.h"
#include "platform/macos/desktop/MacSoftwareUpdater.h"
#include "platform/macos/desktop/MacStatusItem.h"
#include "platform/macos/desktop/MacSystemAppearance.h"

namespace tessarine {

std::unique_ptr<Desktop> makeDesktop() {
    @autoreleasepool {
        auto desktop = std::make_unique<Desktop>();
        desktop->symbols = makeSymbols();
        desktop->applicationIcons = std::make_unique<MacApplicationIcons>();
        desktop->appearance = std::make_unique<MacSystemAppearance>();
        desktop->application = std::make_unique<MacApplicationControl>();
        desktop->statusItem = std::make_unique<MacStatusItem>();
        desktop->savePanel = std::make_unique<MacSavePanel>();
        desktop->fileViewer = std::make_unique<MacFileViewer>();
        desktop->updater = std::make_unique<MacSoftwareUpdater>();
        return desktop;
    }
}

} // namespace tessarine

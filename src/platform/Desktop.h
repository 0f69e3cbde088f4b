#pragma once

#include "platform/ApplicationControl.h"
#include "platform/ApplicationIcons.h"
#include "platform/FileViewer.h"
#include "platform/SavePanel.h"
#include "platform/SoftwareUpdater.h"
#include "platform/StatusItem.h"
#include "platform/Symbols.h"
#include "platform/SystemAppearance.h"

#include <memory>

namespace tessarine {

// Everything the windows and the status item ask of the system, beside Platform, which needs no
// screen. Members are destroyed from the last to the first: later ones use earlier ones.
struct Desktop {
    std::unique_ptr<Symbols> symbols;
    std::unique_ptr<ApplicationIcons> applicationIcons;
    std::unique_ptr<SystemAppearance> appearance;
    std::unique_ptr<ApplicationControl> application;
    std::unique_ptr<StatusItem> statusItem;
    std::unique_ptr<SavePanel> savePanel;
    std::unique_ptr<FileViewer> fileViewer;
    std::unique_ptr<SoftwareUpdater> updater;
};

// Makes the ports of the system that the program was built for. Needs a QApplication, and is called
// on its thread.
std::unique_ptr<Desktop> makeDesktop();

} // namespace tessarine

// For a build with Sparkle's framework.

#include "platform/macos/desktop/MacSoftwareUpdater.h"

#import <Sparkle/Sparkle.h>

namespace tessarine {

struct MacSoftwareUpdater::Controller {
    SPUStandardUpdaterController* sparkle;
};

MacSoftwareUpdater::MacSoftwareUpdater() {
    @autoreleasepool {
        controller_ = std::make_unique<Controller>();
        controller_->sparkle = [[SPUStandardUpdaterController alloc] initWithStartingUpdater:YES
                                                                             updaterDelegate:nil
                                                                          userDriverDelegate:nil];
    }
}

MacSoftwareUpdater::~MacSoftwareUpdater() = default;

bool MacSoftwareUpdater::checkForUpdates() {
    @autoreleasepool {
        [controller_->sparkle checkForUpdates:nil];
        return true;
    }
}

} // namespace tessarine

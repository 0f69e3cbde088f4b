#include "platform/macos/desktop/MacApplicationControl.h"

#include <QWindow>

#import <AppKit/AppKit.h>
#include <malloc/malloc.h>

namespace tessarine {

// Qt has made a menu with Command-Q, which would end the capture from within any window. The status
// item's menu is the place for that.
void MacApplicationControl::useAccessoryPolicy() {
    @autoreleasepool {
        NSApplication* const application = NSApplication.sharedApplication;
        [application setActivationPolicy:NSApplicationActivationPolicyAccessory];
        application.mainMenu = [[NSMenu alloc] initWithTitle:@""];
    }
}

void MacApplicationControl::activate(QWindow& window) {
    @autoreleasepool {
        window.raise();
        [NSApplication.sharedApplication activateIgnoringOtherApps:YES];
        window.requestActivate();
    }
}

void MacApplicationControl::returnFreeMemory() {
    @autoreleasepool {
        malloc_zone_pressure_relief(nullptr, 0);
    }
}

} // namespace tessarine

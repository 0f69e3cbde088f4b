#include "platform/macos/MacSystemSettings.h"

#import <AppKit/AppKit.h>

namespace tessarine {

bool MacSystemSettings::offers(const QString& page) const {
    @autoreleasepool {
        return page == settingsPages::accessibility || page == settingsPages::fullDiskAccess;
    }
}

bool MacSystemSettings::open(const QString& page) {
    @autoreleasepool {
        NSURL* const address = [NSURL URLWithString:page.toNSString()];
        return address && [NSWorkspace.sharedWorkspace openURL:address];
    }
}

} // namespace tessarine

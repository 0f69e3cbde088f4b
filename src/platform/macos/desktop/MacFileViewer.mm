#include "platform/macos/desktop/MacFileViewer.h"

#import <AppKit/AppKit.h>

namespace tessarine {

void MacFileViewer::reveal(const QString& path) {
    @autoreleasepool {
        NSURL* const file = [NSURL fileURLWithPath:path.toNSString()];
        [NSWorkspace.sharedWorkspace activateFileViewerSelectingURLs:@[ file ]];
    }
}

} // namespace tessarine

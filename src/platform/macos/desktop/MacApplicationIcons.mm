#include "platform/macos/desktop/MacApplicationIcons.h"

#include "platform/macos/desktop/PictureDrawing.h"

#import <UniformTypeIdentifiers/UniformTypeIdentifiers.h>

namespace tessarine {

namespace {

constexpr int iconPixels = 144; // 48 points at three pixels each, the largest that views show

// As wide in points as the system gave it: that tells its small substitute.
QImage drawnIcon(NSImage* icon) {
    QImage image = drawnSquare(icon, iconPixels);
    if (!image.isNull())
        image.setDevicePixelRatio(iconPixels / icon.size.width);
    return image;
}

} // namespace

QImage MacApplicationIcons::iconForFile(const QString& path) const {
    @autoreleasepool {
        return drawnIcon([NSWorkspace.sharedWorkspace iconForFile:path.toNSString()]);
    }
}

QImage MacApplicationIcons::iconForRunningApplication(const RunningApplication& application) const {
    @autoreleasepool {
        NSRunningApplication* const running =
            [NSRunningApplication runningApplicationWithProcessIdentifier:application.pid];
        return drawnIcon(running.icon);
    }
}

QImage MacApplicationIcons::genericApplicationIcon() const {
    @autoreleasepool {
        return drawnIcon([NSWorkspace.sharedWorkspace iconForContentType:UTTypeApplication]);
    }
}

} // namespace tessarine

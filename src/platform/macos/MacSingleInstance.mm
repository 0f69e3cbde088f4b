#include "platform/macos/MacSingleInstance.h"

#include <QDir>
#include <QFileInfo>

#import <AppKit/AppKit.h>
#include <unistd.h>

namespace tessarine {

namespace {

// A program that isn't in a bundle has no identifier.
NSString* ownIdentifier() {
    NSString* const identifier = NSBundle.mainBundle.bundleIdentifier;
    return identifier ? identifier : @"com.zorvek.Tessarine";
}

NSRunningApplication* anotherCopy() {
    for (NSRunningApplication* application in
         [NSRunningApplication runningApplicationsWithBundleIdentifier:ownIdentifier()]) {
        if (application.processIdentifier != getpid())
            return application;
    }
    return nil;
}

} // namespace

MacSingleInstance::MacSingleInstance(QString path)
    : path_(std::move(path)) {}

bool MacSingleInstance::claim() {
    @autoreleasepool {
        if (anotherCopy())
            return false;
        QDir().mkpath(QFileInfo(path_).path());
        return true;
    }
}

void MacSingleInstance::activateFirst() {
    @autoreleasepool {
        [anotherCopy() activateWithOptions:0];
    }
}

} // namespace tessarine

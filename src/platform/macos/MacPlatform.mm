#include "platform/Platform.h"
#include "platform/SingleInstance.h"
#include "platform/macos/MacAccessibility.h"
#include "platform/macos/MacFileSystem.h"
#include "platform/macos/MacFileWatcher.h"
#include "platform/macos/MacLoginItem.h"
#include "platform/macos/MacSingleInstance.h"
#include "platform/macos/MacSystemFacts.h"
#include "platform/macos/MacSystemSettings.h"
#include "platform/macos/MacUserDefaults.h"
#include "platform/macos/MacWorkspace.h"
#include "platform/qt/QtScheduler.h"

#import <Foundation/Foundation.h>

namespace tessarine {

// Qt would bring the program to the front, and give it a place in the Dock, at every start. The
// system would stretch the timers of a program without windows to minutes; it may still sleep.
void prepareProcess() {
    @autoreleasepool {
        qputenv("QT_MAC_DISABLE_FOREGROUND_APPLICATION_TRANSFORM", "1");
        static const id<NSObject> activity = [NSProcessInfo.processInfo
            beginActivityWithOptions:NSActivityUserInitiatedAllowingIdleSystemSleep
                              reason:@"Captures notifications as they come"];
        static_cast<void>(activity);
    }
}

std::unique_ptr<Platform> makePlatform() {
    @autoreleasepool {
        auto platform = std::make_unique<Platform>();
        platform->userDefaults =
            std::make_unique<MacUserDefaults>(NSUserDefaults.standardUserDefaults);
        platform->fileSystem = makeFileSystem();
        platform->scheduler = std::make_unique<QtScheduler>();
        platform->fileWatcher = std::make_unique<MacFileWatcher>(*platform->scheduler);
        platform->workspace = std::make_unique<MacWorkspace>();
        platform->accessibility = std::make_unique<MacAccessibility>();
        platform->loginItem = std::make_unique<MacLoginItem>();
        platform->systemSettings = std::make_unique<MacSystemSettings>();
        platform->systemFacts = std::make_unique<MacSystemFacts>();
        return platform;
    }
}

std::unique_ptr<FileSystem> makeFileSystem() {
    return std::make_unique<MacFileSystem>();
}

std::unique_ptr<SingleInstance> makeSingleInstance(const QString& path) {
    return std::make_unique<MacSingleInstance>(path);
}

} // namespace tessarine

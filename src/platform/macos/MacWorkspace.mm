#include "platform/macos/MacWorkspace.h"

#include "platform/macos/SystemObservation.h"

#include <utility>

#import <AppKit/AppKit.h>

namespace tessarine {

namespace {

RunningApplication described(NSRunningApplication* application) {
    RunningApplication description;
    description.pid = application.processIdentifier;
    if (NSString* const identifier = application.bundleIdentifier)
        description.bundleIdentifier = QString::fromNSString(identifier);
    if (NSString* const name = application.localizedName)
        description.localizedName = QString::fromNSString(name);
    return description;
}

class MacWorkspaceObservation : public WorkspaceObservation {
public:
    explicit MacWorkspaceObservation(std::unique_ptr<SystemObservation> observation)
        : observation_(std::move(observation)) {}

private:
    const std::unique_ptr<SystemObservation> observation_;
};

std::unique_ptr<SystemObservation> onNotification(NSNotificationName name,
                                                  const Workspace::Handler& handler) {
    return observeNotification(NSWorkspace.sharedWorkspace.notificationCenter, name,
                               [handler] { handler(std::nullopt); });
}

// The notifications of launches and terminations leave out programs without a place in the Dock, as
// the one that draws banners. The list of running applications has them all.
std::unique_ptr<SystemObservation> onListChange(NSKeyValueChange kind, NSKeyValueChangeKey members,
                                                const Workspace::Handler& handler) {
    return observeProperty(NSWorkspace.sharedWorkspace, @selector(runningApplications),
                           [kind, members, handler](NSDictionary<NSKeyValueChangeKey, id>* change) {
                               NSNumber* const changed = change[NSKeyValueChangeKindKey];
                               if (changed.unsignedIntegerValue != kind)
                                   return;
                               for (NSRunningApplication* application in change[members])
                                   handler(described(application));
                           });
}

} // namespace

std::vector<RunningApplication>
MacWorkspace::runningApplications(const QString& bundleIdentifier) const {
    @autoreleasepool {
        std::vector<RunningApplication> applications;
        for (NSRunningApplication* application in [NSRunningApplication
                 runningApplicationsWithBundleIdentifier:bundleIdentifier.toNSString()])
            applications.push_back(described(application));
        // The system may take capitals for small letters.
        std::erase_if(applications, [&](const RunningApplication& application) {
            return application.bundleIdentifier != bundleIdentifier;
        });
        return applications;
    }
}

std::optional<QString> MacWorkspace::pathForApplication(const QString& bundleIdentifier) const {
    @autoreleasepool {
        NSURL* const url = [NSWorkspace.sharedWorkspace
            URLForApplicationWithBundleIdentifier:bundleIdentifier.toNSString()];
        NSString* const path = url.path;
        return path ? std::optional(QString::fromNSString(path)) : std::nullopt;
    }
}

std::optional<QString> MacWorkspace::applicationInFolder(const QString& folder,
                                                         const QString& name) const {
    @autoreleasepool {
        const QString path = folder + u'/' + name + QStringLiteral(".app");
        return [NSFileManager.defaultManager fileExistsAtPath:path.toNSString()]
                   ? std::optional(path)
                   : std::nullopt;
    }
}

void MacWorkspace::openApplication(const QString& path) {
    @autoreleasepool {
        NSWorkspaceOpenConfiguration* const configuration =
            [NSWorkspaceOpenConfiguration configuration];
        configuration.activates = YES;
        [NSWorkspace.sharedWorkspace openApplicationAtURL:[NSURL fileURLWithPath:path.toNSString()]
                                            configuration:configuration
                                        completionHandler:nil];
    }
}

void MacWorkspace::openURL(const QString& url) {
    @autoreleasepool {
        if (NSURL* const address = [NSURL URLWithString:url.toNSString()])
            [NSWorkspace.sharedWorkspace openURL:address];
    }
}

std::unique_ptr<WorkspaceObservation> MacWorkspace::observe(WorkspaceEvent event, Handler handler) {
    @autoreleasepool {
        std::unique_ptr<SystemObservation> observation;
        switch (event) {
        case WorkspaceEvent::willSleep:
            observation = onNotification(NSWorkspaceWillSleepNotification, handler);
            break;
        case WorkspaceEvent::didWake:
            observation = onNotification(NSWorkspaceDidWakeNotification, handler);
            break;
        case WorkspaceEvent::didTerminateApplication:
            observation = onListChange(NSKeyValueChangeRemoval, NSKeyValueChangeOldKey, handler);
            break;
        case WorkspaceEvent::didLaunchApplication:
            observation = onListChange(NSKeyValueChangeInsertion, NSKeyValueChangeNewKey, handler);
            break;
        }
        return std::make_unique<MacWorkspaceObservation>(std::move(observation));
    }
}

} // namespace tessarine

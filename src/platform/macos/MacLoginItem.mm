#include "platform/macos/MacLoginItem.h"

#import <ServiceManagement/ServiceManagement.h>

namespace tessarine {

namespace {

LoginItem::Failure failureOf(BOOL isDone, NSError* error) {
    if (isDone)
        return std::nullopt;
    return error ? QString::fromNSString(error.localizedDescription) : QString();
}

} // namespace

LoginItemStatus MacLoginItem::status() const {
    @autoreleasepool {
        switch (SMAppService.mainAppService.status) {
        case SMAppServiceStatusEnabled:
            return LoginItemStatus::enabled;
        case SMAppServiceStatusRequiresApproval:
            return LoginItemStatus::requiresApproval;
        case SMAppServiceStatusNotFound:
            return LoginItemStatus::notFound;
        default:
            return LoginItemStatus::notRegistered;
        }
    }
}

LoginItem::Failure MacLoginItem::registerMainApp() {
    @autoreleasepool {
        NSError* error = nil;
        const BOOL isDone = [SMAppService.mainAppService registerAndReturnError:&error];
        return failureOf(isDone, error);
    }
}

LoginItem::Failure MacLoginItem::unregisterMainApp() {
    @autoreleasepool {
        NSError* error = nil;
        const BOOL isDone = [SMAppService.mainAppService unregisterAndReturnError:&error];
        return failureOf(isDone, error);
    }
}

} // namespace tessarine

#include "platform/macos/MacSystemFacts.h"

#import <Foundation/Foundation.h>

namespace tessarine {

namespace {

QString bundleText(NSString* key) {
    const id value = [NSBundle.mainBundle objectForInfoDictionaryKey:key];
    const bool isText = value && CFGetTypeID((__bridge CFTypeRef)value) == CFStringGetTypeID();
    const QString text = isText ? QString::fromNSString(value) : QString();
    return text.isEmpty() ? QStringLiteral("?") : text;
}

} // namespace

QString MacSystemFacts::programVersion() const {
    @autoreleasepool {
        return bundleText(@"CFBundleShortVersionString");
    }
}

QString MacSystemFacts::programBuild() const {
    @autoreleasepool {
        return bundleText(@"CFBundleVersion");
    }
}

QString MacSystemFacts::systemLabel() const {
    @autoreleasepool {
        return QStringLiteral("macOS");
    }
}

QString MacSystemFacts::systemVersion() const {
    @autoreleasepool {
        return QString::fromNSString(NSProcessInfo.processInfo.operatingSystemVersionString);
    }
}

} // namespace tessarine

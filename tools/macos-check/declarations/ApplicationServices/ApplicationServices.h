// What Tessarine calls of ApplicationServices, declared anew and compared with public records.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <CoreGraphics/CoreGraphics.h>
#include <sys/types.h>

typedef CF_ENUM(SInt32, AXError) {
    kAXErrorSuccess = 0,
    kAXErrorFailure = -25200,
    kAXErrorIllegalArgument = -25201,
    kAXErrorInvalidUIElement = -25202,
    kAXErrorInvalidUIElementObserver = -25203,
    kAXErrorCannotComplete = -25204,
    kAXErrorAttributeUnsupported = -25205,
    kAXErrorActionUnsupported = -25206,
    kAXErrorNotificationUnsupported = -25207,
    kAXErrorNotImplemented = -25208,
    kAXErrorNotificationAlreadyRegistered = -25209,
    kAXErrorNotificationNotRegistered = -25210,
    kAXErrorAPIDisabled = -25211,
    kAXErrorNoValue = -25212
};

typedef const struct CF_BRIDGED_TYPE(id) __AXUIElement* AXUIElementRef;
typedef struct CF_BRIDGED_TYPE(id) __AXObserver* AXObserverRef;

typedef void (*AXObserverCallback)(AXObserverRef observer, AXUIElementRef element,
                                   CFStringRef notification, void* refcon);

CF_EXPORT CFStringRef kAXTrustedCheckOptionPrompt API_AVAILABLE(macos(10.9));

CF_EXPORT Boolean AXIsProcessTrusted(void);
CF_EXPORT Boolean AXIsProcessTrustedWithOptions(CFDictionaryRef options)
    API_AVAILABLE(macos(10.9));

CF_EXPORT CFTypeID AXUIElementGetTypeID(void);
CF_EXPORT AXUIElementRef AXUIElementCreateApplication(pid_t pid) CF_RETURNS_RETAINED;
CF_EXPORT AXError AXUIElementCopyAttributeValue(AXUIElementRef element, CFStringRef attribute,
                                                CFTypeRef* CF_RETURNS_RETAINED value);
CF_EXPORT AXError AXUIElementGetPid(AXUIElementRef element, pid_t* pid);
CF_EXPORT AXError AXUIElementSetMessagingTimeout(AXUIElementRef element, float timeoutInSeconds);

CF_EXPORT CFTypeID AXObserverGetTypeID(void);
CF_EXPORT AXError AXObserverCreate(pid_t application, AXObserverCallback callback,
                                   AXObserverRef* CF_RETURNS_RETAINED outObserver);
CF_EXPORT AXError AXObserverAddNotification(AXObserverRef observer, AXUIElementRef element,
                                            CFStringRef notification, void* refcon);
CF_EXPORT AXError AXObserverRemoveNotification(AXObserverRef observer, AXUIElementRef element,
                                               CFStringRef notification);
CF_EXPORT CFRunLoopSourceRef AXObserverGetRunLoopSource(AXObserverRef observer);

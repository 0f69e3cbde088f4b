#pragma once

// As much of ApplicationServices as the Mac's way to other programs' windows uses, likewise.

#include <CoreFoundation/CoreFoundation.h>
#include <sys/types.h>

enum AXError {
    kAXErrorSuccess = 0,
    kAXErrorFailure = -25200,
    kAXErrorIllegalArgument = -25201,
    kAXErrorInvalidUIElement = -25202,
    kAXErrorInvalidUIElementObserver = -25203,
    kAXErrorCannotComplete = -25204,
    kAXErrorAttributeUnsupported = -25205,
    kAXErrorNotificationUnsupported = -25207,
    kAXErrorNotImplemented = -25208,
    kAXErrorAPIDisabled = -25211,
    kAXErrorNoValue = -25212
};

using AXUIElementRef = const struct PlayedElement*;
using AXObserverRef = struct PlayedObserver*;
using AXObserverCallback = void (*)(AXObserverRef observer, AXUIElementRef element,
                                    CFStringRef name, void* context);

extern const CFStringRef kAXTrustedCheckOptionPrompt;

Boolean AXIsProcessTrusted();
Boolean AXIsProcessTrustedWithOptions(CFDictionaryRef options);

CFTypeID AXUIElementGetTypeID();
AXUIElementRef AXUIElementCreateApplication(pid_t pid);
AXError AXUIElementCopyAttributeValue(AXUIElementRef element, CFStringRef attribute,
                                      CFTypeRef* value);
AXError AXUIElementGetPid(AXUIElementRef element, pid_t* pid);
AXError AXUIElementSetMessagingTimeout(AXUIElementRef element, float seconds);

AXError AXObserverCreate(pid_t pid, AXObserverCallback callback, AXObserverRef* observer);
AXError AXObserverAddNotification(AXObserverRef observer, AXUIElementRef element, CFStringRef name,
                                  void* context);
CFRunLoopSourceRef AXObserverGetRunLoopSource(AXObserverRef observer);

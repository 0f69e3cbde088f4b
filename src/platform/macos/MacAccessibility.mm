#include "platform/macos/MacAccessibility.h"

#include "platform/macos/AccessibilityElement.h"
#include "platform/macos/AccessibilityReading.h"
#include "platform/macos/MacAXObserver.h"

namespace tessarine {

bool MacAccessibility::isProcessTrusted() const {
    @autoreleasepool {
        return AXIsProcessTrusted();
    }
}

void MacAccessibility::promptForTrust() {
    @autoreleasepool {
        const void* key = kAXTrustedCheckOptionPrompt;
        const void* yes = kCFBooleanTrue;
        const OwnedRef<CFDictionaryRef> options(
            CFDictionaryCreate(kCFAllocatorDefault, &key, &yes, 1, &kCFTypeDictionaryKeyCallBacks,
                               &kCFTypeDictionaryValueCallBacks));
        AXIsProcessTrustedWithOptions(options.get());
    }
}

std::unique_ptr<AXObserver> MacAccessibility::createObserver(qint32 pid, AXCallback callback) {
    @autoreleasepool {
        return MacAXObserver::make(pid, std::move(callback));
    }
}

AXElementRef MacAccessibility::applicationElement(qint32 pid) {
    @autoreleasepool {
        return AccessibilityElement::of(
            OwnedRef<AXUIElementRef>(AXUIElementCreateApplication(pid)));
    }
}

void MacAccessibility::setMessagingTimeout(const AXElementRef& element, double seconds) {
    @autoreleasepool {
        if (const AXUIElementRef handle = handleOf(element))
            AXUIElementSetMessagingTimeout(handle, static_cast<float>(seconds));
    }
}

std::optional<AXValue> MacAccessibility::copyAttributeValue(const AXElementRef& element,
                                                            const QString& attribute) {
    @autoreleasepool {
        const AXUIElementRef handle = handleOf(element);
        return handle ? readAttribute(handle, attribute) : std::nullopt;
    }
}

std::optional<qint32> MacAccessibility::pid(const AXElementRef& element) {
    @autoreleasepool {
        const AXUIElementRef handle = handleOf(element);
        pid_t pid = 0;
        if (!handle || AXUIElementGetPid(handle, &pid) != kAXErrorSuccess)
            return std::nullopt;
        return pid;
    }
}

} // namespace tessarine

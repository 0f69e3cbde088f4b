#include "platform/macos/MacAXObserver.h"

#include "platform/macos/AccessibilityElement.h"
#include "platform/macos/TextBridge.h"

namespace tessarine {

namespace {

// To register for an event asks the other process, on the main thread. One that hangs must not keep
// that for the system's default, which is several seconds.
constexpr float registrationTimeout = 2.0F;

} // namespace

MacAXObserver::MacAXObserver(AXCallback callback)
    : callback_(std::move(callback)) {}

std::unique_ptr<AXObserver> MacAXObserver::make(qint32 pid, AXCallback callback) {
    @autoreleasepool {
        std::unique_ptr<MacAXObserver> made(new MacAXObserver(std::move(callback)));
        AXObserverRef created = nullptr;
        const AXError error = AXObserverCreate(pid, &MacAXObserver::onEvent, &created);
        made->observer_ = OwnedRef<AXObserverRef>(created);
        if (error != kAXErrorSuccess || !made->observer_)
            return nullptr;
        return made;
    }
}

MacAXObserver::~MacAXObserver() {
    @autoreleasepool {
        if (observer_)
            CFRunLoopRemoveSource(CFRunLoopGetMain(), AXObserverGetRunLoopSource(observer_.get()),
                                  kCFRunLoopDefaultMode);
    }
}

// What the system answers isn't looked at: an event that can't be had just doesn't come.
void MacAXObserver::addNotification(const AXElementRef& element, const QString& name) {
    @autoreleasepool {
        const AXUIElementRef handle = handleOf(element);
        if (!handle)
            return;
        AXUIElementSetMessagingTimeout(handle, registrationTimeout);
        const OwnedRef<CFStringRef> event = coreTextOf(name);
        AXObserverAddNotification(observer_.get(), handle, event.get(),
                                  const_cast<AXCallback*>(&callback_));
    }
}

void MacAXObserver::attachToMainRunLoop() {
    @autoreleasepool {
        CFRunLoopAddSource(CFRunLoopGetMain(), AXObserverGetRunLoopSource(observer_.get()),
                           kCFRunLoopDefaultMode);
    }
}

// The callback may destroy the observer that it belongs to: it runs from a copy.
void MacAXObserver::onEvent(AXObserverRef, AXUIElementRef element, CFStringRef name,
                            void* context) {
    @autoreleasepool {
        const AXCallback callback = *static_cast<const AXCallback*>(context);
        callback(AccessibilityElement::of(OwnedRef<AXUIElementRef>::sharing(element)),
                 textOf(name));
    }
}

} // namespace tessarine

#include "platform/macos/AccessibilityReading.h"

#include "platform/macos/AccessibilityElement.h"
#include "platform/macos/TextBridge.h"

namespace tessarine {

namespace {

// The only one that copies from an element. What comes is owned before anything looks at it.
OwnedRef<CFTypeRef> copyAttribute(AXUIElementRef element, CFStringRef attribute) {
    CFTypeRef value = nullptr;
    const AXError error = AXUIElementCopyAttributeValue(element, attribute, &value);
    OwnedRef<CFTypeRef> owned(value);
    return error == kAXErrorSuccess ? owned : OwnedRef<CFTypeRef>();
}

bool isElement(CFTypeRef value) {
    return value && CFGetTypeID(value) == AXUIElementGetTypeID();
}

// A list with anything else in it is none of elements.
AXValue elementsOf(CFArrayRef list) {
    std::vector<AXElementRef> elements;
    const CFIndex count = CFArrayGetCount(list);
    for (CFIndex i = 0; i < count; ++i) {
        const CFTypeRef member = CFArrayGetValueAtIndex(list, i);
        if (!isElement(member))
            return {};
        elements.push_back(AccessibilityElement::of(
            OwnedRef<AXUIElementRef>::sharing(static_cast<AXUIElementRef>(member))));
    }
    return elements;
}

AXValue valueOf(CFTypeRef value) {
    const CFTypeID type = CFGetTypeID(value);
    if (type == CFStringGetTypeID())
        return textOf(static_cast<CFStringRef>(value));
    if (type == CFArrayGetTypeID())
        return elementsOf(static_cast<CFArrayRef>(value));
    return {};
}

} // namespace

std::optional<AXValue> readAttribute(AXUIElementRef element, const QString& attribute) {
    const OwnedRef<CFStringRef> name = coreTextOf(attribute);
    const OwnedRef<CFTypeRef> value = copyAttribute(element, name.get());
    return value ? std::optional(valueOf(value.get())) : std::nullopt;
}

} // namespace tessarine

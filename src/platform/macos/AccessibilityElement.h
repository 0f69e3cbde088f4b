#pragma once

#include "platform/Accessibility.h"
#include "platform/macos/OwnedRef.h"

#include <memory>

#include <ApplicationServices/ApplicationServices.h>

namespace tessarine {

// An element of another process, by the system's own handle. Any thread.
class AccessibilityElement : public AXElement {
public:
    explicit AccessibilityElement(OwnedRef<AXUIElementRef> handle)
        : handle_(std::move(handle)) {}

    AXUIElementRef handle() const { return handle_.get(); }

    static AXElementRef of(OwnedRef<AXUIElementRef> handle) {
        return std::make_shared<const AccessibilityElement>(std::move(handle));
    }

private:
    const OwnedRef<AXUIElementRef> handle_;
};

// The handle behind an element; null for one of another making.
inline AXUIElementRef handleOf(const AXElementRef& element) {
    const auto* const known = dynamic_cast<const AccessibilityElement*>(element.get());
    return known ? known->handle() : nullptr;
}

} // namespace tessarine

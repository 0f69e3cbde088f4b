#pragma once

#include "platform/Accessibility.h"

#include <ApplicationServices/ApplicationServices.h>

namespace tessarine {

// The value of an attribute: a text, a list of elements, or monostate for anything else. Nothing on
// any error. Asks the other process, and waits for it within the element's time-out. Any thread.
std::optional<AXValue> readAttribute(AXUIElementRef element, const QString& attribute);

} // namespace tessarine

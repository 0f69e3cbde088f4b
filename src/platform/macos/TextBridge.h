#pragma once

#include "platform/macos/OwnedRef.h"

#include <QString>

namespace tessarine {

// Texts of CoreFoundation, each UTF-16 unit as it is. Any thread.

inline QString textOf(CFStringRef text) {
    QString copy(CFStringGetLength(text), Qt::Uninitialized);
    static_assert(sizeof(UniChar) == sizeof(QChar));
    CFStringGetCharacters(text, CFRangeMake(0, copy.size()),
                          reinterpret_cast<UniChar*>(copy.data()));
    return copy;
}

inline OwnedRef<CFStringRef> coreTextOf(const QString& text) {
    return OwnedRef<CFStringRef>(
        CFStringCreateWithCharacters(kCFAllocatorDefault, text.utf16(), text.size()));
}

} // namespace tessarine

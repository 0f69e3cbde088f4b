#pragma once

// As much of CoreFoundation as the Mac's way to other programs' windows uses, played on Linux:
// PlayedSystem.cpp answers. Names and types are the system's.

#define CF_CONSUMED

using CFTypeRef = const void*;
using CFStringRef = const struct PlayedText*;
using CFArrayRef = const struct PlayedList*;
using CFDictionaryRef = const struct PlayedDictionary*;
using CFBooleanRef = const struct PlayedBoolean*;
using CFAllocatorRef = const struct PlayedAllocator*;
using CFRunLoopRef = struct PlayedRunLoop*;
using CFRunLoopSourceRef = struct PlayedSource*;
using CFRunLoopMode = CFStringRef;
using CFIndex = long;
using CFTypeID = unsigned long;
using UniChar = unsigned short;
using Boolean = unsigned char;

struct CFRange {
    CFIndex location;
    CFIndex length;
};
struct CFDictionaryKeyCallBacks {};
struct CFDictionaryValueCallBacks {};

inline CFRange CFRangeMake(CFIndex location, CFIndex length) {
    return {location, length};
}

extern const CFAllocatorRef kCFAllocatorDefault;
extern const CFBooleanRef kCFBooleanTrue;
extern const CFRunLoopMode kCFRunLoopDefaultMode;
extern const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks;
extern const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks;

CFTypeRef CFRetain(CFTypeRef object);
void CFRelease(CFTypeRef object);
CFTypeID CFGetTypeID(CFTypeRef object);

CFTypeID CFStringGetTypeID();
CFIndex CFStringGetLength(CFStringRef text);
void CFStringGetCharacters(CFStringRef text, CFRange range, UniChar* buffer);
CFStringRef CFStringCreateWithCharacters(CFAllocatorRef allocator, const UniChar* characters,
                                         CFIndex count);

CFTypeID CFArrayGetTypeID();
CFIndex CFArrayGetCount(CFArrayRef list);
const void* CFArrayGetValueAtIndex(CFArrayRef list, CFIndex index);

CFDictionaryRef CFDictionaryCreate(CFAllocatorRef allocator, const void** keys, const void** values,
                                   CFIndex count, const CFDictionaryKeyCallBacks* keyCallBacks,
                                   const CFDictionaryValueCallBacks* valueCallBacks);

CFRunLoopRef CFRunLoopGetMain();
void CFRunLoopAddSource(CFRunLoopRef loop, CFRunLoopSourceRef source, CFRunLoopMode mode);
void CFRunLoopRemoveSource(CFRunLoopRef loop, CFRunLoopSourceRef source, CFRunLoopMode mode);

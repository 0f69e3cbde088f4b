// What Tessarine calls of CoreGraphics, declared anew and compared with public records.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <stddef.h>

#define CG_EXTERN CF_EXPORT

typedef double CGFloat;

struct CGPoint {
    CGFloat x;
    CGFloat y;
};
typedef struct CGPoint CGPoint;

struct CGSize {
    CGFloat width;
    CGFloat height;
};
typedef struct CGSize CGSize;

struct CGRect {
    CGPoint origin;
    CGSize size;
};
typedef struct CGRect CGRect;

static inline CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height)
{
    CGRect rect = {{x, y}, {width, height}};
    return rect;
}

static inline CGSize CGSizeMake(CGFloat width, CGFloat height)
{
    CGSize size = {width, height};
    return size;
}

typedef struct CGContext* CGContextRef;
typedef struct CGColorSpace* CGColorSpaceRef;
typedef struct CGImage* CGImageRef;
typedef struct CGColor* CGColorRef;

typedef CF_ENUM(uint32_t, CGImageAlphaInfo) {
    kCGImageAlphaNone = 0,
    kCGImageAlphaPremultipliedLast = 1,
    kCGImageAlphaPremultipliedFirst = 2,
    kCGImageAlphaLast = 3,
    kCGImageAlphaFirst = 4
};

typedef CF_OPTIONS(uint32_t, CGBitmapInfo) {
    kCGBitmapByteOrder32Little = 2 << 12,
    kCGBitmapByteOrder32Big = 4 << 12
};
#define kCGBitmapByteOrder32Host kCGBitmapByteOrder32Little // both architectures are little-endian

typedef CF_ENUM(int32_t, CGInterpolationQuality) {
    kCGInterpolationDefault = 0,
    kCGInterpolationNone = 1,
    kCGInterpolationLow = 2,
    kCGInterpolationMedium = 4,
    kCGInterpolationHigh = 3
};

typedef CF_ENUM(int32_t, CGBlendMode) {
    kCGBlendModeNormal = 0,
    kCGBlendModeCopy = 17,
    kCGBlendModeSourceIn = 18,
    kCGBlendModeSourceAtop = 20,
    kCGBlendModeDestinationIn = 22
};

CG_EXTERN const CFStringRef kCGColorSpaceSRGB;
CG_EXTERN CGColorSpaceRef CGColorSpaceCreateWithName(CFStringRef name) CF_RETURNS_RETAINED;
CG_EXTERN CGColorSpaceRef CGColorSpaceCreateDeviceRGB(void) CF_RETURNS_RETAINED;
CG_EXTERN void CGColorSpaceRelease(CGColorSpaceRef space);

CG_EXTERN CGContextRef CGBitmapContextCreate(void* data, size_t width, size_t height,
                                             size_t bitsPerComponent, size_t bytesPerRow,
                                             CGColorSpaceRef space,
                                             uint32_t bitmapInfo) CF_RETURNS_RETAINED;
CG_EXTERN void CGContextRelease(CGContextRef c);
CG_EXTERN void CGContextClearRect(CGContextRef c, CGRect rect);
CG_EXTERN void CGContextFillRect(CGContextRef c, CGRect rect);
CG_EXTERN void CGContextDrawImage(CGContextRef c, CGRect rect, CGImageRef image);
CG_EXTERN void CGContextClipToMask(CGContextRef c, CGRect rect, CGImageRef mask);
CG_EXTERN void CGContextSetRGBFillColor(CGContextRef c, CGFloat red, CGFloat green, CGFloat blue,
                                        CGFloat alpha);
CG_EXTERN void CGContextSetBlendMode(CGContextRef c, CGBlendMode mode);
CG_EXTERN void CGContextSetInterpolationQuality(CGContextRef c, CGInterpolationQuality quality);
CG_EXTERN void CGContextTranslateCTM(CGContextRef c, CGFloat tx, CGFloat ty);
CG_EXTERN void CGContextScaleCTM(CGContextRef c, CGFloat sx, CGFloat sy);

CG_EXTERN void CGImageRelease(CGImageRef image);
CG_EXTERN size_t CGImageGetWidth(CGImageRef image);
CG_EXTERN size_t CGImageGetHeight(CGImageRef image);

#include "platform/macos/desktop/PictureDrawing.h"

#include "platform/macos/OwnedRef.h"

#include <QRectF>
#include <QSizeF>

namespace tessarine {

namespace {

// Paints into the image's own memory, in the layout of Format_ARGB32_Premultiplied.
OwnedRef<CGContextRef> contextOver(QImage& image) {
    const OwnedRef<CGColorSpaceRef> space(CGColorSpaceCreateWithName(kCGColorSpaceSRGB));
    return OwnedRef<CGContextRef>(CGBitmapContextCreate(
        image.bits(), std::size_t(image.width()), std::size_t(image.height()), 8,
        std::size_t(image.bytesPerLine()), space.get(),
        uint32_t(kCGImageAlphaPremultipliedFirst) | uint32_t(kCGBitmapByteOrder32Host)));
}

NSRect centredRect(NSSize size, int side) {
    const QSizeF fitting = QSizeF(size.width, size.height).scaled(side, side, Qt::KeepAspectRatio);
    return NSMakeRect((side - fitting.width()) / 2, (side - fitting.height()) / 2, fitting.width(),
                      fitting.height());
}

} // namespace

QImage drawnSquare(NSImage* picture, int pixels) {
    if (!picture || pixels < 1 || picture.size.width <= 0 || picture.size.height <= 0)
        return {};
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const OwnedRef<CGContextRef> context = contextOver(image);
    if (!context)
        return {};
    [NSGraphicsContext saveGraphicsState];
    NSGraphicsContext.currentContext = [NSGraphicsContext graphicsContextWithCGContext:context.get()
                                                                               flipped:NO];
    [picture drawInRect:centredRect(picture.size, pixels)
               fromRect:NSMakeRect(0, 0, 0, 0)
              operation:NSCompositingOperationSourceOver
               fraction:1.0];
    [NSGraphicsContext restoreGraphicsState];
    return image;
}

} // namespace tessarine

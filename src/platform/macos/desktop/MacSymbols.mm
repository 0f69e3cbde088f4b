#include "platform/macos/desktop/MacSymbols.h"

#include "platform/macos/desktop/PictureDrawing.h"

#include <QPainter>

namespace tessarine {

namespace {

// A symbol's shape is somewhat larger than the point size of the text that it would stand in.
constexpr double pointsOfSide = 0.8;

NSImage* symbolOfSize(const QString& name, int pixels) {
    NSImage* const symbol = [NSImage imageWithSystemSymbolName:name.toNSString()
                                      accessibilityDescription:nil];
    return
        [symbol imageWithSymbolConfiguration:[NSImageSymbolConfiguration
                                                 configurationWithPointSize:pixels * pointsOfSide
                                                                     weight:NSFontWeightRegular]];
}

} // namespace

QImage MacSymbols::image(const QString& name, int pixels, const QColor& tint) const {
    @autoreleasepool {
        QImage image = drawnSquare(symbolOfSize(name, pixels), pixels);
        if (image.isNull())
            return {};
        QPainter painter(&image);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(image.rect(), tint);
        return image;
    }
}

std::unique_ptr<Symbols> makeSymbols() {
    return std::make_unique<MacSymbols>();
}

} // namespace tessarine

#include "platform/macos/desktop/MacSystemAppearance.h"

#include "platform/macos/SystemObservation.h"

#import <AppKit/AppKit.h>

namespace tessarine {

namespace {

NSAppearance* systemAppearance(Appearance appearance) {
    switch (appearance) {
    case Appearance::light:
        return [NSAppearance appearanceNamed:NSAppearanceNameAqua];
    case Appearance::dark:
        return [NSAppearance appearanceNamed:NSAppearanceNameDarkAqua];
    case Appearance::system:
        break;
    }
    return nil;
}

} // namespace

struct MacSystemAppearance::Observations {
    std::unique_ptr<SystemObservation> appearance;
    std::unique_ptr<SystemObservation> colours;
    std::unique_ptr<SystemObservation> display;
};

MacSystemAppearance::MacSystemAppearance() {
    @autoreleasepool {
        const auto tell = [this] { Q_EMIT changed(); };
        observations_ = std::make_unique<Observations>();
        observations_->appearance =
            observeProperty(NSApplication.sharedApplication, @selector(effectiveAppearance),
                            [tell](NSDictionary*) { tell(); });
        observations_->colours = observeNotification(NSNotificationCenter.defaultCenter,
                                                     NSSystemColorsDidChangeNotification, tell);
        observations_->display =
            observeNotification(NSWorkspace.sharedWorkspace.notificationCenter,
                                NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification, tell);
    }
}

MacSystemAppearance::~MacSystemAppearance() = default;

bool MacSystemAppearance::prefersDark() const {
    @autoreleasepool {
        NSAppearance* const appearance = NSApplication.sharedApplication.effectiveAppearance;
        NSAppearanceName const best = [appearance
            bestMatchFromAppearancesWithNames:@[ NSAppearanceNameAqua, NSAppearanceNameDarkAqua ]];
        return [best isEqualToString:NSAppearanceNameDarkAqua];
    }
}

bool MacSystemAppearance::reducesMotion() const {
    @autoreleasepool {
        return NSWorkspace.sharedWorkspace.accessibilityDisplayShouldReduceMotion;
    }
}

// The accent differs between light and dark.
std::optional<QColor> MacSystemAppearance::accentColour() const {
    @autoreleasepool {
        __block std::optional<QColor> colour;
        [NSApplication.sharedApplication.effectiveAppearance performAsCurrentDrawingAppearance:^{
          NSColor* const accent =
              [NSColor.controlAccentColor colorUsingColorSpace:NSColorSpace.sRGBColorSpace];
          if (accent)
              colour = QColor::fromRgbF(float(accent.redComponent), float(accent.greenComponent),
                                        float(accent.blueComponent));
        }];
        return colour;
    }
}

bool MacSystemAppearance::prefersHighContrast() const {
    @autoreleasepool {
        return NSWorkspace.sharedWorkspace.accessibilityDisplayShouldIncreaseContrast;
    }
}

void MacSystemAppearance::setAppearance(Appearance appearance) {
    @autoreleasepool {
        NSApplication.sharedApplication.appearance = systemAppearance(appearance);
    }
}

} // namespace tessarine

// What Tessarine calls of AppKit, declared anew and compared with public records. What macOS 10.10 had
// carries no mark; what came later tells when.
#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class NSAppearance, NSColorSpace, NSGraphicsContext, NSImage, NSImageSymbolConfiguration, NSMenu;
@class NSMenuItem, NSRunningApplication, NSStatusBarButton, NSWindow, NSWorkspaceOpenConfiguration;
@class UTType;

typedef NSString* NSAppearanceName;

// --- Events -------------------------------------------------------------------------------------

typedef NS_ENUM(NSUInteger, NSEventType) {
    NSEventTypeLeftMouseDown API_AVAILABLE(macos(10.12)) = 1,
    NSEventTypeLeftMouseUp API_AVAILABLE(macos(10.12)) = 2,
    NSEventTypeRightMouseDown API_AVAILABLE(macos(10.12)) = 3,
    NSEventTypeRightMouseUp API_AVAILABLE(macos(10.12)) = 4,
    NSEventTypeOtherMouseDown API_AVAILABLE(macos(10.12)) = 25,
    NSEventTypeOtherMouseUp API_AVAILABLE(macos(10.12)) = 26
};

typedef NS_OPTIONS(unsigned long long, NSEventMask) {
    NSEventMaskLeftMouseDown API_AVAILABLE(macos(10.12)) = 1ULL << 1,
    NSEventMaskLeftMouseUp API_AVAILABLE(macos(10.12)) = 1ULL << 2,
    NSEventMaskRightMouseDown API_AVAILABLE(macos(10.12)) = 1ULL << 3,
    NSEventMaskRightMouseUp API_AVAILABLE(macos(10.12)) = 1ULL << 4,
    NSEventMaskOtherMouseUp API_AVAILABLE(macos(10.12)) = 1ULL << 26
};

typedef NS_OPTIONS(NSUInteger, NSEventModifierFlags) {
    NSEventModifierFlagShift API_AVAILABLE(macos(10.12)) = 1 << 17,
    NSEventModifierFlagControl API_AVAILABLE(macos(10.12)) = 1 << 18,
    NSEventModifierFlagOption API_AVAILABLE(macos(10.12)) = 1 << 19,
    NSEventModifierFlagCommand API_AVAILABLE(macos(10.12)) = 1 << 20
};

@interface NSEvent : NSObject <NSCopying>
@property (readonly) NSEventType type;
@property (readonly) NSEventModifierFlags modifierFlags;
@property (class, readonly) NSEventModifierFlags modifierFlags;
@end

// --- Pictures -----------------------------------------------------------------------------------

@interface NSColor : NSObject <NSCopying>
@property (class, strong, readonly) NSColor* controlAccentColor API_AVAILABLE(macos(10.14));
@property (class, strong, readonly) NSColor* blackColor;
@property (class, strong, readonly) NSColor* whiteColor;
@property (readonly) CGFloat redComponent;
@property (readonly) CGFloat greenComponent;
@property (readonly) CGFloat blueComponent;
@property (readonly) CGFloat alphaComponent;
- (nullable NSColor*)colorUsingColorSpace:(NSColorSpace*)space;
- (void)set;
+ (NSColor*)colorWithSRGBRed:(CGFloat)red
                       green:(CGFloat)green
                        blue:(CGFloat)blue
                       alpha:(CGFloat)alpha;
@end

@interface NSColorSpace : NSObject
@property (class, strong, readonly) NSColorSpace* sRGBColorSpace;
@end

CF_EXPORT NSNotificationName const NSSystemColorsDidChangeNotification;

typedef CGFloat NSFontWeight;
CF_EXPORT const NSFontWeight NSFontWeightRegular API_AVAILABLE(macos(10.11));
CF_EXPORT const NSFontWeight NSFontWeightMedium API_AVAILABLE(macos(10.11));

typedef NS_ENUM(NSInteger, NSImageSymbolScale) {
    NSImageSymbolScaleSmall = 1,
    NSImageSymbolScaleMedium = 2,
    NSImageSymbolScaleLarge = 3
} API_AVAILABLE(macos(11.0));

API_AVAILABLE(macos(11.0))
@interface NSImageSymbolConfiguration : NSObject <NSCopying>
+ (instancetype)configurationWithPointSize:(CGFloat)pointSize weight:(NSFontWeight)weight;
+ (instancetype)configurationWithPointSize:(CGFloat)pointSize
                                    weight:(NSFontWeight)weight
                                     scale:(NSImageSymbolScale)scale;
+ (instancetype)configurationWithHierarchicalColor:(NSColor*)hierarchicalColor
    API_AVAILABLE(macos(12.0));
+ (instancetype)configurationWithPaletteColors:(NSArray<NSColor*>*)paletteColors
    API_AVAILABLE(macos(12.0));
- (instancetype)configurationByApplyingConfiguration:(NSImageSymbolConfiguration*)configuration;
@end

typedef NS_ENUM(NSUInteger, NSCompositingOperation) {
    NSCompositingOperationCopy API_AVAILABLE(macos(10.12)) = 1,
    NSCompositingOperationSourceOver API_AVAILABLE(macos(10.12)) = 2,
    NSCompositingOperationSourceIn API_AVAILABLE(macos(10.12)) = 3,
    NSCompositingOperationSourceAtop API_AVAILABLE(macos(10.12)) = 5
};

typedef NSString* NSImageHintKey;
typedef NSString* NSImageName;

@interface NSImage : NSObject
@property NSSize size;
@property (nullable, copy) NSString* accessibilityDescription;
@property (getter=isValid, readonly) BOOL valid;
- (BOOL)isTemplate; // a property, whose name is a word of C++
- (void)setTemplate:(BOOL)template_;
- (nullable CGImageRef)CGImageForProposedRect:(nullable NSRect*)proposedDestRect
                                      context:(nullable NSGraphicsContext*)referenceContext
                                        hints:(nullable NSDictionary<NSImageHintKey, id>*)hints
    CF_RETURNS_NOT_RETAINED;
- (nullable NSImage*)imageWithSymbolConfiguration:(NSImageSymbolConfiguration*)configuration
    API_AVAILABLE(macos(11.0));
- (void)drawInRect:(NSRect)rect
          fromRect:(NSRect)fromRect
         operation:(NSCompositingOperation)op
          fraction:(CGFloat)delta;
+ (nullable instancetype)imageWithSystemSymbolName:(NSString*)name
                          accessibilityDescription:(nullable NSString*)description
    API_AVAILABLE(macos(11.0));
@end

@interface NSGraphicsContext : NSObject
@property (class, nullable, strong) NSGraphicsContext* currentContext;
@property (readonly) CGContextRef CGContext;
- (void)saveGraphicsState;
- (void)restoreGraphicsState;
+ (void)saveGraphicsState;
+ (void)restoreGraphicsState;
+ (NSGraphicsContext*)graphicsContextWithCGContext:(CGContextRef)graphicsPort
                                           flipped:(BOOL)initialFlippedState;
@end

// --- Appearance ---------------------------------------------------------------------------------

CF_EXPORT NSAppearanceName const NSAppearanceNameAqua;
CF_EXPORT NSAppearanceName const NSAppearanceNameDarkAqua API_AVAILABLE(macos(10.14));

@interface NSAppearance : NSObject
@property (readonly, copy) NSAppearanceName name;
+ (nullable NSAppearance*)appearanceNamed:(NSAppearanceName)name;
- (nullable NSAppearanceName)bestMatchFromAppearancesWithNames:(NSArray<NSAppearanceName>*)appearances
    API_AVAILABLE(macos(10.14));
- (void)performAsCurrentDrawingAppearance:(void(NS_NOESCAPE ^)(void))block
    API_AVAILABLE(macos(11.0));
@end

// --- The application ----------------------------------------------------------------------------

@interface NSResponder : NSObject
@end

typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy) {
    NSApplicationActivationPolicyRegular,
    NSApplicationActivationPolicyAccessory,
    NSApplicationActivationPolicyProhibited
};

typedef NS_OPTIONS(NSUInteger, NSApplicationActivationOptions) {
    NSApplicationActivateAllWindows = 1 << 0
};

@interface NSApplication : NSResponder
@property (class, readonly, strong) __kindof NSApplication* sharedApplication;
@property (nullable, strong) NSMenu* mainMenu;
@property (nullable, strong) NSAppearance* appearance API_AVAILABLE(macos(10.14));
@property (readonly, strong) NSAppearance* effectiveAppearance API_AVAILABLE(macos(10.14));
@property (nullable, readonly, strong) NSEvent* currentEvent;
@property (getter=isActive, readonly) BOOL active;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)activationPolicy;
- (NSApplicationActivationPolicy)activationPolicy;
- (void)activateIgnoringOtherApps:(BOOL)ignoreOtherApps;
- (void)activate API_AVAILABLE(macos(14.0));
- (void)unhide:(nullable id)sender;
@end

CF_EXPORT __kindof NSApplication* _Null_unspecified NSApp;

@interface NSWindow : NSResponder
- (void)makeKeyAndOrderFront:(nullable id)sender;
- (void)orderFrontRegardless;
@end

@interface NSRunningApplication : NSObject
@property (readonly, getter=isTerminated) BOOL terminated;
@property (readonly, getter=isActive) BOOL active;
@property (readonly) NSApplicationActivationPolicy activationPolicy;
@property (nullable, readonly, copy) NSString* localizedName;
@property (nullable, readonly, copy) NSString* bundleIdentifier;
@property (nullable, readonly, copy) NSURL* bundleURL;
@property (nullable, readonly, copy) NSURL* executableURL;
@property (readonly) pid_t processIdentifier;
@property (nullable, readonly, strong) NSImage* icon;
@property (class, readonly, strong) NSRunningApplication* currentApplication;
- (BOOL)activateWithOptions:(NSApplicationActivationOptions)options;
+ (NSArray<NSRunningApplication*>*)runningApplicationsWithBundleIdentifier:(NSString*)bundleIdentifier;
+ (nullable instancetype)runningApplicationWithProcessIdentifier:(pid_t)pid;
@end

// --- The workspace ------------------------------------------------------------------------------

API_AVAILABLE(macos(10.15))
@interface NSWorkspaceOpenConfiguration : NSObject <NSCopying>
@property BOOL activates;
@property BOOL addsToRecentItems;
@property BOOL promptsUserIfNeeded;
@property BOOL createsNewApplicationInstance;
+ (instancetype)configuration;
@end

@interface NSWorkspace : NSObject
@property (class, readonly, strong) NSWorkspace* sharedWorkspace;
@property (readonly, strong) NSNotificationCenter* notificationCenter;
@property (readonly, copy) NSArray<NSRunningApplication*>* runningApplications;
@property (readonly) BOOL accessibilityDisplayShouldIncreaseContrast;
@property (readonly) BOOL accessibilityDisplayShouldReduceMotion API_AVAILABLE(macos(10.12));
@property (readonly) BOOL accessibilityDisplayShouldReduceTransparency;
- (BOOL)openURL:(NSURL*)url;
- (void)openURL:(NSURL*)url
        configuration:(NSWorkspaceOpenConfiguration*)configuration
    completionHandler:(void (^_Nullable)(NSRunningApplication* _Nullable app,
                                         NSError* _Nullable error))completionHandler
    API_AVAILABLE(macos(10.15));
- (void)openApplicationAtURL:(NSURL*)applicationURL
               configuration:(NSWorkspaceOpenConfiguration*)configuration
           completionHandler:(void (^_Nullable)(NSRunningApplication* _Nullable app,
                                                NSError* _Nullable error))completionHandler
    API_AVAILABLE(macos(10.15));
- (void)activateFileViewerSelectingURLs:(NSArray<NSURL*>*)fileURLs;
- (nullable NSURL*)URLForApplicationWithBundleIdentifier:(NSString*)bundleIdentifier;
- (nullable NSURL*)URLForApplicationToOpenURL:(NSURL*)url;
- (NSImage*)iconForFile:(NSString*)fullPath;
- (NSImage*)iconForContentType:(UTType*)contentType API_AVAILABLE(macos(11.0));
@end

CF_EXPORT NSNotificationName const NSWorkspaceWillSleepNotification;
CF_EXPORT NSNotificationName const NSWorkspaceDidWakeNotification;
CF_EXPORT NSNotificationName const NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification;

// --- Menus and the status item ------------------------------------------------------------------

typedef NSInteger NSControlStateValue;
static const NSControlStateValue NSControlStateValueOff API_AVAILABLE(macos(10.13)) = 0;
static const NSControlStateValue NSControlStateValueOn API_AVAILABLE(macos(10.13)) = 1;

@protocol NSMenuDelegate <NSObject>
@optional
- (void)menuNeedsUpdate:(NSMenu*)menu;
- (void)menuWillOpen:(NSMenu*)menu;
- (void)menuDidClose:(NSMenu*)menu;
@end

@interface NSMenu : NSObject <NSCopying>
@property BOOL autoenablesItems;
@property (readonly) NSInteger numberOfItems;
@property (nullable, weak) id<NSMenuDelegate> delegate;
- (instancetype)initWithTitle:(NSString*)title;
- (void)addItem:(NSMenuItem*)newItem;
- (void)removeAllItems;
@end

@interface NSMenuItem : NSObject <NSCopying>
@property (copy) NSString* title;
@property (copy) NSString* keyEquivalent;
@property NSEventModifierFlags keyEquivalentModifierMask;
@property (getter=isEnabled) BOOL enabled;
@property NSControlStateValue state;
@property NSInteger tag;
@property (nullable, weak) id target;
@property (nullable) SEL action;
@property (nullable, strong) id representedObject;
@property (nullable, strong) NSMenu* submenu;
- (instancetype)initWithTitle:(NSString*)string
                       action:(nullable SEL)selector
                keyEquivalent:(NSString*)charCode;
+ (NSMenuItem*)separatorItem;
@end

@interface NSView : NSResponder
@property (nullable, copy) NSString* toolTip;
@property (nullable, readonly, strong) NSWindow* window;
@end

@interface NSView (NSAccessibility)
@property (nullable, copy) NSString* accessibilityLabel;
@property (nullable, copy) NSString* accessibilityHelp;
@end

@interface NSControl : NSView
@property (nullable, weak) id target;
@property (nullable) SEL action;
@property (getter=isEnabled) BOOL enabled;
- (NSInteger)sendActionOn:(NSEventMask)mask;
- (void)performClick:(nullable id)sender;
@end

typedef NS_ENUM(NSUInteger, NSCellImagePosition) {
    NSNoImage = 0,
    NSImageOnly = 1,
    NSImageLeft = 2,
    NSImageRight = 3,
    NSImageLeading API_AVAILABLE(macos(10.12)) = 7
};

@interface NSButton : NSControl
@property (copy) NSString* title;
@property (nullable, strong) NSImage* image;
@property NSCellImagePosition imagePosition;
- (void)highlight:(BOOL)flag;
@end

@interface NSStatusBarButton : NSButton
@end

static const CGFloat NSVariableStatusItemLength = -1.0;
static const CGFloat NSSquareStatusItemLength = -2.0;

typedef NSString* NSStatusItemAutosaveName;

@interface NSStatusItem : NSObject
@property CGFloat length;
@property (nullable, strong) NSMenu* menu;
@property (nullable, readonly, strong) NSStatusBarButton* button;
@property (null_resettable, copy) NSStatusItemAutosaveName autosaveName API_AVAILABLE(macos(10.12));
@property (getter=isVisible) BOOL visible API_AVAILABLE(macos(10.12));
@end

@interface NSStatusBar : NSObject
@property (class, readonly, strong) NSStatusBar* systemStatusBar;
@property (readonly) CGFloat thickness;
- (NSStatusItem*)statusItemWithLength:(CGFloat)length;
- (void)removeStatusItem:(NSStatusItem*)item;
@end

NS_ASSUME_NONNULL_END

#include "platform/macos/desktop/MacStatusItem.h"

namespace tessarine {

MacStatusItem::MacStatusItem()
    : target_([[TessarineActionTarget alloc] initWithAction:[this] { onClick(); }]) {}

MacStatusItem::~MacStatusItem() {
    @autoreleasepool {
        if (item_)
            [NSStatusBar.systemStatusBar removeStatusItem:item_];
    }
}

void MacStatusItem::setImage(const QString& symbolName, const QString& accessibilityDescription) {
    @autoreleasepool {
        symbolName_ = symbolName;
        description_ = accessibilityDescription;
        refreshImage();
        refreshTip();
    }
}

void MacStatusItem::setTitle(const QString& title) {
    @autoreleasepool {
        title_ = title;
        refreshTitle();
    }
}

void MacStatusItem::setTip(const QString& tip) {
    @autoreleasepool {
        tip_ = tip;
        refreshTip();
    }
}

void MacStatusItem::setAlternateActivation(std::function<void()> activation) {
    @autoreleasepool {
        alternateActivation_ = std::move(activation);
    }
}

void MacStatusItem::setMenuBuilder(MenuBuilder builder) {
    @autoreleasepool {
        builder_ = std::move(builder);
    }
}

void MacStatusItem::show() {
    @autoreleasepool {
        if (item_)
            return;
        item_ = [NSStatusBar.systemStatusBar statusItemWithLength:NSVariableStatusItemLength];
        item_.button.target = target_;
        item_.button.action = @selector(run:);
        [item_.button sendActionOn:NSEventMaskLeftMouseUp | NSEventMaskRightMouseUp];
        refreshImage();
        refreshTitle();
        refreshTip();
    }
}

// As a template it has the colour of the menu bar.
void MacStatusItem::refreshImage() {
    @autoreleasepool {
        NSImage* const image = [NSImage imageWithSystemSymbolName:symbolName_.toNSString()
                                         accessibilityDescription:description_.toNSString()];
        [image setTemplate:YES];
        item_.button.image = image;
    }
}

void MacStatusItem::refreshTitle() {
    @autoreleasepool {
        item_.button.imagePosition = title_.isEmpty() ? NSImageOnly : NSImageLeading;
        item_.button.title = title_.toNSString();
    }
}

void MacStatusItem::refreshTip() {
    @autoreleasepool {
        const QString label =
            tip_.isEmpty() ? description_ : description_ + QStringLiteral(", ") + tip_;
        item_.button.toolTip = (tip_.isEmpty() ? description_ : tip_).toNSString();
        item_.button.accessibilityLabel = label.toNSString();
    }
}

void MacStatusItem::onClick() {
    @autoreleasepool {
        NSEvent* const event = NSApplication.sharedApplication.currentEvent;
        if ((event.modifierFlags & NSEventModifierFlagOption) == 0) {
            openMenu();
        } else if (const std::function<void()> activation = alternateActivation_) {
            activation();
        }
    }
}

// An item that has a menu opens it at every click, and the action would never come: it has one only
// for this click, which returns when the menu has closed.
void MacStatusItem::openMenu() {
    @autoreleasepool {
        if (!builder_)
            return;
        item_.menu = systemMenu(builder_());
        [item_.button performClick:nil];
        item_.menu = nil;
    }
}

} // namespace tessarine

#include "platform/macos/desktop/StatusMenuTarget.h"

#include <utility>

@implementation TessarineActionTarget {
    std::function<void()> _action;
}

- (instancetype)initWithAction:(std::function<void()>)action {
    self = [super init];
    if (self)
        _action = std::move(action);
    return self;
}

- (void)run:(id)sender {
    @autoreleasepool {
        static_cast<void>(sender);
        const std::function<void()> action = _action;
        if (action)
            action();
    }
}

@end

namespace tessarine {

namespace {

NSControlStateValue stateOf(const StatusMenuItem& item) {
    return item.isChecked.value_or(false) ? NSControlStateValueOn : NSControlStateValueOff;
}

NSMenuItem* systemItem(const StatusMenuItem& item) {
    if (item.isSeparator)
        return [NSMenuItem separatorItem];
    TessarineActionTarget* const target =
        [[TessarineActionTarget alloc] initWithAction:item.action];
    NSMenuItem* const made = [[NSMenuItem alloc] initWithTitle:item.title.toNSString()
                                                        action:@selector(run:)
                                                 keyEquivalent:item.key.toNSString()];
    made.target = target;
    made.representedObject = target; // which the item keeps; its target it doesn't
    made.enabled = item.isEnabled;
    made.state = stateOf(item);
    return made;
}

} // namespace

NSMenu* systemMenu(const StatusMenu& items) {
    NSMenu* const menu = [[NSMenu alloc] initWithTitle:@""];
    menu.autoenablesItems = NO;
    for (const StatusMenuItem& item : items)
        [menu addItem:systemItem(item)];
    return menu;
}

} // namespace tessarine

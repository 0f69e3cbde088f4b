#pragma once

#include "platform/StatusItem.h"

#import <AppKit/AppKit.h>

// What a menu item or a button calls: any function. Keeps the function for as long as somebody
// keeps it.
@interface TessarineActionTarget : NSObject
- (instancetype)initWithAction:(std::function<void()>)action;
- (void)run:(id)sender;
@end

namespace tessarine {

// The menu as the system shows it. Each item keeps its own action, so that a choice that the system
// reports after the menu has closed still finds it. Main thread.
NSMenu* systemMenu(const StatusMenu& items);

} // namespace tessarine

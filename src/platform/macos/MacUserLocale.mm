#include "shared/UserLocale.h"

#import <Foundation/Foundation.h>

namespace tessarine {

namespace {

NSDateFormatterStyle systemStyle(DateStyle style) {
    switch (style) {
    case DateStyle::brief:
        return NSDateFormatterShortStyle;
    case DateStyle::medium:
        return NSDateFormatterMediumStyle;
    case DateStyle::full:
        return NSDateFormatterFullStyle;
    case DateStyle::none:
        break;
    }
    return NSDateFormatterNoStyle;
}

} // namespace

// The system's identifiers are ICU's.
QByteArray userDateLocale() {
    @autoreleasepool {
        return QString::fromNSString(NSLocale.currentLocale.localeIdentifier).toLatin1();
    }
}

// The user may have set a clock of 24 hours, or forms of dates, other than the region's.
std::optional<QString> userDatePattern(DateStyle date, DateStyle time) {
    @autoreleasepool {
        NSDateFormatter* const formatter = [[NSDateFormatter alloc] init];
        formatter.dateStyle = systemStyle(date);
        formatter.timeStyle = systemStyle(time);
        return QString::fromNSString(formatter.dateFormat);
    }
}

} // namespace tessarine

#include "platform/macos/MacUserDefaults.h"

#include <cmath>

namespace tessarine {

namespace {

bool isInteger(id value) {
    const CFTypeRef object = (__bridge CFTypeRef)value;
    return CFGetTypeID(object) == CFNumberGetTypeID() &&
           !CFNumberIsFloatType(static_cast<CFNumberRef>(object));
}

bool isText(id value) {
    return CFGetTypeID((__bridge CFTypeRef)value) == CFStringGetTypeID();
}

} // namespace

MacUserDefaults::MacUserDefaults(NSUserDefaults* defaults)
    : defaults_(defaults) {}

bool MacUserDefaults::contains(const QString& key) const {
    @autoreleasepool {
        return [defaults_ objectForKey:key.toNSString()] != nil;
    }
}

bool MacUserDefaults::boolean(const QString& key) const {
    @autoreleasepool {
        return [defaults_ boolForKey:key.toNSString()];
    }
}

qint64 MacUserDefaults::integer(const QString& key) const {
    @autoreleasepool {
        return [defaults_ integerForKey:key.toNSString()];
    }
}

double MacUserDefaults::real(const QString& key) const {
    @autoreleasepool {
        const double value = [defaults_ doubleForKey:key.toNSString()];
        return std::isfinite(value) ? value : 0;
    }
}

std::optional<QString> MacUserDefaults::text(const QString& key) const {
    @autoreleasepool {
        NSString* const value = [defaults_ stringForKey:key.toNSString()];
        return value ? std::optional(QString::fromNSString(value)) : std::nullopt;
    }
}

QStringList MacUserDefaults::textList(const QString& key) const {
    @autoreleasepool {
        QStringList texts;
        for (id member in [defaults_ arrayForKey:key.toNSString()]) {
            if (!isText(member))
                return {};
            texts << QString::fromNSString(member);
        }
        return texts;
    }
}

std::vector<qint64> MacUserDefaults::integerList(const QString& key) const {
    @autoreleasepool {
        std::vector<qint64> numbers;
        for (id member in [defaults_ arrayForKey:key.toNSString()]) {
            if (!isInteger(member))
                return {};
            numbers.push_back([member longLongValue]);
        }
        return numbers;
    }
}

void MacUserDefaults::store(const QString& key, id value) {
    @autoreleasepool {
        [defaults_ setObject:value forKey:key.toNSString()];
        isSaved_ = [defaults_ synchronize];
    }
}

void MacUserDefaults::setBoolean(const QString& key, bool value) {
    @autoreleasepool {
        store(key, [NSNumber numberWithBool:value]);
    }
}

void MacUserDefaults::setInteger(const QString& key, qint64 value) {
    @autoreleasepool {
        store(key, [NSNumber numberWithLongLong:value]);
    }
}

void MacUserDefaults::setReal(const QString& key, double value) {
    @autoreleasepool {
        store(key, [NSNumber numberWithDouble:value]);
    }
}

void MacUserDefaults::setText(const QString& key, const QString& value) {
    @autoreleasepool {
        store(key, value.toNSString());
    }
}

void MacUserDefaults::setTextList(const QString& key, const QStringList& value) {
    @autoreleasepool {
        NSMutableArray<NSString*>* const texts =
            [NSMutableArray arrayWithCapacity:NSUInteger(value.size())];
        for (const QString& text : value)
            [texts addObject:text.toNSString()];
        store(key, texts);
    }
}

void MacUserDefaults::setIntegerList(const QString& key, const std::vector<qint64>& value) {
    @autoreleasepool {
        NSMutableArray<NSNumber*>* const numbers = [NSMutableArray arrayWithCapacity:value.size()];
        for (const qint64 number : value)
            [numbers addObject:[NSNumber numberWithLongLong:number]];
        store(key, numbers);
    }
}

bool MacUserDefaults::hasUnsavedValues() const {
    @autoreleasepool {
        return !isSaved_;
    }
}

} // namespace tessarine

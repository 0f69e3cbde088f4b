#include "platform/macos/SystemObservation.h"

#include <utility>

using ChangeHandler = std::function<void(NSDictionary<NSKeyValueChangeKey, id>*)>;

@interface TessarinePropertyObserver : NSObject
- (instancetype)initWithHandler:(ChangeHandler)handler;
@end

@implementation TessarinePropertyObserver {
    ChangeHandler _handler;
}

- (instancetype)initWithHandler:(ChangeHandler)handler {
    self = [super init];
    if (self)
        _handler = std::move(handler);
    return self;
}

- (void)observeValueForKeyPath:(NSString*)keyPath
                      ofObject:(id)object
                        change:(NSDictionary<NSKeyValueChangeKey, id>*)change
                       context:(void*)context {
    @autoreleasepool {
        static_cast<void>(keyPath);
        static_cast<void>(object);
        static_cast<void>(context);
        const ChangeHandler handler = _handler;
        handler(change);
    }
}

@end

namespace tessarine {

namespace {

class NotificationObservation : public SystemObservation {
public:
    NotificationObservation(NSNotificationCenter* centre, NSNotificationName name,
                            std::function<void()> handler)
        : centre_(centre)
        , token_([centre addObserverForName:name
                                     object:nil
                                      queue:nil
                                 usingBlock:^(NSNotification*) {
                                   @autoreleasepool {
                                       const std::function<void()> running = handler;
                                       running();
                                   }
                                 }]) {}
    ~NotificationObservation() override {
        @autoreleasepool {
            [centre_ removeObserver:token_];
        }
    }

private:
    NSNotificationCenter* const centre_;
    const id<NSObject> token_;
};

class PropertyObservation : public SystemObservation {
public:
    PropertyObservation(NSObject* object, SEL property, ChangeHandler handler)
        : object_(object)
        , keyPath_(NSStringFromSelector(property))
        , observer_([[TessarinePropertyObserver alloc] initWithHandler:std::move(handler)]) {
        [object_ addObserver:observer_
                  forKeyPath:keyPath_
                     options:NSKeyValueObservingOptionNew | NSKeyValueObservingOptionOld
                     context:nullptr];
    }
    ~PropertyObservation() override {
        @autoreleasepool {
            [object_ removeObserver:observer_ forKeyPath:keyPath_ context:nullptr];
        }
    }

private:
    NSObject* const object_;
    NSString* const keyPath_;
    TessarinePropertyObserver* const observer_;
};

} // namespace

std::unique_ptr<SystemObservation> observeNotification(NSNotificationCenter* centre,
                                                       NSNotificationName name,
                                                       std::function<void()> handler) {
    @autoreleasepool {
        return std::make_unique<NotificationObservation>(centre, name, std::move(handler));
    }
}

std::unique_ptr<SystemObservation> observeProperty(NSObject* object, SEL property,
                                                   ChangeHandler handler) {
    @autoreleasepool {
        return std::make_unique<PropertyObservation>(object, property, std::move(handler));
    }
}

} // namespace tessarine

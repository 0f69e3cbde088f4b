#pragma once

#include <functional>
#include <memory>

#import <Foundation/Foundation.h>

namespace tessarine {

// Observations of the system that end with the object that is given. Handlers run on the main
// thread, where their causes are; one may end its own observation. Main thread.
class SystemObservation {
public:
    virtual ~SystemObservation() = default;
};

// Notifications of a centre that come on the main thread.
std::unique_ptr<SystemObservation> observeNotification(NSNotificationCenter* centre,
                                                       NSNotificationName name,
                                                       std::function<void()> handler);

// Changes of a property, told with what has changed. By a selector, so that the compiler knows it.
// The object outlives the observation.
std::unique_ptr<SystemObservation>
observeProperty(NSObject* object, SEL property,
                std::function<void(NSDictionary<NSKeyValueChangeKey, id>*)> handler);

} // namespace tessarine

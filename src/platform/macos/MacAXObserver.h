#pragma once

#include "platform/Accessibility.h"
#include "platform/macos/OwnedRef.h"

#include <memory>

#include <ApplicationServices/ApplicationServices.h>

namespace tessarine {

// The system's observer of one process. Its events come while the main thread's run loop is in its
// default mode: not while a menu or a modal panel is open, but afterwards.
class MacAXObserver : public AXObserver {
public:
    // Null when the system refuses.
    static std::unique_ptr<AXObserver> make(qint32 pid, AXCallback callback);

    ~MacAXObserver() override;

    void addNotification(const AXElementRef& element, const QString& name) override;
    void attachToMainRunLoop() override;

private:
    explicit MacAXObserver(AXCallback callback);

    static void onEvent(AXObserverRef observer, AXUIElementRef element, CFStringRef name,
                        void* context);

    const AXCallback callback_; // the system holds its address
    OwnedRef<AXObserverRef> observer_;
};

} // namespace tessarine

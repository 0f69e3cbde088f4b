#pragma once

#include "platform/Accessibility.h"

namespace tessarine {

// The system's Accessibility interface. There is nothing but a drawing: no announcement is handed
// over.
class MacAccessibility : public Accessibility {
public:
    bool isProcessTrusted() const override;
    void promptForTrust() override;
    std::unique_ptr<AXObserver> createObserver(qint32 pid, AXCallback callback) override;
    AXElementRef applicationElement(qint32 pid) override;
    void setMessagingTimeout(const AXElementRef& element, double seconds) override;
    std::optional<AXValue> copyAttributeValue(const AXElementRef& element,
                                              const QString& attribute) override;
    std::optional<Announcement> takeAnnouncement(const AXElementRef&) override { return {}; }
    std::optional<qint32> pid(const AXElementRef& element) override;
};

} // namespace tessarine

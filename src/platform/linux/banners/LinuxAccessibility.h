#pragma once

#include "platform/Accessibility.h"
#include "platform/linux/banners/BannerProcess.h"
#include "platform/linux/banners/BusMonitor.h"

#include <memory>
#include <string>

namespace tessarine {

// What applications announce on the session's bus, as the windows of the process that draws it.
// Trusted means that the bus lets us look. No question blocks, apart from a short wait at the start
// until that is known.
class LinuxAccessibility : public Accessibility {
public:
    // The address is the session bus's, as D-Bus writes it; empty when there is none.
    LinuxAccessibility(std::shared_ptr<BannerProcess> process, std::string busAddress);

    bool isProcessTrusted() const override;
    void promptForTrust() override {} // a bus lets everybody listen, or nobody
    std::unique_ptr<AXObserver> createObserver(qint32 pid, AXCallback callback) override;
    AXElementRef applicationElement(qint32 pid) override;
    void setMessagingTimeout(const AXElementRef& element, double seconds) override;
    std::optional<AXValue> copyAttributeValue(const AXElementRef& element,
                                              const QString& attribute) override;
    std::optional<Announcement> takeAnnouncement(const AXElementRef& banner) override;
    std::optional<qint32> pid(const AXElementRef& element) override;

private:
    const std::shared_ptr<BannerProcess> process_;
    BusMonitor monitor_;
};

} // namespace tessarine

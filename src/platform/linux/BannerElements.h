#pragma once

#include "platform/Accessibility.h"
#include "platform/linux/BannerTree.h"

#include <functional>
#include <memory>
#include <optional>

namespace tessarine {

// An element of the banner process: knows its own answers. Any thread.
class BannerElement : public AXElement {
public:
    virtual qint32 pid() const = 0;
    virtual std::optional<AXValue> attribute(const QString& name) const = 0;
};

// The window of one state of a banner: one group, whose description and static texts are the
// banner's. Once somebody has asked for the group's description and for each of its texts, the
// window calls allRead with the state's number; it stays readable itself.
AXElementRef bannerWindow(qint32 pid, std::shared_ptr<const BannerState> state,
                          std::function<double()> clock,
                          std::function<void(std::uint64_t number)> allRead);

} // namespace tessarine

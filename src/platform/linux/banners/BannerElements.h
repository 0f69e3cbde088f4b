#pragma once

#include "platform/Accessibility.h"
#include "platform/linux/banners/BannerTree.h"

#include <functional>
#include <memory>
#include <optional>

namespace tessarine {

// An element of the banner process: knows its own answers. Any thread.
class BannerElement : public AXElement {
public:
    // Nothing when the element is gone, for all three.
    virtual std::optional<qint32> pid() const = 0;
    virtual std::optional<AXValue> attribute(const QString& name) const = 0;
    virtual std::optional<Announcement> takeAnnouncement() const = 0;
};

// What the windows found by one look at the banner process have in common.
struct BannerLook {
    qint32 pid = 0;
    double wallClockAhead = 0;                         // of the clock that the states count in
    std::function<bool(BannerState& state)> take = {}; // out of the tree; false: it was before
};

// The window of one state of a banner: one group, described by the title, with one static text. All
// of it is gone once the announcement is taken.
AXElementRef bannerWindow(std::shared_ptr<const BannerLook> look,
                          std::shared_ptr<BannerState> state);

} // namespace tessarine

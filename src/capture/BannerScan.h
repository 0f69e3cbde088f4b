#pragma once

#include "capture/BannerParsing.h"
#include "platform/Accessibility.h"
#include "platform/Scheduler.h"

#include <functional>
#include <vector>

namespace tessarine {

// The maximum depth of the search for banners in a window, the window itself included.
inline constexpr int axMaxDepth = 12;

// One scan: walks the windows of a process and hands each banner that it can read to the handler,
// one after the other, on the calling worker. The system may give a banner only once, so the
// handler must not lose it. Ends early only when it is cancelled from outside, which it asks before
// each window and each banner.
void runBannerScan(Accessibility& accessibility, const Scheduler& clock, qint32 pid,
                   const std::function<void(CapturedNotification)>& handler,
                   const std::function<bool()>& isCancelled = {});

// The banners at and below an element that lies at this depth: groups with a description and a
// direct child of static text. Nothing below a banner is looked at.
std::vector<AXElementRef> collectBanners(Accessibility& accessibility, const AXElementRef& element,
                                         int depth);

// The notification that a banner stands for, at the given moment: what was announced, where the
// system hands it over, else what is drawn. Nothing when there is neither.
std::optional<CapturedNotification> captureBanner(Accessibility& accessibility,
                                                  const AXElementRef& banner, double now);

// The record of an announcement, its texts as they are.
CapturedNotification recordOf(Announcement announcement);

// The description and the static texts of a banner. What can't be read is left out.
BannerTexts readBanner(Accessibility& accessibility, const AXElementRef& banner);

} // namespace tessarine

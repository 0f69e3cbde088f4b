#include "capture/BannerScan.h"

#include "shared/BundleId.h"
#include "shared/ReferenceTime.h"

#include <algorithm>
#include <iterator>

namespace tessarine {

namespace {

constexpr double messagingTimeout = 2.0; // seconds

template <typename Value>
std::optional<Value> attribute(Accessibility& accessibility, const AXElementRef& element,
                               const QString& name) {
    std::optional<AXValue> value = accessibility.copyAttributeValue(element, name);
    Value* const typed = value ? std::get_if<Value>(&*value) : nullptr;
    return typed ? std::optional(std::move(*typed)) : std::nullopt;
}

QString textOf(Accessibility& accessibility, const AXElementRef& element, const QString& name) {
    return attribute<QString>(accessibility, element, name).value_or(QString());
}

std::vector<AXElementRef> elementsOf(Accessibility& accessibility, const AXElementRef& element,
                                     const QString& name) {
    return attribute<std::vector<AXElementRef>>(accessibility, element, name)
        .value_or(std::vector<AXElementRef>());
}

bool isStaticText(Accessibility& accessibility, const AXElementRef& element) {
    return textOf(accessibility, element, ax::role) == ax::staticText;
}

// A group with a description but without a text of its own is only a container.
bool isBanner(Accessibility& accessibility, const AXElementRef& element, const QString& role) {
    if (role != ax::group || textOf(accessibility, element, ax::description).isEmpty())
        return false;
    const std::vector<AXElementRef> children = elementsOf(accessibility, element, ax::children);
    return std::any_of(children.begin(), children.end(), [&](const AXElementRef& child) {
        return isStaticText(accessibility, child);
    });
}

} // namespace

void runBannerScan(Accessibility& accessibility, const Scheduler& clock, qint32 pid,
                   const std::function<void(CapturedNotification)>& handler,
                   const std::function<bool()>& isCancelled) {
    const AXElementRef application = accessibility.applicationElement(pid);
    accessibility.setMessagingTimeout(application, messagingTimeout);
    const auto stopsHere = [&isCancelled] { return isCancelled && isCancelled(); };
    std::vector<AXElementRef> banners;
    for (const AXElementRef& window : elementsOf(accessibility, application, ax::windows)) {
        if (stopsHere())
            return;
        std::vector<AXElementRef> found = collectBanners(accessibility, window, 0);
        std::move(found.begin(), found.end(), std::back_inserter(banners));
    }
    for (const AXElementRef& banner : banners) {
        if (stopsHere())
            return;
        if (auto record = captureBanner(accessibility, banner, clock.now()))
            handler(std::move(*record));
    }
}

std::vector<AXElementRef> collectBanners(Accessibility& accessibility, const AXElementRef& element,
                                         int depth) {
    if (depth >= axMaxDepth || !accessibility.pid(element))
        return {};
    const std::optional<AXValue> role = accessibility.copyAttributeValue(element, ax::role);
    if (!role)
        return {};
    const QString* const roleText = std::get_if<QString>(&*role);
    if (roleText && isBanner(accessibility, element, *roleText))
        return {element};
    std::vector<AXElementRef> banners;
    for (const AXElementRef& child : elementsOf(accessibility, element, ax::children)) {
        std::vector<AXElementRef> found = collectBanners(accessibility, child, depth + 1);
        std::move(found.begin(), found.end(), std::back_inserter(banners));
    }
    return banners;
}

std::optional<CapturedNotification> captureBanner(Accessibility& accessibility,
                                                  const AXElementRef& banner, double now) {
    if (std::optional<Announcement> announcement = accessibility.takeAnnouncement(banner))
        return recordOf(std::move(*announcement));
    return parseBanner(readBanner(accessibility, banner), now);
}

CapturedNotification recordOf(Announcement announcement) {
    CapturedNotification record;
    record.appBundleId = derivedBundleId(announcement.application);
    record.appName = std::move(announcement.application);
    record.title = std::move(announcement.title);
    record.body = std::move(announcement.body);
    record.timestamp = announcement.moment;
    record.noteId = wholeUnixSeconds(announcement.moment);
    return record;
}

BannerTexts readBanner(Accessibility& accessibility, const AXElementRef& banner) {
    BannerTexts texts{textOf(accessibility, banner, ax::description), {}};
    for (const AXElementRef& child : elementsOf(accessibility, banner, ax::children)) {
        if (!isStaticText(accessibility, child))
            continue;
        const QString text = textOf(accessibility, child, ax::value);
        if (!text.isEmpty())
            texts.texts.append(text);
    }
    return texts;
}

} // namespace tessarine

#include "browser/BrowserIcons.h"

#include "apps/AppIconResolver.h"
#include "browser/list/BrowserList.h"
#include "capture/NotificationListener.h"

#include <utility>

namespace tessarine {

namespace {

// In points, with the distance to the next line.
constexpr int lowestRow = 52;
constexpr int headerHeight = 32;

IconOwner ownerOf(const ListEntry& entry) {
    const bool isHeader = entry.kind == ListEntry::Kind::header;
    return {entry.notification.appBundleId, isHeader ? entry.groupKey : entry.notification.appName};
}

bool hasIcon(const ListEntry& entry) {
    return entry.kind == ListEntry::Kind::row || entry.showsApp;
}

// Of the lines that a window of this height has room for at its first sight.
std::vector<IconOwner> ownersInSight(const ListEntries& entries, int height) {
    std::vector<IconOwner> owners;
    int top = 0;
    for (const ListEntry& entry : entries) {
        if (top >= height)
            break;
        if (hasIcon(entry))
            owners.push_back(ownerOf(entry));
        top += entry.kind == ListEntry::Kind::header ? headerHeight : lowestRow;
    }
    return owners;
}

} // namespace

BrowserIcons::BrowserIcons(std::shared_ptr<NotificationListener> listener, BrowserList& list,
                           std::shared_ptr<AppIconResolver> resolver)
    : listener_(std::move(listener))
    , list_(list)
    , resolver_(std::move(resolver)) {
    QObject::connect(listener_.get(), &NotificationListener::notificationsChanged, &connections_,
                     [this] { prepare(); });
    prepare();
}

void BrowserIcons::prepare() {
    if (!resolver_ || isShown_)
        return;
    std::vector<IconOwner> owners;
    for (const CapturedNotification& row : listener_->notifications())
        owners.push_back({row.appBundleId, row.appName});
    resolver_->prepare(owners);
}

void BrowserIcons::appear(int height) {
    isShown_ = true;
    if (!resolver_)
        return;
    resolver_->resolveNow(ownersInSight(list_.lines()->entries(), height));
}

} // namespace tessarine

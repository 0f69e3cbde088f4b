#include "platform/linux/AnnouncementFilter.h"

#include "platform/linux/NotificationsInterface.h"

#include <algorithm>

namespace tessarine {

AnnouncementFilter::AnnouncementFilter(std::shared_ptr<BannerProcess> process)
    : process_(std::move(process)) {}

void AnnouncementFilter::connected(const NameOwner& owner) {
    isConnected_ = true;
    owner_ = owner;
    ++turn_;
    tellService();
}

void AnnouncementFilter::disconnected() {
    if (isConnected_ == false)
        return;
    isConnected_ = false;
    owner_ = {};
    held_.clear(); // the bus takes the calls that it kept with it
    tellService();
}

void AnnouncementFilter::ownerChanged(const NameOwner& owner) {
    if (owner.uniqueName == owner_.uniqueName)
        return;
    owner_ = owner;
    ++turn_;
    tellService();
    if (owner.uniqueName.empty())
        return;
    for (Announcement& announcement : held_)
        show(std::move(announcement));
    held_.clear();
}

void AnnouncementFilter::announced(Announcement announcement) {
    const std::string& destination = announcement.destination;
    if (destination != notifications::name &&
        (destination.empty() || destination != owner_.uniqueName))
        return;
    if (owner_.uniqueName.empty())
        held_.push_back(std::move(announcement));
    else
        show(std::move(announcement));
}

void AnnouncementFilter::answered(const AnnouncementKey& key, std::uint32_t id) {
    process_->answered(key, id);
}

void AnnouncementFilter::refusedByDaemon(const AnnouncementKey& key) {
    process_->answered(key, 0);
}

void AnnouncementFilter::refusedByBus(const AnnouncementKey& key) {
    const auto held = std::find_if(held_.begin(), held_.end(),
                                   [&](const Announcement& waiting) { return waiting.key == key; });
    if (held != held_.end())
        held_.erase(held);
    else
        process_->answered(key, 0);
}

void AnnouncementFilter::closed(std::uint32_t id) {
    process_->closed(id);
}

void AnnouncementFilter::tellService() {
    BannerService service{isConnected_ == true, std::nullopt};
    if (!owner_.uniqueName.empty())
        service.owner = BannerOwner{owner_.pid, turn_};
    process_->setService(service);
}

void AnnouncementFilter::show(Announcement announcement) {
    process_->announce(announcement.key, std::move(announcement.texts), announcement.replacesId);
}

} // namespace tessarine

#include "platform/linux/banners/AnnouncementFilter.h"

#include "platform/linux/banners/NotificationInterfaces.h"

#include <algorithm>
#include <utility>

namespace tessarine {

AnnouncementFilter::AnnouncementFilter(std::shared_ptr<BannerProcess> process)
    : process_(std::move(process)) {}

void AnnouncementFilter::connected(const NameOwner& freedesktop, const NameOwner& gtk) {
    isConnected_ = true;
    owner(NotificationService::freedesktop) = freedesktop;
    owner(NotificationService::gtk) = gtk;
    chooseProcess();
    tellService();
}

void AnnouncementFilter::disconnected() {
    if (isConnected_ == false)
        return;
    isConnected_ = false;
    owners_ = {};
    held_.clear(); // the bus takes the calls that it kept with it
    heldBytes_ = 0;
    for (const auto service : {NotificationService::freedesktop, NotificationService::gtk})
        process_->forgetIds(service);
    chooseProcess();
    tellService();
}

void AnnouncementFilter::ownerChanged(NotificationService service, const NameOwner& next) {
    if (next.uniqueName == owner(service).uniqueName)
        return;
    owner(service) = next;
    process_->forgetIds(service);
    chooseProcess();
    tellService();
    if (!next.uniqueName.empty())
        releaseHeld(service);
}

bool AnnouncementFilter::counts(NotificationService service, std::string_view destination) const {
    return process_->isRecording() &&
           (destination == interfaceOf(service).name || isOwner(service, destination));
}

void AnnouncementFilter::announced(BannerCall call) {
    if (owner(serviceOf(call.id)).uniqueName.empty())
        hold(std::move(call));
    else
        process_->announce(std::move(call));
}

void AnnouncementFilter::answered(std::string_view sender, const AnnouncementKey& key,
                                  std::uint32_t number) {
    if (isOwner(NotificationService::freedesktop, sender))
        process_->answered(key, number);
}

void AnnouncementFilter::refusedByService(std::string_view sender, const AnnouncementKey& key) {
    answered(sender, key, 0);
}

void AnnouncementFilter::refusedByBus(const AnnouncementKey& key) {
    const auto held = std::find_if(held_.begin(), held_.end(),
                                   [&](const BannerCall& waiting) { return waiting.key == key; });
    if (held == held_.end()) {
        process_->answered(key, 0);
        return;
    }
    heldBytes_ -= bytesOf(held->texts);
    held_.erase(held);
}

void AnnouncementFilter::closed(std::string_view sender, std::uint32_t number) {
    if (isOwner(NotificationService::freedesktop, sender))
        process_->closed(number);
}

void AnnouncementFilter::removed(const BannerName& name) {
    process_->closed(name);
}

NameOwner& AnnouncementFilter::owner(NotificationService service) {
    return owners_[static_cast<std::size_t>(service)];
}

const NameOwner& AnnouncementFilter::owner(NotificationService service) const {
    return owners_[static_cast<std::size_t>(service)];
}

bool AnnouncementFilter::isOwner(NotificationService service, std::string_view uniqueName) const {
    return !uniqueName.empty() && uniqueName == owner(service).uniqueName;
}

void AnnouncementFilter::hold(BannerCall call) {
    heldBytes_ += bytesOf(call.texts);
    held_.push_back(std::move(call));
    while (held_.size() > mostHeld || heldBytes_ > mostHeldBytes)
        dropOldestHeld();
}

void AnnouncementFilter::dropOldestHeld() {
    heldBytes_ -= bytesOf(held_.front().texts);
    held_.pop_front();
}

void AnnouncementFilter::releaseHeld(NotificationService service) {
    std::deque<BannerCall> others;
    for (; !held_.empty(); dropOldestHeld()) {
        if (serviceOf(held_.front().id) == service)
            process_->announce(held_.front());
        else
            others.push_back(held_.front());
    }
    for (BannerCall& call : others)
        hold(std::move(call));
}

void AnnouncementFilter::chooseProcess() {
    if (!chosen_.uniqueName.empty() &&
        std::any_of(owners_.begin(), owners_.end(),
                    [&](const auto& owner) { return owner.uniqueName == chosen_.uniqueName; }))
        return;
    const auto next = std::find_if(owners_.begin(), owners_.end(),
                                   [](const auto& owner) { return !owner.uniqueName.empty(); });
    chosen_ = next == owners_.end() ? NameOwner() : *next;
    ++turn_;
}

void AnnouncementFilter::tellService() {
    BannerService service{isConnected_ == true, std::nullopt};
    if (!chosen_.uniqueName.empty())
        service.owner = BannerOwner{chosen_.pid, turn_};
    process_->setService(service);
}

} // namespace tessarine

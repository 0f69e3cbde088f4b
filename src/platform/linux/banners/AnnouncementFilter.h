#pragma once

#include "platform/linux/banners/BannerCall.h"
#include "platform/linux/banners/BannerProcess.h"

#include <array>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tessarine {

// Who holds the name of a service. The unique name is empty when nobody does.
struct NameOwner {
    std::string uniqueName;
    qint32 pid = 0;
};

// Turns what passes by on the bus, told in its order, into what the banner process shows. A call
// counts when its service's name has an owner and the call goes to that one, or when the name gets
// one for this call: what is announced while nobody holds the name waits until the bus has started
// somebody or given up. Answers, errors and signals count when they come from the owner. One
// thread.
//
// A desktop may have two services, in one process or in two; one of them may come late, or never.
// The banner process is the one that was there first, the older service's if both were, and stays
// so until it goes; then the other one's takes its place. So there is one as long as there is any.
class AnnouncementFilter {
public:
    // Of calls that wait for somebody to be started.
    static constexpr std::size_t mostHeld = 10000;
    static constexpr std::size_t mostHeldBytes = 32 << 20; // of texts

    explicit AnnouncementFilter(std::shared_ptr<BannerProcess> process);

    // The bus lets us look; these hold the names now.
    void connected(const NameOwner& freedesktop, const NameOwner& gtk);

    // The bus is gone, or doesn't let us look.
    void disconnected();

    void ownerChanged(NotificationService service, const NameOwner& next);

    // Whether an announcement that is addressed to this name counts, as things stand.
    bool counts(NotificationService service, std::string_view destination) const;

    // The clock of BannerCall::announcedAt.
    double uptime() const { return process_->uptime(); }

    // One that counts.
    void announced(BannerCall call);

    void answered(std::string_view sender, const AnnouncementKey& key, std::uint32_t number);
    void refusedByService(std::string_view sender,
                          const AnnouncementKey& key); // it was announced all the same
    void refusedByBus(const AnnouncementKey& key);     // for a service, or for want of one
    void closed(std::string_view sender, std::uint32_t number);
    void removed(const BannerName& name); // by a call that counts

private:
    NameOwner& owner(NotificationService service);
    const NameOwner& owner(NotificationService service) const;
    bool isOwner(NotificationService service, std::string_view uniqueName) const;
    void hold(BannerCall call);
    void releaseHeld(NotificationService service);
    void dropOldestHeld();
    void chooseProcess();
    void tellService();

    const std::shared_ptr<BannerProcess> process_;
    std::array<NameOwner, 2> owners_; // by service
    NameOwner chosen_;                // the banner process
    std::uint64_t turn_ = 0;          // counts the banner processes
    std::optional<bool> isConnected_; // once it was told
    std::deque<BannerCall> held_;
    std::size_t heldBytes_ = 0;
};

} // namespace tessarine

#pragma once

#include "platform/linux/BannerProcess.h"
#include "platform/linux/BannerTree.h"

#include <deque>
#include <memory>
#include <optional>
#include <string>

namespace tessarine {

// A call of org.freedesktop.Notifications.Notify, as far as a banner shows it.
struct Announcement {
    AnnouncementKey key;
    std::string destination; // the name that the sender addressed
    std::uint32_t replacesId = 0;
    AnnouncedTexts texts;
};

// Who holds the name org.freedesktop.Notifications. The unique name is empty when nobody does.
struct NameOwner {
    std::string uniqueName;
    qint32 pid = 0;
};

// Turns what passes by on the bus, told in its order, into what the banner process shows. A call
// counts when a daemon holds the name or gets it for this call: what is announced while nobody
// holds it waits until the bus has started a daemon or given up. One thread.
class AnnouncementFilter {
public:
    explicit AnnouncementFilter(std::shared_ptr<BannerProcess> process);

    // The bus lets us look; this one holds the name now.
    void connected(const NameOwner& owner);

    // The bus is gone, or doesn't let us look.
    void disconnected();

    void ownerChanged(const NameOwner& owner);

    void announced(Announcement announcement);
    void answered(const AnnouncementKey& key, std::uint32_t id);
    void
    refusedByDaemon(const AnnouncementKey& key);   // with an error; it was announced all the same
    void refusedByBus(const AnnouncementKey& key); // for the daemon, or for want of one
    void closed(std::uint32_t id);

private:
    void tellService();
    void show(Announcement announcement);

    const std::shared_ptr<BannerProcess> process_;
    NameOwner owner_;
    std::uint64_t turn_ = 0;          // counts the owners
    std::optional<bool> isConnected_; // once it was told
    std::deque<Announcement> held_;   // for a daemon yet to be started
};

} // namespace tessarine

#pragma once

#include "platform/linux/banners/BannerCall.h"
#include "platform/linux/banners/RecentMap.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

namespace tessarine {

// One state of a banner.
struct BannerState {
    BannerState(std::uint64_t stateNumber, AnnouncedTexts stateTexts, double stateAnnouncedAt)
        : number(stateNumber)
        , texts(std::move(stateTexts))
        , announcedAt(stateAnnouncedAt) {}

    const std::uint64_t number; // in the order of announcing, never used twice
    const AnnouncedTexts texts; // with a title
    const double announcedAt;
    std::atomic<bool> isTaken{false};
};

// What changed on the screen.
enum class BannerChange { none, shown, replaced };

// The banners on the screen, as a listener must see them: each state of a banner stays until it is
// taken, whatever becomes of the banner meanwhile. A banner that is replaced before it was taken
// shows its old texts first.
// Every operation may be called from any thread.
class BannerTree {
public:
    BannerTree();

    // A banner was announced. Without a title the body leads; with neither there is no banner. Says
    // what changed: nothing too where the banner shows just this and wasn't taken yet.
    BannerChange announce(BannerCall call);

    // The service answered the call: with the banner's number, or (0) with an error.
    void answered(const AnnouncementKey& key, std::uint32_t number);

    // The banner with this id is gone from the screen: its id stands for no banner any more.
    void closed(const BannerId& id);

    // Another process serves and gives its ids from the start.
    void forgetIds(NotificationService service);

    // What wasn't taken yet, in the order of announcing.
    std::vector<std::shared_ptr<BannerState>> pending() const;
    bool isEmpty() const;

    // Takes a state out. False when it was taken before.
    bool take(BannerState& state);

    // Lets the oldest go until no more than so many are left, with texts of no more bytes in all.
    void keepLatest(std::size_t count, std::size_t bytes);

private:
    using StateRef = std::shared_ptr<BannerState>;

    // A banner that a later call may replace. Its texts live no longer than they are needed.
    struct Banner {
        std::weak_ptr<const BannerState> last;
    };
    using BannerRef = std::shared_ptr<Banner>;
    using Ids = RecentMap<BannerId, BannerRef>;

    Ids& idsOf(NotificationService service) { return ids_[static_cast<std::size_t>(service)]; }
    Ids& idsFor(const BannerId& id) { return idsOf(serviceOf(id)); }
    BannerRef bannerFor(const BannerId& id);
    bool shows(const Banner& banner, const AnnouncedTexts& texts) const;
    void remove(std::uint64_t number);

    mutable std::mutex mutex_;
    std::map<std::uint64_t, StateRef> pending_; // by number
    std::size_t pendingBytes_ = 0;
    std::uint64_t lastNumber_ = 0;
    RecentMap<AnnouncementKey, BannerRef> unanswered_;
    std::array<Ids, 2> ids_; // by service
};

} // namespace tessarine

#pragma once

#include "platform/linux/RecentMap.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace tessarine {

// What a banner says, as it is drawn: without markup. The texts may be of any length.
struct AnnouncedTexts {
    QString application;
    QString summary;
    QString body;

    bool operator==(const AnnouncedTexts&) const = default;
};

// Which call announced a banner: the sender's unique name on the bus, and the call's serial.
using AnnouncementKey = std::pair<std::string, std::uint32_t>;

// One state of a banner, with the moment (seconds, monotonic) at which it was announced.
struct BannerState {
    std::uint64_t number = 0; // in the order of announcing, never used twice
    AnnouncedTexts texts;
    double announcedAt = 0;

    // "application, summary, body", without the pieces that are empty. An empty application
    // leaves its place.
    QString description() const;

    // The texts that the banner shows now: summary, age, body; without a summary the body leads.
    QStringList shownTexts(double now) const;
};

// How long ago, as a banner says it: "Just now", "12s ago", "3m ago", "2h ago", "1d ago". Takes
// seconds.
QString ageText(double age);

// What changed on the screen.
enum class BannerChange { none, shown, replaced };

// The banners on the screen, as a listener must see them: each state of a banner stays until one
// whole scan has read it, whatever becomes of the banner meanwhile, and leaves then. A banner that
// is replaced before it was read shows its old texts first.
// Every operation may be called from any thread.
class BannerTree {
public:
    // The clock gives seconds, monotonic, on any thread.
    explicit BannerTree(std::function<double()> clock);

    // A banner was announced; replacesId is 0 for a new one. Says what that changed: nothing where
    // there is no text to show, or where the unread banner shows just this.
    BannerChange announce(const AnnouncementKey& key, AnnouncedTexts texts,
                          std::uint32_t replacesId);

    // The daemon answered the call: with the banner's id, or (0) with an error.
    void answered(const AnnouncementKey& key, std::uint32_t id);

    // The banner with this id is gone from the screen: its id stands for no banner any more.
    void closed(std::uint32_t id);

    // Another daemon gives its ids anew.
    void forgetIds();

    // What is unread, in the order of announcing.
    std::vector<std::shared_ptr<const BannerState>> unread() const;
    bool isEmpty() const;

    // A scan has read this state as a whole: it leaves. True when it was the last one.
    bool markRead(std::uint64_t number);

    double now() const { return clock_(); }

private:
    using StateRef = std::shared_ptr<const BannerState>;

    // A banner that a later call may replace. Its texts live no longer than somebody reads them.
    struct Banner {
        std::weak_ptr<const BannerState> last;
    };
    using BannerRef = std::shared_ptr<Banner>;

    BannerRef bannerFor(std::uint32_t replacesId);
    bool isUnread(const Banner& banner, const AnnouncedTexts& texts) const;

    const std::function<double()> clock_;
    mutable std::mutex mutex_;
    std::map<std::uint64_t, StateRef> unread_; // by number
    std::uint64_t lastNumber_ = 0;
    RecentMap<AnnouncementKey, BannerRef> unanswered_;
    RecentMap<std::uint32_t, BannerRef> byId_;
};

} // namespace tessarine

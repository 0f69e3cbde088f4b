#include "platform/linux/banners/BannerTree.h"

namespace tessarine {

namespace {

// Services that never answer or never close must not make the tree grow. Forgetting one of so many
// only makes a later replacement look like a new banner.
constexpr std::size_t mostUnanswered = 10000;
constexpr std::size_t mostIds = 10000;

bool isForNewBanner(const BannerId& id) {
    const std::uint32_t* const number = std::get_if<std::uint32_t>(&id);
    return number && *number == 0;
}

} // namespace

BannerTree::BannerTree()
    : unanswered_(mostUnanswered)
    , ids_{Ids(mostIds), Ids(mostIds)} {}

BannerChange BannerTree::announce(BannerCall call) {
    if (call.texts.title.isEmpty())
        std::swap(call.texts.title, call.texts.body);
    const std::lock_guard lock(mutex_);
    const bool replaces = idsFor(call.id).find(call.id).has_value();
    const BannerRef banner = bannerFor(call.id);
    if (serviceOf(call.id) == NotificationService::freedesktop)
        unanswered_.set(call.key, banner);
    if (call.texts.title.isEmpty() || shows(*banner, call.texts))
        return BannerChange::none;
    pendingBytes_ += bytesOf(call.texts);
    const auto state =
        std::make_shared<BannerState>(++lastNumber_, std::move(call.texts), call.announcedAt);
    pending_.emplace_hint(pending_.end(), state->number, state);
    banner->last = state;
    return replaces ? BannerChange::replaced : BannerChange::shown;
}

// Until the service answers, a banner goes by the number that the sender asked for.
BannerTree::BannerRef BannerTree::bannerFor(const BannerId& id) {
    if (const std::optional<BannerRef> known = idsFor(id).find(id))
        return *known;
    auto banner = std::make_shared<Banner>();
    if (!isForNewBanner(id))
        idsFor(id).set(id, banner);
    return banner;
}

bool BannerTree::shows(const Banner& banner, const AnnouncedTexts& texts) const {
    const std::shared_ptr<const BannerState> last = banner.last.lock();
    return last && pending_.contains(last->number) && last->texts == texts;
}

void BannerTree::answered(const AnnouncementKey& key, std::uint32_t number) {
    const std::lock_guard lock(mutex_);
    const std::optional<BannerRef> banner = unanswered_.take(key);
    if (banner && number != 0)
        idsOf(NotificationService::freedesktop).set(number, *banner);
}

void BannerTree::closed(const BannerId& id) {
    const std::lock_guard lock(mutex_);
    idsFor(id).take(id);
}

void BannerTree::forgetIds(NotificationService service) {
    const std::lock_guard lock(mutex_);
    idsOf(service).clear();
    if (service == NotificationService::freedesktop)
        unanswered_.clear();
}

std::vector<std::shared_ptr<BannerState>> BannerTree::pending() const {
    const std::lock_guard lock(mutex_);
    std::vector<StateRef> states;
    states.reserve(pending_.size());
    for (const auto& [number, state] : pending_)
        states.push_back(state);
    return states;
}

bool BannerTree::isEmpty() const {
    const std::lock_guard lock(mutex_);
    return pending_.empty();
}

bool BannerTree::take(BannerState& state) {
    if (state.isTaken.exchange(true))
        return false;
    const std::lock_guard lock(mutex_);
    remove(state.number);
    return true;
}

void BannerTree::keepLatest(std::size_t count, std::size_t bytes) {
    const std::lock_guard lock(mutex_);
    while (pending_.size() > count || pendingBytes_ > bytes)
        remove(pending_.begin()->first);
}

void BannerTree::remove(std::uint64_t number) {
    const auto found = pending_.find(number);
    if (found == pending_.end())
        return;
    pendingBytes_ -= bytesOf(found->second->texts);
    pending_.erase(found);
}

} // namespace tessarine

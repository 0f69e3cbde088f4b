#include "platform/linux/BannerTree.h"

namespace tessarine {

namespace {

// Daemons that never answer or never close must not make the tree grow. Forgetting one of so many
// only makes a later replacement look like a new banner.
constexpr std::size_t mostUnanswered = 10000;
constexpr std::size_t mostIds = 10000;

constexpr double secondsInMinute = 60;
constexpr double secondsInHour = 3600;
constexpr double secondsInDay = 86400;

QString ago(double age, double unit, char16_t letter) {
    return QString::number(static_cast<qint64>(age / unit)) + letter + QStringLiteral(" ago");
}

} // namespace

QString ageText(double age) {
    if (age < 1)
        return QStringLiteral("Just now");
    if (age < secondsInMinute)
        return ago(age, 1, u's');
    if (age < secondsInHour)
        return ago(age, secondsInMinute, u'm');
    if (age < secondsInDay)
        return ago(age, secondsInHour, u'h');
    return ago(age, secondsInDay, u'd');
}

QString BannerState::description() const {
    QString description = texts.application;
    for (const QString& text : {texts.summary, texts.body}) {
        if (!text.isEmpty())
            description += QStringLiteral(", ") + text;
    }
    return description;
}

QStringList BannerState::shownTexts(double now) const {
    QStringList shown{texts.summary, ageText(now - announcedAt), texts.body};
    if (texts.summary.isEmpty())
        shown = {texts.body, shown[1]};
    else if (texts.body.isEmpty())
        shown.removeLast();
    return shown;
}

BannerTree::BannerTree(std::function<double()> clock)
    : clock_(std::move(clock))
    , unanswered_(mostUnanswered)
    , byId_(mostIds) {}

BannerChange BannerTree::announce(const AnnouncementKey& key, AnnouncedTexts texts,
                                  std::uint32_t replacesId) {
    const double announcedAt = clock_();
    const std::lock_guard lock(mutex_);
    const bool replaces = byId_.find(replacesId).has_value();
    const BannerRef banner = bannerFor(replacesId);
    unanswered_.set(key, banner);
    const bool isBlank = texts.summary.isEmpty() && texts.body.isEmpty();
    if (isBlank || isUnread(*banner, texts))
        return BannerChange::none;
    const StateRef state = std::make_shared<const BannerState>(
        BannerState{++lastNumber_, std::move(texts), announcedAt});
    unread_.emplace(state->number, state);
    banner->last = state;
    return replaces ? BannerChange::replaced : BannerChange::shown;
}

// Until the daemon answers, a banner goes by the id that the sender asked for.
BannerTree::BannerRef BannerTree::bannerFor(std::uint32_t replacesId) {
    if (const std::optional<BannerRef> known = byId_.find(replacesId))
        return *known;
    auto banner = std::make_shared<Banner>();
    if (replacesId != 0)
        byId_.set(replacesId, banner);
    return banner;
}

bool BannerTree::isUnread(const Banner& banner, const AnnouncedTexts& texts) const {
    const StateRef last = banner.last.lock();
    return last && unread_.contains(last->number) && last->texts == texts;
}

void BannerTree::answered(const AnnouncementKey& key, std::uint32_t id) {
    const std::lock_guard lock(mutex_);
    const std::optional<BannerRef> banner = unanswered_.take(key);
    if (banner && id != 0)
        byId_.set(id, *banner);
}

void BannerTree::closed(std::uint32_t id) {
    const std::lock_guard lock(mutex_);
    byId_.take(id);
}

void BannerTree::forgetIds() {
    const std::lock_guard lock(mutex_);
    byId_.clear();
    unanswered_.clear();
}

std::vector<std::shared_ptr<const BannerState>> BannerTree::unread() const {
    const std::lock_guard lock(mutex_);
    std::vector<std::shared_ptr<const BannerState>> states;
    states.reserve(unread_.size());
    for (const auto& [number, state] : unread_)
        states.push_back(state);
    return states;
}

bool BannerTree::isEmpty() const {
    const std::lock_guard lock(mutex_);
    return unread_.empty();
}

bool BannerTree::markRead(std::uint64_t number) {
    const std::lock_guard lock(mutex_);
    return unread_.erase(number) != 0 && unread_.empty();
}

} // namespace tessarine

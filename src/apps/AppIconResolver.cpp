#include "apps/AppIconResolver.h"

#include "platform/Scheduler.h"

namespace tessarine {

std::shared_ptr<AppIconResolver> AppIconResolver::create(Scheduler& scheduler,
                                                         IconSources sources) {
    return std::shared_ptr<AppIconResolver>(new AppIconResolver(scheduler, sources));
}

AppIconResolver::AppIconResolver(Scheduler& scheduler, IconSources sources)
    : scheduler_(scheduler)
    , sources_(sources) {}

void AppIconResolver::resolve(const QString& bundleId, const QString& appName,
                              Completion completion) {
    const QString key = cacheKey(bundleId, appName);
    if (const auto known = cache_.constFind(key); known != cache_.constEnd()) {
        completion(*known);
        return;
    }
    if (inflight_.contains(key))
        return;
    inflight_.insert(key);
    const auto finish =
        alive_.guard([this, key, completion = std::move(completion)](const QImage& icon) {
            keep(key, icon);
            completion(icon);
        });
    scheduler_.onGlobalQueue(
        QualityOfService::utility,
        [&scheduler = scheduler_, sources = sources_, bundleId, appName, finish] {
            const QImage icon = lookUpIcon(sources, bundleId, appName);
            scheduler.onMain([icon, finish] { finish(icon); });
        });
}

void AppIconResolver::prepare(const std::vector<IconOwner>& owners) {
    std::vector<IconOwner> wanted;
    for (const IconOwner& owner : unknown(owners)) {
        const QString key = cacheKey(owner.bundleId, owner.appName);
        if (inflight_.contains(key) || preparing_.contains(key))
            continue;
        preparing_.insert(key);
        wanted.push_back(owner);
    }
    if (wanted.empty())
        return;
    const auto finish =
        alive_.guard([this](const QString& key, const QImage& icon) { keepPrepared(key, icon); });
    scheduler_.onGlobalQueue(
        QualityOfService::utility,
        [&scheduler = scheduler_, sources = sources_, wanted = std::move(wanted), finish] {
            for (const auto& [bundleId, appName] : wanted) {
                const QImage icon = lookUpIcon(sources, bundleId, appName);
                const QString key = cacheKey(bundleId, appName);
                scheduler.onMain([key, icon, finish] { finish(key, icon); });
            }
        });
}

void AppIconResolver::resolveNow(const std::vector<IconOwner>& owners) {
    for (const auto& [bundleId, appName] : unknown(owners))
        cache_.insert(cacheKey(bundleId, appName), lookUpIcon(sources_, bundleId, appName));
}

// Each key once.
std::vector<IconOwner> AppIconResolver::unknown(const std::vector<IconOwner>& owners) const {
    std::vector<IconOwner> result;
    QSet<QString> keys;
    for (const IconOwner& owner : owners) {
        const QString key = cacheKey(owner.bundleId, owner.appName);
        if (cache_.contains(key) || keys.contains(key))
            continue;
        keys.insert(key);
        result.push_back(owner);
    }
    return result;
}

void AppIconResolver::keepPrepared(const QString& key, const QImage& icon) {
    preparing_.remove(key);
    if (!cache_.contains(key))
        cache_.insert(key, icon);
}

void AppIconResolver::keep(const QString& key, const QImage& icon) {
    cache_.insert(key, icon);
    inflight_.remove(key);
}

QImage AppIconResolver::resolveIcon(const QString& bundleId, const QString& appName) const {
    return lookUpIcon(sources_, bundleId, appName);
}

std::optional<QImage> AppIconResolver::systemSettingsIcon(const QString& appName,
                                                          const QString& bundleId) const {
    return lookUpSystemSettingsIcon(sources_, appName, bundleId);
}

} // namespace tessarine

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

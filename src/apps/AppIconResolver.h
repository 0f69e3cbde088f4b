#pragma once

#include "apps/IconLookup.h"
#include "shared/AliveGuard.h"

#include <QHash>
#include <QImage>
#include <QSet>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace tessarine {

class Scheduler;

// Gives applications their icons: each is looked up once, on a worker, and kept for as long as the
// process runs. Views and the engine own it together. Main thread.
class AppIconResolver : public std::enable_shared_from_this<AppIconResolver> {
public:
    using Completion = std::function<void(const QImage&)>;

    // Scheduler and sources outlive the resolver and the lookups that it has started.
    static std::shared_ptr<AppIconResolver> create(Scheduler& scheduler, IconSources sources);

    static QString cacheKey(const QString& bundleId, const QString& appName) {
        return iconCacheKey(bundleId, appName);
    }

    // Calls the completion with the icon, or a null one where there is none: at once if it is
    // known, else when it has been looked up. Never, if that lookup is under way already: the
    // second to ask gets no answer.
    void resolve(const QString& bundleId, const QString& appName, Completion completion);

    // Looks up what is neither known nor being looked up, one application after the other on a
    // worker, so that views find it known. They may ask for the same meanwhile and get an answer.
    void prepare(const std::vector<IconOwner>& owners);

    // Looks up what is not known on the caller's thread: for the few that are about to be seen.
    void resolveNow(const std::vector<IconOwner>& owners);

    // The finished icons by their keys; null ones among them.
    const QHash<QString, QImage>& cache() const { return cache_; }

    // The lookups themselves, which touch nothing of the resolver's state. Any thread.
    QImage resolveIcon(const QString& bundleId, const QString& appName) const;
    std::optional<QImage> systemSettingsIcon(const QString& appName, const QString& bundleId) const;

private:
    AppIconResolver(Scheduler& scheduler, IconSources sources);

    std::vector<IconOwner> unknown(const std::vector<IconOwner>& owners) const;
    void keep(const QString& key, const QImage& icon);
    void keepPrepared(const QString& key, const QImage& icon);

    Scheduler& scheduler_;
    const IconSources sources_;
    QHash<QString, QImage> cache_; // only ever grows
    QSet<QString> inflight_;       // keys being looked up for a view
    QSet<QString> preparing_;      // keys being looked up ahead of any view
    AliveGuard alive_;
};

} // namespace tessarine

#include "diagnostics/DiagnosticsStore.h"

#include <algorithm>

namespace tessarine {

DiagnosticsStore::DiagnosticsStore(Scheduler& scheduler, HoardStore& hoard)
    : scheduler_(scheduler)
    , hoard_(hoard) {}

DiagnosticsStore::~DiagnosticsStore() = default;

void DiagnosticsStore::log(const QString& message, Level level, Category category) {
    DiagnosticEntry entry;
    entry.timestamp = scheduler_.now();
    entry.level = level;
    entry.category = category;
    entry.message = message;
    entries_.prepend(std::move(entry));
    Q_EMIT entriesChanged();
    if (entries_.size() > maxEntries) {
        entries_.resize(maxEntries);
        Q_EMIT entriesChanged();
    }
}

DiagnosticsStore::Logger DiagnosticsStore::logger() {
    return alive_.guard([this](const QString& message, Level level, Category category) {
        log(message, level, category);
    });
}

std::function<void()> DiagnosticsStore::statsRefresher() {
    return alive_.guard([this] { refreshHoardStats(); });
}

void DiagnosticsStore::clearEntries() {
    entries_.clear();
    Q_EMIT entriesChanged();
}

template <typename Field, typename Value>
void DiagnosticsStore::publish(Field& field, const Value& value) {
    field = value;
    Q_EMIT statusChanged();
}

void DiagnosticsStore::setCapturedTotal(qint64 value) {
    publish(capturedTotal_, value);
}

void DiagnosticsStore::setAxStatus(const QString& value) {
    publish(axStatus_, value);
}

void DiagnosticsStore::setDbStatus(const QString& value) {
    publish(dbStatus_, value);
}

void DiagnosticsStore::setLastSeenRecId(qint64 value) {
    publish(lastSeenRecId_, value);
}

void DiagnosticsStore::setPolling(bool value) {
    publish(isPolling_, value);
}

void DiagnosticsStore::startPollCountdown() {
    publish(isPolling_, true);
    publish(nextPollIn_, pollInterval);
    const int run = ++countdownRun_;
    pollCountdown_ = scheduler_.every(1.0, alive_.guard([this, run] { tick(run); }));
}

void DiagnosticsStore::tick(int run) {
    publish(nextPollIn_, std::max(0.0, nextPollIn_ - 1.0));
    if (nextPollIn_ > 0.0)
        return;
    publish(isPolling_, false);
    // A timer must not be destroyed inside its own call. A restart may have replaced it by then.
    scheduler_.onMain(alive_.guard([this, run] {
        if (run == countdownRun_)
            pollCountdown_.reset();
    }));
}

void DiagnosticsStore::refreshHoardStats() {
    const auto publishStats =
        alive_.guard([this](const HoardStats& stats) { publish(hoardStats_, stats); });
    scheduler_.onGlobalQueue(
        QualityOfService::utility, [publishStats, &hoard = hoard_, &main = scheduler_] {
            main.onMain([publishStats, stats = hoard.stats()] { publishStats(stats); });
        });
}

} // namespace tessarine

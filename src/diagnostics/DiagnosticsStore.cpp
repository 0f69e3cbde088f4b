#include "diagnostics/DiagnosticsStore.h"

#include <algorithm>

namespace tessarine {

DiagnosticsStore::DiagnosticsStore(Scheduler& scheduler, HoardStore& hoard)
    : scheduler_(scheduler)
    , hoard_(hoard)
    , self_(std::make_shared<DiagnosticsStore*>(this)) {}

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
    pollCountdown_ = scheduler_.every(1.0, [this, run, weak = std::weak_ptr(self_)] {
        if (weak.lock())
            tick(run);
    });
}

void DiagnosticsStore::tick(int run) {
    publish(nextPollIn_, std::max(0.0, nextPollIn_ - 1.0));
    if (nextPollIn_ > 0.0)
        return;
    publish(isPolling_, false);
    // Let go of outside its own call, unless a restart has replaced it by then.
    scheduler_.onMain([this, run, weak = std::weak_ptr(self_)] {
        if (weak.lock() && run == countdownRun_)
            pollCountdown_.reset();
    });
}

void DiagnosticsStore::refreshHoardStats() {
    scheduler_.onGlobalQueue(QualityOfService::utility, [this, weak = std::weak_ptr(self_),
                                                         &hoard = hoard_, &main = scheduler_] {
        const HoardStats stats = hoard.stats();
        main.onMain([this, weak, stats] {
            if (weak.lock())
                publish(hoardStats_, stats);
        });
    });
}

} // namespace tessarine

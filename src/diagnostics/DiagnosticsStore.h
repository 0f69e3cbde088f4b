#pragma once

#include "diagnostics/DiagnosticEntry.h"
#include "platform/Scheduler.h"
#include "shared/AliveGuard.h"
#include "store/HoardStore.h"

#include <QList>
#include <QObject>

#include <functional>
#include <memory>

namespace tessarine {

// The live log and the status board of the diagnostics window. In memory only. Main thread: other
// threads hop there before they call.
class DiagnosticsStore : public QObject {
    Q_OBJECT

public:
    static constexpr qsizetype maxEntries = 200;
    static constexpr double pollInterval = 30.0; // seconds that the countdown counts from

    // The hoard is looked at by refreshHoardStats alone.
    DiagnosticsStore(Scheduler& scheduler, HoardStore& hoard);
    ~DiagnosticsStore() override;

    // Newest first. The oldest entries go where there are more than maxEntries.
    const QList<DiagnosticEntry>& entries() const { return entries_; }
    void log(const QString& message, Level level, Category category);
    void clearEntries(); // touches no status field

    // The same as a function, for work that may outlive whoever began it: it does nothing once the
    // store is gone. To be called on the main thread, copied and destroyed on any.
    using Logger = std::function<void(const QString& message, Level level, Category category)>;
    Logger logger();

    qint64 capturedTotal() const { return capturedTotal_; }
    const QString& axStatus() const { return axStatus_; }
    const QString& dbStatus() const { return dbStatus_; }
    qint64 lastSeenRecId() const { return lastSeenRecId_; }
    qint64 dbRecordCount() const { return 0; }        // nothing counts the foreign records
    double nextPollIn() const { return nextPollIn_; } // seconds
    bool isPolling() const { return isPolling_; }
    const HoardStats& hoardStats() const { return hoardStats_; }

    void setCapturedTotal(qint64 value);
    void setAxStatus(const QString& value);
    void setDbStatus(const QString& value);
    void setLastSeenRecId(qint64 value);
    void setPolling(bool value);

    // Restarts the countdown to the next poll: one tick a second, from 30 down to 0.
    void startPollCountdown();

    // Recomputes hoardStats on a worker and publishes it when done.
    void refreshHoardStats();
    std::function<void()> statsRefresher(); // the same as a function, as with logger()

Q_SIGNALS:
    void entriesChanged(); // once for an insertion, once more for a truncation
    void statusChanged();  // any of the status fields

private:
    template <typename Field, typename Value>
    void publish(Field& field, const Value& value);
    void tick(int run);

    Scheduler& scheduler_;
    HoardStore& hoard_;
    QList<DiagnosticEntry> entries_;
    qint64 capturedTotal_ = 0;
    QString axStatus_ = QStringLiteral("Initializing...");
    QString dbStatus_ = QStringLiteral("Initializing...");
    qint64 lastSeenRecId_ = 0;
    double nextPollIn_ = pollInterval;
    bool isPolling_ = false;
    HoardStats hoardStats_;
    std::unique_ptr<RepeatingTimer> pollCountdown_;
    int countdownRun_ = 0; // tells a restarted countdown from the one before it
    AliveGuard alive_;
};

} // namespace tessarine

// Operations on the hoard as a whole: statistics, integrity check, checkpoint.

#include "store/HoardStore.h"
#include "store/Sqlite.h"

#include <QFileInfo>

namespace tessarine {

namespace {

constexpr const char* selectCounts =
    "SELECT COUNT(*), SUM(pinned), COUNT(DISTINCT bundle_id) FROM notifications;";
constexpr const char* selectSpan = "SELECT MIN(timestamp), MAX(timestamp) FROM notifications;";
constexpr const char* checkIntegrity = "PRAGMA integrity_check;";
constexpr const char* takeOverLog = "PRAGMA wal_checkpoint(FULL);";

std::optional<double> positive(double timestamp) {
    return timestamp > 0.0 ? std::optional(timestamp) : std::nullopt;
}

} // namespace

HoardStats HoardStore::stats() {
    HoardStats stats;
    onQueue([&] {
        {
            SqliteStatement counts(db(), selectCounts);
            if (counts.stepsToRow()) {
                stats.totalCount = counts.int64(0);
                stats.pinnedCount = counts.int64(1);
                stats.distinctAppsCount = counts.int64(2);
            }
        }
        SqliteStatement span(db(), selectSpan);
        if (span.stepsToRow()) {
            stats.firstTimestamp = positive(span.real(0));
            stats.lastTimestamp = positive(span.real(1));
        }
    });
    stats.fileSizeBytes = QFileInfo(dbPath_).size();
    return stats;
}

QString HoardStore::integrityCheck() {
    return onQueue([&] {
        SqliteStatement check(db(), checkIntegrity);
        if (!check.isReady())
            return QStringLiteral("Failed to prepare integrity_check");
        QStringList findings;
        while (check.stepsToRow()) {
            if (!check.isNull(0))
                findings.append(check.text(0));
        }
        return findings.join(u'\n');
    });
}

void HoardStore::checkpoint() {
    onQueue([&] { db().execute(takeOverLog); });
}

} // namespace tessarine

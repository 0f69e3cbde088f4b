// Operations on the hoard as a whole: statistics, integrity check, checkpoint. All read or write
// the whole file, which takes seconds in a large hoard. So they run beside the queue, on
// connections of their own, and captures go on meanwhile.

#include "store/HoardStore.h"
#include "store/Sqlite.h"

#include <QFileInfo>

#include <chrono>
#include <thread>

namespace tessarine {

namespace {

constexpr const char* selectCounts =
    "SELECT COUNT(*), SUM(pinned), COUNT(DISTINCT bundle_id) FROM notifications;";
constexpr const char* selectSpan = "SELECT MIN(timestamp), MAX(timestamp) FROM notifications;";
constexpr const char* checkIntegrity = "PRAGMA integrity_check;";
constexpr const char* takeOverLog = "PRAGMA wal_checkpoint(FULL);";

constexpr int checkpointAttempts = 100;
constexpr auto pauseBetweenCheckpoints = std::chrono::milliseconds(20);

// Any failure but a lock is for good.
bool takesOverWholeLog(const SqliteConnection& connection) {
    SqliteStatement statement(connection, takeOverLog);
    if (!statement.stepsToRow())
        return !connection.wasLocked();
    return statement.int32(0) == 0; // whether somebody was in its way
}

std::optional<double> positive(double timestamp) {
    return timestamp > 0.0 ? std::optional(timestamp) : std::nullopt;
}

} // namespace

HoardStats HoardStore::stats() {
    HoardStats stats;
    const auto reader = connectionBeside(SqliteConnection::Mode::ownFileReadOnly);
    {
        SqliteStatement counts(*reader, selectCounts);
        if (counts.stepsToRow()) {
            stats.totalCount = counts.int64(0);
            stats.pinnedCount = counts.int64(1);
            stats.distinctAppsCount = counts.int64(2);
        }
    }
    SqliteStatement span(*reader, selectSpan);
    if (span.stepsToRow()) {
        stats.firstTimestamp = positive(span.real(0));
        stats.lastTimestamp = positive(span.real(1));
    }
    stats.fileSizeBytes = QFileInfo(dbPath_).size();
    return stats;
}

QString HoardStore::integrityCheck() {
    return maintenance_.sync([&] {
        const auto reader = connectionBeside(SqliteConnection::Mode::ownFileReadOnly);
        SqliteStatement check(*reader, checkIntegrity);
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

// SQLite keeps all writers out while it waits for a reader, and while it moves the log. So it
// doesn't wait here, but is asked again until the reader is through; and most of the log is moved
// before.
void HoardStore::checkpoint() {
    maintenance_.sync([&] {
        const auto writer = connectionBeside(SqliteConnection::Mode::ownFile);
        writer->setLockTimeout(0);
        for (int attempt = 0; attempt < checkpointAttempts; ++attempt) {
            writer->checkpointInPassing();
            if (takesOverWholeLog(*writer))
                return;
            std::this_thread::sleep_for(pauseBetweenCheckpoints);
        }
    });
}

std::unique_ptr<SqliteConnection> HoardStore::connectionBeside(SqliteConnection::Mode mode) {
    open();
    auto connection = std::make_unique<SqliteConnection>(dbPath_, mode);
    connection->setLockTimeout(lockTimeout);
    return connection;
}

} // namespace tessarine

#pragma once

#include "platform/FileSystem.h"
#include "platform/Scheduler.h"
#include "platform/SerialQueue.h"
#include "platform/UserDefaults.h"
#include "shared/CapturedNotification.h"
#include "store/DuplicateIndex.h"
#include "store/HoardStats.h"
#include "store/RecentRows.h"
#include "store/Sqlite.h"

#include <QString>

#include <memory>
#include <optional>
#include <set>
#include <vector>

namespace tessarine {

// An application as the hoard knows it: one that came under two names is there twice.
struct DistinctApp {
    QString bundleId;
    QString appName; // may be empty

    bool operator==(const DistinctApp&) const = default;
};

using DistinctAppList = std::vector<DistinctApp>;

// The result of readAhead.
enum class ReadingAhead {
    done,
    gaveWay,    // interrupted for another thread, to be tried again later
    impossible, // the hoard can't be read, or its rows can't be cached
};

// The result of storing a notification.
enum class Insertion {
    stored,  // a row was added
    refused, // its application is excluded, or the hoard has it already
    locked,  // another program holds the hoard
    failed,  // the hoard can't be written: the disk is full, the file damaged, not to be opened ...
};

// Where the hoard lies: in the first folder for application data.
QString hoardPath(const FileSystem& fileSystem);

// The archive of every captured notification: one SQLite file. Any thread may call; each call
// blocks until its work is done, one at a time unless it says otherwise. No operation reports an
// error: a hoard that can't be opened answers false, empty or zero, and the program runs on.
class HoardStore {
public:
    // The defaults hold the excluded applications and the capture cursors; the clock tells how old
    // a row is. The first operation that needs the hoard opens it, making folder, file and schema
    // as needed.
    HoardStore(const FileSystem& fileSystem, UserDefaults& defaults, const Scheduler& clock);
    HoardStore(const HoardStore&) = delete;
    HoardStore& operator=(const HoardStore&) = delete;
    ~HoardStore(); // closes the connection

    // Opens the hoard now rather than at the first operation.
    void open();

    const QString& path() const { return dbPath_; }

    // Whether the file could be opened and is a hoard.
    bool isUsable();

    // Stores a notification that has a key in the system's database. True when a row was added,
    // false when its application is excluded or its key stored already. A noteId outside the
    // signed 32-bit range ends the process.
    bool insert(const CapturedNotification& notification);

    // Stores a notification without such a key, unless a row with the same application id, title
    // and body lies less than 300 seconds from it. True when a row was added.
    bool insertDeduplicated(const CapturedNotification& notification);

    // The same two, for callers that keep what could not be stored. They wait for another program's
    // lock, at most lockTimeout; once that was not enough, the next captures wait only a moment
    // until one of them is stored.
    Insertion tryInsert(const CapturedNotification& notification);
    Insertion tryInsertDeduplicated(const CapturedNotification& notification);

    // The first rows: pinned ones, then the newest. Sorts the whole table only where they aren't
    // cached. A limit outside the signed 32-bit range ends the process.
    NotificationList fetchRecent(qint64 limit);

    // Fills the cache, so that fetchRecent with this limit need not sort the table. For workers: in
    // a large hoard it takes seconds. Stops as soon as another thread waits for the hoard.
    ReadingAhead readAhead(qint64 limit);

    qint64 totalCount();
    qint64 maxSystemNoteId(); // 0 when there is none

    // Reads the whole table, for workers. Nothing else waits for it, nor it for anything else.
    HoardStats stats();

    // All applications with an id, by name without regard to the case of ASCII letters.
    DistinctAppList distinctApps();

    // Pins the row, or takes its pin away. An id that no row has changes nothing.
    void togglePin(qint64 id);

    // Deletions don't spare pinned rows, and don't report failures. An id outside the signed 32-bit
    // range ends the process.
    void deleteNotification(qint64 id);
    void deleteApp(const QString& appName); // all of the shown name, whatever their bundle ids
    void deleteDay(const QString& key);     // 24 hours from the day's start; the key as of dayKey
    void deleteAll();                       // ids go on from the highest there ever was

    // Deletes the rows older than so many days. Gives their number; 0 when the hoard can't be used.
    qint64 deleteOlderThan(qint64 days);

    // Deletes the rows older than so many hours that may hold a one-time code: four digits in a
    // row, or a word that such messages use. Below one hour it does nothing.
    qint64 deleteOtpOlderThan(qint64 hours);

    // The next two are for workers: one at a time, while everything else goes on.

    // Moves the write-ahead log into the main file. Waits some seconds for readers that still need
    // it; what they need after that stays in the log.
    void checkpoint();

    // "ok", or one line for each problem found. Reads the whole file.
    QString integrityCheck();

    // Copies the main file, byte for byte and private, to a place from which a file or a link is
    // removed first. What is still in the write-ahead log is not in the copy. Captures go on
    // meanwhile, and nothing writes to the main file until the copy is there. Gives the error's
    // text; nothing on success. The hoard and its side files, by whatever name or link, are refused
    // as a place, and so is what is neither file nor link. After a failure there is no copy.
    std::optional<QString> copyTo(const QString& destination);

    // Capture cursors. They are stored in the user defaults and never move back.
    qint64 lastSeenUsernotedRecId(); // where none is stored, the highest key in the hoard
    void saveLastSeenUsernotedRecId(qint64 value);
    double lastSeenUsernotedTimestamp() const;
    std::set<qint64> lastSeenUsernotedRecIds() const;
    void saveLastSeenUsernotedState(const std::set<qint64>& recIds, double timestamp);
    qint64 lastSeenSystemNoteId(); // where none is stored, the highest key in the hoard
    void saveLastSeenSystemNoteId(qint64 value);

private:
    static constexpr int lockTimeout = 1500; // milliseconds

    void openOnce();
    void setUpFile();
    void createSchema();
    bool hasPinnedColumn() const;
    qint64 singleInteger(const char* query) const;
    bool isExcluded(const QString& bundleId) const;
    qint64 cursor(const QString& key);
    void raiseCursor(const QString& key, qint64 value);

    std::unique_ptr<SqliteConnection> connectionBeside(SqliteConnection::Mode mode);

    template <typename Work>
    auto onQueue(const Work& work) {
        return queue_.sync([&] {
            openOnce();
            return work();
        });
    }

    // On the queue.

    const SqliteConnection& db() const { return *connection_; }

    // How many rows a write has changed, by triggers too. Nothing when it failed.
    template <typename Write>
    std::optional<int> changesBy(const Write& write) const {
        const int before = db().totalChanges();
        return write() ? std::optional(db().totalChanges() - before) : std::nullopt;
    }
    Insertion runInsertion(SqliteStatement& statement);
    Insertion failure() const;
    void cacheStoredRow(int changes);
    void clearCaches();
    bool isDuplicate(const ProbedTexts& texts, double timestamp);
    bool probeWholeHoard(const ProbedTexts& texts, double timestamp) const;
    bool isDuplicateOfRow(qint64 rowId, const ProbedTexts& texts, double timestamp) const;
    void fillDuplicateIndex(double timestamp, int version);
    bool cacheRecent(qint64 limit);
    NotificationList readRecent(qint64 limit) const;
    std::optional<HoardRow> readRow(qint64 rowId) const;
    void removeDeletedFromCache();
    qint64 deletedBefore(double edge, const char* deletion);

    const QString dbPath_;
    SerialQueue queue_;
    SerialQueue maintenance_;                    // entered before the queue where both are
    std::optional<SqliteConnection> connection_; // guarded by the queue; none: not opened yet
    RecentRows recent_;                          // guarded by the queue
    DuplicateIndex duplicates_;                  // guarded by the queue
    bool isLockHeld_ = false; // by another program, at the last attempt to store a capture
    const FileSystem& fileSystem_;
    UserDefaults& defaults_;
    const Scheduler& clock_;
};

} // namespace tessarine

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

// What a reading ahead came to.
enum class ReadingAhead {
    done,
    gaveWay,    // to be tried again some time
    impossible, // the hoard can't be read, or its order can't be kept
};

// What became of a notification that was to be stored.
enum class Insertion {
    stored,  // a row was added
    refused, // its application is excluded, or the hoard has it already
    locked,  // another program holds the hoard
    failed,  // the hoard can't be written: the disk is full, the file damaged, not to be opened ...
};

// Where the hoard lies: in the first folder for application data.
QString hoardPath(const FileSystem& fileSystem);

// The archive of every captured notification: one SQLite file. Any thread may call; each call
// blocks until its work is done, one at a time. No operation reports an error: a hoard that can't
// be opened answers false, empty or zero, and the program runs on.
class HoardStore {
public:
    // The defaults hold the excluded applications and the capture cursors; the clock tells how old
    // a row is. The first operation that needs the hoard opens it, making folder, file and schema
    // as needed.
    HoardStore(const FileSystem& fileSystem, UserDefaults& defaults, const Scheduler& clock);
    HoardStore(const HoardStore&) = delete;
    HoardStore& operator=(const HoardStore&) = delete;
    ~HoardStore(); // closes the connection

    // Opens the hoard now, for whom no operation will do.
    void open();

    const QString& path() const { return dbPath_; }

    // Stores a notification that has a key in the system's database. True when a row was added,
    // false when its application is excluded or its key stored already. A noteId outside the
    // signed 32-bit range ends the process.
    bool insert(const CapturedNotification& notification);

    // Stores a notification without such a key, unless a row with the same application id, title
    // and body lies less than 300 seconds from it. True when a row was added.
    bool insertDeduplicated(const CapturedNotification& notification);

    // The same two, for callers that keep what could not be stored. A lock of another program's is
    // waited for, at most lockTimeout; once one was not given up in that time, the next captures
    // wait but a moment until one of them is stored.
    Insertion tryInsert(const CapturedNotification& notification);
    Insertion tryInsertDeduplicated(const CapturedNotification& notification);

    // The first rows: pinned ones lead, then the newest. The whole table is sorted only where they
    // aren't known from before. A limit outside the signed 32-bit range ends the process.
    NotificationList fetchRecent(qint64 limit);

    // Sees to it that fetchRecent with this limit has no table to sort. For workers: in a large
    // hoard it takes seconds. It gives way as soon as another thread waits for the hoard.
    ReadingAhead readAhead(qint64 limit);

    qint64 totalCount();
    qint64 maxSystemNoteId(); // 0 when there is none
    HoardStats stats();       // reads the whole table: not on the main thread

    // All applications with an id, by name without regard to the case of ASCII letters.
    DistinctAppList distinctApps();

    // Pins the row, or takes its pin away. An id that no row has changes nothing.
    void togglePin(qint64 id);

    // Deletions take pinned rows like all others. Of failures a caller hears nothing. An id
    // outside the signed 32-bit range ends the process.
    void deleteNotification(qint64 id);
    void deleteApp(const QString& appName); // all of the shown name, whatever their bundle ids
    void deleteDay(const QString& key);     // 24 hours from the day's start; the key as of dayKey
    void deleteAll();                       // ids go on from the highest there ever was

    // The rows older than so many days. How many went; 0 when the hoard can't be used.
    qint64 deleteOlderThan(qint64 days);

    // The rows older than so many hours that may hold a one-time code: four digits in a row, or a
    // word that such messages use. Below one hour there is nothing to do.
    qint64 deleteOtpOlderThan(qint64 hours);

    // Takes the log over into the main file, as far as readers outside this process let it.
    void checkpoint();

    // "ok", or what is wrong, a line for each finding. Reads the whole file.
    QString integrityCheck();

    // Capture cursors. They lie in the user defaults and never move back.
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
    void keepStoredRow(int changes);
    void forgetKept();
    bool isDuplicate(const ProbedTexts& texts, double timestamp);
    bool probeWholeHoard(const ProbedTexts& texts, double timestamp) const;
    bool isDuplicateOfRow(qint64 rowId, const ProbedTexts& texts, double timestamp) const;
    void readDuplicates(double timestamp, int version);
    bool knowRecent(qint64 limit);
    NotificationList readRecent(qint64 limit) const;
    std::optional<HoardRow> readRow(qint64 rowId) const;
    void keepExistingRows();
    qint64 deletedBefore(double edge, const char* deletion);

    const QString dbPath_;
    SerialQueue queue_;
    std::optional<SqliteConnection> connection_; // guarded by the queue; none: not opened yet
    RecentRows recent_;                          // guarded by the queue
    DuplicateIndex duplicates_;                  // guarded by the queue
    bool isLockHeld_ = false; // by another program when a capture was last to be stored
    const FileSystem& fileSystem_;
    UserDefaults& defaults_;
    const Scheduler& clock_;
};

} // namespace tessarine

#include "store/SqliteMainFile.h"

#include <sqlite3.h>

#include <algorithm>
#include <thread>

namespace tessarine {

namespace {

// Fits the processor's cache on its way from one file to the other.
constexpr qint64 partSize = 262144;

constexpr auto pauseBetweenAttempts = std::chrono::milliseconds(5);

// The lock that whoever moves the log into the main file holds: number 1 of the locks of a log's
// index, fixed by SQLite's file format.
constexpr int checkpointLock = 1;

constexpr const char* beginReading = "BEGIN; SELECT COUNT(*) FROM sqlite_master;";
constexpr const char* endReading = "ROLLBACK;";
constexpr const char* journalMode = "PRAGMA journal_mode;";

sqlite3_file* mainFile(sqlite3* handle) {
    sqlite3_file* file = nullptr;
    sqlite3_file_control(handle, "main", SQLITE_FCNTL_FILE_POINTER, &file);
    return file && file->pMethods ? file : nullptr;
}

} // namespace

SqliteMainFile::SqliteMainFile(const SqliteConnection& connection)
    : connection_(connection)
    , file_(connection.isOpen() ? mainFile(connection.handle()) : nullptr)
    , buffer_(partSize, Qt::Uninitialized) {}

SqliteMainFile::~SqliteMainFile() {
    if (isHeld_)
        file_->pMethods->xShmLock(file_, checkpointLock, 1,
                                  SQLITE_SHM_UNLOCK | SQLITE_SHM_EXCLUSIVE);
    connection_.execute(endReading);
}

bool SqliteMainFile::hold(std::chrono::milliseconds timeout) {
    connection_.setLockTimeout(static_cast<int>(timeout.count()));
    if (!connection_.execute(beginReading))
        return !connection_.wasLocked();
    return !usesLog() || takeCheckpointLock(timeout);
}

bool SqliteMainFile::usesLog() const {
    SqliteStatement mode(connection_, journalMode);
    return mode.stepsToRow() && mode.text(0) == QStringLiteral("wal");
}

// SQLite's interface has no call for this lock, but its files have: the reading has opened the
// log's index.
bool SqliteMainFile::takeCheckpointLock(std::chrono::milliseconds timeout) {
    for (auto left = timeout; !isHeld_; left -= pauseBetweenAttempts) {
        isHeld_ = file_->pMethods->xShmLock(file_, checkpointLock, 1,
                                            SQLITE_SHM_LOCK | SQLITE_SHM_EXCLUSIVE) == SQLITE_OK;
        if (!isHeld_ && left <= pauseBetweenAttempts)
            return false;
        if (!isHeld_)
            std::this_thread::sleep_for(pauseBetweenAttempts);
    }
    return true;
}

QByteArrayView SqliteMainFile::next(std::error_code& error) {
    sqlite3_int64 size = 0;
    if (!file_ || file_->pMethods->xFileSize(file_, &size) != SQLITE_OK) {
        error = std::make_error_code(std::errc::io_error);
        return {};
    }
    const int length = static_cast<int>(std::clamp(size - offset_, sqlite3_int64(0), partSize));
    if (length == 0)
        return {};
    if (file_->pMethods->xRead(file_, buffer_.data(), length, offset_) != SQLITE_OK)
        error = std::make_error_code(std::errc::io_error);
    offset_ += length;
    return {buffer_.constData(), length};
}

} // namespace tessarine

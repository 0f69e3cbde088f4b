#pragma once

#include "store/Sqlite.h"

#include <QByteArray>
#include <QByteArrayView>

#include <chrono>
#include <system_error>

struct sqlite3_file;

namespace tessarine {

// The bytes of a database's main file, without its write-ahead log, read through the descriptor
// that SQLite has: to open and close the file besides would drop SQLite's locks on it. One thread.
class SqliteMainFile {
public:
    // The connection serves nothing else while this lives.
    explicit SqliteMainFile(const SqliteConnection& connection);
    SqliteMainFile(const SqliteMainFile&) = delete;
    SqliteMainFile& operator=(const SqliteMainFile&) = delete;
    ~SqliteMainFile(); // lets go

    // Keeps the file as it is from now on, whoever writes to the database: the checkpoint lock
    // keeps the log from being moved into the file, by this process or another, and a read
    // transaction keeps out writers that use no log. What is committed meanwhile goes into the log.
    // Waits as long as given for who is moving it right now. False when that was not enough; the
    // file of a database too damaged to be locked can't be written by SQLite and needs no lock.
    bool hold(std::chrono::milliseconds timeout);

    // The next bytes, from the start on; none at the end. Valid until the next call.
    QByteArrayView next(std::error_code& error);

private:
    bool usesLog() const;
    bool takeCheckpointLock(std::chrono::milliseconds timeout);

    const SqliteConnection& connection_;
    sqlite3_file* file_ = nullptr; // the connection's
    QByteArray buffer_;
    qint64 offset_ = 0;
    bool isHeld_ = false; // the checkpoint lock
};

} // namespace tessarine

#pragma once

#include "tools/SqliteConnection.h"
#include "tools/UsernotedPayload.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tessarine::tools {

// Writes a database as the system's notification daemon does: an SQLite file in WAL mode with a
// row for each delivered notification. For tests, benchmarks and developers; the program itself
// never writes such a file.
//
// Failures are values: false or nothing, with the reason in `lastError`. Use from one thread at a
// time. Another writer is waited for up to ten seconds.
class UsernotedDatabase {
public:
    // Touches no file yet.
    explicit UsernotedDatabase(QString path);

    // Makes folder, file and tables where they are missing, and opens the file if it isn't open.
    bool createTables();
    // Opens a file that exists and bears the tables. Sets WAL mode where it isn't set.
    bool open();
    bool isOpen() const { return connection_.isOpen(); }
    // Rolls back an open transaction. Without other connections the -wal file goes.
    void close();

    // The id of the application with this identifier, whose row is added if it is missing. The
    // daemon keeps identifiers in lower case; the text is taken as it stands.
    std::optional<qint64> appId(const QString& identifier);
    // Whether `app` has a row for this id; nothing on failure.
    std::optional<bool> hasApp(qint64 appId);

    // The greatest `rec_id`, 0 in an empty table.
    std::optional<qint64> lastRecordId();
    std::optional<qint64> recordCount();

    // Adds a row to `record`: no payload is NULL, the date (seconds since 2001-01-01 00:00:00 UTC)
    // may be of any type. Outside of a transaction each row is one of its own.
    bool append(qint64 recordId, qint64 appId, const std::optional<QByteArray>& payload,
                const ColumnValue& deliveredDate);

    enum class Transaction {
        Immediate, // takes the right to write at once, since one that reads first isn't waited
                   // for
        Exclusive, // keeps other writers away; readers of a file in WAL mode go on
    };
    bool begin(Transaction kind = Transaction::Immediate);
    bool commit();
    void rollback();
    bool inTransaction() const { return connection_.inTransaction(); }

    enum class Checkpoint {
        Passive,  // copies what it can without waiting, as SQLite does by itself now and then
        Truncate, // copies everything and cuts the -wal file to no length
    };
    std::optional<SqliteConnection::Checkpointed> checkpoint(Checkpoint kind);

    const QString& path() const { return path_; }
    QString lastError() const { return connection_.lastError(); }

private:
    bool start();
    bool ensureStatement(std::optional<SqliteStatement>& statement, const char* sql);

    QString path_;
    SqliteConnection connection_;
    // Kept prepared, since benchmarks append by the hundred thousand.
    std::optional<SqliteStatement> insertRecord_;
    std::optional<SqliteStatement> selectApp_;
};

} // namespace tessarine::tools

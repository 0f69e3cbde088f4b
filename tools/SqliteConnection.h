#pragma once

#include <QByteArray>
#include <QString>

#include <sqlite3.h>

#include <memory>
#include <optional>
#include <variant>

namespace tessarine::tools {

// What a column takes: NULL, a number or a text.
using ColumnValue = std::variant<std::monostate, qint64, double, QString>;

// One prepared statement, run any number of times. It must not outlive its connection.
class SqliteStatement {
public:
    SqliteStatement() = default;

    // Parameters count from 1. Values are copied. A number that is no number (NaN) becomes NULL.
    void bind(int parameter, const ColumnValue& value);
    void bind(int parameter, qint64 number);
    // No bytes at all is NULL; an empty array is a blob of length zero.
    void bind(int parameter, const std::optional<QByteArray>& bytes);

    enum class Step { Row, Done, Failed };
    Step step();
    // Of the row that `step` came to. NULL and text that is no number read as 0.
    qint64 integer(int column) const;
    QString text(int column) const;
    bool isNull(int column) const;
    // Makes the statement ready to run again; what was bound stays.
    void reset();

private:
    friend class SqliteConnection;
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };
    std::unique_ptr<sqlite3_stmt, Finalizer> statement_;
};

// A connection to an SQLite file whose failures are values: an operation tells whether it came
// about, and `lastError` tells why not. It waits for other writers for several seconds. To be used
// from one thread at a time.
class SqliteConnection {
public:
    enum class Missing {
        Fail,
        Create, // makes the folder and the file
    };

    // Opens the file for reading and writing. False if that fails or if it is open already.
    bool open(const QString& path, Missing missing);
    bool isOpen() const { return connection_ != nullptr; }
    // Rolls back an open transaction. Statements must be gone. The last connection of all to leave
    // a file in WAL mode takes the log along, as SQLite does.
    void close();
    // Closes, and makes this the last error. Gives false, so that a caller can return it.
    bool fail(const QString& error);

    // Runs one or more statements without looking at their rows.
    bool execute(const char* sql);
    // Nothing if the statement doesn't compile.
    std::optional<SqliteStatement> prepare(const char* sql);
    // The first column of the first row of a statement without parameters; nothing if there is no
    // row, if it is NULL, or on failure.
    std::optional<QString> firstText(const char* sql);
    std::optional<qint64> firstInteger(const char* sql);

    bool inTransaction() const;

    struct Checkpointed {
        int logFrames = 0;
        int checkpointedFrames = 0;
    };
    // One of SQLITE_CHECKPOINT_PASSIVE, _FULL, _RESTART, _TRUNCATE.
    std::optional<Checkpointed> checkpoint(int mode);

    // Why the last operation failed; meaningful only after a failure.
    QString lastError() const;

private:
    bool requireOpen();
    std::optional<SqliteStatement> firstRow(const char* sql);

    struct Closer {
        void operator()(sqlite3* connection) const { sqlite3_close(connection); }
    };
    std::unique_ptr<sqlite3, Closer> connection_;
    // Of the failures that came about without a connection.
    QString ownError_;
};

} // namespace tessarine::tools

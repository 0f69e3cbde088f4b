#pragma once

#include <QByteArray>
#include <QString>

struct sqlite3;
struct sqlite3_stmt;

namespace tessarine {

// The version of the library that runs, as a database in memory is opened with.
QString sqliteVersion();

// A connection to a database file for the length of a scope. One that can't be opened stays closed:
// every statement on it fails.
class SqliteConnection {
public:
    enum class Mode {
        ownFile, // made where it is missing; SQLite's full mutex
        // A second connection to the same, for long readings beside the first. One thread.
        ownFileReadOnly,
        // Another program's database, for one reading. Opened for writing although nothing is
        // written: a write-ahead log that needs recovery can't be read otherwise. No busy timeout:
        // what is locked is read the next time.
        foreignFile,
    };

    SqliteConnection(const QString& path, Mode mode);
    SqliteConnection(const SqliteConnection&) = delete;
    SqliteConnection& operator=(const SqliteConnection&) = delete;
    ~SqliteConnection();

    bool isOpen() const { return isOpen_; }

    // Runs a script to its end. False on any error.
    bool execute(const char* script) const;

    // How long a statement waits for another connection's lock before it fails.
    void setLockTimeout(int milliseconds) const;

    // Whether the last call failed because of another connection's lock.
    bool wasLocked() const;

    // What SQLite says of the last call's failure.
    QString errorText() const;

    // Moves what it can of the write-ahead log into the main file, in nobody's way: neither readers
    // nor writers wait.
    void checkpointInPassing() const;

    qint64 lastInsertRowId() const;
    int changes() const;      // rows that the last statement changed
    int totalChanges() const; // rows changed so far, by triggers too

    // SQLite's data version. It changes when another connection has committed, and not when this
    // one writes. -1 when it can't be read.
    int dataVersion() const;

    // Calls the test often while statements run, and ends them with an error once it gives
    // something else than 0. One at a time; null for none.
    using InterruptTest = int (*)(void* context);
    void setInterruptTest(InterruptTest test, void* context) const;

    sqlite3* handle() const { return handle_; }

private:
    sqlite3* handle_ = nullptr;
    bool isOpen_ = false;
};

enum class SqliteType { integer, real, text, blob, null };

// A prepared statement for the length of a scope. When preparing failed, isReady() is false and
// step() never gives a row. One thread.
class SqliteStatement {
public:
    SqliteStatement(const SqliteConnection& connection, const char* text);
    SqliteStatement(const SqliteStatement&) = delete;
    SqliteStatement& operator=(const SqliteStatement&) = delete;
    ~SqliteStatement();

    bool isReady() const { return statement_ != nullptr; }

    // Parameters count from 1. Text ends at its first NUL, and SQLite takes a copy.
    void bind(int parameter, const QByteArray& utf8);
    void bind(int parameter, double value);
    void bindInt32(int parameter, int value);
    void bindInt64(int parameter, qint64 value);

    bool stepsToRow();    // false at the end, and on any error
    bool stepsToDone();   // true only when the statement ran to its end
    bool isAtEnd() const; // whether the last step ran to the end
    void reset();         // to run again, with the parameters that are bound

    // Columns count from 0. NULL reads as 0, 0.0 and the empty text.
    int int32(int column) const;
    qint64 int64(int column) const;
    double real(int column) const;
    QString text(int column) const;
    SqliteType type(int column) const; // as stored; before the value is read as another type
    bool isNull(int column) const { return type(column) == SqliteType::null; }
    QByteArrayView blob(int column) const; // valid until the next step

private:
    sqlite3_stmt* statement_ = nullptr;
    int result_ = 0; // of the last step
};

} // namespace tessarine

#pragma once

#include <QByteArray>
#include <QString>

#include <sqlite3.h>

namespace tessarine {

// A prepared statement for the length of a scope. When preparing failed, isReady() is false and
// step() never gives a row. One thread.
class SqliteStatement {
public:
    SqliteStatement(sqlite3* connection, const char* text);
    SqliteStatement(const SqliteStatement&) = delete;
    SqliteStatement& operator=(const SqliteStatement&) = delete;
    ~SqliteStatement();

    bool isReady() const { return statement_ != nullptr; }

    // Parameters count from 1. Text ends at its first NUL, and SQLite takes a copy.
    void bind(int parameter, const QByteArray& utf8);
    void bind(int parameter, double value);
    void bindInt32(int parameter, int value);
    void bindInt64(int parameter, qint64 value);

    bool stepsToRow();  // false at the end, and on any error
    bool stepsToDone(); // true only when the statement ran to its end

    // Columns count from 0. NULL reads as 0, 0.0 and the empty text.
    int int32(int column) const;
    qint64 int64(int column) const;
    double real(int column) const;
    QString text(int column) const;
    bool isNull(int column) const;
    QByteArrayView blob(int column) const; // valid until the next step

private:
    sqlite3_stmt* statement_ = nullptr;
};

// A database of the system, opened for one reading and closed at its end. The flags ask for
// writing although nothing is written: a log that needs recovery can't be read without. No busy
// time-out: what is locked is read the next time.
class SqliteReading {
public:
    explicit SqliteReading(const QString& path);
    SqliteReading(const SqliteReading&) = delete;
    SqliteReading& operator=(const SqliteReading&) = delete;
    ~SqliteReading();

    bool isOpen() const { return isOpen_; }
    sqlite3* connection() const { return connection_; }

private:
    sqlite3* connection_ = nullptr;
    bool isOpen_ = false;
};

} // namespace tessarine

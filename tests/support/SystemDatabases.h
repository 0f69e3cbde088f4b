#pragma once

#include <QByteArray>
#include <QString>

#include <initializer_list>
#include <memory>
#include <optional>
#include <variant>

struct sqlite3;

namespace tessarine::testing {

// What a column takes: NULL, a number, a text, bytes.
using ColumnValue = std::variant<std::monostate, qint64, double, QString, QByteArray>;

// Writes a database as a system does, for tests. Failures are values: false or nothing, with the
// reason in `lastError`. One thread at a time. Another writer is waited for up to ten seconds.
class SystemDatabaseWriter {
public:
    // Opens the file, and makes folder, file and tables where they are missing.
    bool createTables();
    // Rolls back an open transaction. The last connection of all takes a write-ahead log along.
    void close() { connection_.reset(); }

    // Without a transaction each row is one of its own.
    bool begin() { return run("BEGIN IMMEDIATE"); }
    // Keeps readers away too.
    bool lock() { return run("BEGIN EXCLUSIVE"); }
    bool commit() { return run("COMMIT"); }

    const QString& path() const { return path_; }
    QString lastError() const;

protected:
    // Touches no file yet. The schema is one or more statements, and outlives the writer.
    SystemDatabaseWriter(QString path, const char* schema);

    bool run(const char* sql, std::initializer_list<ColumnValue> values = {});
    // The first column of the first row; nothing if there is no row.
    std::optional<qint64> number(const char* sql, std::initializer_list<ColumnValue> values);

private:
    struct Closer {
        void operator()(sqlite3* connection) const;
    };
    QString path_;
    const char* schema_;
    std::unique_ptr<sqlite3, Closer> connection_;
};

// The database of the system's notification daemon: in WAL mode, a row for each notification.
class UsernotedWriter : public SystemDatabaseWriter {
public:
    explicit UsernotedWriter(QString path);

    // The id of the application with this identifier, whose row is added if it is missing.
    std::optional<qint64> appId(const QString& identifier);
    // No payload is NULL. The date is in seconds since 2001-01-01 00:00:00 UTC, or anything else.
    bool append(qint64 recordId, qint64 appId, const std::optional<QByteArray>& payload,
                const ColumnValue& deliveredDate);
};

// The database of older systems: with a rollback journal, so that every write touches the main
// file.
class LegacyWriter : public SystemDatabaseWriter {
public:
    explicit LegacyWriter(QString path);

    std::optional<qint64> appId(const QString& bundleId);
    // Adds a row to `app_info`, also a second one for the same id. No bundle id is NULL.
    bool addApp(qint64 appId, const std::optional<QString>& bundleId);
    bool append(qint64 noteId, qint64 appId, const std::optional<QByteArray>& payload);
};

} // namespace tessarine::testing

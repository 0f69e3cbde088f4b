#include "support/SystemDatabases.h"

#include "support/SystemPayloads.h"

#include <QDir>
#include <QFileInfo>

#include <sqlite3.h>

namespace tessarine::testing {

namespace {

constexpr auto usernotedSchema = R"sql(
PRAGMA journal_mode = WAL;
CREATE TABLE IF NOT EXISTS app (app_id INTEGER PRIMARY KEY, identifier VARCHAR);
CREATE TABLE IF NOT EXISTS record (
    rec_id INTEGER PRIMARY KEY, app_id INTEGER, uuid BLOB, data BLOB, request_date REAL,
    request_last_date REAL, delivered_date REAL, presented Bool, style INTEGER,
    snooze_fire_date REAL);
)sql";
constexpr auto insertRecordSql =
    "INSERT INTO record (rec_id, app_id, uuid, data, delivered_date, presented, style) "
    "VALUES (?, ?, ?, ?, ?, 1, 1)";

constexpr auto legacySchema = R"sql(
CREATE TABLE IF NOT EXISTS app_info (app_id INTEGER, bundleid VARCHAR);
CREATE TABLE IF NOT EXISTS notifications (
    note_id INTEGER PRIMARY KEY, app_id INTEGER, encoded_data BLOB, date_presented REAL);
)sql";

struct Binding {
    sqlite3_stmt* statement;
    int parameter;

    void operator()(std::monostate) const { sqlite3_bind_null(statement, parameter); }
    void operator()(qint64 number) const { sqlite3_bind_int64(statement, parameter, number); }
    void operator()(double number) const { sqlite3_bind_double(statement, parameter, number); }
    void operator()(const QString& text) const {
        const QByteArray bytes = text.toUtf8();
        sqlite3_bind_text(statement, parameter, bytes.constData(), int(bytes.size()),
                          SQLITE_TRANSIENT);
    }
    void operator()(const QByteArray& bytes) const {
        sqlite3_bind_blob(statement, parameter, bytes.constData(), int(bytes.size()),
                          SQLITE_TRANSIENT);
    }
};

struct Finalizer {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Finalizer>;

Statement prepare(sqlite3* connection, const char* sql, std::initializer_list<ColumnValue> values) {
    sqlite3_stmt* statement = nullptr;
    if (connection == nullptr ||
        sqlite3_prepare_v2(connection, sql, -1, &statement, nullptr) != SQLITE_OK)
        return nullptr;
    int parameter = 0;
    for (const ColumnValue& value : values)
        std::visit(Binding{statement, ++parameter}, value);
    return Statement(statement);
}

ColumnValue orNull(const std::optional<QByteArray>& bytes) {
    return bytes ? ColumnValue(*bytes) : ColumnValue();
}

} // namespace

SystemDatabaseWriter::SystemDatabaseWriter(QString path, const char* schema)
    : path_(std::move(path))
    , schema_(schema) {}

void SystemDatabaseWriter::Closer::operator()(sqlite3* connection) const {
    sqlite3_close(connection);
}

bool SystemDatabaseWriter::createTables() {
    QDir().mkpath(QFileInfo(path_).path());
    if (!connection_) {
        sqlite3* connection = nullptr;
        sqlite3_open(path_.toUtf8().constData(), &connection);
        connection_.reset(connection);
        sqlite3_busy_timeout(connection, 10'000);
    }
    return sqlite3_exec(connection_.get(), schema_, nullptr, nullptr, nullptr) == SQLITE_OK;
}

QString SystemDatabaseWriter::lastError() const {
    return connection_ ? QString::fromUtf8(sqlite3_errmsg(connection_.get()))
                       : QStringLiteral("the database is not open");
}

bool SystemDatabaseWriter::run(const char* sql, std::initializer_list<ColumnValue> values) {
    const Statement statement = prepare(connection_.get(), sql, values);
    return statement && sqlite3_step(statement.get()) == SQLITE_DONE;
}

std::optional<qint64> SystemDatabaseWriter::number(const char* sql,
                                                   std::initializer_list<ColumnValue> values) {
    const Statement statement = prepare(connection_.get(), sql, values);
    if (!statement || sqlite3_step(statement.get()) != SQLITE_ROW)
        return std::nullopt;
    return sqlite3_column_int64(statement.get(), 0);
}

UsernotedWriter::UsernotedWriter(QString path)
    : SystemDatabaseWriter(std::move(path), usernotedSchema) {}

std::optional<qint64> UsernotedWriter::appId(const QString& identifier) {
    constexpr auto select = "SELECT app_id FROM app WHERE identifier = ? ORDER BY app_id";
    const auto known = number(select, {identifier});
    if (known)
        return known;
    run("INSERT INTO app (identifier) VALUES (?)", {identifier});
    return number(select, {identifier});
}

bool UsernotedWriter::append(qint64 recordId, qint64 appId,
                             const std::optional<QByteArray>& payload,
                             const ColumnValue& deliveredDate) {
    return run(insertRecordSql,
               {recordId, appId, usernotedUuid(recordId), orNull(payload), deliveredDate});
}

LegacyWriter::LegacyWriter(QString path)
    : SystemDatabaseWriter(std::move(path), legacySchema) {}

std::optional<qint64> LegacyWriter::appId(const QString& bundleId) {
    const auto known =
        number("SELECT app_id FROM app_info WHERE bundleid = ? ORDER BY app_id", {bundleId});
    if (known)
        return known;
    const auto added = number("SELECT IFNULL(MAX(app_id), 0) + 1 FROM app_info", {});
    return added && addApp(*added, bundleId) ? added : std::nullopt;
}

bool LegacyWriter::addApp(qint64 appId, const std::optional<QString>& bundleId) {
    return run("INSERT INTO app_info (app_id, bundleid) VALUES (?, ?)",
               {appId, bundleId ? ColumnValue(*bundleId) : ColumnValue()});
}

bool LegacyWriter::append(qint64 noteId, qint64 appId, const std::optional<QByteArray>& payload) {
    return run("INSERT INTO notifications (note_id, app_id, encoded_data) VALUES (?, ?, ?)",
               {noteId, appId, orNull(payload)});
}

} // namespace tessarine::testing

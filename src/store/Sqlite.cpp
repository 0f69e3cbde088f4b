#include "store/Sqlite.h"

#include <QByteArrayView>

#include <sqlite3.h>

namespace tessarine {

namespace {

constexpr int instructionsBetweenTests = 1000; // of SQLite's virtual machine: some microseconds

int openFlags(SqliteConnection::Mode mode) {
    if (mode == SqliteConnection::Mode::foreignFile)
        return SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
    if (mode == SqliteConnection::Mode::ownFileReadOnly)
        return SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX;
    return SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_FULLMUTEX;
}

} // namespace

QString sqliteVersion() {
    const SqliteConnection memory(QStringLiteral(":memory:"), SqliteConnection::Mode::ownFile);
    return QString::fromLatin1(sqlite3_libversion());
}

SqliteConnection::SqliteConnection(const QString& path, Mode mode)
    : isOpen_(sqlite3_open_v2(path.toUtf8().constData(), &handle_, openFlags(mode), nullptr) ==
              SQLITE_OK) {}

SqliteConnection::~SqliteConnection() {
    sqlite3_close(handle_);
}

bool SqliteConnection::execute(const char* script) const {
    return sqlite3_exec(handle_, script, nullptr, nullptr, nullptr) == SQLITE_OK;
}

void SqliteConnection::setLockTimeout(int milliseconds) const {
    sqlite3_busy_timeout(handle_, milliseconds);
}

bool SqliteConnection::wasLocked() const {
    const int error = sqlite3_errcode(handle_) & 0xff; // without the extended part
    return error == SQLITE_BUSY || error == SQLITE_LOCKED;
}

QString SqliteConnection::errorText() const {
    return QString::fromUtf8(sqlite3_errmsg(handle_));
}

void SqliteConnection::checkpointInPassing() const {
    sqlite3_wal_checkpoint_v2(handle_, nullptr, SQLITE_CHECKPOINT_PASSIVE, nullptr, nullptr);
}

qint64 SqliteConnection::lastInsertRowId() const {
    return sqlite3_last_insert_rowid(handle_);
}

int SqliteConnection::changes() const {
    return sqlite3_changes(handle_);
}

int SqliteConnection::totalChanges() const {
    return sqlite3_total_changes(handle_);
}

// The file control of a similar name does not serve: it keeps its value until something is read.
int SqliteConnection::dataVersion() const {
    SqliteStatement statement(*this, "PRAGMA data_version;");
    return statement.stepsToRow() ? statement.int32(0) : -1;
}

void SqliteConnection::setInterruptTest(InterruptTest test, void* context) const {
    sqlite3_progress_handler(handle_, test ? instructionsBetweenTests : 0, test, context);
}

SqliteStatement::SqliteStatement(const SqliteConnection& connection, const char* text) {
    if (sqlite3_prepare_v2(connection.handle(), text, -1, &statement_, nullptr) != SQLITE_OK)
        statement_ = nullptr; // SQLite leaves null; an error never leaves a statement
}

SqliteStatement::~SqliteStatement() {
    sqlite3_finalize(statement_);
}

void SqliteStatement::bind(int parameter, const QByteArray& utf8) {
    sqlite3_bind_text(statement_, parameter, utf8.constData(), -1, SQLITE_TRANSIENT);
}

void SqliteStatement::bind(int parameter, double value) {
    sqlite3_bind_double(statement_, parameter, value);
}

void SqliteStatement::bindInt32(int parameter, int value) {
    sqlite3_bind_int(statement_, parameter, value);
}

void SqliteStatement::bindInt64(int parameter, qint64 value) {
    sqlite3_bind_int64(statement_, parameter, value);
}

bool SqliteStatement::stepsToRow() {
    result_ = statement_ ? sqlite3_step(statement_) : SQLITE_MISUSE;
    return result_ == SQLITE_ROW;
}

bool SqliteStatement::stepsToDone() {
    stepsToRow();
    return isAtEnd();
}

bool SqliteStatement::isAtEnd() const {
    return result_ == SQLITE_DONE;
}

void SqliteStatement::reset() {
    sqlite3_reset(statement_);
}

int SqliteStatement::int32(int column) const {
    return sqlite3_column_int(statement_, column);
}

qint64 SqliteStatement::int64(int column) const {
    return sqlite3_column_int64(statement_, column);
}

double SqliteStatement::real(int column) const {
    return sqlite3_column_double(statement_, column);
}

QString SqliteStatement::text(int column) const {
    const auto* const bytes =
        reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
    return bytes ? QString::fromUtf8(bytes, sqlite3_column_bytes(statement_, column)) : QString();
}

SqliteType SqliteStatement::type(int column) const {
    switch (sqlite3_column_type(statement_, column)) {
    case SQLITE_INTEGER:
        return SqliteType::integer;
    case SQLITE_FLOAT:
        return SqliteType::real;
    case SQLITE_TEXT:
        return SqliteType::text;
    case SQLITE_BLOB:
        return SqliteType::blob;
    default:
        return SqliteType::null;
    }
}

QByteArrayView SqliteStatement::blob(int column) const {
    const void* const bytes = sqlite3_column_blob(statement_, column);
    return {static_cast<const char*>(bytes), sqlite3_column_bytes(statement_, column)};
}

} // namespace tessarine

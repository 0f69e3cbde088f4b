#include "store/Sqlite.h"

#include <QByteArrayView>

namespace tessarine {

SqliteStatement::SqliteStatement(sqlite3* connection, const char* text) {
    if (sqlite3_prepare_v2(connection, text, -1, &statement_, nullptr) != SQLITE_OK)
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
    return statement_ && sqlite3_step(statement_) == SQLITE_ROW;
}

bool SqliteStatement::stepsToDone() {
    return statement_ && sqlite3_step(statement_) == SQLITE_DONE;
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

bool SqliteStatement::isNull(int column) const {
    return sqlite3_column_type(statement_, column) == SQLITE_NULL;
}

QByteArrayView SqliteStatement::blob(int column) const {
    const void* const bytes = sqlite3_column_blob(statement_, column);
    return {static_cast<const char*>(bytes), sqlite3_column_bytes(statement_, column)};
}

SqliteReading::SqliteReading(const QString& path) {
    isOpen_ = sqlite3_open_v2(path.toUtf8().constData(), &connection_,
                              SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr) == SQLITE_OK;
}

SqliteReading::~SqliteReading() {
    sqlite3_close(connection_);
}

} // namespace tessarine

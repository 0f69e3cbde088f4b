#include "tools/SqliteConnection.h"

#include <QDir>
#include <QFileInfo>

namespace tessarine::tools {

namespace {

constexpr int busyTimeoutMilliseconds = 10'000;

void bindText(sqlite3_stmt* statement, int parameter, const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    sqlite3_bind_text64(statement, parameter, utf8.constData(),
                        static_cast<sqlite3_uint64>(utf8.size()), SQLITE_TRANSIENT, SQLITE_UTF8);
}

} // namespace

void SqliteStatement::bind(int parameter, const ColumnValue& value) {
    sqlite3_stmt* const statement = statement_.get();
    if (const auto* const number = std::get_if<qint64>(&value)) {
        sqlite3_bind_int64(statement, parameter, *number);
    } else if (const auto* const real = std::get_if<double>(&value)) {
        sqlite3_bind_double(statement, parameter, *real);
    } else if (const auto* const text = std::get_if<QString>(&value)) {
        bindText(statement, parameter, *text);
    } else {
        sqlite3_bind_null(statement, parameter);
    }
}

void SqliteStatement::bind(int parameter, qint64 number) {
    sqlite3_bind_int64(statement_.get(), parameter, number);
}

void SqliteStatement::bind(int parameter, const std::optional<QByteArray>& bytes) {
    if (!bytes) {
        sqlite3_bind_null(statement_.get(), parameter);
    } else if (bytes->isEmpty()) {
        sqlite3_bind_zeroblob(statement_.get(), parameter, 0);
    } else {
        sqlite3_bind_blob64(statement_.get(), parameter, bytes->constData(),
                            static_cast<sqlite3_uint64>(bytes->size()), SQLITE_TRANSIENT);
    }
}

SqliteStatement::Step SqliteStatement::step() {
    switch (sqlite3_step(statement_.get())) {
    case SQLITE_ROW:
        return Step::Row;
    case SQLITE_DONE:
        return Step::Done;
    default:
        return Step::Failed;
    }
}

qint64 SqliteStatement::integer(int column) const {
    return sqlite3_column_int64(statement_.get(), column);
}

QString SqliteStatement::text(int column) const {
    const void* const bytes = sqlite3_column_text(statement_.get(), column);
    return QString::fromUtf8(static_cast<const char*>(bytes),
                             sqlite3_column_bytes(statement_.get(), column));
}

bool SqliteStatement::isNull(int column) const {
    return sqlite3_column_type(statement_.get(), column) == SQLITE_NULL;
}

void SqliteStatement::reset() {
    sqlite3_reset(statement_.get());
}

bool SqliteConnection::open(const QString& path, Missing missing) {
    if (isOpen()) {
        ownError_ = QStringLiteral("the database is open already");
        return false;
    }
    const QString folder = QFileInfo(path).absolutePath();
    if (missing == Missing::Create && !QDir().mkpath(folder)) {
        return fail(QStringLiteral("the folder %1 can't be made").arg(folder));
    }
    const int flags = SQLITE_OPEN_READWRITE | (missing == Missing::Create ? SQLITE_OPEN_CREATE : 0);
    sqlite3* connection = nullptr;
    const int result = sqlite3_open_v2(path.toUtf8().constData(), &connection, flags, nullptr);
    connection_.reset(connection);
    if (result != SQLITE_OK) {
        return fail(lastError());
    }
    sqlite3_busy_timeout(connection, busyTimeoutMilliseconds);
    return true;
}

void SqliteConnection::close() {
    connection_.reset();
    ownError_.clear();
}

bool SqliteConnection::fail(const QString& error) {
    close();
    ownError_ = error;
    return false;
}

bool SqliteConnection::execute(const char* sql) {
    return requireOpen() &&
           sqlite3_exec(connection_.get(), sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

std::optional<SqliteStatement> SqliteConnection::prepare(const char* sql) {
    if (!requireOpen()) {
        return std::nullopt;
    }
    sqlite3_stmt* prepared = nullptr;
    if (sqlite3_prepare_v2(connection_.get(), sql, -1, &prepared, nullptr) != SQLITE_OK) {
        return std::nullopt;
    }
    SqliteStatement statement;
    statement.statement_.reset(prepared);
    return statement;
}

std::optional<QString> SqliteConnection::firstText(const char* sql) {
    const auto row = firstRow(sql);
    return row ? std::optional(row->text(0)) : std::nullopt;
}

std::optional<qint64> SqliteConnection::firstInteger(const char* sql) {
    const auto row = firstRow(sql);
    return row ? std::optional(row->integer(0)) : std::nullopt;
}

std::optional<SqliteStatement> SqliteConnection::firstRow(const char* sql) {
    auto statement = prepare(sql);
    if (!statement || statement->step() != SqliteStatement::Step::Row || statement->isNull(0)) {
        return std::nullopt;
    }
    return statement;
}

bool SqliteConnection::inTransaction() const {
    return isOpen() && sqlite3_get_autocommit(connection_.get()) == 0;
}

std::optional<SqliteConnection::Checkpointed> SqliteConnection::checkpoint(int mode) {
    Checkpointed frames;
    if (!requireOpen() ||
        sqlite3_wal_checkpoint_v2(connection_.get(), nullptr, mode, &frames.logFrames,
                                  &frames.checkpointedFrames) != SQLITE_OK) {
        return std::nullopt;
    }
    return frames;
}

QString SqliteConnection::lastError() const {
    return isOpen() ? QString::fromUtf8(sqlite3_errmsg(connection_.get())) : ownError_;
}

bool SqliteConnection::requireOpen() {
    if (isOpen()) {
        return true;
    }
    ownError_ = QStringLiteral("the database is not open");
    return false;
}

} // namespace tessarine::tools

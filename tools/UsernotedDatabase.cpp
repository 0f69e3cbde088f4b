#include "tools/UsernotedDatabase.h"

namespace tessarine::tools {

namespace {

using Step = SqliteStatement::Step;

constexpr auto createTablesSql = R"sql(
BEGIN IMMEDIATE;
CREATE TABLE IF NOT EXISTS dbinfo (key VARCHAR, value VARCHAR);
CREATE TABLE IF NOT EXISTS app (app_id INTEGER PRIMARY KEY, identifier VARCHAR);
CREATE TABLE IF NOT EXISTS record (
    rec_id INTEGER PRIMARY KEY, app_id INTEGER, uuid BLOB, data BLOB, request_date REAL,
    request_last_date REAL, delivered_date REAL, presented Bool, style INTEGER,
    snooze_fire_date REAL);
CREATE TABLE IF NOT EXISTS requests (app_id INTEGER PRIMARY KEY, list BLOB);
CREATE TABLE IF NOT EXISTS delivered (app_id INTEGER PRIMARY KEY, list BLOB);
CREATE TABLE IF NOT EXISTS displayed (app_id INTEGER PRIMARY KEY, list BLOB);
CREATE TABLE IF NOT EXISTS snoozed (app_id INTEGER PRIMARY KEY, list BLOB);
CREATE TRIGGER IF NOT EXISTS app_deleted AFTER DELETE ON app BEGIN
    DELETE FROM record WHERE app_id = OLD.app_id;
    DELETE FROM requests WHERE app_id = OLD.app_id;
    DELETE FROM delivered WHERE app_id = OLD.app_id;
    DELETE FROM displayed WHERE app_id = OLD.app_id;
    DELETE FROM snoozed WHERE app_id = OLD.app_id;
END;
COMMIT;
)sql";
constexpr auto setWalSql = "PRAGMA journal_mode = WAL";
constexpr auto tablesSql =
    "SELECT COUNT(*) FROM sqlite_master WHERE type = 'table' AND name IN ('app', 'record')";
constexpr auto selectAppSql = "SELECT app_id FROM app WHERE identifier = ? ORDER BY app_id LIMIT 1";
constexpr auto insertAppSql = "INSERT INTO app (identifier) VALUES (?) RETURNING app_id";
constexpr auto hasAppSql = "SELECT COUNT(*) FROM app WHERE app_id = ?";
constexpr auto lastRecordSql = "SELECT IFNULL(MAX(rec_id), 0) FROM record";
constexpr auto countRecordsSql = "SELECT COUNT(*) FROM record";
constexpr auto insertRecordSql =
    "INSERT INTO record (rec_id, app_id, uuid, data, delivered_date, presented, style) "
    "VALUES (?, ?, ?, ?, ?, 1, 1)";

} // namespace

UsernotedDatabase::UsernotedDatabase(QString path)
    : path_(std::move(path)) {}

bool UsernotedDatabase::createTables() {
    if (!isOpen() && (!connection_.open(path_, SqliteConnection::Missing::Create) || !start())) {
        return false;
    }
    if (connection_.execute(createTablesSql)) {
        return true;
    }
    const QString error = lastError();
    close();
    return connection_.fail(error);
}

bool UsernotedDatabase::open() {
    if (!connection_.open(path_, SqliteConnection::Missing::Fail) || !start()) {
        return false;
    }
    if (connection_.firstInteger(tablesSql) == 2) {
        return true;
    }
    return connection_.fail(QStringLiteral("the file lacks the tables app and record"));
}

void UsernotedDatabase::close() {
    insertRecord_.reset();
    selectApp_.reset();
    connection_.close();
}

std::optional<qint64> UsernotedDatabase::appId(const QString& identifier) {
    if (!ensureStatement(selectApp_, selectAppSql)) {
        return std::nullopt;
    }
    selectApp_->bind(1, ColumnValue(identifier));
    const Step step = selectApp_->step();
    const qint64 known = step == Step::Row ? selectApp_->integer(0) : 0;
    selectApp_->reset();
    if (step != Step::Done) {
        return step == Step::Row ? std::optional(known) : std::nullopt;
    }
    auto insert = connection_.prepare(insertAppSql);
    if (!insert) {
        return std::nullopt;
    }
    insert->bind(1, ColumnValue(identifier));
    if (insert->step() != Step::Row) {
        return std::nullopt;
    }
    const qint64 added = insert->integer(0);
    return insert->step() == Step::Done ? std::optional(added) : std::nullopt;
}

std::optional<bool> UsernotedDatabase::hasApp(qint64 appId) {
    auto select = connection_.prepare(hasAppSql);
    if (!select) {
        return std::nullopt;
    }
    select->bind(1, appId);
    return select->step() == Step::Row ? std::optional(select->integer(0) > 0) : std::nullopt;
}

std::optional<qint64> UsernotedDatabase::lastRecordId() {
    return connection_.firstInteger(lastRecordSql);
}

std::optional<qint64> UsernotedDatabase::recordCount() {
    return connection_.firstInteger(countRecordsSql);
}

bool UsernotedDatabase::append(qint64 recordId, qint64 appId,
                               const std::optional<QByteArray>& payload,
                               const ColumnValue& deliveredDate) {
    if (!ensureStatement(insertRecord_, insertRecordSql)) {
        return false;
    }
    insertRecord_->bind(1, recordId);
    insertRecord_->bind(2, appId);
    insertRecord_->bind(3, std::optional(usernotedUuid(recordId)));
    insertRecord_->bind(4, payload);
    insertRecord_->bind(5, deliveredDate);
    const bool done = insertRecord_->step() == Step::Done;
    insertRecord_->reset();
    return done;
}

bool UsernotedDatabase::begin(Transaction kind) {
    return connection_.execute(kind == Transaction::Exclusive ? "BEGIN EXCLUSIVE"
                                                              : "BEGIN IMMEDIATE");
}

bool UsernotedDatabase::commit() {
    return connection_.execute("COMMIT");
}

void UsernotedDatabase::rollback() {
    if (inTransaction()) {
        connection_.execute("ROLLBACK");
    }
}

std::optional<SqliteConnection::Checkpointed> UsernotedDatabase::checkpoint(Checkpoint kind) {
    return connection_.checkpoint(kind == Checkpoint::Truncate ? SQLITE_CHECKPOINT_TRUNCATE
                                                               : SQLITE_CHECKPOINT_PASSIVE);
}

// What a fresh connection needs, whether the file is new or old.
bool UsernotedDatabase::start() {
    if (connection_.firstText(setWalSql) == u"wal") {
        return true;
    }
    return connection_.fail(
        QStringLiteral("WAL mode can't be set: %1").arg(connection_.lastError()));
}

bool UsernotedDatabase::ensureStatement(std::optional<SqliteStatement>& statement,
                                        const char* sql) {
    if (!statement) {
        statement = connection_.prepare(sql);
    }
    return statement.has_value();
}

} // namespace tessarine::tools

#include "tools/LegacyDatabase.h"

#include "support/PropertyListWriter.h"

#include <algorithm>
#include <limits>

namespace tessarine::tools {

using testing::PlistValue;
using testing::writeBinaryPropertyList;

namespace {

using Step = SqliteStatement::Step;

constexpr qint64 archiveVersion = 100'000;

constexpr auto createTablesSql = R"sql(
BEGIN IMMEDIATE;
CREATE TABLE IF NOT EXISTS app_info (app_id INTEGER, bundleid VARCHAR);
CREATE TABLE IF NOT EXISTS notifications (
    note_id INTEGER PRIMARY KEY, app_id INTEGER, encoded_data BLOB, date_presented REAL);
COMMIT;
)sql";
constexpr auto tablesSql = "SELECT COUNT(*) FROM sqlite_master WHERE type = 'table' "
                           "AND name IN ('app_info', 'notifications')";
constexpr auto selectAppSql =
    "SELECT app_id FROM app_info WHERE bundleid = ? ORDER BY app_id LIMIT 1";
constexpr auto lastAppSql = "SELECT IFNULL(MAX(app_id), 0) FROM app_info";
constexpr auto insertAppSql = "INSERT INTO app_info (app_id, bundleid) VALUES (?, ?)";
constexpr auto lastNoteSql = "SELECT IFNULL(MAX(note_id), 0) FROM notifications";
constexpr auto insertNoteSql =
    "INSERT INTO notifications (note_id, app_id, encoded_data) VALUES (?, ?, ?)";

PlistValue classInfo(const QString& name) {
    const QString object = QStringLiteral("NSObject");
    return PlistValue::dictionary(
        {{QStringLiteral("$classname"), PlistValue::string(name)},
         {QStringLiteral("$classes"),
          PlistValue::array({PlistValue::string(name), PlistValue::string(object)})}});
}

PlistValue notification(bool dated) {
    PlistValue::Dictionary entries{{QStringLiteral("$class"), PlistValue::uid(4)},
                                   {QStringLiteral("NSTitle"), PlistValue::uid(2)},
                                   {QStringLiteral("NSInformativetext"), PlistValue::uid(3)}};
    if (dated) {
        entries.append({QStringLiteral("NSActualdeliverydate"), PlistValue::uid(5)});
    }
    return PlistValue::dictionary(std::move(entries));
}

PlistValue::Array archivedObjects(const LegacyContent& content) {
    PlistValue::Array objects{PlistValue::string(QStringLiteral("$null")),
                              notification(content.date.has_value()),
                              PlistValue::string(content.title), PlistValue::string(content.body),
                              classInfo(QStringLiteral("NSUserNotification"))};
    if (content.date) {
        objects.append(
            PlistValue::dictionary({{QStringLiteral("NS.time"), PlistValue::real(*content.date)},
                                    {QStringLiteral("$class"), PlistValue::uid(6)}}));
        objects.append(classInfo(QStringLiteral("NSDate")));
    }
    return objects;
}

} // namespace

QByteArray legacyPayload(const LegacyContent& content, std::optional<qint64> objects) {
    PlistValue::Array all = archivedObjects(content);
    if (objects && *objects < all.size()) {
        all = all.first(std::max<qint64>(*objects, 0));
    }
    return writeBinaryPropertyList(PlistValue::dictionary(
        {{QStringLiteral("$version"), PlistValue::integer(archiveVersion)},
         {QStringLiteral("$archiver"), PlistValue::string(QStringLiteral("NSKeyedArchiver"))},
         {QStringLiteral("$top"),
          PlistValue::dictionary({{QStringLiteral("root"), PlistValue::uid(1)}})},
         {QStringLiteral("$objects"), PlistValue::array(std::move(all))}}));
}

LegacyDatabase::LegacyDatabase(QString path)
    : path_(std::move(path)) {}

bool LegacyDatabase::createTables() {
    if (!isOpen() && !connection_.open(path_, SqliteConnection::Missing::Create)) {
        return false;
    }
    return connection_.execute(createTablesSql) || connection_.fail(lastError());
}

bool LegacyDatabase::open() {
    if (!connection_.open(path_, SqliteConnection::Missing::Fail)) {
        return false;
    }
    const std::optional<qint64> tables = connection_.firstInteger(tablesSql);
    if (tables == 2) {
        return true;
    }
    return connection_.fail(
        tables ? QStringLiteral("the file lacks the tables app_info and notifications")
               : lastError());
}

void LegacyDatabase::close() {
    connection_.close();
}

std::optional<qint64> LegacyDatabase::appId(const QString& bundleId) {
    auto select = connection_.prepare(selectAppSql);
    if (!select) {
        return std::nullopt;
    }
    select->bind(1, ColumnValue(bundleId));
    const Step step = select->step();
    if (step != Step::Done) {
        return step == Step::Row ? std::optional(select->integer(0)) : std::nullopt;
    }
    const std::optional<qint64> last = connection_.firstInteger(lastAppSql);
    if (!last || *last == std::numeric_limits<qint64>::max()) {
        return std::nullopt;
    }
    return addApp(*last + 1, bundleId) ? std::optional(*last + 1) : std::nullopt;
}

bool LegacyDatabase::addApp(qint64 appId, const std::optional<QString>& bundleId) {
    auto insert = connection_.prepare(insertAppSql);
    if (!insert) {
        return false;
    }
    insert->bind(1, appId);
    insert->bind(2, bundleId ? ColumnValue(*bundleId) : ColumnValue());
    return insert->step() == Step::Done;
}

std::optional<qint64> LegacyDatabase::lastNoteId() {
    return connection_.firstInteger(lastNoteSql);
}

bool LegacyDatabase::append(qint64 noteId, qint64 appId, const std::optional<QByteArray>& payload) {
    auto insert = connection_.prepare(insertNoteSql);
    if (!insert) {
        return false;
    }
    insert->bind(1, noteId);
    insert->bind(2, appId);
    insert->bind(3, payload);
    return insert->step() == Step::Done;
}

bool LegacyDatabase::begin() {
    return connection_.execute("BEGIN IMMEDIATE");
}

bool LegacyDatabase::commit() {
    return connection_.execute("COMMIT");
}

void LegacyDatabase::rollback() {
    if (connection_.inTransaction()) {
        connection_.execute("ROLLBACK");
    }
}

} // namespace tessarine::tools

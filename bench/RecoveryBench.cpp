// The reading at start-up over 100,000 records in all forms that give texts, against a bare loop
// of the same statements that decodes with libplist.

#include "capture/UsernotedDatabase.h"
#include "support/SystemDatabases.h"
#include "support/SystemPayloads.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <plist/plist.h>
#include <sqlite3.h>

#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

using namespace tessarine;

constexpr int records = 100000;
constexpr double newest = 785000000.0;

const QString& databasePath() {
    static const QTemporaryDir folder;
    static const QString path = [] {
        testing::UsernotedWriter writer(folder.filePath(QStringLiteral("db")));
        constexpr int forms = int(testing::UsernotedForm::RequestEmpty); // all that give text
        bool done = writer.createTables() && writer.begin();
        for (int i = 0; done && i < records; ++i) {
            const QString application = QStringLiteral("com.example.app%1").arg(i % 40);
            const auto payload = testing::usernotedPayload(
                testing::UsernotedForm(i % forms),
                {.title = QStringLiteral("Message %1").arg(i),
                 .body = QStringLiteral("The body of message %1, as long as most").arg(i),
                 .subtitle = QStringLiteral("Below"),
                 .application = application,
                 .date = newest - i,
                 .recordId = i + 1});
            done = writer.append(i + 1, *writer.appId(application), payload, newest - i);
        }
        if (!done || !writer.commit())
            std::abort();
        return writer.path();
    }();
    return path;
}

std::string text(plist_t dictionary, const char* key) {
    const plist_t node = plist_dict_get_item(dictionary, key);
    if (!node || plist_get_node_type(node) != PLIST_STRING)
        return {};
    std::uint64_t length = 0;
    return plist_get_string_ptr(node, &length);
}

std::string longestText(plist_t request) {
    std::uint64_t length = 0;
    const char* const bytes = plist_get_data_ptr(request, &length);
    plist_t archive = nullptr;
    plist_from_bin(bytes, static_cast<std::uint32_t>(length), &archive);
    std::string longest;
    const plist_t objects = archive ? plist_dict_get_item(archive, "$objects") : nullptr;
    const std::uint32_t count = objects ? plist_array_get_size(objects) : 0;
    for (std::uint32_t i = 0; i < count; ++i) {
        const plist_t object = plist_array_get_item(objects, i);
        if (plist_get_node_type(object) != PLIST_STRING)
            continue;
        std::uint64_t size = 0;
        const char* const candidate = plist_get_string_ptr(object, &size);
        if (size > longest.size() && std::strncmp(candidate, "NS", 2) != 0)
            longest = candidate;
    }
    plist_free(archive);
    return longest;
}

struct BareRecord {
    std::int64_t recId;
    double date;
    std::string title, body, application;
};

bool decode(const char* bytes, int size, BareRecord& record) {
    plist_t root = nullptr;
    plist_from_bin(bytes, static_cast<std::uint32_t>(size), &root);
    if (!root)
        return false;
    const plist_t request = plist_dict_get_item(root, "req");
    const plist_type type = request ? plist_get_node_type(request) : PLIST_NONE;
    const plist_t texts = type == PLIST_DICT ? request : root;
    record.title = text(texts, "titl");
    record.body = type == PLIST_DATA ? longestText(request) : text(texts, "body");
    const std::string subtitle = text(texts, "subt");
    if (record.title.empty())
        record.title = subtitle;
    if (record.body.empty())
        record.body = subtitle;
    plist_free(root);
    return !record.title.empty() || !record.body.empty();
}

std::string identifier(sqlite3* connection, std::int64_t appId) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(connection, "SELECT identifier FROM app WHERE app_id = ? LIMIT 1", -1,
                       &statement, nullptr);
    sqlite3_bind_int64(statement, 1, appId);
    std::string found;
    if (sqlite3_step(statement) == SQLITE_ROW)
        found = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
    sqlite3_finalize(statement);
    return found;
}

std::vector<BareRecord> bareReading(const std::string& path) {
    std::vector<BareRecord> found;
    sqlite3* connection = nullptr;
    sqlite3_open_v2(path.c_str(), &connection, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX,
                    nullptr);
    sqlite3_stmt* rows = nullptr;
    sqlite3_prepare_v2(connection,
                       "SELECT rec_id, app_id, data, delivered_date FROM record WHERE "
                       "delivered_date > ? ORDER BY delivered_date ASC",
                       -1, &rows, nullptr);
    sqlite3_bind_double(rows, 1, 0.0);
    while (sqlite3_step(rows) == SQLITE_ROW) {
        BareRecord record;
        record.recId = sqlite3_column_int64(rows, 0);
        record.date = sqlite3_column_double(rows, 3);
        const auto* const bytes = static_cast<const char*>(sqlite3_column_blob(rows, 2));
        if (!decode(bytes, sqlite3_column_bytes(rows, 2), record))
            continue;
        record.application = identifier(connection, sqlite3_column_int64(rows, 1));
        found.push_back(std::move(record));
    }
    sqlite3_finalize(rows);
    sqlite3_close(connection);
    return found;
}

void expectAll(benchmark::State& state, std::size_t found) {
    if (found != records)
        state.SkipWithError("not every record was read");
}

void recoveryOurs(benchmark::State& state) {
    const QString path = databasePath();
    for (auto _ : state) {
        const UsernotedReading reading =
            readUsernotedDatabase(path, {}, DecoderVariant::startUp, lastBundleComponent);
        expectAll(state, reading.records.size());
    }
}

void recoveryBare(benchmark::State& state) {
    const std::string path = databasePath().toStdString();
    for (auto _ : state)
        expectAll(state, bareReading(path).size());
}

BENCHMARK(recoveryOurs)->Name("recovery/ours")->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(recoveryBare)->Name("recovery/bare")->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace

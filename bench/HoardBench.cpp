// The hoard's capture path and its list against the same statements through bare SQLite, on files
// with the same schema, journal and durability.

#include "platform/linux/LinuxUserDefaults.h"
#include "store/HoardStore.h"
#include "support/SimulatedPlatform.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <cstdlib>
#include <map>
#include <memory>

namespace {

using namespace tessarine;

constexpr const char* insertWithKey =
    "INSERT OR IGNORE INTO notifications\n    (system_note_id, bundle_id, app_name, title, body, "
    "timestamp)\nVALUES (?, ?, ?, ?, ?, ?);";
constexpr const char* countDuplicates =
    "SELECT COUNT(*) FROM notifications\nWHERE bundle_id = ? AND title = ? AND body = ?\nAND "
    "ABS(timestamp - ?) < 300;";
constexpr const char* insertWithoutKey =
    "INSERT INTO notifications (system_note_id, bundle_id, app_name, title, body, "
    "timestamp)\nVALUES (NULL, ?, ?, ?, ?, ?);";
constexpr const char* selectRecent =
    "SELECT id, system_note_id, bundle_id, app_name, title, body, timestamp, pinned\nFROM "
    "notifications\nORDER BY pinned DESC, timestamp DESC\nLIMIT ?;";

// A hoard of so many rows, of which 40 applications have their share.
struct Hoard {
    explicit Hoard(qint64 rows)
        : fileSystem(folder.path())
        , defaults(folder.filePath(QStringLiteral("defaults.conf")))
        , store(fileSystem, defaults, clock) {
        defaults.setTextList(
            QStringLiteral("excludedBundleIds"),
            {QStringLiteral("com.example.one"), QStringLiteral("com.example.two")});
        store.open();
        sqlite3_open(store.path().toUtf8().constData(), &bare);
        const std::string fill =
            "WITH RECURSIVE n(i) AS (SELECT 1 WHERE " + std::to_string(rows) +
            " > 0 UNION ALL SELECT i + 1 FROM n WHERE i < " + std::to_string(rows) +
            ") INSERT INTO notifications(system_note_id, bundle_id, app_name, title, body, "
            "timestamp) SELECT i, 'com.example.app' || (i % 40), 'App ' || (i % 40), 'Title of ' "
            "|| i, 'The body of message ' || i || ', as long as most bodies are', 700000000.0 + i "
            "FROM n";
        if (sqlite3_exec(bare, fill.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
            std::abort();
    }
    ~Hoard() { sqlite3_close(bare); }

    QTemporaryDir folder;
    testing::SimulatedFileSystem fileSystem;
    LinuxUserDefaults defaults;
    testing::ManualScheduler clock;
    HoardStore store;
    sqlite3* bare = nullptr;
};

Hoard& hoardOf(qint64 rows) {
    static std::map<qint64, std::unique_ptr<Hoard>> hoards;
    std::unique_ptr<Hoard>& hoard = hoards[rows];
    if (!hoard)
        hoard = std::make_unique<Hoard>(rows);
    return *hoard;
}

// Ours and the baseline write to hoards of their own, which grow alike.
constexpr qint64 forOurs = 1001;
constexpr qint64 forBare = 1002;
qint64 nextNumber = 1000000;

CapturedNotification notification() {
    CapturedNotification made;
    made.noteId = ++nextNumber;
    made.appBundleId = QStringLiteral("com.example.app7");
    made.appName = QStringLiteral("App 7");
    made.title = QStringLiteral("Message %1").arg(nextNumber);
    made.body = QStringLiteral("The body of message %1, as long as most").arg(nextNumber);
    made.timestamp = 785000000.0 + static_cast<double>(nextNumber);
    return made;
}

void bindText(sqlite3_stmt* statement, int parameter, const QString& text) {
    sqlite3_bind_text(statement, parameter, text.toUtf8().constData(), -1, SQLITE_TRANSIENT);
}

bool bareInsert(sqlite3* connection, const CapturedNotification& record) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(connection, insertWithKey, -1, &statement, nullptr);
    sqlite3_bind_int(statement, 1, static_cast<int>(record.noteId));
    bindText(statement, 2, record.appBundleId);
    bindText(statement, 3, record.appName);
    bindText(statement, 4, record.title);
    bindText(statement, 5, record.body);
    sqlite3_bind_double(statement, 6, record.timestamp);
    const bool done = sqlite3_step(statement) == SQLITE_DONE && sqlite3_changes(connection) > 0;
    sqlite3_finalize(statement);
    return done;
}

bool bareInsertDeduplicated(sqlite3* connection, const CapturedNotification& record) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(connection, countDuplicates, -1, &statement, nullptr);
    bindText(statement, 1, record.appBundleId);
    bindText(statement, 2, record.title);
    bindText(statement, 3, record.body);
    sqlite3_bind_double(statement, 4, record.timestamp);
    const bool known =
        sqlite3_step(statement) == SQLITE_ROW && sqlite3_column_int(statement, 0) > 0;
    sqlite3_finalize(statement);
    if (known)
        return false;
    sqlite3_prepare_v2(connection, insertWithoutKey, -1, &statement, nullptr);
    bindText(statement, 1, record.appBundleId);
    bindText(statement, 2, record.appName);
    bindText(statement, 3, record.title);
    bindText(statement, 4, record.body);
    sqlite3_bind_double(statement, 5, record.timestamp);
    const bool done = sqlite3_step(statement) == SQLITE_DONE;
    sqlite3_finalize(statement);
    return done;
}

struct BareRow {
    QUuid id = QUuid::createUuid();
    int dbId, noteId;
    QString bundleId, appName, title, body;
    double timestamp;
    bool pinned;
};

QString columnText(sqlite3_stmt* statement, int column) {
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, column)),
                             sqlite3_column_bytes(statement, column));
}

std::vector<BareRow> bareFetch(sqlite3* connection, int limit) {
    std::vector<BareRow> rows;
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(connection, selectRecent, -1, &statement, nullptr);
    sqlite3_bind_int(statement, 1, limit);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        BareRow& row = rows.emplace_back();
        row.dbId = sqlite3_column_int(statement, 0);
        row.noteId = sqlite3_column_int(statement, 1);
        row.bundleId = columnText(statement, 2);
        row.appName = columnText(statement, 3);
        row.title = columnText(statement, 4);
        row.body = columnText(statement, 5);
        row.timestamp = sqlite3_column_double(statement, 6);
        row.pinned = sqlite3_column_int(statement, 7) != 0;
    }
    sqlite3_finalize(statement);
    return rows;
}

template <typename Store>
void storing(benchmark::State& state, const Store& store) {
    for (auto _ : state) {
        state.PauseTiming();
        const CapturedNotification record = notification();
        state.ResumeTiming();
        if (!store(record))
            state.SkipWithError("a record was not stored");
    }
}

void insertOurs(benchmark::State& state) {
    HoardStore& store = hoardOf(forOurs).store;
    storing(state, [&](const auto& record) { return store.insert(record); });
}

void insertBare(benchmark::State& state) {
    sqlite3* const bare = hoardOf(forBare).bare;
    storing(state, [&](const auto& record) { return bareInsert(bare, record); });
}

void deduplicatedOurs(benchmark::State& state) {
    HoardStore& store = hoardOf(forOurs).store;
    storing(state, [&](const auto& record) { return store.insertDeduplicated(record); });
}

void deduplicatedBare(benchmark::State& state) {
    sqlite3* const bare = hoardOf(forBare).bare;
    storing(state, [&](const auto& record) { return bareInsertDeduplicated(bare, record); });
}

// As after a write of another program: the table is sorted again.
void fetchOurs(benchmark::State& state) {
    Hoard& hoard = hoardOf(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        sqlite3_exec(hoard.bare, "UPDATE notifications SET pinned = 1 - pinned WHERE id = 1",
                     nullptr, nullptr, nullptr);
        state.ResumeTiming();
        benchmark::DoNotOptimize(hoard.store.fetchRecent(500));
    }
}

void fetchBare(benchmark::State& state) {
    sqlite3* const bare = hoardOf(state.range(0)).bare;
    for (auto _ : state)
        benchmark::DoNotOptimize(bareFetch(bare, 500));
}

// A capture and the list that it leads to.
void captureOurs(benchmark::State& state) {
    HoardStore& store = hoardOf(state.range(0)).store;
    store.fetchRecent(500);
    store.insertDeduplicated(notification());
    for (auto _ : state) {
        store.insertDeduplicated(notification());
        benchmark::DoNotOptimize(store.fetchRecent(500));
    }
}

void captureBare(benchmark::State& state) {
    sqlite3* const bare = hoardOf(state.range(0) + 1).bare;
    for (auto _ : state) {
        bareInsertDeduplicated(bare, notification());
        benchmark::DoNotOptimize(bareFetch(bare, 500));
    }
}

BENCHMARK(insertOurs)->Name("insert/ours")->Iterations(200);
BENCHMARK(insertBare)->Name("insert/bare")->Iterations(200);
BENCHMARK(deduplicatedOurs)->Name("insertDeduplicated/ours")->Iterations(200);
BENCHMARK(deduplicatedBare)->Name("insertDeduplicated/bare")->Iterations(200);

void sizes(benchmark::internal::Benchmark* benchmark) {
    for (const int rows : {1000, 10000, 100000, 1000000})
        benchmark->Arg(rows);
    benchmark->Unit(benchmark::kMicrosecond);
}

BENCHMARK(fetchOurs)->Name("fetchRecent/ours")->Apply(sizes);
BENCHMARK(fetchBare)->Name("fetchRecent/bare")->Apply(sizes);
BENCHMARK(captureOurs)->Name("capture/ours")->Apply(sizes);
BENCHMARK(captureBare)->Name("capture/bare")->Apply(sizes);

} // namespace

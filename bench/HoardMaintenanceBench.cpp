// The hoard's deletions against the same statements through bare SQLite, on files with the same
// schema, journal and durability, and with the same rows.

#include "store/HoardStore.h"
#include "support/SimulatedPlatform.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <cstdlib>
#include <string>

namespace {

using namespace tessarine;

constexpr double now = testing::ManualScheduler::startOfTime;
constexpr double hour = 3600.0;
constexpr double day = 86400.0;

constexpr const char* deleteById = "DELETE FROM notifications WHERE id = ?";
constexpr const char* deleteBefore = "DELETE FROM notifications WHERE timestamp < ?";

std::string codesStatement() {
    std::string statement = "DELETE FROM notifications\nWHERE timestamp < ?\nAND (\n"
                            "    title  GLOB '*[0-9][0-9][0-9][0-9]*'\n"
                            "    OR body GLOB '*[0-9][0-9][0-9][0-9]*'\n";
    for (const char* word :
         {"otp", "2fa", "two-factor", "two factor", "verification code", "verify", "your code",
          "codice", "codice monouso", "bestätigungscode", "einmalpasswort", "code de vérification",
          "code de verification", "passcode", "authenticate", "one-time", "einmalig"}) {
        statement += std::string("    OR LOWER(title) LIKE '%") + word + "%'\n";
        statement += std::string("    OR LOWER(body)  LIKE '%") + word + "%'\n";
    }
    return statement + ");";
}

// A million rows within the last hundred days, without anything like a code.
struct Hoard {
    Hoard() {
        store.open();
        sqlite3_open(store.path().toUtf8().constData(), &bare);
        run("WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i + 1 FROM n WHERE i < 1000000) "
            "INSERT INTO notifications(bundle_id, app_name, title, body, timestamp) SELECT "
            "'com.example.app' || (i % 40), 'App ' || (i % 40), 'A title of some words', 'The "
            "body of a message as long as most bodies are', 785000000.0 - 8.64 * i FROM n");
    }
    Hoard(const Hoard&) = delete;
    Hoard& operator=(const Hoard&) = delete;
    ~Hoard() { sqlite3_close(bare); }

    void run(const std::string& statement) const {
        if (sqlite3_exec(bare, statement.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
            std::abort();
    }

    // Ten thousand rows more, of a year ago: every one holds a code.
    void addOldCodes() const {
        run("WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i + 1 FROM n WHERE i < 10000) "
            "INSERT INTO notifications(bundle_id, app_name, title, body, timestamp) SELECT "
            "'com.example.bank', 'Bank', 'Sign in', 'Use ' || (100000 + i), 785000000.0 - "
            "365 * 86400.0 + i FROM n");
        run("PRAGMA wal_checkpoint(TRUNCATE)");
    }

    // Five hundred rows more; the id of the first.
    qint64 addFiveHundred() const {
        run("WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i + 1 FROM n WHERE i < 500) "
            "INSERT INTO notifications(bundle_id, app_name, title, body, timestamp) SELECT "
            "'com.example.mail', 'Mail', 'Title', 'Body', 785000000.0 - i FROM n");
        const qint64 last = sqlite3_last_insert_rowid(bare);
        run("PRAGMA wal_checkpoint(TRUNCATE)");
        return last - 499;
    }

    QTemporaryDir folder;
    testing::SimulatedFileSystem fileSystem{folder.path()};
    testing::SimulatedDefaults defaults;
    testing::ManualScheduler clock;
    HoardStore store{fileSystem, defaults, clock};
    sqlite3* bare = nullptr;
};

// Ours and the baseline delete from hoards of their own.
Hoard& ourHoard() {
    static Hoard hoard;
    return hoard;
}

Hoard& bareHoard() {
    static Hoard hoard;
    return hoard;
}

qint64 bareDeletion(sqlite3* connection, const char* text, double edge) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(connection, text, -1, &statement, nullptr);
    sqlite3_bind_double(statement, 1, edge);
    sqlite3_step(statement);
    const int count = sqlite3_changes(connection);
    sqlite3_finalize(statement);
    return count;
}

void bareDeletionOfRow(sqlite3* connection, qint64 id) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(connection, deleteById, -1, &statement, nullptr);
    sqlite3_bind_int(statement, 1, static_cast<int>(id));
    sqlite3_step(statement);
    sqlite3_finalize(statement);
}

template <typename Deletion>
void deletingOldCodes(benchmark::State& state, const Hoard& hoard, const Deletion& deletion) {
    for (auto _ : state) {
        state.PauseTiming();
        hoard.addOldCodes();
        state.ResumeTiming();
        if (deletion() != 10000)
            state.SkipWithError("not the rows that were to go");
    }
}

template <typename Deletion>
void deletingRows(benchmark::State& state, const Hoard& hoard, const Deletion& deletion) {
    for (auto _ : state) {
        state.PauseTiming();
        const qint64 first = hoard.addFiveHundred();
        state.ResumeTiming();
        for (qint64 id = first; id < first + 500; ++id)
            deletion(id);
    }
}

void retentionOurs(benchmark::State& state) {
    Hoard& hoard = ourHoard();
    deletingOldCodes(state, hoard, [&] { return hoard.store.deleteOlderThan(200); });
}

void retentionBare(benchmark::State& state) {
    const Hoard& hoard = bareHoard();
    deletingOldCodes(state, hoard,
                     [&] { return bareDeletion(hoard.bare, deleteBefore, now - 200 * day); });
}

void codesOurs(benchmark::State& state) {
    Hoard& hoard = ourHoard();
    deletingOldCodes(state, hoard, [&] { return hoard.store.deleteOtpOlderThan(24); });
}

void codesBare(benchmark::State& state) {
    const Hoard& hoard = bareHoard();
    const std::string statement = codesStatement();
    deletingOldCodes(state, hoard,
                     [&] { return bareDeletion(hoard.bare, statement.c_str(), now - 24 * hour); });
}

void rowsOurs(benchmark::State& state) {
    Hoard& hoard = ourHoard();
    deletingRows(state, hoard, [&](qint64 id) { hoard.store.deleteNotification(id); });
}

void rowsBare(benchmark::State& state) {
    const Hoard& hoard = bareHoard();
    deletingRows(state, hoard, [&](qint64 id) { bareDeletionOfRow(hoard.bare, id); });
}

void once(benchmark::internal::Benchmark* benchmark) {
    benchmark->Iterations(1)->Unit(benchmark::kMillisecond);
}

BENCHMARK(retentionOurs)->Name("deleteOlderThan/ours")->Apply(once);
BENCHMARK(retentionBare)->Name("deleteOlderThan/bare")->Apply(once);
BENCHMARK(codesOurs)->Name("deleteOtpOlderThan/ours")->Apply(once);
BENCHMARK(codesBare)->Name("deleteOtpOlderThan/bare")->Apply(once);
BENCHMARK(rowsOurs)->Name("deleteNotification500/ours")->Apply(once);
BENCHMARK(rowsBare)->Name("deleteNotification500/bare")->Apply(once);

} // namespace

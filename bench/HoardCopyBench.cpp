// A backup of a hoard of a million rows against cp, and what captures wait while the hoard is
// checked, counted and copied.

#include "store/HoardStore.h"
#include "support/SimulatedPlatform.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <string>
#include <thread>

namespace {

using namespace tessarine;

struct Hoard {
    Hoard() {
        store.open();
        sqlite3* bare = nullptr;
        sqlite3_open(store.path().toUtf8().constData(), &bare);
        constexpr const char* fill =
            "WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i + 1 FROM n WHERE i < 1000000) "
            "INSERT INTO notifications(bundle_id, app_name, title, body, timestamp) SELECT "
            "'com.example.app' || (i % 40), 'App ' || (i % 40), 'A title of some words', 'The "
            "body of a message as long as most bodies are', 785000000.0 - 8.64 * i FROM n";
        if (sqlite3_exec(bare, fill, nullptr, nullptr, nullptr) != SQLITE_OK)
            std::abort();
        sqlite3_close(bare);
        store.checkpoint();
        store.readAhead(1000);
    }

    bool capture() {
        CapturedNotification notification;
        notification.noteId = ++lastKey;
        notification.timestamp = 785000000.0 + double(lastKey);
        return store.insert(notification);
    }

    QTemporaryDir folder;
    testing::SimulatedFileSystem fileSystem{folder.path()};
    testing::SimulatedDefaults defaults;
    testing::ManualScheduler clock;
    HoardStore store{fileSystem, defaults, clock};
    qint64 lastKey = 0;
};

Hoard& hoard() {
    static Hoard made;
    return made;
}

QString destination() {
    return hoard().folder.filePath(QStringLiteral("backup.db"));
}

void backupOurs(benchmark::State& state) {
    const QString place = destination();
    for (auto _ : state) {
        if (hoard().store.copyTo(place))
            state.SkipWithError("no backup");
    }
}

void backupBare(benchmark::State& state) {
    const std::string place = destination().toStdString();
    const std::string command =
        "rm -f '" + place + "'; cp '" + hoard().store.path().toStdString() + "' '" + place + "'";
    for (auto _ : state) {
        if (std::system(command.c_str()) != 0)
            state.SkipWithError("no copy");
    }
}

// Captures as fast as they go while the work runs on another thread: the longest and the number.
template <typename Work>
void capturingMeanwhile(benchmark::State& state, const Work& work) {
    hoard(); // which takes seconds to make
    double longest = 0;
    double captures = 0;
    for (auto _ : state) {
        std::atomic<bool> isDone = false;
        std::thread worker([&] {
            work();
            isDone = true;
        });
        while (!isDone) {
            const auto before = std::chrono::steady_clock::now();
            if (!hoard().capture())
                state.SkipWithError("a capture was lost");
            const std::chrono::duration<double, std::milli> waited =
                std::chrono::steady_clock::now() - before;
            longest = std::max(longest, waited.count());
            ++captures;
        }
        worker.join();
    }
    state.counters["longest capture, ms"] = longest;
    state.counters["captures"] = captures;
}

void checking(benchmark::State& state) {
    capturingMeanwhile(state, [] { hoard().store.integrityCheck(); });
}

void counting(benchmark::State& state) {
    capturingMeanwhile(state, [] { hoard().store.stats(); });
}

void copying(benchmark::State& state) {
    const QString place = destination();
    capturingMeanwhile(state, [&] { hoard().store.copyTo(place); });
}

void moving(benchmark::State& state) {
    capturingMeanwhile(state, [] { hoard().store.checkpoint(); });
}

void once(benchmark::internal::Benchmark* benchmark) {
    benchmark->Iterations(1)->Unit(benchmark::kMillisecond);
}

BENCHMARK(backupOurs)->Name("backup/ours")->Apply(once);
BENCHMARK(backupBare)->Name("backup/bare")->Apply(once);
BENCHMARK(checking)->Name("captures during integrityCheck")->Apply(once);
BENCHMARK(counting)->Name("captures during stats")->Apply(once);
BENCHMARK(copying)->Name("captures during copyTo")->Apply(once);
BENCHMARK(moving)->Name("captures during checkpoint")->Apply(once);

} // namespace

#pragma once

#include "tools/WriterConsole.h"

#include <QList>
#include <QString>

#include <functional>
#include <optional>

namespace tessarine::tools {

// How many rows go into a transaction, and how fast transactions follow each other.
struct Pace {
    // Rows per second; without it as fast as the disk allows.
    std::optional<double> rate;
    // Rows in a transaction; without it one at a given rate, otherwise all.
    std::optional<qint64> batch;
};

// What writing means to the tool at hand. Each step tells whether it came about.
struct AppendSteps {
    std::function<bool()> begin;
    // Takes the number of the row, from 0; gives its id.
    std::function<std::optional<qint64>(qint64 index)> append;
    std::function<bool()> commit;
    std::function<void()> rollBack;
    // After each commit: the rows' ids, and the wall-clock moment in microseconds of Unix time.
    std::function<void(const QList<qint64>& ids, qint64 committed)> report;
    // Why a step failed.
    std::function<QString()> error;
};

struct AppendOutcome {
    qint64 count = 0;
    std::optional<qint64> first;
    std::optional<qint64> last;
    // Of the last commit, in microseconds of Unix time; 0 if there was none.
    qint64 committed = 0;
    // Why it ended early; what was committed before counts all the same.
    std::optional<QString> error;

    static AppendOutcome failed(const QString& why);
    // Adds what came later.
    void add(const AppendOutcome& later);
};

// Appends rows one transaction after the other until all are there, one fails, or the process is
// asked to end.
[[nodiscard]] AppendOutcome appendPaced(qint64 count, const Pace& pace, const AppendSteps& steps,
                                        WriterConsole& console);

// "records N first A last B", with a dash where there are none.
[[nodiscard]] QString summary(const AppendOutcome& outcome);

} // namespace tessarine::tools

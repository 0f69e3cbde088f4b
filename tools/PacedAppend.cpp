#include "tools/PacedAppend.h"

#include <algorithm>

namespace tessarine::tools {

namespace {

using Clock = std::chrono::steady_clock;

qint64 rowsInTransaction(qint64 count, const Pace& pace) {
    return pace.batch.value_or(pace.rate ? 1 : std::max<qint64>(count, 1));
}

Clock::time_point due(Clock::time_point start, qint64 row, double rate) {
    // A century is as good as forever and keeps the clock's count from overflowing.
    constexpr double longest = 100.0 * 365 * 86'400;
    const std::chrono::duration<double> delay(std::min(static_cast<double>(row) / rate, longest));
    return start + std::chrono::duration_cast<Clock::duration>(delay);
}

// The ids of the rows of one transaction; nothing if a step failed. The process' end is a reason
// to commit early.
std::optional<QList<qint64>> runTransaction(qint64 from, qint64 to, const AppendSteps& steps,
                                            const WriterConsole& console) {
    QList<qint64> ids;
    if (!steps.begin()) {
        return std::nullopt;
    }
    for (qint64 row = from; row < to && !console.interrupted(); ++row) {
        const std::optional<qint64> id = steps.append(row);
        if (!id) {
            return std::nullopt;
        }
        ids.append(*id);
    }
    return steps.commit() ? std::optional(ids) : std::nullopt;
}

void countIn(const QList<qint64>& ids, AppendOutcome& outcome) {
    if (ids.isEmpty()) {
        return;
    }
    outcome.add({ids.size(), ids.first(), ids.last(), unixMicroseconds(), std::nullopt});
}

} // namespace

AppendOutcome AppendOutcome::failed(const QString& why) {
    AppendOutcome outcome;
    outcome.error = why;
    return outcome;
}

void AppendOutcome::add(const AppendOutcome& later) {
    count += later.count;
    first = first ? first : later.first;
    last = later.last ? later.last : last;
    committed = std::max(committed, later.committed);
    error = later.error ? later.error : error;
}

AppendOutcome appendPaced(qint64 count, const Pace& pace, const AppendSteps& steps,
                          WriterConsole& console) {
    AppendOutcome outcome;
    const qint64 rows = rowsInTransaction(count, pace);
    const Clock::time_point start = Clock::now();
    for (qint64 row = 0; row < count && !console.interrupted();
         row += std::min(rows, count - row)) {
        if (pace.rate && !console.waitUntil(due(start, row, *pace.rate))) {
            break;
        }
        const auto ids = runTransaction(row, row + std::min(rows, count - row), steps, console);
        if (!ids) {
            outcome.error = steps.error();
            steps.rollBack();
            break;
        }
        countIn(*ids, outcome);
        steps.report(*ids, outcome.committed);
    }
    return outcome;
}

QString summary(const AppendOutcome& outcome) {
    const auto idText = [](const std::optional<qint64>& id) {
        return id ? QString::number(*id) : QStringLiteral("-");
    };
    return QStringLiteral("records %1 first %2 last %3")
        .arg(QString::number(outcome.count), idText(outcome.first), idText(outcome.last));
}

} // namespace tessarine::tools

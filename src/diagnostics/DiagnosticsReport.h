#pragma once

#include "diagnostics/DiagnosticEntry.h"
#include "diagnostics/ReportFacts.h"
#include "store/HoardStats.h"

#include <QList>
#include <QString>

#include <optional>

namespace tessarine {

// The reports are plain text: lines joined by line feeds, none at the end, in English but for dates
// and numbers, which are the user's. Any thread.

// What a report to a file is made from, frozen, so that it can be made while the log goes on.
struct DiagnosticsSnapshot {
    HoardStats stats;
    QList<DiagnosticEntry> entries; // newest first

    bool operator==(const DiagnosticsSnapshot&) const = default;
};

// How many of the newest lines of the log each report holds.
inline constexpr qsizetype fileReportEntries = 50;
inline constexpr qsizetype quickReportEntries = 20;

enum class ReportContent {
    masked,  // lines of the log that quote a notification name its application alone
    included // lines as they are
};

// A line of the log without what it quotes of a notification. The application's name stays.
QString maskedMessage(const QString& message);

// A moment as reports and the window show it: medium date, short time. "—" for none.
QString reportDate(std::optional<double> timestamp);

// A whole number in groups, as the user reads numbers.
QString reportCount(qint64 number);

// The report for somebody else: its path names no user. The id tells reports apart.
QString fileReport(const DiagnosticsSnapshot& snapshot, const ReportFacts& facts,
                   ReportContent content, const QString& reportId, double now);

// The report for the clipboard: shorter, with the real path, its log as it is. Of the entries,
// newest first, it takes as many as it holds.
QString quickReport(const HoardStats& stats, const QList<DiagnosticEntry>& entries,
                    const ReportFacts& facts, double now);

} // namespace tessarine

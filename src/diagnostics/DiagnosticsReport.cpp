#include "diagnostics/DiagnosticsReport.h"

#include "diagnostics/LogTimeFormatter.h"
#include "shared/DateFormatter.h"
#include "shared/NumberText.h"
#include "shared/UserLocale.h"

#include <QStringList>

#include <algorithm>
#include <optional>

namespace tessarine {

namespace {

constexpr qsizetype categoryWidth = 8; // so that messages stand in a column
constexpr qsizetype systemWidth = 12;  // of the label before the system's version in a file

QString none() {
    return QStringLiteral("—");
}

QString granted(bool isGranted) {
    return isGranted ? QStringLiteral("granted") : QStringLiteral("not granted");
}

QString logLine(const DiagnosticEntry& entry, ReportContent content,
                const LogTimeFormatter& times) {
    const QString message =
        content == ReportContent::masked ? maskedMessage(entry.message) : entry.message;
    return u'[' + times.text(entry.timestamp) + QStringLiteral("] [") +
           rawValue(entry.category).leftJustified(categoryWidth) + QStringLiteral("] ") + message;
}

QStringList permissionLines(const ReportFacts& facts) {
    return {QStringLiteral("--- Permissions ---"),
            QStringLiteral("Accessibility:    ") + granted(facts.hasAccessibility),
            QStringLiteral("Full Disk Access: ") + granted(facts.hasFullDiskAccess),
            QStringLiteral("Launch at Login:  ") + facts.launchAtLogin, QString()};
}

QStringList databaseLines(const HoardStats& stats, const QString& path) {
    return {QStringLiteral("--- Database ---"),
            QStringLiteral("Records:  ") + reportCount(stats.totalCount),
            QStringLiteral("Pinned:   ") + QString::number(stats.pinnedCount),
            QStringLiteral("Apps:     ") + QString::number(stats.distinctAppsCount),
            QStringLiteral("Size:     ") + stats.formattedSize(),
            QStringLiteral("First:    ") + reportDate(stats.firstTimestamp),
            QStringLiteral("Last:     ") + reportDate(stats.lastTimestamp),
            QStringLiteral("Path:     ") + path,
            QString()};
}

QStringList logLines(const QList<DiagnosticEntry>& entries, qsizetype count,
                     ReportContent content) {
    QStringList lines{QStringLiteral("--- Recent Log (last %1 entries) ---").arg(count)};
    const LogTimeFormatter times(userDateLocale());
    for (const DiagnosticEntry& entry : entries.first(std::min(count, entries.size())))
        lines << logLine(entry, content, times);
    return lines << QString() << QStringLiteral("=== End of Report ===");
}

// The text between the bracket at the place and the next closing one. Nothing where none closes it.
std::optional<QString> bracketed(const QString& message, qsizetype opening) {
    const qsizetype closing = message.indexOf(u']', opening + 1);
    if (closing < 0)
        return std::nullopt;
    return message.sliced(opening + 1, closing - opening - 1);
}

} // namespace

QString maskedMessage(const QString& message) {
    static const QString capture = QStringLiteral("Captured [");
    if (message.startsWith(capture)) {
        const std::optional<QString> name = bracketed(message, capture.size() - 1);
        return name ? QStringLiteral("Captured notification from [") + *name + u']'
                    : QStringLiteral("Captured notification (content masked)");
    }
    if (!message.startsWith(u'['))
        return message;
    const std::optional<QString> name = bracketed(message, 0);
    return name ? QStringLiteral("Notification from [") + *name + u']' : message;
}

QString reportDate(std::optional<double> timestamp) {
    if (!timestamp)
        return none();
    return DateFormatter::withUserStyles(DateStyle::medium, DateStyle::brief).text(*timestamp);
}

QString reportCount(qint64 number) {
    return groupedNumber(number, userDateLocale());
}

QString fileReport(const DiagnosticsSnapshot& snapshot, const ReportFacts& facts,
                   ReportContent content, const QString& reportId, double now) {
    const QString mode = content == ReportContent::masked
                             ? QStringLiteral("safe (notification content masked)")
                             : QStringLiteral("full (notification content included)");
    QStringList lines{
        QStringLiteral("=== Tessarine Diagnostics Report ==="),
        QStringLiteral("Report ID:  ") + reportId,
        QStringLiteral("Generated:  ") + reportDate(now),
        QStringLiteral("Mode:       ") + mode,
        QString(),
        QStringLiteral("--- App ---"),
        QStringLiteral("Version:    %1 (build %2)").arg(facts.programVersion, facts.programBuild),
        QString(),
        QStringLiteral("--- System ---"),
        (facts.systemLabel + u':').leftJustified(systemWidth) + facts.systemVersion,
        QStringLiteral("SQLite:     ") + facts.sqliteVersion,
        QString()};
    lines += permissionLines(facts);
    lines += databaseLines(snapshot.stats, facts.shownHoardPath);
    lines += logLines(snapshot.entries, fileReportEntries, content);
    return lines.join(u'\n');
}

QString quickReport(const HoardStats& stats, const QList<DiagnosticEntry>& entries,
                    const ReportFacts& facts, double now) {
    QStringList lines{
        QStringLiteral("=== Tessarine Diagnostics Report ==="),
        QStringLiteral("Generated: ") + reportDate(now),
        QString(),
        QStringLiteral("--- App ---"),
        QStringLiteral("Version: %1 (%2)").arg(facts.programVersion, facts.programBuild),
        QString(),
        QStringLiteral("--- System ---"),
        facts.systemLabel + QStringLiteral(": ") + facts.systemVersion,
        QString()};
    lines += permissionLines(facts);
    lines += databaseLines(stats, facts.hoardPath);
    lines += logLines(entries, quickReportEntries, ReportContent::included);
    return lines.join(u'\n');
}

} // namespace tessarine

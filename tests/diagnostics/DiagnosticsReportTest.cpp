// The reports, line by line, in German: dates by hand, as date(1) gives the moments in UTC.

#include "diagnostics/DiagnosticsReport.h"

#include "support/DateLocaleScope.h"
#include "support/Printers.h"
#include "support/TimeZoneScope.h"

#include <gtest/gtest.h>

#include <array>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

// 2025-11-16 15:33:20 UTC, by date(1) of 785000000 + 978307200.
constexpr double afternoon = 785000000.0;

class DiagnosticsReportTest : public ::testing::Test {
protected:
    DiagnosticsReportTest() {
        facts.programVersion = u"1.2.3"_qs;
        facts.programBuild = u"45"_qs;
        facts.systemLabel = u"System"_qs;
        facts.systemVersion = u"Example 6.7 (Linux 8.9)"_qs;
        facts.sqliteVersion = u"3.40.1"_qs;
        facts.hasAccessibility = true;
        facts.launchAtLogin = u"enabled"_qs;
        facts.hoardPath = u"/home/ann/.local/share/Tessarine/hoard.db"_qs;
        facts.shownHoardPath = u"~/.local/share/Tessarine/hoard.db"_qs;
        stats.totalCount = 1234567;
        stats.pinnedCount = 1234;
        stats.distinctAppsCount = 12;
        stats.firstTimestamp = afternoon - 86400;
        stats.lastTimestamp = afternoon;
        stats.fileSizeBytes = 12635341;
    }

    static DiagnosticEntry entry(double timestamp, Category category, const QString& message) {
        DiagnosticEntry made;
        made.timestamp = timestamp;
        made.category = category;
        made.message = message;
        return made;
    }

    // Newest first: "Line 0", "Line 1" ...
    static QList<DiagnosticEntry> manyEntries(int count) {
        QList<DiagnosticEntry> entries;
        for (int i = 0; i < count; ++i)
            entries << entry(afternoon - i, Category::system, u"Line %1"_qs.arg(i));
        return entries;
    }

    QString file(ReportContent content) const {
        return fileReport({stats, entries}, facts, content, u"0F0E"_qs, afternoon + 60);
    }

    QString quick() const { return quickReport(stats, entries, facts, afternoon + 60); }

    static qsizetype linesWith(const QString& report, const QString& text) {
        return report.split(u'\n').filter(text).size();
    }

    const testing::TimeZoneScope zone{"UTC"};
    const testing::DateLocaleScope locale{"de_DE.UTF-8"};
    ReportFacts facts;
    HoardStats stats;
    QList<DiagnosticEntry> entries{
        entry(afternoon + 0.25, Category::usernoted, u"Captured [Post] Anna: come at 8"_qs),
        entry(afternoon, Category::system, u"Retention: Policy — retentionDays=0, no deletion"_qs)};
};

TEST_F(DiagnosticsReportTest, ForAFileHasTheseLines) {
    const std::array<const char16_t*, 31> lines{
        u"=== Tessarine Diagnostics Report ===",
        u"Report ID:  0F0E",
        u"Generated:  16.11.2025, 15:34",
        u"Mode:       safe (notification content masked)",
        u"",
        u"--- App ---",
        u"Version:    1.2.3 (build 45)",
        u"",
        u"--- System ---",
        u"System:     Example 6.7 (Linux 8.9)",
        u"SQLite:     3.40.1",
        u"",
        u"--- Permissions ---",
        u"Accessibility:    granted",
        u"Full Disk Access: not granted",
        u"Launch at Login:  enabled",
        u"",
        u"--- Database ---",
        u"Records:  1.234.567",
        u"Pinned:   1234",
        u"Apps:     12",
        u"Size:     12.05 MB",
        u"First:    15.11.2025, 15:33",
        u"Last:     16.11.2025, 15:33",
        u"Path:     ~/.local/share/Tessarine/hoard.db",
        u"",
        u"--- Recent Log (last 50 entries) ---",
        u"[15:33:20.250] [DB      ] Captured notification from [Post]",
        u"[15:33:20.000] [System  ] Retention: Policy — retentionDays=0, no deletion",
        u"",
        u"=== End of Report ==="};
    const QStringList report = file(ReportContent::masked).split(u'\n');
    ASSERT_EQ(report.size(), qsizetype(lines.size()));
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_EQ(report[qsizetype(i)], QString::fromUtf16(lines[i])) << "line " << i + 1;
}

TEST_F(DiagnosticsReportTest, WithContentSaysSoAndHoldsIt) {
    const QStringList report = file(ReportContent::included).split(u'\n');
    EXPECT_EQ(report[3], u"Mode:       full (notification content included)"_qs);
    EXPECT_EQ(report[27], u"[15:33:20.250] [DB      ] Captured [Post] Anna: come at 8"_qs);
    EXPECT_EQ(report.size(), 31);
}

TEST_F(DiagnosticsReportTest, ForTheClipboardHasTheseLines) {
    const std::array<const char16_t*, 28> lines{
        u"=== Tessarine Diagnostics Report ===",
        u"Generated: 16.11.2025, 15:34",
        u"",
        u"--- App ---",
        u"Version: 1.2.3 (45)",
        u"",
        u"--- System ---",
        u"System: Example 6.7 (Linux 8.9)",
        u"",
        u"--- Permissions ---",
        u"Accessibility:    granted",
        u"Full Disk Access: not granted",
        u"Launch at Login:  enabled",
        u"",
        u"--- Database ---",
        u"Records:  1.234.567",
        u"Pinned:   1234",
        u"Apps:     12",
        u"Size:     12.05 MB",
        u"First:    15.11.2025, 15:33",
        u"Last:     16.11.2025, 15:33",
        u"Path:     /home/ann/.local/share/Tessarine/hoard.db",
        u"",
        u"--- Recent Log (last 20 entries) ---",
        u"[15:33:20.250] [DB      ] Captured [Post] Anna: come at 8",
        u"[15:33:20.000] [System  ] Retention: Policy — retentionDays=0, no deletion",
        u"",
        u"=== End of Report ==="};
    const QStringList report = quick().split(u'\n');
    ASSERT_EQ(report.size(), qsizetype(lines.size()));
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_EQ(report[qsizetype(i)], QString::fromUtf16(lines[i])) << "line " << i + 1;
}

TEST_F(DiagnosticsReportTest, GivesAColumnToTheLabelOfAnySystem) {
    facts.systemLabel = u"macOS"_qs;
    EXPECT_TRUE(file(ReportContent::masked).contains(u"\nmacOS:      Example 6.7"_qs));
    EXPECT_TRUE(quick().contains(u"\nmacOS: Example 6.7"_qs));
}

TEST_F(DiagnosticsReportTest, OfAnEmptyHoardHasNoDates) {
    stats = {};
    const QString expected = u"Records:  0\nPinned:   0\nApps:     0\nSize:     0 B\n"
                             "First:    —\nLast:     —\n"_qs;
    EXPECT_TRUE(file(ReportContent::masked).contains(expected));
    EXPECT_TRUE(quick().contains(expected));
}

TEST_F(DiagnosticsReportTest, HoldsTheNewestEntriesOnly) {
    entries = manyEntries(60);
    const QString report = file(ReportContent::masked);
    EXPECT_EQ(linesWith(report, u"] Line "_qs), 50);
    EXPECT_TRUE(report.contains(u"Line 49\n\n=== End"_qs));
    EXPECT_EQ(linesWith(quick(), u"] Line "_qs), 20);
    EXPECT_TRUE(quick().contains(u"Line 19\n\n=== End"_qs));
}

TEST_F(DiagnosticsReportTest, HoldsAllOfAShortLogUnderTheSameHeading) {
    entries = manyEntries(3);
    EXPECT_EQ(linesWith(quick(), u"] Line "_qs), 3);
    EXPECT_TRUE(quick().contains(u"--- Recent Log (last 20 entries) ---\n[15:33:20.000]"_qs));
    EXPECT_TRUE(file(ReportContent::masked).contains(u"(last 50 entries) ---\n[15:33:20.000]"_qs));
}

TEST_F(DiagnosticsReportTest, AlignsItsMessages) {
    entries = {
        entry(afternoon, Category::ax, u"M"_qs), entry(afternoon, Category::usernoted, u"M"_qs),
        entry(afternoon, Category::legacy, u"M"_qs), entry(afternoon, Category::hoard, u"M"_qs),
        entry(afternoon, Category::system, u"M"_qs)};
    EXPECT_TRUE(quick().contains(u"[15:33:20.000] [AX      ] M\n"
                                 "[15:33:20.000] [DB      ] M\n"
                                 "[15:33:20.000] [Legacy  ] M\n"
                                 "[15:33:20.000] [Hoard   ] M\n"
                                 "[15:33:20.000] [System  ] M\n"_qs));
}

// What a text holds is no format.
TEST_F(DiagnosticsReportTest, TakesPercentSignsAsTheyAre) {
    facts.programVersion = u"%2"_qs;
    EXPECT_TRUE(file(ReportContent::masked).contains(u"Version:    %2 (build 45)\n"_qs));
    EXPECT_TRUE(quick().contains(u"Version: %2 (45)\n"_qs));
}

// Masking

struct Message {
    const char* name;
    const char16_t* message;
    const char16_t* masked;
};

class MaskedMessage : public ::testing::TestWithParam<Message> {};

TEST_P(MaskedMessage, KeepsTheNameAlone) {
    EXPECT_EQ(maskedMessage(QString::fromUtf16(GetParam().message)),
              QString::fromUtf16(GetParam().masked));
}

INSTANTIATE_TEST_SUITE_P(
    Messages, MaskedMessage,
    ::testing::Values(
        Message{"ACapture", u"Captured [Mail] Anna: 'come [now]'",
                u"Captured notification from [Mail]"},
        Message{"ACaptureOfNobody", u"Captured [] text", u"Captured notification from []"},
        Message{"ACaptureInBrackets", u"Captured [a[b]c] text",
                u"Captured notification from [a[b]"},
        Message{"ACaptureThatIsNotClosed", u"Captured [Mail: secret",
                u"Captured notification (content masked)"},
        Message{"ACaptureOfNothing", u"Captured [", u"Captured notification (content masked)"},
        Message{"ACaptureOverLines", u"Captured [Mail] one\ntwo",
                u"Captured notification from [Mail]"},
        Message{"ANameInFront", u"[Mail] Anna: come", u"Notification from [Mail]"},
        Message{"ANameAlone", u"[Mail]", u"Notification from [Mail]"},
        Message{"ABracketThatIsNotClosed", u"[Mail: come", u"[Mail: come"},
        Message{"ABracketAlone", u"[", u"["},
        Message{"AStatusLine", u"Captured notification from [Mail]",
                u"Captured notification from [Mail]"},
        Message{"OtherCase", u"captured [Mail] x", u"captured [Mail] x"},
        Message{"ABracketLater", u"Poll [3] done", u"Poll [3] done"},
        Message{"ABlankInFront", u" [Mail] x", u" [Mail] x"}, Message{"Nothing", u"", u""}),
    [](const auto& test) { return std::string(test.param.name); });

} // namespace
} // namespace tessarine

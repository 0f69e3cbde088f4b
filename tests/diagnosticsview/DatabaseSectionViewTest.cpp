// The tools for the hoard, without a window.

#include "diagnosticsview/DatabaseSectionView.h"

#include "diagnosticsview/DiagnosticsFixture.h"
#include "support/HoardFile.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include <sys/stat.h>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DatabaseSectionViewTest : public DiagnosticsFixture {
protected:
    QString path(const QString& name) const { return folder.filePath(name); }

    void damageHoard() {
        hoard.open();
        DatabaseFile file(hoard.path());
        ASSERT_TRUE(file.run(
            u"PRAGMA writable_schema = ON; CREATE INDEX empty ON notifications(bundle_id) WHERE id "
            "< 0; UPDATE sqlite_master SET rootpage = (SELECT rootpage FROM sqlite_master WHERE "
            "name = 'empty') WHERE name = 'idx_bundle'; DELETE FROM sqlite_master WHERE name = "
            "'empty';"_qs));
    }

    static QString textOf(const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QString::fromUtf8(file.readAll());
    }

    std::unique_ptr<DatabaseSectionView> section =
        std::make_unique<DatabaseSectionView>(views.diagnostics());
};

// Cells

TEST_F(DatabaseSectionViewTest, ShowsDashesForAnEmptyHoard) {
    const QList<DBStatCellContent> cells = section->cells();
    ASSERT_EQ(cells.size(), 6);
    EXPECT_EQ(cells[0].value, u"0"_qs);
    EXPECT_EQ(cells[1].value, u"—"_qs) << "nothing is known of its size yet";
    EXPECT_EQ(cells[2].value, u"0"_qs);
    EXPECT_EQ(cells[3].value, u"0"_qs);
    EXPECT_EQ(cells[4].value, u"—"_qs);
    EXPECT_EQ(cells[5].value, u"—"_qs);
}

TEST_F(DatabaseSectionViewTest, CountsTheHoardWhenAsked) {
    for (qint64 key = 1; key <= 1200; ++key)
        hoard.insert(capture(key));
    hoard.togglePin(1);
    hoard.checkpoint();
    section->refresh();
    settle();
    const QList<DBStatCellContent> cells = section->cells();
    EXPECT_EQ(cells[0].key, u"diag.db.records"_qs);
    EXPECT_EQ(cells[0].value, u"1,200"_qs);
    EXPECT_TRUE(cells[1].value.endsWith(u" KB"_qs)) << cells[1].value.toStdString();
    EXPECT_EQ(cells[2].value, u"1"_qs);
    EXPECT_EQ(cells[3].value, u"1"_qs);
    // 15:33:20 less 1,200 seconds; the blank before PM is a narrow one.
    EXPECT_EQ(QString(cells[4].value).replace(QChar(0x202f), u' '), u"Nov 16, 2025, 3:13 PM"_qs);
    EXPECT_EQ(QString(cells[5].value).replace(QChar(0x202f), u' '), u"Nov 16, 2025, 3:33 PM"_qs);
}

TEST_F(DatabaseSectionViewTest, TellsOfNewFiguresOnly) {
    int told = 0;
    QObject::connect(section.get(), &DatabaseSectionView::statsChanged, [&] { ++told; });
    diagnostics.setCapturedTotal(1);
    EXPECT_EQ(told, 0);
    section->refresh();
    settle();
    EXPECT_EQ(told, 1);
}

// Integrity check

TEST_F(DatabaseSectionViewTest, LogsThatTheHoardIsWhole) {
    section->verifyIntegrity();
    EXPECT_TRUE(section->isCheckingIntegrity());
    settle();
    EXPECT_FALSE(section->isCheckingIntegrity());
    ASSERT_THAT(messages(), ElementsAre(u"Integrity check passed"_qs));
    EXPECT_EQ(diagnostics.entries()[0].level, Level::success);
    EXPECT_EQ(diagnostics.entries()[0].category, Category::hoard);
}

TEST_F(DatabaseSectionViewTest, LogsWhatIsWrongWithTheHoard) {
    hoard.insert(capture(1));
    damageHoard();
    section->verifyIntegrity();
    settle();
    ASSERT_EQ(messages().size(), 1);
    EXPECT_TRUE(messages()[0].startsWith(u"Integrity check found problems: "_qs));
    EXPECT_TRUE(messages()[0].contains(u"idx_bundle"_qs));
    EXPECT_EQ(diagnostics.entries()[0].level, Level::warning);
}

TEST_F(DatabaseSectionViewTest, ChecksOnceHoweverOftenItIsPressed) {
    section->verifyIntegrity();
    section->verifyIntegrity();
    settle();
    EXPECT_EQ(messages().size(), 1);
    section->verifyIntegrity();
    settle();
    EXPECT_EQ(messages().size(), 2);
}

TEST_F(DatabaseSectionViewTest, LogsTheResultThoughTheViewHasGone) {
    section->verifyIntegrity();
    section.reset();
    settle();
    EXPECT_THAT(messages(), ElementsAre(u"Integrity check passed"_qs));
}

// Backup

TEST_F(DatabaseSectionViewTest, BacksUpWhatTheCheckpointMoved) {
    hoard.insert(capture(1));
    savePanel.answer = path(u"backup.db"_qs);
    section->createBackup();
    EXPECT_TRUE(section->isCreatingBackup());
    EXPECT_THAT(savePanel.requests, IsEmpty());
    settle();
    EXPECT_FALSE(section->isCreatingBackup());
    EXPECT_THAT(savePanel.requests,
                ElementsAre(SavePanel::Request{u"Tessarine_backup_2025-11-16_1533.db"_qs,
                                               u"Back Up the Hoard"_qs, u"Back Up"_qs}));
    EXPECT_THAT(messages(), ElementsAre(u"Backup saved to "_qs + path(u"backup.db"_qs)));
    EXPECT_EQ(diagnostics.entries()[0].level, Level::success);
    EXPECT_EQ(diagnostics.entries()[0].category, Category::hoard);
    EXPECT_EQ(DatabaseFile(path(u"backup.db"_qs)).number(u"SELECT count(*) FROM notifications"_qs),
              1);
    EXPECT_EQ(diagnostics.hoardStats().totalCount, 1) << "it counts anew afterwards";
}

TEST_F(DatabaseSectionViewTest, LacksInTheBackupWhatCameAfterTheCheckpoint) {
    savePanel.answer = path(u"backup.db"_qs);
    savePanel.meanwhile = [this] { hoard.insert(capture(1)); };
    section->createBackup();
    settle();
    EXPECT_EQ(DatabaseFile(path(u"backup.db"_qs)).number(u"SELECT count(*) FROM notifications"_qs),
              0);
    EXPECT_EQ(hoard.totalCount(), 1);
}

TEST_F(DatabaseSectionViewTest, BacksUpNothingWhereTheUserCancels) {
    section->createBackup();
    settle();
    EXPECT_FALSE(section->isCreatingBackup());
    EXPECT_THAT(messages(), IsEmpty());
    savePanel.answer = path(u"backup.db"_qs);
    section->createBackup();
    settle();
    EXPECT_TRUE(QFile::exists(path(u"backup.db"_qs)));
}

TEST_F(DatabaseSectionViewTest, LogsWhyABackupFailed) {
    savePanel.answer = path(u"nowhere/backup.db"_qs);
    section->createBackup();
    settle();
    EXPECT_FALSE(section->isCreatingBackup());
    EXPECT_THAT(messages(), ElementsAre(u"Backup failed: No such file or directory"_qs));
    EXPECT_EQ(diagnostics.entries()[0].level, Level::warning);
}

TEST_F(DatabaseSectionViewTest, AsksOncePerBackupHoweverOftenItIsPressed) {
    savePanel.answer = path(u"backup.db"_qs);
    savePanel.meanwhile = [this] { section->createBackup(); };
    section->createBackup();
    section->createBackup();
    settle();
    EXPECT_EQ(savePanel.requests.size(), 1U);
    EXPECT_EQ(messages().size(), 1);
}

TEST_F(DatabaseSectionViewTest, AsksForNothingOnceTheViewHasGone) {
    section->createBackup();
    section.reset();
    settle();
    EXPECT_THAT(savePanel.requests, IsEmpty());
}

TEST_F(DatabaseSectionViewTest, SurvivesThatItGoesWhileTheUserDecides) {
    savePanel.answer = path(u"backup.db"_qs);
    savePanel.meanwhile = [this] { section.reset(); };
    section->createBackup();
    settle();
    EXPECT_FALSE(QFile::exists(path(u"backup.db"_qs)));
    section = std::make_unique<DatabaseSectionView>(views.diagnostics());
    section->exportReport();
    settle();
    EXPECT_THAT(messages(), IsEmpty());
}

// Reports

TEST_F(DatabaseSectionViewTest, CopiesTheQuickReport) {
    hoard.insert(capture(1));
    log(u"Captured [Mail] Anna: come"_qs);
    section->copyReport();
    EXPECT_TRUE(section->isCopyingReport());
    section->copyReport();
    settle();
    EXPECT_FALSE(section->isCopyingReport());
    ASSERT_EQ(pasteboard.size(), 1);
    EXPECT_TRUE(pasteboard[0].startsWith(u"=== Tessarine Diagnostics Report ===\nGenerated: "_qs));
    EXPECT_TRUE(pasteboard[0].contains(u"Version: 1.2.3 (45)\n"_qs));
    EXPECT_TRUE(pasteboard[0].contains(u"Records:  1\n"_qs));
    EXPECT_TRUE(pasteboard[0].contains(u"Path:     "_qs + hoard.path()));
    EXPECT_TRUE(pasteboard[0].contains(u"] Captured [Mail] Anna: come\n"_qs));
    EXPECT_THAT(messages(), ElementsAre(u"Report copied to the clipboard"_qs,
                                        u"Captured [Mail] Anna: come"_qs));
    EXPECT_EQ(diagnostics.entries()[0].level, Level::success);
    EXPECT_EQ(diagnostics.entries()[0].category, Category::system);
}

TEST_F(DatabaseSectionViewTest, ExportsAReportThatMasks) {
    log(u"Captured [Mail] Anna: come"_qs);
    savePanel.answer = path(u"report.txt"_qs);
    section->exportReport();
    EXPECT_TRUE(section->isExportingReport());
    EXPECT_THAT(savePanel.requests, IsEmpty()) << "before the click's handler has returned";
    settle();
    EXPECT_FALSE(section->isExportingReport());
    EXPECT_THAT(savePanel.requests,
                ElementsAre(SavePanel::Request{u"Tessarine_Diagnostics_2025-11-16_1533.txt"_qs,
                                               u"Export Diagnostics Report"_qs, u"Export"_qs}));
    const QString report = textOf(path(u"report.txt"_qs));
    EXPECT_TRUE(report.contains(u"Mode:       safe (notification content masked)\n"_qs));
    EXPECT_TRUE(report.contains(u"Captured notification from [Mail]\n"_qs));
    EXPECT_FALSE(report.contains(u"Anna"_qs));
    EXPECT_TRUE(
        report.contains(u"Path:     ~/Library/Application Support/Tessarine/hoard.db\n"_qs));
    EXPECT_TRUE(report.endsWith(u"=== End of Report ==="_qs));
    EXPECT_EQ(messages()[0], u"Report exported as report.txt"_qs);
    EXPECT_EQ(diagnostics.entries()[0].category, Category::system);
    struct stat status {};
    ASSERT_EQ(stat(QFile::encodeName(path(u"report.txt"_qs)).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, mode_t{0600});
}

TEST_F(DatabaseSectionViewTest, ExportsAReportWithContentWhereThatIsChosen) {
    log(u"Captured [Mail] Anna: come"_qs);
    savePanel.answer = path(u"report.txt"_qs);
    section->setIncludeNotifContent(true);
    section->exportReport();
    settle();
    const QString report = textOf(path(u"report.txt"_qs));
    EXPECT_TRUE(report.contains(u"Mode:       full (notification content included)\n"_qs));
    EXPECT_TRUE(report.contains(u"Captured [Mail] Anna: come\n"_qs));
}

TEST_F(DatabaseSectionViewTest, GivesEachReportAnIdOfItsOwn) {
    QStringList ids;
    for (const QString& name : {u"one"_qs, u"two"_qs}) {
        savePanel.answer = path(name);
        section->exportReport();
        settle();
        const QRegularExpressionMatch match =
            QRegularExpression(u"\nReport ID:  ([0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12})\n"_qs)
                .match(textOf(path(name)));
        ASSERT_TRUE(match.hasMatch());
        ids << match.captured(1);
    }
    EXPECT_NE(ids[0], ids[1]);
}

TEST_F(DatabaseSectionViewTest, ExportsTheNewestFiftyLines) {
    for (int i = 1; i <= 70; ++i)
        log(u"Line %1."_qs.arg(i));
    savePanel.answer = path(u"report.txt"_qs);
    section->exportReport();
    settle();
    const QString report = textOf(path(u"report.txt"_qs));
    EXPECT_TRUE(report.contains(u"Line 21."_qs));
    EXPECT_FALSE(report.contains(u"Line 20."_qs));
}

TEST_F(DatabaseSectionViewTest, ExportsNoReportWhereTheUserCancels) {
    section->exportReport();
    section->exportReport();
    settle();
    EXPECT_EQ(savePanel.requests.size(), 1U);
    EXPECT_FALSE(section->isExportingReport());
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(DatabaseSectionViewTest, LogsWhyAReportWasNotExportedAndLeavesNothing) {
    savePanel.answer = path(u"nowhere/report.txt"_qs);
    section->exportReport();
    settle();
    EXPECT_THAT(messages(),
                ElementsAre(u"Report could not be exported: No such file or directory"_qs));
    EXPECT_EQ(diagnostics.entries()[0].level, Level::warning);
    EXPECT_FALSE(section->isExportingReport());
}

// Data

TEST_F(DatabaseSectionViewTest, OpensTheExportOnTheFirstFiveHundredRows) {
    for (qint64 key = 1; key <= 510; ++key)
        hoard.insert(capture(key));
    section->exportData();
    EXPECT_TRUE(section->showDataExportSheet());
    ASSERT_NE(section->exportSheet(), nullptr);
    EXPECT_EQ(section->exportSheet()->count(), 500);
    const ExportOptionsSheet* const sheet = section->exportSheet();
    section->exportData();
    EXPECT_EQ(section->exportSheet(), sheet);
    section->exportSheet()->cancel();
    EXPECT_FALSE(section->showDataExportSheet());
}

} // namespace
} // namespace tessarine::testing

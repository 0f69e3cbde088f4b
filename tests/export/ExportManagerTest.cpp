#include "export/ExportManager.h"

#include "export/ExportFixture.h"
#include "support/OrdinaryUser.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>

#include <system_error>
#include <thread>

#include <sys/resource.h>
#include <sys/stat.h>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

// Formats

struct FormatCase {
    ExportFormat format;
    QString rawValue;
    QString extension;
    QString icon;
    QString key;
};

class ExportFormatTest : public ::testing::TestWithParam<FormatCase> {};

TEST_P(ExportFormatTest, HasItsNames) {
    EXPECT_EQ(rawValue(GetParam().format), GetParam().rawValue);
    EXPECT_EQ(fileExtension(GetParam().format), GetParam().extension);
    EXPECT_EQ(iconName(GetParam().format), GetParam().icon);
    EXPECT_EQ(descriptionKey(GetParam().format), GetParam().key);
}

INSTANTIATE_TEST_SUITE_P(
    Each, ExportFormatTest,
    ::testing::Values(FormatCase{ExportFormat::txt, u"Text"_qs, u"txt"_qs, u"doc.text"_qs,
                                 u"export.format.txt.desc"_qs},
                      FormatCase{ExportFormat::csv, u"CSV"_qs, u"csv"_qs, u"tablecells"_qs,
                                 u"export.format.csv.desc"_qs},
                      FormatCase{ExportFormat::pdf, u"PDF Report"_qs, u"pdf"_qs,
                                 u"doc.richtext.fill"_qs, u"export.format.pdf.desc"_qs}),
    [](const auto& test) { return test.param.extension.toStdString(); });

TEST(ExportFormats, AreOfferedInTheirOrder) {
    EXPECT_EQ(allExportFormats,
              (std::array{ExportFormat::txt, ExportFormat::csv, ExportFormat::pdf}));
}

// Asking for a path

using AskingTest = ExportTest;

TEST_F(AskingTest, NamesAFileAfterToday) {
    EXPECT_EQ(manager.defaultFileName(ExportFormat::txt), u"Tessarine_2026-03-03.txt"_qs);
    EXPECT_EQ(manager.defaultFileName(ExportFormat::csv), u"Tessarine_2026-03-03.csv"_qs);
    EXPECT_EQ(manager.defaultFileName(ExportFormat::pdf), u"Tessarine_2026-03-03.pdf"_qs);
}

TEST_F(AskingTest, NamesAFileByTheUsersDigitsAndZone) {
    const DateLocaleScope arabic("ar_EG.UTF-8");
    const TimeZoneScope samoa("Pacific/Pago_Pago"); // eleven hours behind
    EXPECT_EQ(manager.defaultFileName(ExportFormat::csv), u"Tessarine_٢٠٢٦-٠٣-٠٢.csv"_qs);
}

TEST_F(AskingTest, ShowsAPanelForTheFormat) {
    panel.answer = u"/somewhere/else"_qs;
    EXPECT_EQ(manager.askSaveURL(ExportFormat::pdf), u"/somewhere/else"_qs);
    ASSERT_EQ(panel.requests.size(), 1U);
    EXPECT_EQ(panel.requests[0], (SavePanel::Request{u"Tessarine_2026-03-03.pdf"_qs,
                                                     u"Export PDF Report"_qs, u"Export"_qs}));
}

TEST_F(AskingTest, GivesNothingWhenTheUserCancels) {
    EXPECT_EQ(manager.askSaveURL(ExportFormat::csv), std::nullopt);
}

// The same for every format

struct Writer {
    const char* name;
    ExportResult (ExportManager::*write)(const NotificationList&, bool, const QString&) const;
    QString failure; // before the system's words
};

const Writer writers[] = {
    {"Text", &ExportManager::exportTXT, QStringLiteral("Could not write TXT: ")},
    {"Csv", &ExportManager::exportCSV, QStringLiteral("Could not write CSV: ")},
    {"Pdf", &ExportManager::exportPDF, QStringLiteral("Unable to generate PDF.")},
};

class WritersTest : public ExportTest, public ::testing::WithParamInterface<Writer> {
protected:
    ExportResult write(const QString& file) {
        return (manager.*GetParam().write)(list, false, file);
    }

    // The report's failure is told without the system's words.
    QString failure(const QString& reason) const {
        const bool isReport = GetParam().write == &ExportManager::exportPDF;
        return GetParam().failure + (isReport ? QString() : reason);
    }

    static mode_t modeOf(const QString& file) {
        struct stat status {};
        return stat(QFile::encodeName(file).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
    }

    NotificationList list{3, notification(u"Mail"_qs, u"t"_qs, u"b"_qs)};
};

TEST_P(WritersTest, TellWhereTheFileIsAndKeepItPrivate) {
    const mode_t before = umask(0);
    EXPECT_EQ(write(path(u"out"_qs)), ExportResult::success(path(u"out"_qs)));
    umask(before);
    EXPECT_EQ(modeOf(path(u"out"_qs)), mode_t(0600));
}

TEST_P(WritersTest, WriteOverAFileThatWasThere) {
    QFile old(path(u"out"_qs));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write(QByteArray(1'000'000, 'x'));
    old.close();
    old.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
    EXPECT_TRUE(write(path(u"out"_qs)).isSuccess());
    EXPECT_EQ(modeOf(path(u"out"_qs)), mode_t(0600));
    EXPECT_LT(QFileInfo(path(u"out"_qs)).size(), 500'000);
}

TEST_P(WritersTest, FailInAFolderThatIsGone) {
    EXPECT_EQ(write(path(u"gone/out"_qs)),
              ExportResult::failure(failure(u"No such file or directory"_qs)));
}

TEST_P(WritersTest, FailWhereAFolderStands) {
    QDir(folder.path()).mkdir(u"out"_qs);
    EXPECT_EQ(write(path(u"out"_qs)), ExportResult::failure(failure(u"Is a directory"_qs)));
}

TEST_P(WritersTest, FailWithANameThatIsTooLong) {
    EXPECT_TRUE(write(path(QString(255, u'n'))).isSuccess());
    EXPECT_EQ(write(path(QString(256, u'n'))),
              ExportResult::failure(failure(u"File name too long"_qs)));
}

TEST_P(WritersTest, FailWithoutARightToWriteAndGoOn) {
    QFile(folder.path())
        .setPermissions(QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    if (geteuid() == 0 && GetParam().write == &ExportManager::exportPDF)
        write(u"/dev/null/none"_qs); // finds the fonts, which a child may not look for
    const QString answer = asOrdinaryUser([&] { return write(path(u"out"_qs)).failureText(); });
    EXPECT_EQ(answer, failure(u"Permission denied"_qs));
    QFile(folder.path()).setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_TRUE(write(path(u"out"_qs)).isSuccess());
}

// As where another program of the user has started as many as the system grants.
TEST_P(WritersTest, WriteWhereNoThreadCanBeStarted) {
    write(u"/dev/null/none"_qs); // finds the fonts, which a child may not look for
    QFile(folder.path()).setPermissions(QFile::Permissions::fromInt(0x7777));
    const QString answer = asOrdinaryUser([&] {
        rlimit before{};
        getrlimit(RLIMIT_NPROC, &before);
        const rlimit none{0, before.rlim_max};
        setrlimit(RLIMIT_NPROC, &none);
        EXPECT_THROW(std::thread([] {}), std::system_error);
        const ExportResult result = write(path(u"out"_qs));
        setrlimit(RLIMIT_NPROC, &before);
        return result.isSuccess() ? QString() : result.failureText();
    });
    EXPECT_EQ(answer, QString());
    EXPECT_GT(QFileInfo(path(u"out"_qs)).size(), 0);
}

INSTANTIATE_TEST_SUITE_P(Each, WritersTest, ::testing::ValuesIn(writers),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(AskingTest, AFullDiskIsToldInTheSystemsWords) {
    EXPECT_EQ(manager.exportCSV({}, false, u"/dev/full"_qs),
              ExportResult::failure(u"Could not write CSV: No space left on device"_qs));
}

TEST_F(AskingTest, CsvFieldIsTheWritersOwn) {
    EXPECT_EQ(manager.csvField(u"a;\"b\""_qs), u"\"a;\"\"b\"\"\""_qs);
}

// The report

TEST(AppTallies, CountEachNameMostFrequentFirst) {
    const std::vector<PDFRow> rows{
        {0, u"b"_qs, {}, {}}, {0, u"a"_qs, {}, {}}, {0, u"a"_qs, {}, {}}, {0, u"A"_qs, {}, {}}};
    const std::vector<AppTally> tallies = appTallies(rows);
    ASSERT_EQ(tallies.size(), 3U);
    EXPECT_EQ(tallies[0], (AppTally{u"a"_qs, 2}));
    EXPECT_EQ(tallies[1].count, 1U);
    EXPECT_EQ(tallies[2].count, 1U);
}

// A disk that takes nothing.
class RefusingDevice : public QIODevice {
protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char*, qint64) override { return -1; }
};

TEST(PdfReport, FailsOnADeviceThatCannotBeWrittenTo) {
    RefusingDevice device;
    device.open(QIODevice::ReadOnly);
    EXPECT_THROW(writePdfReport({}, 0, device), ExportError);
}

TEST_F(AskingTest, TwoReportsOfOneListAreDrawnAlike) {
    const std::vector<PDFRow> rows(100, PDFRow{march3(9), u"Mail"_qs, u"t"_qs, u"b"_qs});
    const QByteArray one = manager.renderPDF(rows);
    const QByteArray other = manager.renderPDF(rows);
    EXPECT_TRUE(one.startsWith("%PDF-1."));
    EXPECT_EQ(one.size(), other.size()); // the moment of making is in them
}

// Files of fonts that this process has in memory.
qsizetype mappedFonts() {
    QFile maps(u"/proc/self/maps"_qs);
    maps.open(QIODevice::ReadOnly);
    return maps.readAll().count("/fonts/");
}

TEST_F(AskingTest, AReportLeavesNoFontsToAThreadThatGoesOn) {
    if (!QFile::exists(u"/proc/self/maps"_qs))
        GTEST_SKIP() << "this system tells nobody what is in memory";
    const std::vector<PDFRow> rows(3, PDFRow{march3(9), u"Mail"_qs, u"t"_qs, u"b"_qs});
    qsizetype before = 0;
    qsizetype after = 0;
    std::thread([&] {
        before = mappedFonts();
        manager.renderPDF(rows);
        after = mappedFonts();
    }).join();
    EXPECT_EQ(after, before);
}

} // namespace
} // namespace tessarine::testing

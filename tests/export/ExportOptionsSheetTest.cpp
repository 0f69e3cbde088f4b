#include "export/ExportOptionsSheet.h"

#include "export/ExportFixture.h"

#include <QDir>

#include <memory>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class ExportOptionsSheetTest : public ExportTest {
protected:
    std::unique_ptr<ExportOptionsSheet> made(NotificationList list) {
        return std::make_unique<ExportOptionsSheet>(
            std::move(list), [this] { ++dismissed; },
            ExportOptionsSheet::Services{manager, preferences, system.scheduler, viewer});
    }

    // The row of the CSV file after date and time.
    QByteArray written() { return contentOf(path(u"out"_qs)).split('\n').value(1).mid(20); }

    SimulatedFileViewer viewer;
    int dismissed = 0;
    std::unique_ptr<ExportOptionsSheet> sheet =
        made({notification(u"Mail"_qs, u"Title"_qs, u"Body"_qs)});
};

TEST_F(ExportOptionsSheetTest, OpensWithCsvAndNothingElseChosen) {
    EXPECT_EQ(sheet->selectedFormat(), ExportFormat::csv);
    EXPECT_FALSE(sheet->includePrivateContent());
    EXPECT_FALSE(sheet->showPrivacyWarning());
    EXPECT_FALSE(sheet->isExporting());
    EXPECT_EQ(sheet->exportError(), std::nullopt);
    EXPECT_FALSE(sheet->exportDone());
    EXPECT_EQ(sheet->count(), 1);
    EXPECT_TRUE(sheet->canExport());
}

TEST_F(ExportOptionsSheetTest, ExportsAndShowsTheFileAndCloses) {
    panel.answer = path(u"out"_qs);
    sheet->runExport();
    EXPECT_TRUE(sheet->isExporting());
    EXPECT_FALSE(sheet->canExport());
    EXPECT_EQ(viewer.revealed.size(), 0U);

    system.scheduler.settle();
    EXPECT_EQ(written(), "Mail;com.example.mail;Title;Body");
    EXPECT_FALSE(sheet->isExporting());
    EXPECT_TRUE(sheet->exportDone());
    EXPECT_EQ(sheet->exportError(), std::nullopt);
    EXPECT_EQ(viewer.revealed, std::vector{path(u"out"_qs)});

    system.scheduler.advance(1.49);
    EXPECT_EQ(dismissed, 0);
    system.scheduler.advance(0.02);
    EXPECT_EQ(dismissed, 1);
}

struct ChosenFormat {
    ExportFormat format;
    QByteArray start; // of the file
};

class ChosenFormatTest : public ExportOptionsSheetTest,
                         public ::testing::WithParamInterface<ChosenFormat> {};

TEST_P(ChosenFormatTest, IsWritten) {
    panel.answer = path(u"out"_qs);
    sheet->setSelectedFormat(GetParam().format);
    sheet->runExport();
    sheet->setSelectedFormat(ExportFormat::csv); // too late for this one
    system.scheduler.settle();
    EXPECT_EQ(panel.requests.at(0).title, u"Export "_qs + rawValue(GetParam().format));
    EXPECT_TRUE(contentOf(path(u"out"_qs)).startsWith(GetParam().start));
}

INSTANTIATE_TEST_SUITE_P(Each, ChosenFormatTest,
                         ::testing::Values(ChosenFormat{ExportFormat::txt, "Tessarine"},
                                           ChosenFormat{ExportFormat::csv, "\xEF\xBB\xBF"},
                                           ChosenFormat{ExportFormat::pdf, "%PDF"}),
                         [](const auto& test) {
                             return fileExtension(test.param.format).toStdString();
                         });

TEST_F(ExportOptionsSheetTest, ACancelledPanelChangesNothing) {
    sheet->runExport();
    system.scheduler.settle();
    EXPECT_EQ(panel.requests.size(), 1U);
    EXPECT_FALSE(sheet->isExporting());
    EXPECT_FALSE(sheet->exportDone());
    EXPECT_EQ(dismissed, 0);
}

TEST_F(ExportOptionsSheetTest, AFailureLeavesItOpenForAnotherTry) {
    panel.answer = path(u"gone/out"_qs);
    sheet->runExport();
    system.scheduler.advance(10);
    EXPECT_EQ(sheet->exportError(), u"Could not write CSV: No such file or directory"_qs);
    EXPECT_FALSE(sheet->exportDone());
    EXPECT_TRUE(sheet->canExport());
    EXPECT_TRUE(viewer.revealed.empty());
    EXPECT_EQ(dismissed, 0);

    panel.answer = path(u"out"_qs);
    panel.meanwhile = [this] { EXPECT_EQ(sheet->exportError(), std::nullopt); };
    sheet->runExport();
    system.scheduler.settle();
    EXPECT_TRUE(sheet->exportDone());
}

TEST_F(ExportOptionsSheetTest, ACancelledPanelClearsTheErrorBefore) {
    panel.answer = path(u"gone/out"_qs);
    sheet->runExport();
    system.scheduler.settle();
    panel.answer.reset();
    sheet->runExport();
    EXPECT_EQ(sheet->exportError(), std::nullopt);
}

TEST_F(ExportOptionsSheetTest, AnEmptyListCannotBeExported) {
    sheet = made({});
    EXPECT_FALSE(sheet->canExport());
    sheet->runExport();
    EXPECT_TRUE(panel.requests.empty());
}

TEST_F(ExportOptionsSheetTest, OneExportRunsAtATime) {
    panel.answer = path(u"out"_qs);
    sheet->runExport();
    sheet->runExport();
    EXPECT_EQ(panel.requests.size(), 1U);
}

// An export after an export

TEST_F(ExportOptionsSheetTest, ASecondExportTakesThePendingClosingBack) {
    panel.answer = path(u"out"_qs);
    sheet->runExport();
    system.scheduler.settle();
    system.scheduler.advance(1);
    panel.answer = path(u"second"_qs);
    panel.meanwhile = [this] {
        system.scheduler.advance(10); // the user thinks for a while
        EXPECT_EQ(dismissed, 0);
        EXPECT_FALSE(sheet->exportDone());
    };
    sheet->runExport();
    system.scheduler.settle();
    EXPECT_TRUE(contentOf(path(u"second"_qs)).startsWith("\xEF\xBB\xBF"));
    EXPECT_TRUE(sheet->exportDone());
    EXPECT_EQ(viewer.revealed, (std::vector{path(u"out"_qs), path(u"second"_qs)}));
    system.scheduler.advance(1.49);
    EXPECT_EQ(dismissed, 0);
    system.scheduler.advance(0.02);
    EXPECT_EQ(dismissed, 1);
    system.scheduler.advance(10);
    EXPECT_EQ(dismissed, 1);
}

TEST_F(ExportOptionsSheetTest, ASecondExportThatIsCancelledLeavesItOpen) {
    panel.answer = path(u"out"_qs);
    sheet->runExport();
    system.scheduler.settle();
    panel.answer.reset();
    sheet->runExport();
    system.scheduler.advance(10);
    EXPECT_EQ(dismissed, 0);
    EXPECT_FALSE(sheet->exportDone());
    EXPECT_TRUE(sheet->canExport());
}

TEST_F(ExportOptionsSheetTest, ASecondExportThatFailsLeavesItOpenWithItsText) {
    panel.answer = path(u"out"_qs);
    sheet->runExport();
    system.scheduler.settle();
    panel.answer = path(u"gone/out"_qs);
    sheet->runExport();
    system.scheduler.advance(10);
    EXPECT_EQ(dismissed, 0);
    EXPECT_EQ(sheet->exportError(), u"Could not write CSV: No such file or directory"_qs);
}

TEST_F(ExportOptionsSheetTest, ExportsAgainAndAgainInEveryFormat) {
    int number = 0;
    for (int round = 0; round < 3; ++round) {
        for (const ExportFormat format : allExportFormats) {
            sheet->setSelectedFormat(format);
            panel.answer = path(u"out%1"_qs.arg(++number));
            sheet->runExport();
            system.scheduler.settle();
            EXPECT_TRUE(QFile::exists(*panel.answer)) << number;
            EXPECT_TRUE(sheet->exportDone()) << number;
            EXPECT_EQ(viewer.revealed.size(), std::size_t(number));
            system.scheduler.advance(1.4);
        }
    }
    EXPECT_EQ(dismissed, 0);
    system.scheduler.advance(0.2);
    EXPECT_EQ(dismissed, 1);
}

// What the view asks for

TEST_F(ExportOptionsSheetTest, ARequestRunsTheExportWhenWhoeverAskedIsDone) {
    panel.answer = path(u"out"_qs);
    sheet->requestExport();
    EXPECT_TRUE(panel.requests.empty());
    ASSERT_TRUE(system.scheduler.runOneMainTask());
    EXPECT_EQ(panel.requests.size(), 1U);
    EXPECT_TRUE(sheet->isExporting());
}

TEST_F(ExportOptionsSheetTest, ARequestTakesThePendingClosingBackAtOnce) {
    panel.answer = path(u"out"_qs);
    sheet->runExport();
    system.scheduler.settle();
    system.scheduler.advance(1.49);
    sheet->requestExport();
    system.scheduler.advance(0.01); // the moment at which it would have closed
    EXPECT_EQ(dismissed, 0);
    EXPECT_EQ(panel.requests.size(), 2U);
}

TEST_F(ExportOptionsSheetTest, OnePanelIsOpenAtATime) {
    panel.meanwhile = [this] {
        sheet->requestExport();
        sheet->runExport();
        system.scheduler.settle();
    };
    sheet->requestExport();
    sheet->requestExport();
    ASSERT_TRUE(system.scheduler.runOneMainTask());
    EXPECT_EQ(panel.requests.size(), 1U);
    panel.meanwhile = {};
    system.scheduler.settle();
    sheet->requestExport(); // the user cancelled and tries again
    system.scheduler.settle();
    EXPECT_EQ(panel.requests.size(), 2U);
}

TEST_F(ExportOptionsSheetTest, ARequestOfASheetThatIsGoneIsForgotten) {
    sheet->requestExport();
    sheet.reset();
    system.scheduler.settle();
    EXPECT_TRUE(panel.requests.empty());
}

TEST_F(ExportOptionsSheetTest, CancelClosesIt) {
    sheet->cancel();
    EXPECT_EQ(dismissed, 1);
}

// Private content

TEST_F(ExportOptionsSheetTest, WithoutPrivacyModePrivateAppsStayHidden) {
    preferences.setPrivacyApps({u"com.example.mail"_qs});
    EXPECT_FALSE(sheet->offersPrivateContent());
    sheet->setIncludePrivateContent(true);
    EXPECT_FALSE(sheet->includePrivateContent());
    EXPECT_FALSE(sheet->showPrivacyWarning());
    panel.answer = path(u"out"_qs);
    sheet->runExport();
    system.scheduler.settle();
    EXPECT_EQ(written(), "Mail;com.example.mail;[hidden];[hidden]");
}

TEST_F(ExportOptionsSheetTest, TurningTheSwitchOnAsksFirst) {
    preferences.setGlobalPrivacyMode(true);
    EXPECT_TRUE(sheet->offersPrivateContent());
    sheet->setIncludePrivateContent(true);
    EXPECT_TRUE(sheet->showPrivacyWarning());
    EXPECT_TRUE(sheet->includePrivateContent());
}

TEST_F(ExportOptionsSheetTest, ConfirmingIncludesTheContent) {
    preferences.setGlobalPrivacyMode(true);
    sheet->setIncludePrivateContent(true);
    sheet->confirmPrivateContent();
    EXPECT_FALSE(sheet->showPrivacyWarning());
    EXPECT_TRUE(sheet->includePrivateContent());
    panel.answer = path(u"out"_qs);
    sheet->runExport();
    sheet->setIncludePrivateContent(false); // too late for this one
    system.scheduler.settle();
    EXPECT_EQ(written(), "Mail;com.example.mail;Title;Body");
}

TEST_F(ExportOptionsSheetTest, KeepingItHiddenTurnsTheSwitchBack) {
    preferences.setGlobalPrivacyMode(true);
    sheet->setIncludePrivateContent(true);
    sheet->keepHidden();
    EXPECT_FALSE(sheet->showPrivacyWarning());
    EXPECT_FALSE(sheet->includePrivateContent());
    panel.answer = path(u"out"_qs);
    sheet->runExport();
    system.scheduler.settle();
    EXPECT_EQ(written(), "Mail;com.example.mail;[hidden];[hidden]");
}

TEST_F(ExportOptionsSheetTest, TurningTheSwitchOffAsksNothing) {
    preferences.setGlobalPrivacyMode(true);
    sheet->setIncludePrivateContent(true);
    sheet->confirmPrivateContent();
    sheet->setIncludePrivateContent(false);
    EXPECT_FALSE(sheet->showPrivacyWarning());
    EXPECT_FALSE(sheet->includePrivateContent());
}

TEST_F(ExportOptionsSheetTest, LeavingPrivacyModeTakesTheChoiceBack) {
    preferences.setPrivacyApps({u"com.example.mail"_qs});
    preferences.setGlobalPrivacyMode(true);
    sheet->setIncludePrivateContent(true);
    sheet->confirmPrivateContent();
    preferences.setGlobalPrivacyMode(false);
    EXPECT_FALSE(sheet->includePrivateContent());
}

// Windows may close at any moment

TEST_F(ExportOptionsSheetTest, GoneDuringAnExportItLeavesTheFileAndNothingElse) {
    panel.answer = path(u"out"_qs);
    sheet->runExport();
    sheet.reset();
    system.scheduler.advance(10);
    EXPECT_EQ(written(), "Mail;com.example.mail;Title;Body");
    EXPECT_TRUE(viewer.revealed.empty());
    EXPECT_EQ(dismissed, 0);
}

TEST_F(ExportOptionsSheetTest, GoneWhileThePanelIsOpenItExportsNothing) {
    panel.answer = path(u"out"_qs);
    panel.meanwhile = [this] { sheet.reset(); };
    sheet->runExport();
    system.scheduler.settle();
    EXPECT_FALSE(QFile::exists(path(u"out"_qs)));
}

TEST_F(ExportOptionsSheetTest, GoneAfterTheExportItIsNotClosedAgain) {
    panel.answer = path(u"out"_qs);
    sheet->runExport();
    system.scheduler.settle();
    sheet.reset();
    system.scheduler.advance(10);
    EXPECT_EQ(dismissed, 0);
}

TEST_F(ExportOptionsSheetTest, MayBeDestroyedByItsOwnClosing) {
    std::unique_ptr<ExportOptionsSheet> own;
    own = std::make_unique<ExportOptionsSheet>(
        NotificationList(), [&own] { own.reset(); },
        ExportOptionsSheet::Services{manager, preferences, system.scheduler, viewer});
    own->cancel();
    EXPECT_FALSE(own);
}

} // namespace
} // namespace tessarine::testing

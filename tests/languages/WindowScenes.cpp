#include "languages/WindowScenes.h"

#include "diagnosticsview/DiagnosticsView.h"
#include "help/HelpView.h"

namespace tessarine::testing {

namespace {

using namespace Qt::StringLiterals;
using Guide = OnboardingFlow::Guide;
using Scenes = std::vector<WindowScene>;

void select(WindowStage& stage) {
    stage.openBrowser();
    stage.browser().selection()->enterSelectionMode();
    stage.browser().selection()->toggleSelection(stage.firstRow());
}

void focus(WindowStage& stage) {
    stage.openBrowser();
    stage.browser().actions()->onSingleTap(stage.firstRow());
}

Scenes browserScenes() {
    return {
        {"empty", [](WindowStage& stage) { stage.openEmptyBrowser(); }},
        {"withoutAccess",
         [](WindowStage& stage) {
             stage.platform().accessibility.trusted = false;
             stage.openEmptyBrowser();
         }},
        {"rows", [](WindowStage& stage) { stage.openBrowser(); }},
        {"noResults",
         [](WindowStage& stage) {
             stage.openBrowser();
             stage.browser().list()->setSearchText(u"nowhere"_qs);
         }},
        {"groupedByApp",
         [](WindowStage& stage) {
             stage.openBrowser();
             stage.browser().list()->setGroupMode(GroupMode::app);
         }},
        {"groupedByDate",
         [](WindowStage& stage) {
             stage.openBrowser();
             stage.browser().list()->setGroupMode(GroupMode::date);
         }},
        {"masked",
         [](WindowStage& stage) {
             stage.settings().setGlobalPrivacyMode(true);
             stage.openBrowser();
         }},
        {"preview",
         [](WindowStage& stage) {
             focus(stage);
             stage.browser().actions()->setShowPreview(true);
         }},
        {"infoBanner",
         [](WindowStage& stage) {
             stage.openBrowser();
             stage.browser().overlays()->showBanner(deepLinkBanner(u"Calendar"_qs));
         }},
        {"warningBanner",
         [](WindowStage& stage) {
             stage.openBrowser();
             stage.browser().actions()->openInApp(stage.firstRow());
         }},
    };
}

Scenes browserMenuScenes() {
    return {
        {"rowMenu",
         [](WindowStage& stage) {
             stage.openBrowser();
             stage.clickFirstRow(Qt::RightButton);
         }},
        {"groupMenu",
         [](WindowStage& stage) {
             stage.openBrowser();
             stage.browser().list()->setGroupMode(GroupMode::app);
             stage.clickFirstRow(Qt::RightButton);
         }},
        {"appPicker",
         [](WindowStage& stage) {
             stage.openBrowser();
             stage.click(u"appPicker"_qs);
         }},
        {"sortPicker",
         [](WindowStage& stage) {
             stage.openBrowser();
             stage.click(u"sortPicker"_qs);
         }},
        {"selection", select},
        {"selectionOfAll",
         [](WindowStage& stage) {
             select(stage);
             stage.browser().selection()->selectAllVisible();
         }},
        {"selectionMenu",
         [](WindowStage& stage) {
             select(stage);
             stage.click(u"selectByApp"_qs);
         }},
        {"datePopover",
         [](WindowStage& stage) {
             select(stage);
             stage.browser().selection()->dates()->setShowDatePickerPopover(true);
         }},
        {"deleteSelected",
         [](WindowStage& stage) {
             select(stage);
             stage.browser().selection()->setShowDeleteSelectedConfirm(true);
         }},
        {"deleteAll",
         [](WindowStage& stage) {
             select(stage);
             stage.browser().selection()->setShowDeleteAllConfirm(true);
         }},
    };
}

void openExport(WindowStage& stage) {
    stage.openBrowser();
    stage.browser().overlays()->setShowExportSheet(true);
    stage.shown();
}

template <ExportFormat format>
void openExportOf(WindowStage& stage) {
    openExport(stage);
    stage.browser().overlays()->exportSheet()->setSelectedFormat(format);
}

Scenes exportScenes() {
    return {
        {"exportCsv", openExportOf<ExportFormat::csv>},
        {"exportText", openExportOf<ExportFormat::txt>},
        {"exportPdf", openExportOf<ExportFormat::pdf>},
        {"exportOfHidden",
         [](WindowStage& stage) {
             stage.settings().setGlobalPrivacyMode(true);
             openExport(stage);
         }},
        {"exportQuestion",
         [](WindowStage& stage) {
             stage.settings().setGlobalPrivacyMode(true);
             openExport(stage);
             stage.browser().overlays()->exportSheet()->setIncludePrivateContent(true);
         }},
        {"exportOfAll",
         [](WindowStage& stage) {
             stage.settings().setGlobalPrivacyMode(true);
             openExport(stage);
             stage.browser().overlays()->exportSheet()->setIncludePrivateContent(true);
             stage.browser().overlays()->exportSheet()->confirmPrivateContent();
         }},
        {"exportFailed",
         [](WindowStage& stage) {
             openExport(stage);
             stage.refuseEveryPath();
             stage.browser().overlays()->exportSheet()->runExport();
             stage.platform().scheduler.settle();
         }},
    };
}

template <int days>
void openRetention(WindowStage& stage) {
    stage.settings().setRetentionDays(days);
    stage.openTab(PrefTab::storage);
}

template <int hours>
void openCodes(WindowStage& stage) {
    stage.settings().setOtpRetentionHours(hours);
    stage.openTab(PrefTab::privacy);
}

Scenes preferencesScenes() {
    return {
        {"general", [](WindowStage& stage) { stage.openTab(PrefTab::general); }},
        {"generalEnabled",
         [](WindowStage& stage) {
             stage.platform().loginItem.current = LoginItemStatus::enabled;
             stage.settings().setExcludedBundleIds({u"com.example.mail"_qs});
             stage.openTab(PrefTab::general);
         }},
        {"generalUnsaved",
         [](WindowStage& stage) {
             stage.openTab(PrefTab::general);
             stage.platform().defaults.cannotBeWritten = true;
             stage.preferences().privacy()->setGlobalPrivacyMode(true);
         }},
        {"storage", [](WindowStage& stage) { stage.openTab(PrefTab::storage); }},
        {"storageShort", openRetention<7>},
        {"storageTwoWeeks", openRetention<14>},
        {"storageMonth", openRetention<30>},
        {"storageMenu",
         [](WindowStage& stage) {
             stage.openTab(PrefTab::storage);
             stage.openMenuOf(u"keepFor"_qs);
         }},
        {"backupWarning",
         [](WindowStage& stage) {
             stage.openTab(PrefTab::storage);
             stage.preferences().storage()->backup()->request();
         }},
        {"backupError",
         [](WindowStage& stage) {
             stage.openTab(PrefTab::storage);
             stage.refuseEveryPath();
             stage.preferences().storage()->backup()->proceed();
         }},
        {"privacy", [](WindowStage& stage) { stage.openTab(PrefTab::privacy); }},
        {"privacyOn",
         [](WindowStage& stage) {
             stage.settings().setGlobalPrivacyMode(true);
             openCodes<24>(stage);
         }},
        {"privacyMenu",
         [](WindowStage& stage) {
             openCodes<1>(stage);
             stage.openMenuOf(u"otpAutoDelete"_qs);
         }},
        {"permissions", [](WindowStage& stage) { stage.openTab(PrefTab::permissions); }},
        {"permissionsWithout",
         [](WindowStage& stage) {
             stage.platform().accessibility.trusted = false;
             stage.platform().systemSettings.pages.clear();
             stage.openTab(PrefTab::permissions);
         }},
    };
}

Scenes excludedAppsScenes() {
    return {
        {"excludedNone", [](WindowStage& stage) { stage.openExcludedApps(); }},
        {"excludedApps",
         [](WindowStage& stage) {
             stage.storeRows();
             stage.settings().setExcludedBundleIds({u"com.example.mail"_qs});
             stage.openExcludedApps();
         }},
        {"exclusion",
         [](WindowStage& stage) {
             stage.storeRows();
             stage.openExcludedApps();
             stage.preferences().general()->excludedApps()->toggleOn(0);
         }},
    };
}

Scenes diagnosticsScenes() {
    return {
        {"diagnostics", [](WindowStage& stage) { stage.openDiagnostics(); }},
        {"diagnosticsNothingFound",
         [](WindowStage& stage) {
             stage.openDiagnostics();
             stage.diagnostics().log()->setSearchText(u"nowhere"_qs);
         }},
        {"diagnosticsEmpty",
         [](WindowStage& stage) {
             stage.openDiagnostics();
             stage.diagnostics().log()->clear();
         }},
        {"diagnosticsSmall",
         [](WindowStage& stage) {
             stage.openDiagnostics();
             stage.resize(600, 480);
         }},
    };
}

template <HelpSection section>
void openSection(WindowStage& stage) {
    stage.openHelp(section);
}

Scenes helpScenes() {
    return {
        {"help-howItWorks", openSection<HelpSection::howItWorks>},
        {"help-theHoard", openSection<HelpSection::theHoard>},
        {"help-searchFilter", openSection<HelpSection::searchFilter>},
        {"help-selectDelete", openSection<HelpSection::selectDelete>},
        {"help-exporting", openSection<HelpSection::exporting>},
        {"help-preferences", openSection<HelpSection::preferences>},
        {"help-privacy", openSection<HelpSection::privacy>},
        {"help-menuBar", openSection<HelpSection::menuBar>},
        {"help-diagnostics", openSection<HelpSection::diagnostics>},
        {"help-iphone", openSection<HelpSection::iphone>},
        {"help-macosSettings", openSection<HelpSection::macosSettings>},
        {"help-tips", openSection<HelpSection::tips>},
        {"help-limitations", openSection<HelpSection::limitations>},
        {"help-about", openSection<HelpSection::about>},
        {"help-search",
         [](WindowStage& stage) {
             stage.openHelp(HelpSection::about);
             stage.help().setSearchText(u"e"_qs);
         }},
        {"help-nothingFound",
         [](WindowStage& stage) {
             stage.openHelp(HelpSection::about);
             stage.help().setSearchText(u"xyzzy"_qs);
         }},
        {"help-agreement",
         [](WindowStage& stage) {
             stage.openHelp(HelpSection::about);
             stage.click(u"reviewAgreement"_qs);
         }},
    };
}

Scenes guideScenes() {
    return {
        {"guide-welcome", [](WindowStage& stage) { stage.openGuide(Guide::firstRun, 0); }},
        {"guide-agreement", [](WindowStage& stage) { stage.openGuide(Guide::firstRun, 1); }},
        {"guide-agreementRead",
         [](WindowStage& stage) {
             stage.openGuide(Guide::firstRun, 1);
             stage.scrollToTheEnd(u"agreementScroller"_qs);
             stage.click(u"agree"_qs);
         }},
        {"guide-access", [](WindowStage& stage) { stage.openGuide(Guide::firstRun, 2); }},
        {"guide-withoutAccess",
         [](WindowStage& stage) {
             stage.platform().accessibility.trusted = false;
             stage.openGuide(Guide::firstRun, 2);
         }},
        {"guide-privacy", [](WindowStage& stage) { stage.openGuide(Guide::firstRun, 3); }},
        {"guide-later", [](WindowStage& stage) { stage.openGuide(Guide::later, 2); }},
        {"guide-small",
         [](WindowStage& stage) {
             stage.platform().accessibility.trusted = false;
             stage.openGuide(Guide::later, 1);
             stage.resize(560, 520);
         }},
    };
}

Scenes questionScenes() {
    return {
        {"privacyNotice", [](WindowStage& stage) { stage.openPrivacyNotice(); }},
        {"fullDiskAccess", [](WindowStage& stage) { stage.openFullDiskAccess(); }},
        {"fullDiskAccessMissing",
         [](WindowStage& stage) {
             stage.platform().systemSettings.hasLists = false;
             stage.platform().systemSettings.pages.clear();
             stage.openFullDiskAccess();
             stage.click(u"enabled"_qs);
         }},
        {"fullDiskAccessSmall",
         [](WindowStage& stage) {
             stage.openFullDiskAccess();
             stage.resize(480, 400);
         }},
        {"loginPrompt", [](WindowStage& stage) { stage.openLoginPrompt(); }},
        {"updates", [](WindowStage& stage) { stage.openUpdateNotice(); }},
    };
}

} // namespace

void PrintTo(const WindowScene& scene, std::ostream* out) {
    *out << scene.name;
}

const std::vector<WindowScene>& windowScenes() {
    static const Scenes scenes = [] {
        Scenes all;
        for (const Scenes& some : {browserScenes(), browserMenuScenes(), exportScenes(),
                                   preferencesScenes(), excludedAppsScenes(), diagnosticsScenes(),
                                   helpScenes(), guideScenes(), questionScenes()})
            all.insert(all.end(), some.begin(), some.end());
        return all;
    }();
    return scenes;
}

} // namespace tessarine::testing
